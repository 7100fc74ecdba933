#pragma once

#include <QString>
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

    // The implementation for the running Qt platform.
    static std::unique_ptr<WindowSystem> create();
};
