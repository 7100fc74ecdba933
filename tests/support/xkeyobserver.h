#pragma once

#include <QString>
#include <QVector>
#include <QtGlobal>

struct _XDisplay;

// A plain X client with one focused window that records the key events the
// server delivers to it, on a connection of its own, so tests see exactly
// what another application would see. No window manager may be running:
// the window takes the focus itself.
class XKeyObserver
{
public:
    struct Event
    {
        bool press;
        unsigned keycode;
        unsigned state;           // modifier mask before the event
        unsigned long serverTime; // ms
    };

    XKeyObserver();
    ~XKeyObserver();
    XKeyObserver(const XKeyObserver&) = delete;
    XKeyObserver& operator=(const XKeyObserver&) = delete;

    // Empty when the window is mapped and has the focus.
    QString error() const;

    // Key events received so far, waiting (up to a generous limit that only
    // guards against a hang) until there are at least count of them.
    QVector<Event> waitForEvents(int count);
    // Waits briefly and returns whatever arrived; for "nothing came".
    QVector<Event> eventsAfterSettling();
    void clear();

    // Through the current keyboard mapping as this client reads it.
    unsigned keycodeOf(quint32 keysym);
    quint32 keysymOf(unsigned keycode);
    // Binds one keysym (0: none) to a keycode, as a layout change would.
    void setKeysym(unsigned keycode, quint32 keysym);
    // A keycode without keysyms; 0 when every keycode has some.
    unsigned spareKeycode();

    // Modifier masks of the core protocol.
    static unsigned shiftMask();
    static unsigned controlMask();
    // The masks the current mapping gives the Alt and Super keys.
    unsigned modifierMaskOf(quint32 keysym);

private:
    bool waitForFocus();
    void readEvents();

    _XDisplay* m_display = nullptr;
    unsigned long m_window = 0;
    QVector<Event> m_events;
    QString m_error;
};
