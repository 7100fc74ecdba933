#pragma once

#include <QCoreApplication>
#include <QString>

#include <memory>

class KeyboardLayout;
class QKeyEvent;

// Between the keys of Qt's key events and the Windows virtual-key codes that
// hotkeys and macros store, and the names of those keys on screen in the
// user's keyboard layout.
class KeyMapping
{
    Q_DECLARE_TR_FUNCTIONS(KeyMapping)

public:
    // The virtual key of a key event; 0 for a key the keystroke services
    // cannot type. Goes by the symbol the key gives without modifiers in the
    // live layout (Shift+7 on a German keyboard is the 7 key), then by the
    // event's own symbol, then by the key's place (the keys whose symbol no
    // virtual key has, like Ä or a French number row), and for events without
    // native codes (as tests send) by the Qt key.
    static int virtualKey(const QKeyEvent& event);

    // The chord modifier a modifier key sets (Qt::MetaModifier for Super);
    // Qt::NoModifier for any other key.
    static Qt::KeyboardModifier modifierOfKey(int qtKey);

    // The key's name in the user's layout ("Ä" for the key right of Ö on a
    // German keyboard, "Volume Up"); qtKey names a virtual key the program
    // does not know, as a file from elsewhere may hold.
    static QString keyName(int virtualKey, int qtKey = 0);

    // Reads the user's layout again; call before a batch of names or a
    // recording, so a layout switched meanwhile shows.
    static void reloadLayout();
    // Replaces the layout service (tests).
    static void setLayout(std::unique_ptr<KeyboardLayout> layout);

private:
    static KeyboardLayout& layout();
};
