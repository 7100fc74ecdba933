#pragma once

#include "keyboardlayout.h"

#include <QHash>

// A keyboard layout the test sets key by key; every other key unknown.
class FakeKeyboardLayout : public KeyboardLayout
{
public:
    explicit FakeKeyboardLayout(const QHash<quint16, quint32>& keysymsByEvdevCode = {});

    void reload() override;
    quint32 baseKeysym(quint16 evdevCode) const override;

private:
    QHash<quint16, quint32> m_keysyms;
};
