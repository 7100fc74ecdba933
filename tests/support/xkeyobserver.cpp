#include "xkeyobserver.h"

#include <QElapsedTimer>
#include <QThread>

#include <X11/XKBlib.h>
#include <X11/Xlib.h>

namespace {

// Only against a hang; a loaded machine may be slow, never this slow.
constexpr int HangGuardMs = 30000;
constexpr int SettleMs = 500;
constexpr int PollMs = 5;

} // namespace

XKeyObserver::XKeyObserver()
{
    m_display = XOpenDisplay(nullptr);
    if (!m_display) {
        m_error = QStringLiteral("cannot open the X display");
        return;
    }
    const int screen = DefaultScreen(m_display);
    m_window = XCreateSimpleWindow(m_display, RootWindow(m_display, screen), 0, 0, 200, 100, 0,
                                   BlackPixel(m_display, screen), WhitePixel(m_display, screen));
    XSelectInput(m_display, m_window, KeyPressMask | KeyReleaseMask | FocusChangeMask | StructureNotifyMask);
    XMapRaised(m_display, m_window);
    if (!waitForFocus())
        m_error = QStringLiteral("the observer window did not get the focus");
}

XKeyObserver::~XKeyObserver()
{
    if (m_display)
        XCloseDisplay(m_display);
}

QString XKeyObserver::error() const
{
    return m_error;
}

bool XKeyObserver::waitForFocus()
{
    QElapsedTimer timer;
    timer.start();
    bool mapped = false;
    while (timer.elapsed() < HangGuardMs) {
        while (XPending(m_display) > 0) {
            XEvent event;
            XNextEvent(m_display, &event);
            if (event.type == MapNotify) {
                mapped = true;
                XSetInputFocus(m_display, m_window, RevertToParent, CurrentTime);
                XSync(m_display, False);
            } else if (event.type == FocusIn && mapped) {
                return true;
            }
        }
        QThread::msleep(PollMs);
    }
    return false;
}

void XKeyObserver::readEvents()
{
    while (XPending(m_display) > 0) {
        XEvent event;
        XNextEvent(m_display, &event);
        if (event.type == MappingNotify) {
            XRefreshKeyboardMapping(&event.xmapping);
        } else if (event.type == KeyPress || event.type == KeyRelease) {
            m_events.append({event.type == KeyPress, event.xkey.keycode, event.xkey.state, event.xkey.time});
        }
    }
}

QVector<XKeyObserver::Event> XKeyObserver::waitForEvents(int count)
{
    QElapsedTimer timer;
    timer.start();
    readEvents();
    while (m_events.size() < count && timer.elapsed() < HangGuardMs) {
        QThread::msleep(PollMs);
        readEvents();
    }
    return m_events;
}

QVector<XKeyObserver::Event> XKeyObserver::eventsAfterSettling()
{
    XSync(m_display, False);
    QThread::msleep(SettleMs);
    readEvents();
    return m_events;
}

void XKeyObserver::clear()
{
    readEvents();
    m_events.clear();
}

unsigned XKeyObserver::keycodeOf(quint32 keysym)
{
    readEvents();
    return XKeysymToKeycode(m_display, keysym);
}

quint32 XKeyObserver::keysymOf(unsigned keycode)
{
    readEvents();
    return quint32(XkbKeycodeToKeysym(m_display, KeyCode(keycode), 0, 0));
}

void XKeyObserver::setKeysym(unsigned keycode, quint32 keysym)
{
    KeySym symbol = keysym;
    XChangeKeyboardMapping(m_display, int(keycode), 1, &symbol, 1);
    XSync(m_display, False);
    readEvents();
}

unsigned XKeyObserver::spareKeycode()
{
    int minKeycode = 0, maxKeycode = 0;
    XDisplayKeycodes(m_display, &minKeycode, &maxKeycode);
    for (int keycode = maxKeycode; keycode >= minKeycode; --keycode) {
        int perKeycode = 0;
        KeySym* symbols = XGetKeyboardMapping(m_display, KeyCode(keycode), 1, &perKeycode);
        bool empty = true;
        for (int i = 0; symbols && i < perKeycode; ++i)
            empty = empty && symbols[i] == NoSymbol;
        if (symbols)
            XFree(symbols);
        if (empty)
            return unsigned(keycode);
    }
    return 0;
}

unsigned XKeyObserver::shiftMask()
{
    return ShiftMask;
}

unsigned XKeyObserver::controlMask()
{
    return ControlMask;
}

unsigned XKeyObserver::modifierMaskOf(quint32 keysym)
{
    const KeyCode keycode = XKeysymToKeycode(m_display, keysym);
    XModifierKeymap* map = XGetModifierMapping(m_display);
    unsigned mask = 0;
    for (int modifier = 0; modifier < 8 && keycode != 0; ++modifier) {
        for (int i = 0; i < map->max_keypermod; ++i) {
            if (map->modifiermap[modifier * map->max_keypermod + i] == keycode)
                mask |= 1u << modifier;
        }
    }
    XFreeModifiermap(map);
    return mask;
}
