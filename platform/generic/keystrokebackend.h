#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <memory>

// Synthetic key presses and releases, addressed by Windows virtual-key code
// (see VirtualKeyTable). Implementations: XTest under X11, a uinput virtual
// keyboard under Wayland or without X, and a recording fake for tests.
// Calls may come from any thread, one at a time.
class KeystrokeBackend
{
    Q_DECLARE_TR_FUNCTIONS(KeystrokeBackend)

public:
    virtual ~KeystrokeBackend();

    // "xtest", "uinput", "recording".
    virtual QString name() const = 0;

    // Whether keystrokes can be sent now. May connect to the desktop's input
    // service on first call; a backend that could not may try again later.
    virtual bool isUsable() = 0;
    // Why isUsable() failed, for the log; empty while usable.
    virtual QString unusableReason() const = 0;

    // False when the key cannot be sent (unknown virtual key, backend not
    // usable); the reason is logged.
    virtual bool keyDown(int virtualKey) = 0;
    virtual bool keyUp(int virtualKey) = 0;

    // The backend for this desktop: XTest first under X11, uinput first
    // otherwise, the other one when the first is unusable. When neither is
    // usable, the uinput one, which starts working once the user has been
    // given access to /dev/uinput; both reasons are logged.
    static std::unique_ptr<KeystrokeBackend> create();

    // Whether to try XTest before uinput: on the xcb platform, or without a
    // Qt platform that says otherwise when an X display but no Wayland
    // display is set.
    static bool prefersX11(const QString& qtPlatform, const QByteArray& display, const QByteArray& waylandDisplay);

    // What the user can do when no backend is usable, as one sentence that
    // follows a subject like "Hotkeys and macros cannot type keys."
    static QString fixText();
};
