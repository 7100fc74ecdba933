#pragma once

#include "keyactiontype.h"
#include "marcokeyitem.h"

#include <QList>
#include <QObject>
#include <QString>

#include <functional>

class KeyItem;
class KeyItemModel;
struct KeyChord;

// The edits of one key's property form, without widgets. Each edit is one
// update bracket of the key model, so the grid, the outline and the keypad
// redraw at once and the model's save timer merges a burst of edits into one
// save. An edit that changes nothing ends the bracket unchanged.
//
// The editor holds on to the item it was made for: once that item is no
// longer at its key on the page shown (deleted, replaced, the page changed),
// every edit is refused and logged instead of reaching a stale item.
class KeyItemEditor : public QObject
{
    Q_OBJECT
public:
    KeyItemEditor(KeyItemModel* model, int keyIdx, QObject* parent = nullptr);

    KeyItemModel* model() const;
    int keyIdx() const;
    // Null once the item went away.
    KeyItem* item() const;
    KeyActionType actionType() const;

    // The set-title rule of KeyItem: a hotkey titles each slot on its own,
    // every other item writes both.
    bool setTitle(int slot, const QString& text);
    bool setChord(int slot, const KeyChord& chord);
    // Turning the second hotkey off shows the first again.
    bool setMultiFeature(bool on);
    bool setMacroSteps(const QList<MarcoKeyItem>& steps);
    // The launch command or the website address.
    bool setPath(const QString& path);
    bool setText(const QString& text);
    // The executable whose coming to the front opens the folder; empty: none.
    bool setFolderApplication(const QString& path);

private:
    // change: applies the edit to the item, returns whether anything changed.
    bool edit(const char* what, bool typeFits, const std::function<bool(KeyItem*)>& change);
    static bool isSlot(int slot);

    KeyItemModel* m_model;
    int m_keyIdx;
    KeyItem* m_item;
};
