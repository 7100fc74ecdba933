#include "virtualkeytable.h"

#include <X11/XF86keysym.h>
#include <X11/keysym.h>
#include <linux/input-event-codes.h>

#include <QtCore/qnamespace.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

using Entry = VirtualKeyTable::Entry;

// Qt tells the keys of the numeric keypad by this flag on the key code.
constexpr int Keypad = Qt::KeypadModifier;

// Digits and letters follow runs of virtual keys and keysyms, but the evdev
// codes follow the rows of a keyboard, so they are spelled out.
const quint16 DigitCodes[10] = {KEY_0, KEY_1, KEY_2, KEY_3, KEY_4, KEY_5, KEY_6, KEY_7, KEY_8, KEY_9};
const quint16 LetterCodes[26] = {KEY_A, KEY_B, KEY_C, KEY_D, KEY_E, KEY_F, KEY_G, KEY_H, KEY_I,
                                 KEY_J, KEY_K, KEY_L, KEY_M, KEY_N, KEY_O, KEY_P, KEY_Q, KEY_R,
                                 KEY_S, KEY_T, KEY_U, KEY_V, KEY_W, KEY_X, KEY_Y, KEY_Z};
const quint16 FunctionCodes[24] = {KEY_F1,  KEY_F2,  KEY_F3,  KEY_F4,  KEY_F5,  KEY_F6,  KEY_F7,  KEY_F8,
                                   KEY_F9,  KEY_F10, KEY_F11, KEY_F12, KEY_F13, KEY_F14, KEY_F15, KEY_F16,
                                   KEY_F17, KEY_F18, KEY_F19, KEY_F20, KEY_F21, KEY_F22, KEY_F23, KEY_F24};
const quint16 NumpadDigitCodes[10] = {KEY_KP0, KEY_KP1, KEY_KP2, KEY_KP3, KEY_KP4,
                                      KEY_KP5, KEY_KP6, KEY_KP7, KEY_KP8, KEY_KP9};

