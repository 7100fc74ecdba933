#pragma once

#include <QVector>
#include <QtGlobal>

// Windows virtual-key codes are what key items store on every platform, so a
// saved or exported layout means the same keys everywhere. This table turns
// them into what the desktop's keystroke services understand: an X keysym
// (typed through the live keyboard mapping, so a non-US layout types what the
// key shows) and a Linux evdev key code (the physical key, for uinput).
// Punctuation keys go by their position on a US keyboard. The Qt key code of
// each key serves where Qt gives no keysym (and to name keys on screen).
class VirtualKeyTable
{
public:
    struct Entry
    {
        int virtualKey;
        quint32 keysym;
        quint16 evdevCode;
        int qtKey; // with Qt::KeypadModifier for the keys of the keypad
    };

    // 0 for a virtual key the table does not know.
    static quint32 keysym(int virtualKey);
    static quint16 evdevCode(int virtualKey);
    static int qtKey(int virtualKey);
    static bool contains(int virtualKey);

    // The virtual key whose key produces the keysym without modifiers (an
    // upper-case letter is taken as its key too); 0 when none does. For
    // recording hotkeys from the key events of X11 and Wayland.
    static int virtualKeyFromKeysym(quint32 keysym);
    // The virtual key of a key by its place (the evdev code of the key event,
    // X keycode minus 8); 0 when none. For keys whose keysym the table lacks,
    // like the umlauts of a German keyboard or the number row of a French one.
    static int virtualKeyFromEvdevCode(quint16 evdevCode);
    // The virtual key of a Qt key code (Qt::KeypadModifier kept for the
    // keypad); 0 when none. For key events that carry no keysym.
    static int virtualKeyFromQtKey(int qtKey);

    // Media, volume, browser and launcher keys, F13 to F24, Print, Scroll
    // Lock, Pause, Insert and Menu: keys many keyboards lack, which the
    // editor therefore offers from a list. In the order of that list.
    static QVector<int> keysKeyboardsMayLack();

    // Every entry, in ascending virtual-key order.
    static const QVector<Entry>& entries();
    // The evdev codes of all entries without repeats; what a virtual
    // keyboard has to announce.
    static QVector<quint16> evdevCodes();
};
