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
    // What the choice of backend depends on, read from the environment by
    // current() and set by hand in tests.
    struct Session
    {
        QByteArray sessionType;    // XDG_SESSION_TYPE
        QByteArray waylandDisplay; // WAYLAND_DISPLAY
        QByteArray display;        // DISPLAY
        QString qtPlatform;        // empty without a GUI application

        static Session current();
        // Wayland whatever Qt's platform: Qt 5 programs often run through
        // XWayland, where XTest reaches X clients only.
        bool isWayland() const;
    };

    struct Choice
    {
        std::unique_ptr<KeystrokeBackend> backend;
        // XTest on a Wayland session: the user should be told that keys
        // reach X applications only (see xClientsOnlyText()).
        bool xClientsOnly = false;
    };

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

    // The backend for this desktop: uinput first on a Wayland session or
    // without X, XTest first on an X11 session, the other one when the first
    // is unusable. When neither is usable, the uinput one, which starts
    // working once the user has been given access to /dev/uinput; both
    // reasons are logged.
    static Choice create();
    static Choice choose(const Session& session, std::unique_ptr<KeystrokeBackend> uinput,
                         std::unique_ptr<KeystrokeBackend> xtest);

    // Whether to try XTest before uinput.
    static bool prefersX11(const Session& session);

    // What the user can do when no backend is usable, as one sentence that
    // follows a subject like "Hotkeys and macros cannot type keys."
    static QString fixText();
    // Why keys reach X applications only on this Wayland session and what
    // the user can do about it, following a subject like "Hotkeys and macros
    // type into X applications only."
    static QString xClientsOnlyText();
};
