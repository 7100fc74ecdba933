#include "x11windowsystem.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMutex>
#include <QWindow>
#include <QX11Info>

#include <climits>
#include <cstdlib>
#include <cstring>
#include <unistd.h>
#include <xcb/xcb.h>

namespace {

// Atoms live as long as the X server, so each is asked for once: a
// keystroke reads the foreground window's title, and every round trip saved
// there reaches the keystroke sooner. One connection per process (Qt's).
xcb_atom_t internAtom(xcb_connection_t* connection, const char* name)
{
    static QMutex cacheMutex;
    static QHash<QByteArray, xcb_atom_t> cache;
    QMutexLocker locker(&cacheMutex);
    const auto cached = cache.constFind(QByteArray::fromRawData(name, int(std::strlen(name))));
    if (cached != cache.constEnd())
        return cached.value();
    xcb_intern_atom_cookie_t cookie = xcb_intern_atom(connection, 0, uint16_t(std::strlen(name)), name);
    xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(connection, cookie, nullptr);
    if (!reply)
        return XCB_ATOM_NONE;
    const xcb_atom_t atom = reply->atom;
    std::free(reply);
    cache.insert(QByteArray(name), atom);
    return atom;
}

// Source indication 2: the request comes from a pager or similar tool acting
// for the user, which is what a second start asking us to come forward is,
// and a window given back the focus it had before a keystroke.
constexpr uint32_t SourcePager = 2;

// The _NET_ACTIVE_WINDOW request a pager sends for the user.
bool sendActivation(xcb_window_t window, xcb_timestamp_t timestamp)
{
    xcb_connection_t* connection = QX11Info::connection();
    if (!connection)
        return false;
    const xcb_atom_t activeAtom = internAtom(connection, "_NET_ACTIVE_WINDOW");
    if (activeAtom == XCB_ATOM_NONE)
        return false;

    xcb_client_message_event_t event;
    std::memset(&event, 0, sizeof event);
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = activeAtom;
    event.data.data32[0] = SourcePager;
    event.data.data32[1] = timestamp;
    event.data.data32[2] = XCB_WINDOW_NONE;

    const xcb_window_t root = xcb_window_t(QX11Info::appRootWindow());
    xcb_send_event(connection, 0, root, XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(connection);
    return true;
}

// A text property of a window; null when the window lacks it or it has
// another type. 4096 bytes hold any title worth comparing.
QByteArray textProperty(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property, xcb_atom_t type)
{
    if (property == XCB_ATOM_NONE || type == XCB_ATOM_NONE)
        return QByteArray();
    xcb_get_property_cookie_t cookie = xcb_get_property(connection, 0, window, property, type, 0, 1024);
    xcb_get_property_reply_t* reply = xcb_get_property_reply(connection, cookie, nullptr);
    if (!reply)
        return QByteArray();
    QByteArray text;
    if (reply->type == type && reply->format == 8)
        text =
            QByteArray(static_cast<const char*>(xcb_get_property_value(reply)), xcb_get_property_value_length(reply));
    std::free(reply);
    return text;
}

} // namespace

QString X11WindowSystem::name() const
{
    return QStringLiteral("x11");
}

void X11WindowSystem::activateWindow(QWindow* window)
{
    if (!window)
        return;
    window->raise();
    window->requestActivate();
    if (QX11Info::isPlatformX11())
        sendActivation(xcb_window_t(window->winId()), QX11Info::getTimestamp());
}

quint64 X11WindowSystem::foregroundWindowId()
{
    return activeWindowId();
}

QString X11WindowSystem::foregroundWindowTitle()
{
    const quint32 window = activeWindowId();
    return window != 0 ? windowTitle(window) : QString();
}

// Off the GUI thread no fresh server time can be had (Qt reads it from its
// own event queue); the pager source indication makes the current time
// acceptable to window managers.
bool X11WindowSystem::activateWindowId(quint64 windowId)
{
    if (windowId == 0 || windowId > 0xffffffffu || !QX11Info::isPlatformX11())
        return false;
    return sendActivation(xcb_window_t(windowId), XCB_CURRENT_TIME);
}

quint32 X11WindowSystem::activeWindowId()
{
    xcb_connection_t* connection = QX11Info::connection();
    if (!connection || !QX11Info::isPlatformX11())
        return 0;
    const xcb_atom_t activeAtom = internAtom(connection, "_NET_ACTIVE_WINDOW");
    if (activeAtom == XCB_ATOM_NONE)
        return 0;
    xcb_get_property_cookie_t cookie =
        xcb_get_property(connection, 0, xcb_window_t(QX11Info::appRootWindow()), activeAtom, XCB_ATOM_WINDOW, 0, 1);
    xcb_get_property_reply_t* reply = xcb_get_property_reply(connection, cookie, nullptr);
    if (!reply)
        return 0;
    quint32 id = 0;
    if (reply->type == XCB_ATOM_WINDOW && reply->format == 32 && xcb_get_property_value_length(reply) >= 4)
        id = *static_cast<const quint32*>(xcb_get_property_value(reply));
    std::free(reply);
    return id;
}

QString X11WindowSystem::windowTitle(quint32 windowId)
{
    xcb_connection_t* connection = QX11Info::connection();
    if (!connection || !QX11Info::isPlatformX11() || windowId == 0)
        return QString();
    const QByteArray utf8 = textProperty(connection, windowId, internAtom(connection, "_NET_WM_NAME"),
                                         internAtom(connection, "UTF8_STRING"));
    if (!utf8.isNull())
        return QString::fromUtf8(utf8);
    return QString::fromLatin1(textProperty(connection, windowId, XCB_ATOM_WM_NAME, XCB_ATOM_STRING));
}

bool X11WindowSystem::canQueryForegroundApplication() const
{
    return true;
}

QString X11WindowSystem::foregroundApplicationName()
{
    const quint32 window = activeWindowId();
    if (!window)
        return QString();
    const quint32 pid = windowProcessId(window);
    return pid ? executableBaseName(pid) : QString();
}

quint32 X11WindowSystem::windowProcessId(quint32 window)
{
    xcb_connection_t* connection = QX11Info::connection();
    if (!connection || !QX11Info::isPlatformX11() || !window)
        return 0;
    const xcb_atom_t pidAtom = internAtom(connection, "_NET_WM_PID");
    if (pidAtom == XCB_ATOM_NONE)
        return 0;
    xcb_get_property_cookie_t cookie = xcb_get_property(connection, 0, window, pidAtom, XCB_ATOM_CARDINAL, 0, 1);
    xcb_get_property_reply_t* reply = xcb_get_property_reply(connection, cookie, nullptr);
    if (!reply)
        return 0;
    quint32 pid = 0;
    if (reply->type == XCB_ATOM_CARDINAL && reply->format == 32 && xcb_get_property_value_length(reply) >= 4)
        pid = *static_cast<const quint32*>(xcb_get_property_value(reply));
    std::free(reply);
    return pid;
}

QString X11WindowSystem::executableBaseName(qint64 pid)
{
    const QString path = executablePath(pid);
    return path.isEmpty() ? QString() : QFileInfo(path).baseName();
}

QString X11WindowSystem::executablePath(qint64 pid)
{
    if (pid <= 0)
        return QString();
    const QByteArray link = "/proc/" + QByteArray::number(pid) + "/exe";
    char target[PATH_MAX];
    const ssize_t length = ::readlink(link.constData(), target, sizeof target);
    if (length <= 0 || size_t(length) >= sizeof target)
        return QString();
    QString path = QFile::decodeName(QByteArray(target, int(length)));
    // A program removed or replaced while it runs (an upgrade) keeps its name.
    const QLatin1String deleted(" (deleted)");
    if (path.endsWith(deleted))
        path.chop(deleted.size());
    return path;
}

QVector<quint32> X11WindowSystem::clientWindowIds()
{
    QVector<quint32> windows;
    xcb_connection_t* connection = QX11Info::connection();
    if (!connection || !QX11Info::isPlatformX11())
        return windows;
    const xcb_atom_t listAtom = internAtom(connection, "_NET_CLIENT_LIST");
    if (listAtom == XCB_ATOM_NONE)
        return windows;
    // 4096 windows are more than any desktop shows.
    xcb_get_property_cookie_t cookie =
        xcb_get_property(connection, 0, xcb_window_t(QX11Info::appRootWindow()), listAtom, XCB_ATOM_WINDOW, 0, 4096);
    xcb_get_property_reply_t* reply = xcb_get_property_reply(connection, cookie, nullptr);
    if (!reply)
        return windows;
    if (reply->type == XCB_ATOM_WINDOW && reply->format == 32) {
        const auto* ids = static_cast<const quint32*>(xcb_get_property_value(reply));
        const int count = xcb_get_property_value_length(reply) / 4;
        windows.reserve(count);
        for (int i = 0; i < count; ++i)
            windows.append(ids[i]);
    }
    std::free(reply);
    return windows;
}

QStringList X11WindowSystem::runningApplicationExecutables()
{
    QStringList executables;
    for (const quint32 window : clientWindowIds()) {
        const quint32 pid = windowProcessId(window);
        const QString path = pid ? executablePath(pid) : QString();
        if (!path.isEmpty() && !executables.contains(path))
            executables.append(path);
    }
    return executables;
}
