#pragma once

#include "keyboardlayout.h"

// Where the layout cannot be read (Wayland, offscreen): every key unknown, so
// callers go by the keysym and Qt key of the event and by Qt's key names.
class GenericKeyboardLayout : public KeyboardLayout
{
public:
    void reload() override;
    quint32 baseKeysym(quint16 evdevCode) const override;
};
