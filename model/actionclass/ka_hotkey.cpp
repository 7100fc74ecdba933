#include "ka_hotkey.h"

#include "actionservices.h"

#include "keyitem.h"

KA_HotKey::KA_HotKey(KeyItem* owner) : owner(owner) {}

void KA_HotKey::copyFrom(const KA_HotKey& src)
{
    keyCmd = src.keyCmd;
    keyOption = src.keyOption;
    keyCtrl = src.keyCtrl;
    keyShift = src.keyShift;
    qtKeyCode = src.qtKeyCode;
    nativeCode = src.nativeCode;
}

KeyActionType KA_HotKey::getActionType() const
{
    return owner ? owner->actionType : KAT_HOTKEY;
}

bool KA_HotKey::isValid() const
{
    return nativeCode != -1;
}

void KA_HotKey::reset()
{
    keyCmd = keyOption = keyCtrl = keyShift = false;
    qtKeyCode = -1;
    nativeCode = -1;
}

// Command is sent as the Super key, Option as Alt.
bool KA_HotKey::doAction(int)
{
    ActionServices* services = ActionServices::instance();
    if (!isValid() || !services)
        return false;
    services->sendKeyEvent(nativeCode, keyCmd, keyOption, keyCtrl, keyShift);
    return true;
}
