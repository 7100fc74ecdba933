#include "fakekeyboardlayout.h"

FakeKeyboardLayout::FakeKeyboardLayout(const QHash<quint16, quint32>& keysymsByEvdevCode)
    : m_keysyms(keysymsByEvdevCode)
{
}

void FakeKeyboardLayout::reload() {}

quint32 FakeKeyboardLayout::baseKeysym(quint16 evdevCode) const
{
    return m_keysyms.value(evdevCode);
}
