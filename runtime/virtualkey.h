#pragma once

#include "marcokeyitem.h"

#include <QList>
#include <QObject>

class KeystrokeBackend;
class WindowSystem;

// Types the key chords of hotkeys and plays recorded macros, by Windows
// virtual-key code, through one keystroke backend for the whole process.
// The calls block for 30 ms per step and belong on the key action thread;
// chords and macros from several threads are typed one after the other,
// never interleaved.
class VirtualKey : public QObject
{
    Q_OBJECT

public:
    static constexpr int WindowsKey = 91;
    static constexpr int AltKey = 18;
    static constexpr int ControlKey = 17;
    static constexpr int ShiftKey = 16;
    // Between the downs and the ups of a chord, and after each macro step:
    // some programs miss a key released in the same instant it went down.
    static constexpr int PauseMs = 30;
    // The flag values of the macro trace: 0 down, 2 up.
    static constexpr int KeyUpFlag = 2;

    // Modifiers down in the order Windows (Super), Alt, Control, Shift, then
    // the key; 30 ms; the ups in reverse order. A key without a mapping
    // sends nothing, so no lone modifier taps reach the desktop.
    static void sendKeyEvent(int nativeKey, bool win, bool alt, bool ctrl, bool shift);
    // Each step down or up as recorded, 30 ms after each; no releases added.
    static void sendMacroKeyEvent(QList<MarcoKeyItem> steps);

    // The backend all keystrokes go through; the caller keeps ownership and
    // sets null before deleting it. Until one is set, the first keystroke
    // chooses one with KeystrokeBackend::create() and keeps it.
    static void setBackend(KeystrokeBackend* backend);
    // For the broadcaster rule: the desktop's windows. Without them the rule
    // is skipped.
    static void setWindowSystem(WindowSystem* windowSystem);
    // The main window's native id, told by the GUI thread whenever that
    // window is made again (its flags changed) and read by the typing
    // thread; 0 while it has none, which skips the rule.
    static void setMainWindowId(quint64 windowId);
    static quint64 mainWindowId();

    // Whether keystrokes can be sent. When they cannot, the first call (or
    // keystroke) logs it and emits keystrokesUnavailable; later ones stay
    // quiet. The main window may call it at start-up to tell the user early.
    static bool checkAvailable();

    // The sender of keystrokesUnavailable, which may be emitted on any thread.
    static VirtualKey* instance();

signals:
    // The text says what to do about it, ready to show the user.
    void keystrokesUnavailable(const QString& message);
    // Keys are typed, but on this Wayland session through XWayland, so only
    // X applications receive them; emitted once, when the backend is chosen.
    void keystrokesReachXOnly(const QString& message);

private:
    VirtualKey() = default;
};
