#pragma once

#include <QtGlobal>

// One step of a macro: a key going down or up.
struct MarcoKeyItem
{
    int qtKeyCode = -1;
    quint16 nativeKeyCode = 0; // Windows virtual-key code on every platform
    bool isPress = false;

    bool operator==(const MarcoKeyItem& other) const
    {
        return qtKeyCode == other.qtKeyCode && nativeKeyCode == other.nativeKeyCode && isPress == other.isPress;
    }
};
