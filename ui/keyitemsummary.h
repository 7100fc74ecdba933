#pragma once

#include <QCoreApplication>
#include <QString>

class KeyItem;

// A key item in words, for tool tips and screen readers: its title, its
// action type's palette name and what the action does ("Ctrl+C",
// "https://example.org", "3 keys"). A hotkey that toggles speaks of the
// feature it performs next.
class KeyItemSummary
{
    Q_DECLARE_TR_FUNCTIONS(KeyItemSummary)

public:
    // The title shown on the key; empty when it has none.
    static QString title(const KeyItem* item);
    // What the action does, with its type: "Hotkey: Ctrl+C"; just the type
    // when the action is not configured yet.
    static QString action(const KeyItem* item);
    // Title over action, for a tool tip; plain text.
    static QString toolTip(const KeyItem* item);
    // "Title, Hotkey", or the type alone for an untitled item.
    static QString accessibleName(const KeyItem* item);

private:
    static QString detail(const KeyItem* item);
};
