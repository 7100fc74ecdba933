#pragma once

#include <QMetaType>

// The six ways the keypad can be used: three sizes, each held horizontally
// (H) or vertically (V). Stored as a 32-bit value; anything else is invalid.
enum KeyLayout : qint32
{
    H_Key_6 = 0,
    V_Key_6 = 1,
    H_Key_15 = 2,
    V_Key_15 = 3,
    H_Key_32 = 4,
    V_Key_32 = 5,
};

Q_DECLARE_METATYPE(KeyLayout)
