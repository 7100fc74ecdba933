#pragma once

#include "keyactiontype.h"
#include "keyrenderinfo.h"

#include <QList>
#include <QMetaType>
#include <QVariantList>

class KeyActionAbstr;

// A key's position on its page in the editor's grid order; -1 for none.
using KeyIdx = qint32;

// One key on one page: its action type and, per feature slot, an action and a
// face. Only a hotkey with multiFeatureFlag set ever uses slot 1; every other
// item keeps cfIdx at 0.
class KeyItem
{
public:
    static constexpr int SlotCount = 2;

    KeyItem();
    // An item of a type at a key index, made for a layout, with fresh action
    // objects and the type's default images.
    KeyItem(KeyActionType type, int keyIdx, int layout);
    // A deep copy that belongs to the layout now in force (see operator=).
    KeyItem(const KeyItem& src);
    ~KeyItem();

    // Copies src into this item, which must already hold actions of src's
    // type. The copy belongs to the layout now in force, not src's.
    KeyItem& operator=(const KeyItem& src);
    void copyKeyAction(const KeyItem& src);

    // Back to unconfigured; default images stay.
    void resetItem();
    // Hotkeys title each slot on its own; every other item has one title.
    void setTitle(int slot, const QString& text);

    // The action and face of the current feature slot.
    KeyActionAbstr* currentAction() const;
    const KeyRenderInfo& currentRender() const;
    bool isValid() const;
    bool isFolder() const;
    // Replaces both action objects by fresh ones of the item's type.
    void recreateActions();

    int keyIdx = -1;
    KeyActionType actionType = KAT_INVALID;
    bool multiFeatureFlag = false;
    bool stateFlag = true;
    int cfIdx = 0;
    int layout = -1;
    KeyItem* parent = nullptr;
    QList<KeyItem*>* ownerList = nullptr;
    KeyActionAbstr* action[SlotCount] = {nullptr, nullptr};
    KeyRenderInfo render[SlotCount];
    QVariantList extraList;

private:
    void deleteActions();
};

Q_DECLARE_METATYPE(KeyItem)
Q_DECLARE_METATYPE(KeyItem*)
Q_DECLARE_METATYPE(const KeyItem*)
