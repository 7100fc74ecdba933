#include "ka_linkbutton.h"

KeyActionType KA_LinkButton::getActionType() const
{
    return KAT_LINK_BUTTON;
}

bool KA_LinkButton::isValid() const
{
    return true;
}

void KA_LinkButton::reset() {}
