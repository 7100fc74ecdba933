// Runs on its own Xvfb server without a window manager, whose key bindings
// would take chords away from the observing window (see CMakeLists.txt).
#include "testmain.h"
#include "virtualkey.h"
#include "xkeyobserver.h"
#include "xtestkeystrokebackend.h"

#include <QSignalSpy>

#include <X11/keysym.h>
#include <unistd.h>

namespace {

MarcoKeyItem step(int key, bool press)
{
    MarcoKeyItem item;
    item.nativeKeyCode = quint16(key);
    item.isPress = press;
    return item;
}

} // namespace

class VirtualKeyOnX11Test : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_observer = std::make_unique<XKeyObserver>();
        if (!m_observer->error().isEmpty())
            QFAIL(qPrintable(m_observer->error()));
        VirtualKey::setBackend(&m_backend);
        QVERIFY(VirtualKey::checkAvailable());
    }

    void cleanup()
    {
        VirtualKey::setBackend(nullptr);
        m_observer.reset();
    }

    void shouldTypeAChordWithAllFourModifiers()
    {
        VirtualKey::sendKeyEvent(0x41, true, true, true, true);
        const QVector<XKeyObserver::Event> events = m_observer->waitForEvents(10);
        QCOMPARE(events.size(), 10);

        const QVector<unsigned> downs = {m_observer->keycodeOf(XK_Super_L), m_observer->keycodeOf(XK_Alt_L),
                                         m_observer->keycodeOf(XK_Control_L), m_observer->keycodeOf(XK_Shift_L),
                                         m_observer->keycodeOf(XK_a)};
        for (int i = 0; i < 5; ++i) {
            QVERIFY(downs.at(i) != 0);
            QVERIFY2(events.at(i).press, qPrintable(QString::number(i)));
            QCOMPARE(events.at(i).keycode, downs.at(i));
            QVERIFY2(!events.at(9 - i).press, qPrintable(QString::number(9 - i)));
            QCOMPARE(events.at(9 - i).keycode, downs.at(i));
        }

        // The key arrives with all four modifiers in force, so applications
        // read the chord, not four separate keys.
        const unsigned all = m_observer->modifierMaskOf(XK_Super_L) | m_observer->modifierMaskOf(XK_Alt_L) |
                             XKeyObserver::controlMask() | XKeyObserver::shiftMask();
        QCOMPARE(events.at(4).state & all, all);
        // Server time has whole milliseconds: 30 ms apart can read as 29.
        QVERIFY2(events.at(5).serverTime - events.at(4).serverTime >= VirtualKey::PauseMs - 1,
                 qPrintable(QString::number(events.at(5).serverTime - events.at(4).serverTime)));
    }

    void shouldPlayAMacroOfPressesAndReleases()
    {
        const QList<MarcoKeyItem> steps = {step(0x10, true),  step(0x4B, true),  step(0x4B, false), step(0x31, true),
                                           step(0x10, false), step(0x31, false), step(0x0D, true),  step(0x0D, false)};
        VirtualKey::sendMacroKeyEvent(steps);
        const QVector<XKeyObserver::Event> events = m_observer->waitForEvents(steps.size());
        QCOMPARE(events.size(), steps.size());

        const QHash<int, quint32> keysyms = {{0x10, XK_Shift_L}, {0x4B, XK_k}, {0x31, XK_1}, {0x0D, XK_Return}};
        for (int i = 0; i < steps.size(); ++i) {
            QCOMPARE(events.at(i).press, steps.at(i).isPress);
            QCOMPARE(events.at(i).keycode, m_observer->keycodeOf(keysyms.value(steps.at(i).nativeKeyCode)));
        }
        // "1" went down with Shift held and came up after Shift was released.
        QVERIFY(events.at(3).state & XKeyObserver::shiftMask());
        QVERIFY(!(events.at(5).state & XKeyObserver::shiftMask()));
    }

    // On a Wayland session without /dev/uinput keys still go out through
    // XWayland, and the user hears once that only X applications get them.
    void shouldTellOnceThatWaylandFallsBackToXApplications()
    {
        if (::access("/dev/uinput", W_OK) == 0)
            QSKIP("this machine lets us write /dev/uinput, so uinput would be chosen");
        VirtualKey::setBackend(nullptr); // the process's own choice from here on
        qputenv("XDG_SESSION_TYPE", "wayland");
        qputenv("WAYLAND_DISPLAY", "wayland-keystage-test");
        QSignalSpy limited(VirtualKey::instance(), &VirtualKey::keystrokesReachXOnly);
        QSignalSpy unavailable(VirtualKey::instance(), &VirtualKey::keystrokesUnavailable);

        QVERIFY(VirtualKey::checkAvailable());
        VirtualKey::sendKeyEvent(0x41, false, false, false, false);
        QVERIFY(VirtualKey::checkAvailable());

        QCOMPARE(limited.size(), 1);
        QCOMPARE(limited.at(0).at(0).toString(), KeystrokeBackend::xClientsOnlyText());
        QCOMPARE(unavailable.size(), 0);
        const QVector<XKeyObserver::Event> events = m_observer->waitForEvents(2);
        QCOMPARE(events.size(), 2);
        QCOMPARE(events.at(0).keycode, m_observer->keycodeOf(XK_a));
    }

private:
    XTestKeystrokeBackend m_backend;
    std::unique_ptr<XKeyObserver> m_observer;
};

KEYSTAGE_TEST_MAIN(VirtualKeyOnX11Test)
#include "tst_virtualkeyonx11.moc"
