#include "keyitem.h"

#include "buttonlayoutconfig.h"
#include "ka_execute.h"
#include "ka_folder.h"
#include "ka_hotkey.h"
#include "ka_marcokey.h"
#include "ka_paststring.h"
#include "keyactionabstr.h"
#include "logging.h"

#include <QDebug>
#include <typeinfo>

KeyItem::KeyItem()
{
    for (KeyRenderInfo& face : render)
        face.owner = this;
}

KeyItem::KeyItem(KeyActionType type, int keyIdx, int layout) : KeyItem()
{
    this->keyIdx = keyIdx;
    actionType = type;
    this->layout = layout;
    cfIdx = 0;
    for (int slot = 0; slot < SlotCount; ++slot) {
        action[slot] = KeyActionAbstr::newActionObject(this, type);
        render[slot].defImgPath = defaultImageName(type, slot);
    }
    if (type != KAT_HOTKEY)
        multiFeatureFlag = false;
}

KeyItem::KeyItem(const KeyItem& src) : KeyItem(src.actionType, src.keyIdx, src.layout)
{
    *this = src;
}

KeyItem::~KeyItem()
{
    deleteActions();
}

void KeyItem::deleteActions()
{
    for (KeyActionAbstr*& slotAction : action) {
        delete slotAction;
        slotAction = nullptr;
    }
}

void KeyItem::recreateActions()
{
    deleteActions();
    for (int slot = 0; slot < SlotCount; ++slot)
        action[slot] = KeyActionAbstr::newActionObject(this, actionType);
}

KeyItem& KeyItem::operator=(const KeyItem& src)
{
    LOG_MSG(QStringLiteral("KeyItem::operator ="));
    if (this == &src)
        return *this;
    keyIdx = src.keyIdx;
    actionType = src.actionType;
    multiFeatureFlag = src.multiFeatureFlag;
    stateFlag = src.stateFlag;
    cfIdx = src.cfIdx;
    parent = src.parent;
    layout = ButtonLayoutConfig::currentLayoutOf(src.layout);
    copyKeyAction(src);
    for (int slot = 0; slot < SlotCount; ++slot)
        render[slot].assignFrom(src.render[slot]);
    return *this;
}

void KeyItem::copyKeyAction(const KeyItem& src)
{
    for (int slot = 0; slot < SlotCount; ++slot) {
        if (!action[slot] || !src.action[slot])
            continue;
        // The casts below read both objects as the source's class.
        if (typeid(*action[slot]) != typeid(*src.action[slot])) {
            LOG_MSG(QStringLiteral("ERROR: action classes differ, nothing copied!!"));
            continue;
        }
        switch (src.actionType) {
        case KAT_FOLDER:
            static_cast<KA_Folder&>(*action[slot]) = static_cast<const KA_Folder&>(*src.action[slot]);
            break;
        case KAT_HOTKEY:
            static_cast<KA_HotKey*>(action[slot])->copyFrom(static_cast<const KA_HotKey&>(*src.action[slot]));
            break;
        case KAT_MACROKEY:
            static_cast<KA_MarcoKey*>(action[slot])->marcoKeyItemList =
                static_cast<const KA_MarcoKey*>(src.action[slot])->marcoKeyItemList;
            break;
        case KAT_EXE_APP_FILE:
        case KAT_OPEN_WEBSITE:
            static_cast<KA_Execute*>(action[slot])->path = static_cast<const KA_Execute*>(src.action[slot])->path;
            break;
        case KAT_PASTE_STRING:
            static_cast<KA_PastString*>(action[slot])->strText =
                static_cast<const KA_PastString*>(src.action[slot])->strText;
            break;
        case KAT_LINK_BUTTON:
            break;
        default:
            qDebug() << "KeyItem::copyKeyAction"
                     << "ERR: incorrect type!";
            break;
        }
    }
}

void KeyItem::resetItem()
{
    cfIdx = 0;
    for (int slot = 0; slot < SlotCount; ++slot) {
        if (action[slot])
            action[slot]->reset();
        render[slot].reset();
    }
}

void KeyItem::setTitle(int slot, const QString& text)
{
    if (actionType == KAT_HOTKEY) {
        if (slot >= 0 && slot < SlotCount)
            render[slot].text = text;
        return;
    }
    for (KeyRenderInfo& face : render)
        face.text = text;
}

KeyActionAbstr* KeyItem::currentAction() const
{
    return cfIdx >= 0 && cfIdx < SlotCount ? action[cfIdx] : nullptr;
}

const KeyRenderInfo& KeyItem::currentRender() const
{
    return render[cfIdx == 1 ? 1 : 0];
}

bool KeyItem::isValid() const
{
    const KeyActionAbstr* current = currentAction();
    return current && current->isValid();
}

bool KeyItem::isFolder() const
{
    return actionType == KAT_FOLDER;
}
