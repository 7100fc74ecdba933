#pragma once

#include "windowsystem.h"

// X11: activation goes through the window manager's _NET_ACTIVE_WINDOW
// request, sent as a pager would, which window managers honour even when
// their focus-stealing prevention would refuse a plain request.
class X11WindowSystem : public WindowSystem
{
public:
    QString name() const override;
    void activateWindow(QWindow* window) override;

    // The window the window manager reports as active (_NET_ACTIVE_WINDOW on
    // the root window); 0 when unknown.
    static quint32 activeWindowId();
};
