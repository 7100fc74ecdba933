#pragma once

#include <QString>
#include <QStringList>
#include <memory>

class QWindow;

// The desktop's window services the program needs, behind one interface with
// an implementation chosen at run time.
class WindowSystem
{
public:
    virtual ~WindowSystem();

    // "x11", "wayland", or the Qt platform's name.
    virtual QString name() const = 0;

    // Raises a top-level window and gives it the input focus, also when
    // another application is active.
    virtual void activateWindow(QWindow* window) = 0;

    // The window in front, by its native id, and its title; 0 and empty
    // when the desktop does not tell. Callable from any thread.
    virtual quint64 foregroundWindowId() = 0;
    virtual QString foregroundWindowTitle() = 0;
    // Asks for the window of a native id to come to the front, as the
    // user's own request; false when the desktop offers no way to ask.
    // Callable from any thread.
    virtual bool activateWindowId(quint64 windowId) = 0;

    // Whether the desktop tells which application is in front. Wayland has
    // no general way to ask, so callers can say so instead of guessing.
    virtual bool canQueryForegroundApplication() const = 0;
    // The executable's base name ("editor" for /opt/tools/editor.sh) of the
    // process that owns the active window; empty whenever a step is unknown.
    virtual QString foregroundApplicationName() = 0;
    // Folder conditions watch the application in front only while they run:
    // a desktop that tells it by events is listened to only meanwhile.
    virtual void watchForegroundApplication(bool watch);
    // False while a watched desktop has not yet said what is in front (just
    // started, or its compositor restarting): nothing is known to compare.
    virtual bool isForegroundApplicationKnown() const;
    // For the folder form: what tells this desktop's application in front,
    // or what would make folders open by application.
    virtual QString foregroundSourceNotice() const;

    // The absolute paths of the programs whose processes own the desktop's
    // top-level windows, each once, in the window manager's order; empty
    // where the desktop does not tell. Callable from any thread.
    virtual QStringList runningApplicationExecutables() = 0;

    // The implementation for the running Qt platform.
    static std::unique_ptr<WindowSystem> create();
};
