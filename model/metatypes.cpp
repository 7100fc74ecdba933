#include "metatypes.h"

#include "keyactiontype.h"
#include "keyitem.h"
#include "keylayout.h"

void registerModelMetaTypes()
{
    qRegisterMetaType<KeyItem>("KeyItem");
    qRegisterMetaType<KeyItem*>("KeyItem*");
    qRegisterMetaType<const KeyItem*>("const KeyItem*");
    qRegisterMetaType<KeyLayout>("KeyLayout");
    qRegisterMetaType<KeyActionType>("KeyActionType");
}