// The keys that are not part of a run, by virtual key.
const Entry SingleKeys[] = {
    {0x08, XK_BackSpace, KEY_BACKSPACE, Qt::Key_Backspace},
    {0x09, XK_Tab, KEY_TAB, Qt::Key_Tab},
    {0x0C, XK_Clear, KEY_CLEAR, Qt::Key_Clear},
    {0x0D, XK_Return, KEY_ENTER, Qt::Key_Return},
    // The generic modifiers stand for the left-hand keys.
    {0x10, XK_Shift_L, KEY_LEFTSHIFT, Qt::Key_Shift},
    {0x11, XK_Control_L, KEY_LEFTCTRL, Qt::Key_Control},
    {0x12, XK_Alt_L, KEY_LEFTALT, Qt::Key_Alt},
    {0x13, XK_Pause, KEY_PAUSE, Qt::Key_Pause},
    {0x14, XK_Caps_Lock, KEY_CAPSLOCK, Qt::Key_CapsLock},
    {0x1B, XK_Escape, KEY_ESC, Qt::Key_Escape},
    {0x20, XK_space, KEY_SPACE, Qt::Key_Space},
    {0x21, XK_Prior, KEY_PAGEUP, Qt::Key_PageUp},
    {0x22, XK_Next, KEY_PAGEDOWN, Qt::Key_PageDown},
    {0x23, XK_End, KEY_END, Qt::Key_End},
    {0x24, XK_Home, KEY_HOME, Qt::Key_Home},
    {0x25, XK_Left, KEY_LEFT, Qt::Key_Left},
    {0x26, XK_Up, KEY_UP, Qt::Key_Up},
    {0x27, XK_Right, KEY_RIGHT, Qt::Key_Right},
    {0x28, XK_Down, KEY_DOWN, Qt::Key_Down},
    {0x29, XK_Select, KEY_SELECT, Qt::Key_Select},
    // Print Screen is the SysRq key to the kernel.
    {0x2C, XK_Print, KEY_SYSRQ, Qt::Key_Print},
    {0x2D, XK_Insert, KEY_INSERT, Qt::Key_Insert},
    {0x2E, XK_Delete, KEY_DELETE, Qt::Key_Delete},
    {0x2F, XK_Help, KEY_HELP, Qt::Key_Help},
    {0x5B, XK_Super_L, KEY_LEFTMETA, Qt::Key_Super_L},
    {0x5C, XK_Super_R, KEY_RIGHTMETA, Qt::Key_Super_R},
    {0x5D, XK_Menu, KEY_COMPOSE, Qt::Key_Menu},
    {0x5F, XF86XK_Sleep, KEY_SLEEP, Qt::Key_Sleep},
    {0x6A, XK_KP_Multiply, KEY_KPASTERISK, Keypad | Qt::Key_Asterisk},
    {0x6B, XK_KP_Add, KEY_KPPLUS, Keypad | Qt::Key_Plus},
    {0x6C, XK_KP_Separator, KEY_KPCOMMA, Keypad | Qt::Key_Comma},
    {0x6D, XK_KP_Subtract, KEY_KPMINUS, Keypad | Qt::Key_Minus},
    {0x6E, XK_KP_Decimal, KEY_KPDOT, Keypad | Qt::Key_Period},
    {0x6F, XK_KP_Divide, KEY_KPSLASH, Keypad | Qt::Key_Slash},
    {0x90, XK_Num_Lock, KEY_NUMLOCK, Qt::Key_NumLock},
    {0x91, XK_Scroll_Lock, KEY_SCROLLLOCK, Qt::Key_ScrollLock},
    {0xA0, XK_Shift_L, KEY_LEFTSHIFT, Qt::Key_Shift},
    {0xA1, XK_Shift_R, KEY_RIGHTSHIFT, Qt::Key_Shift},
    {0xA2, XK_Control_L, KEY_LEFTCTRL, Qt::Key_Control},
    {0xA3, XK_Control_R, KEY_RIGHTCTRL, Qt::Key_Control},
    {0xA4, XK_Alt_L, KEY_LEFTALT, Qt::Key_Alt},
    {0xA5, XK_Alt_R, KEY_RIGHTALT, Qt::Key_Alt},
    {0xA6, XF86XK_Back, KEY_BACK, Qt::Key_Back},
    {0xA7, XF86XK_Forward, KEY_FORWARD, Qt::Key_Forward},
    {0xA8, XF86XK_Refresh, KEY_REFRESH, Qt::Key_Refresh},
    {0xA9, XF86XK_Stop, KEY_STOP, Qt::Key_Stop},
    {0xAA, XF86XK_Search, KEY_SEARCH, Qt::Key_Search},
    {0xAB, XF86XK_Favorites, KEY_BOOKMARKS, Qt::Key_Favorites},
    {0xAC, XF86XK_HomePage, KEY_HOMEPAGE, Qt::Key_HomePage},
    {0xAD, XF86XK_AudioMute, KEY_MUTE, Qt::Key_VolumeMute},
    {0xAE, XF86XK_AudioLowerVolume, KEY_VOLUMEDOWN, Qt::Key_VolumeDown},
    {0xAF, XF86XK_AudioRaiseVolume, KEY_VOLUMEUP, Qt::Key_VolumeUp},
    {0xB0, XF86XK_AudioNext, KEY_NEXTSONG, Qt::Key_MediaNext},
    {0xB1, XF86XK_AudioPrev, KEY_PREVIOUSSONG, Qt::Key_MediaPrevious},
    {0xB2, XF86XK_AudioStop, KEY_STOPCD, Qt::Key_MediaStop},
    {0xB3, XF86XK_AudioPlay, KEY_PLAYPAUSE, Qt::Key_MediaTogglePlayPause},
    {0xB4, XF86XK_Mail, KEY_MAIL, Qt::Key_LaunchMail},
    {0xB5, XF86XK_AudioMedia, KEY_MEDIA, Qt::Key_LaunchMedia},
    {0xB6, XF86XK_MyComputer, KEY_COMPUTER, Qt::Key_Launch0},
    {0xB7, XF86XK_Calculator, KEY_CALC, Qt::Key_Calculator},
    // Punctuation by its place on a US keyboard.
    {0xBA, XK_semicolon, KEY_SEMICOLON, Qt::Key_Semicolon},
    {0xBB, XK_equal, KEY_EQUAL, Qt::Key_Equal},
    {0xBC, XK_comma, KEY_COMMA, Qt::Key_Comma},
    {0xBD, XK_minus, KEY_MINUS, Qt::Key_Minus},
    {0xBE, XK_period, KEY_DOT, Qt::Key_Period},
    {0xBF, XK_slash, KEY_SLASH, Qt::Key_Slash},
    {0xC0, XK_grave, KEY_GRAVE, Qt::Key_QuoteLeft},
    {0xDB, XK_bracketleft, KEY_LEFTBRACE, Qt::Key_BracketLeft},
    {0xDC, XK_backslash, KEY_BACKSLASH, Qt::Key_Backslash},
    {0xDD, XK_bracketright, KEY_RIGHTBRACE, Qt::Key_BracketRight},
    {0xDE, XK_apostrophe, KEY_APOSTROPHE, Qt::Key_Apostrophe},
    // A US keyboard has no such key; the layouts that have one (British) put
    // it left of 1, where the US keyboard has the grave accent.
    {0xDF, XK_grave, KEY_GRAVE, Qt::Key_QuoteLeft},
    // The extra key beside the left Shift of 102-key keyboards.
    {0xE2, XK_less, KEY_102ND, Qt::Key_Less},
};

// Qt key codes that name a key of the table differently: what Qt reports for
// these keys where no keysym comes with the event.
const std::pair<int, int> QtKeyAliases[] = {
    {Qt::Key_Enter, 0x0D}, {Keypad | Qt::Key_Enter, 0x0D}, {Qt::Key_Backtab, 0x09},    {Qt::Key_Meta, 0x5B},
    {Qt::Key_AltGr, 0xA5}, {Qt::Key_MediaPlay, 0xB3},      {Qt::Key_MediaPause, 0xB3}, {Qt::Key_SysReq, 0x2C},
};

