#include "virtualkeytable.h"

#include <X11/XF86keysym.h>
#include <X11/keysym.h>
#include <linux/input-event-codes.h>

#include <algorithm>

namespace {

using Entry = VirtualKeyTable::Entry;

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
    {0x08, XK_BackSpace, KEY_BACKSPACE},
    {0x09, XK_Tab, KEY_TAB},
    {0x0C, XK_Clear, KEY_CLEAR},
    {0x0D, XK_Return, KEY_ENTER},
    // The generic modifiers stand for the left-hand keys.
    {0x10, XK_Shift_L, KEY_LEFTSHIFT},
    {0x11, XK_Control_L, KEY_LEFTCTRL},
    {0x12, XK_Alt_L, KEY_LEFTALT},
    {0x13, XK_Pause, KEY_PAUSE},
    {0x14, XK_Caps_Lock, KEY_CAPSLOCK},
    {0x1B, XK_Escape, KEY_ESC},
    {0x20, XK_space, KEY_SPACE},
    {0x21, XK_Prior, KEY_PAGEUP},
    {0x22, XK_Next, KEY_PAGEDOWN},
    {0x23, XK_End, KEY_END},
    {0x24, XK_Home, KEY_HOME},
    {0x25, XK_Left, KEY_LEFT},
    {0x26, XK_Up, KEY_UP},
    {0x27, XK_Right, KEY_RIGHT},
    {0x28, XK_Down, KEY_DOWN},
    {0x29, XK_Select, KEY_SELECT},
    // Print Screen is the SysRq key to the kernel.
    {0x2C, XK_Print, KEY_SYSRQ},
    {0x2D, XK_Insert, KEY_INSERT},
    {0x2E, XK_Delete, KEY_DELETE},
    {0x2F, XK_Help, KEY_HELP},
    {0x5B, XK_Super_L, KEY_LEFTMETA},
    {0x5C, XK_Super_R, KEY_RIGHTMETA},
    {0x5D, XK_Menu, KEY_COMPOSE},
    {0x5F, XF86XK_Sleep, KEY_SLEEP},
    {0x6A, XK_KP_Multiply, KEY_KPASTERISK},
    {0x6B, XK_KP_Add, KEY_KPPLUS},
    {0x6C, XK_KP_Separator, KEY_KPCOMMA},
    {0x6D, XK_KP_Subtract, KEY_KPMINUS},
    {0x6E, XK_KP_Decimal, KEY_KPDOT},
    {0x6F, XK_KP_Divide, KEY_KPSLASH},
    {0x90, XK_Num_Lock, KEY_NUMLOCK},
    {0x91, XK_Scroll_Lock, KEY_SCROLLLOCK},
    {0xA0, XK_Shift_L, KEY_LEFTSHIFT},
    {0xA1, XK_Shift_R, KEY_RIGHTSHIFT},
    {0xA2, XK_Control_L, KEY_LEFTCTRL},
    {0xA3, XK_Control_R, KEY_RIGHTCTRL},
    {0xA4, XK_Alt_L, KEY_LEFTALT},
    {0xA5, XK_Alt_R, KEY_RIGHTALT},
    {0xA6, XF86XK_Back, KEY_BACK},
    {0xA7, XF86XK_Forward, KEY_FORWARD},
    {0xA8, XF86XK_Refresh, KEY_REFRESH},
    {0xA9, XF86XK_Stop, KEY_STOP},
    {0xAA, XF86XK_Search, KEY_SEARCH},
    {0xAB, XF86XK_Favorites, KEY_BOOKMARKS},
    {0xAC, XF86XK_HomePage, KEY_HOMEPAGE},
    {0xAD, XF86XK_AudioMute, KEY_MUTE},
    {0xAE, XF86XK_AudioLowerVolume, KEY_VOLUMEDOWN},
    {0xAF, XF86XK_AudioRaiseVolume, KEY_VOLUMEUP},
    {0xB0, XF86XK_AudioNext, KEY_NEXTSONG},
    {0xB1, XF86XK_AudioPrev, KEY_PREVIOUSSONG},
    {0xB2, XF86XK_AudioStop, KEY_STOPCD},
    {0xB3, XF86XK_AudioPlay, KEY_PLAYPAUSE},
    {0xB4, XF86XK_Mail, KEY_MAIL},
    {0xB5, XF86XK_AudioMedia, KEY_MEDIA},
    {0xB6, XF86XK_MyComputer, KEY_COMPUTER},
    {0xB7, XF86XK_Calculator, KEY_CALC},
    // Punctuation by its place on a US keyboard.
    {0xBA, XK_semicolon, KEY_SEMICOLON},
    {0xBB, XK_equal, KEY_EQUAL},
    {0xBC, XK_comma, KEY_COMMA},
    {0xBD, XK_minus, KEY_MINUS},
    {0xBE, XK_period, KEY_DOT},
    {0xBF, XK_slash, KEY_SLASH},
    {0xC0, XK_grave, KEY_GRAVE},
    {0xDB, XK_bracketleft, KEY_LEFTBRACE},
    {0xDC, XK_backslash, KEY_BACKSLASH},
    {0xDD, XK_bracketright, KEY_RIGHTBRACE},
    {0xDE, XK_apostrophe, KEY_APOSTROPHE},
    // A US keyboard has no such key; the layouts that have one (British) put
    // it left of 1, where the US keyboard has the grave accent.
    {0xDF, XK_grave, KEY_GRAVE},
    // The extra key beside the left Shift of 102-key keyboards.
    {0xE2, XK_less, KEY_102ND},
};

void appendRun(QVector<Entry>& table, int firstVirtualKey, quint32 firstKeysym, const quint16* codes, int count)
{
    for (int i = 0; i < count; ++i)
        table.append({firstVirtualKey + i, quint32(firstKeysym + quint32(i)), codes[i]});
}

QVector<Entry> buildTable()
{
    QVector<Entry> table;
    table.reserve(int(std::size(SingleKeys)) + 70);
    for (const Entry& entry : SingleKeys)
        table.append(entry);
    appendRun(table, 0x30, XK_0, DigitCodes, 10);
    appendRun(table, 0x41, XK_a, LetterCodes, 26);
    appendRun(table, 0x60, XK_KP_0, NumpadDigitCodes, 10);
    appendRun(table, 0x70, XK_F1, FunctionCodes, 24);
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

QVector<quint16> VirtualKeyTable::evdevCodes()
{
    QVector<quint16> codes;
    for (const Entry& entry : entries()) {
        if (!codes.contains(entry.evdevCode))
            codes.append(entry.evdevCode);
    }
    return codes;
}
