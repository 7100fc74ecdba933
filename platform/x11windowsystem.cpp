#include "x11windowsystem.h"

#include <QWindow>
#include <QX11Info>

#include <cstdlib>
#include <cstring>
#include <xcb/xcb.h>

namespace {

xcb_atom_t internAtom(xcb_connection_t* connection, const char* name)
{
    xcb_intern_atom_cookie_t cookie = xcb_intern_atom(connection, 0, uint16_t(std::strlen(name)), name);
    xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(connection, cookie, nullptr);
    if (!reply)
        return XCB_ATOM_NONE;
    const xcb_atom_t atom = reply->atom;
    std::free(reply);
    return atom;
}

// Source indication 2: the request comes from a pager or similar tool acting
// for the user, which is what a second start asking us to come forward is.
constexpr uint32_t SourcePager = 2;

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

    xcb_connection_t* connection = QX11Info::connection();
    if (!connection || !QX11Info::isPlatformX11())
        return;
    const xcb_atom_t activeAtom = internAtom(connection, "_NET_ACTIVE_WINDOW");
    if (activeAtom == XCB_ATOM_NONE)
        return;

    xcb_client_message_event_t event;
    std::memset(&event, 0, sizeof event);
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = xcb_window_t(window->winId());
    event.type = activeAtom;
    event.data.data32[0] = SourcePager;
    event.data.data32[1] = QX11Info::getTimestamp();
    event.data.data32[2] = XCB_WINDOW_NONE;

    const xcb_window_t root = xcb_window_t(QX11Info::appRootWindow());
    xcb_send_event(connection, 0, root, XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(connection);
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
