#pragma once

#include "windowsystem.h"

#include <QVector>

// X11: activation goes through the window manager's _NET_ACTIVE_WINDOW
// request, sent as a pager would, which window managers honour even when
// their focus-stealing prevention would refuse a plain request.
class X11WindowSystem : public WindowSystem
{
public:
    QString name() const override;
    void activateWindow(QWindow* window) override;
    quint64 foregroundWindowId() override;
    // _NET_WM_NAME, or WM_NAME for clients that set only the old property.
    QString foregroundWindowTitle() override;
    bool activateWindowId(quint64 windowId) override;
    bool canQueryForegroundApplication() const override;
    QString foregroundApplicationName() override;
    // _NET_CLIENT_LIST -> _NET_WM_PID -> /proc/PID/exe; windows without a
    // process or with another user's process are left out.
    QStringList runningApplicationExecutables() override;

    // The window the window manager reports as active (_NET_ACTIVE_WINDOW on
    // the root window); 0 when unknown.
    static quint32 activeWindowId();

    // The title a client gave its window; empty when it gave none.
    static QString windowTitle(quint32 windowId);
    // The process a window declares as its owner (_NET_WM_PID); 0 when it
    // declares none.
    static quint32 windowProcessId(quint32 window);
    // The base name of the program a process runs (/proc/PID/exe); empty
    // when the link cannot be read, as for other users' processes.
    static QString executableBaseName(qint64 pid);
    // The full path of that program; empty likewise.
    static QString executablePath(qint64 pid);
    // The managed top-level windows (_NET_CLIENT_LIST on the root window).
    static QVector<quint32> clientWindowIds();
};
