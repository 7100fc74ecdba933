#include "ka_execute.h"

#include "keyitem.h"

KA_Execute::KA_Execute(KeyItem* owner) : owner(owner) {}

KeyActionType KA_Execute::getActionType() const
{
    return owner ? owner->actionType : KAT_EXE_APP_FILE;
}

bool KA_Execute::isValid() const
{
    return !path.isEmpty();
}

void KA_Execute::reset()
{
    path.clear();
}
