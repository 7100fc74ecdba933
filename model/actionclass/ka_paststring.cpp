#include "ka_paststring.h"

KeyActionType KA_PastString::getActionType() const
{
    return KAT_PASTE_STRING;
}

bool KA_PastString::isValid() const
{
    return !strText.isEmpty();
}

void KA_PastString::reset()
{
    strText.clear();
}
