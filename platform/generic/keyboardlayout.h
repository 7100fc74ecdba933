#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>

// The user's keyboard layout as the desktop has it now: which symbol each key
// gives without modifiers. Hotkeys are recorded by that symbol (so Shift+7 on
// a German keyboard is Shift and the 7 key, not "/") and punctuation keys are
// named by it. Implementations: the live X keyboard mapping under X11, none
// elsewhere (Wayland tells clients no layout outside key events), and a fake
// for tests.
class KeyboardLayout
{
public:
    virtual ~KeyboardLayout();

    // Reads the layout again (a layout switch since the last read shows
    // after this); answers come from what was read last, so a caller reads
    // once per batch of look-ups.
    virtual void reload() = 0;
    // The keysym of the key at an evdev position in the current group at
    // level 1; 0 when unknown.
    virtual quint32 baseKeysym(quint16 evdevCode) const = 0;

    // What a keysym shows on a key cap: the upper-case character ("Ä" for
    // adiaeresis, "^" for dead_circumflex), else its X name; empty for none.
    static QString keysymLabel(quint32 keysym);

    // The implementation for the running Qt platform.
    static std::unique_ptr<KeyboardLayout> create();
};
