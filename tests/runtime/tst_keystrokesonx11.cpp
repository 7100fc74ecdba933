// Keystrokes on a real X server: the XTest backend against the live key
// mapping, and VirtualKey's chords and macros through it. Runs on its own
// Xvfb server without a window manager, whose key bindings would take chords
// away from the observing window (see CMakeLists.txt).
#include "logcapture.h"
#include "testmain.h"
#include "uinputkeystrokebackend.h"
#include "virtualkey.h"
#include "virtualkeytable.h"
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

class KeystrokesOnX11Test : public QObject
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

    void shouldBeChosenAndUsableOnX11()
    {
        XTestKeystrokeBackend backend;
        QVERIFY(backend.isUsable());
        QVERIFY(backend.unusableReason().isEmpty());
        KeystrokeBackend::Session session = KeystrokeBackend::Session::current();
        session.sessionType = "x11";
        session.waylandDisplay.clear();
        QCOMPARE(KeystrokeBackend::choose(session, std::make_unique<UinputKeystrokeBackend>(),
                                          std::make_unique<XTestKeystrokeBackend>())
                     .backend->name(),
                 QStringLiteral("xtest"));
    }

    void shouldBeUnusableWithoutAnXServer()
    {
        XTestKeystrokeBackend backend(":4711");
        LogCapture log;
        QVERIFY(!backend.isUsable());
        QVERIFY2(backend.unusableReason().contains(QStringLiteral(":4711")), qPrintable(backend.unusableReason()));
        QVERIFY(!backend.keyDown(0x41));
        QVERIFY(!log.matching(QStringLiteral("XTest unusable")).isEmpty());
    }

    // Through the live mapping, also when the key that shows "a" moves while
    // the backend is connected, as it does when the user switches layouts.
    void shouldPressTheKeycodeOfTheLiveMapping()
    {
        XTestKeystrokeBackend backend;
        const unsigned usual = m_observer->keycodeOf(XK_a);
        const unsigned moved = m_observer->spareKeycode();
        QVERIFY(usual != 0 && moved != 0);
        QCOMPARE(typeA(&backend), QVector<unsigned>({usual, usual}));

        m_observer->setKeysym(usual, XK_eacute);
        m_observer->setKeysym(moved, XK_a);
        const QVector<unsigned> afterChange = typeA(&backend);
        m_observer->setKeysym(moved, 0);
        m_observer->setKeysym(usual, XK_a);
        QCOMPARE(afterChange, QVector<unsigned>({moved, moved}));
    }

    void shouldBorrowASpareKeycodeForAKeysymTheLayoutLacks()
    {
        const unsigned usual = m_observer->keycodeOf(XK_F24);
        if (usual != 0)
            m_observer->setKeysym(usual, 0);
        QCOMPARE(m_observer->keycodeOf(XK_F24), 0u);

        XTestKeystrokeBackend backend;
        for (int i = 0; i < 2; ++i) {
            QVERIFY(backend.keyDown(0x87));
            QVERIFY(backend.keyUp(0x87));
        }
        const QVector<XKeyObserver::Event> events = m_observer->waitForEvents(4);
        const unsigned borrowed = m_observer->keycodeOf(XK_F24);
        if (usual != 0)
            m_observer->setKeysym(usual, XK_F24);

        QCOMPARE(events.size(), 4);
        QVERIFY(borrowed != 0);
        // The loan is kept: the second press uses the same keycode.
        for (const XKeyObserver::Event& event : events)
            QCOMPARE(event.keycode, borrowed);
        QCOMPARE(m_observer->keysymOf(borrowed), quint32(XK_F24));
    }

    // Keys many keyboards lack, which the editor offers from a list: each
    // reaches the server as its keysym, bound to a spare keycode where the
    // layout has none.
    void shouldTypeEveryKeyAKeyboardMayLack()
    {
        XTestKeystrokeBackend backend;
        for (const int key : VirtualKeyTable::keysKeyboardsMayLack()) {
            m_observer->clear();
            QVERIFY(backend.keyDown(key));
            QVERIFY(backend.keyUp(key));
            const QVector<XKeyObserver::Event> events = m_observer->waitForEvents(2);
            QCOMPARE(events.size(), 2);
            QCOMPARE(QStringLiteral("0x%1: ").arg(key, 0, 16) +
                         QString::number(m_observer->keysymOf(events.at(0).keycode), 16),
                     QStringLiteral("0x%1: ").arg(key, 0, 16) + QString::number(VirtualKeyTable::keysym(key), 16));
            QVERIFY(events.at(0).press && !events.at(1).press);
        }
    }

    void shouldRefuseAnUnknownVirtualKey()
    {
        XTestKeystrokeBackend backend;
        LogCapture log;
        QVERIFY(!backend.keyDown(0x07));
        QVERIFY(!backend.keyUp(0x07));
        QVERIFY(m_observer->eventsAfterSettling().isEmpty());
        QCOMPARE(log.matching(QStringLiteral("no keysym for virtual key 0x7")).size(), 2);
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
    // The keycodes of the press and the release that typing "a" sends; an
    // event out of order shows as keycode 0.
    QVector<unsigned> typeA(XTestKeystrokeBackend* backend)
    {
        m_observer->clear();
        if (!backend->keyDown(0x41) || !backend->keyUp(0x41))
            return {};
        QVector<unsigned> keycodes;
        for (const XKeyObserver::Event& event : m_observer->waitForEvents(2))
            keycodes << (event.press == keycodes.isEmpty() ? event.keycode : 0);
        return keycodes;
    }

    XTestKeystrokeBackend m_backend;
    std::unique_ptr<XKeyObserver> m_observer;
};

KEYSTAGE_TEST_MAIN(KeystrokesOnX11Test)
#include "tst_keystrokesonx11.moc"
