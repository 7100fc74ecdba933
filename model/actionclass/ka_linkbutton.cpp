#include "ka_linkbutton.h"

#include "keyitemmodel.h"
#include "objectregistry.h"

KeyActionType KA_LinkButton::getActionType() const
{
    return KAT_LINK_BUTTON;
}

bool KA_LinkButton::isValid() const
{
    return true;
}

void KA_LinkButton::reset() {}

// Back to the root page: there is only one level of folders.
bool KA_LinkButton::doAction(int)
{
    auto* model = qobject_cast<KeyItemModel*>(ObjectRegistry::find(ComponentId::KeyItemModel));
    if (!model)
        return false;
    model->beginUpdate();
    model->changeListToRoot();
    model->endUpdate(true);
    return true;
}
