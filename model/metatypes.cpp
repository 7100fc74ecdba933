#include "metatypes.h"

#include "keylayout.h"

void registerModelMetaTypes()
{
    qRegisterMetaType<KeyLayout>("KeyLayout");
}