// Keys that many keyboards lack, grouped as a menu shows them: media,
// volume, browser, launchers, F13 to F24, the rarer keys of a full keyboard.
const int KeysKeyboardsMayLack[] = {
    0xB3, 0xB0, 0xB1, 0xB2,                                                 //
    0xAF, 0xAE, 0xAD,                                                       //
    0xA6, 0xA7, 0xA8, 0xAC, 0xAA,                                           //
    0xB4, 0xB7,                                                             //
    0x7C, 0x7D, 0x7E, 0x7F, 0x80, 0x81, 0x82, 0x83, 0x84, 0x85, 0x86, 0x87, //
    0x2C, 0x91, 0x13, 0x2D, 0x5D,
};

void appendRun(QVector<Entry>& table, int firstVirtualKey, quint32 firstKeysym, const quint16* codes, int count,
               int firstQtKey)
{
    for (int i = 0; i < count; ++i)
        table.append({firstVirtualKey + i, quint32(firstKeysym + quint32(i)), codes[i], firstQtKey + i});
}

QVector<Entry> buildTable()
{
    QVector<Entry> table;
    table.reserve(int(std::size(SingleKeys)) + 70);
    for (const Entry& entry : SingleKeys)
        table.append(entry);
    appendRun(table, 0x30, XK_0, DigitCodes, 10, Qt::Key_0);
    appendRun(table, 0x41, XK_a, LetterCodes, 26, Qt::Key_A);
    appendRun(table, 0x60, XK_KP_0, NumpadDigitCodes, 10, Keypad | Qt::Key_0);
    appendRun(table, 0x70, XK_F1, FunctionCodes, 24, Qt::Key_F1);
    std::sort(table.begin(), table.end(), [](const Entry& a, const Entry& b) { return a.virtualKey < b.virtualKey; });
    return table;
}

const Entry* find(int virtualKey)
{
    const QVector<Entry>& table = VirtualKeyTable::entries();
    const auto it = std::lower_bound(table.cbegin(), table.cend(), virtualKey,
                                     [](const Entry& entry, int key) { return entry.virtualKey < key; });
    return it != table.cend() && it->virtualKey == virtualKey ? &*it : nullptr;
}

} // namespace

const QVector<VirtualKeyTable::Entry>& VirtualKeyTable::entries()
{
    static const QVector<Entry> table = buildTable();
    return table;
}

quint32 VirtualKeyTable::keysym(int virtualKey)
{
    const Entry* entry = find(virtualKey);
    return entry ? entry->keysym : 0;
}

quint16 VirtualKeyTable::evdevCode(int virtualKey)
{
    const Entry* entry = find(virtualKey);
    return entry ? entry->evdevCode : 0;
}

int VirtualKeyTable::qtKey(int virtualKey)
{
    const Entry* entry = find(virtualKey);
    return entry ? entry->qtKey : 0;
}

bool VirtualKeyTable::contains(int virtualKey)
{
    return find(virtualKey) != nullptr;
}

int VirtualKeyTable::virtualKeyFromKeysym(quint32 keysym)
{
    if (keysym >= XK_A && keysym <= XK_Z)
        keysym += XK_a - XK_A;
    // Ascending order makes the generic modifiers win over their left-hand
    // twins, as key events of the generic keys are what gets recorded.
    for (const Entry& entry : entries()) {
        if (entry.keysym == keysym)
            return entry.virtualKey;
    }
    return 0;
}

// Ascending order gives the generic modifiers and the first of two keys on
// one position, as for the keysyms.
int VirtualKeyTable::virtualKeyFromEvdevCode(quint16 evdevCode)
{
    if (evdevCode == 0)
        return 0;
    for (const Entry& entry : entries()) {
        if (entry.evdevCode == evdevCode)
            return entry.virtualKey;
    }
    return 0;
}

int VirtualKeyTable::virtualKeyFromQtKey(int qtKey)
{
    if (qtKey == 0)
        return 0;
    for (const auto& alias : QtKeyAliases) {
        if (alias.first == qtKey)
            return alias.second;
    }
    for (const Entry& entry : entries()) {
        if (entry.qtKey == qtKey)
            return entry.virtualKey;
    }
    // Qt flags every key of the keypad, also those the table has only once
    // (Enter is handled above; the arrows and Home of a keypad without Num Lock).
    return (qtKey & Keypad) != 0 ? virtualKeyFromQtKey(qtKey & ~Keypad) : 0;
}

QVector<int> VirtualKeyTable::keysKeyboardsMayLack()
{
    return QVector<int>(std::cbegin(KeysKeyboardsMayLack), std::cend(KeysKeyboardsMayLack));
}

QVector<quint16> VirtualKeyTable::evdevCodes()
{
    QVector<quint16> codes;
    for (const Entry& entry : entries()) {
        if (!codes.contains(entry.evdevCode))
            codes.append(entry.evdevCode);
    }
    return codes;
}
