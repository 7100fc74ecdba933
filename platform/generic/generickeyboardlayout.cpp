#include "generickeyboardlayout.h"

void GenericKeyboardLayout::reload() {}

quint32 GenericKeyboardLayout::baseKeysym(quint16) const
{
    return 0;
}
