#include "ka_marcokey.h"

#include "actionservices.h"

KeyActionType KA_MarcoKey::getActionType() const
{
    return KAT_MACROKEY;
}

bool KA_MarcoKey::isValid() const
{
    return !marcoKeyItemList.isEmpty();
}

void KA_MarcoKey::reset()
{
    marcoKeyItemList.clear();
}

// Plays a copy: the list may be edited while the steps are typed.
bool KA_MarcoKey::doAction(int)
{
    ActionServices* services = ActionServices::instance();
    if (!isValid() || !services)
        return false;
    services->sendMacroKeyEvent(marcoKeyItemList);
    return true;
}
