#pragma once

#include <QVector>
#include <QtGlobal>

// Windows virtual-key codes are what key items store on every platform, so a
// saved or exported layout means the same keys everywhere. This table turns
// them into what the desktop's keystroke services understand: an X keysym
// (typed through the live keyboard mapping, so a non-US layout types what the
// key shows) and a Linux evdev key code (the physical key, for uinput).
// Punctuation keys go by their position on a US keyboard.
class VirtualKeyTable
{
public:
    struct Entry
    {
        int virtualKey;
        quint32 keysym;
        quint16 evdevCode;
    };

    // 0 for a virtual key the table does not know.
    static quint32 keysym(int virtualKey);
    static quint16 evdevCode(int virtualKey);
    static bool contains(int virtualKey);

    // The virtual key whose key produces the keysym without modifiers (an
    // upper-case letter is taken as its key too); 0 when none does. For
    // recording hotkeys from the key events of X11 and Wayland.
    static int virtualKeyFromKeysym(quint32 keysym);

    // Every entry, in ascending virtual-key order.
    static const QVector<Entry>& entries();
    // The evdev codes of all entries without repeats; what a virtual
    // keyboard has to announce.
    static QVector<quint16> evdevCodes();
};
