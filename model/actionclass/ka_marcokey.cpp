#include "ka_marcokey.h"

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
