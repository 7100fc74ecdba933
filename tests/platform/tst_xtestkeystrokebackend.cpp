// Runs on its own Xvfb server without a window manager (see CMakeLists.txt).
#include "logcapture.h"
#include "testmain.h"
#include "xkeyobserver.h"
#include "xtestkeystrokebackend.h"

#include <X11/keysym.h>

class XTestKeystrokeBackendTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_observer = std::make_unique<XKeyObserver>();
        if (!m_observer->error().isEmpty())
            QFAIL(qPrintable(m_observer->error()));
    }

    void cleanup() { m_observer.reset(); }

    void shouldBeUsableOnAnXServerWithXTest()
    {
        XTestKeystrokeBackend backend;
        QVERIFY(backend.isUsable());
        QVERIFY(backend.unusableReason().isEmpty());
        QCOMPARE(backend.name(), QStringLiteral("xtest"));
    }

    void shouldBeChosenOnX11() { QCOMPARE(KeystrokeBackend::create()->name(), QStringLiteral("xtest")); }

    void shouldBeUnusableWithoutAnXServer()
    {
        XTestKeystrokeBackend backend(":4711");
        LogCapture log;
        QVERIFY(!backend.isUsable());
        QVERIFY2(backend.unusableReason().contains(QStringLiteral(":4711")), qPrintable(backend.unusableReason()));
        QVERIFY(!backend.keyDown(0x41));
        QVERIFY(!log.matching(QStringLiteral("XTest unusable")).isEmpty());
    }

    void shouldPressTheKeycodeOfTheLiveMapping()
    {
        XTestKeystrokeBackend backend;
        QVERIFY(backend.keyDown(0x41));
        QVERIFY(backend.keyUp(0x41));
        const QVector<XKeyObserver::Event> events = m_observer->waitForEvents(2);
        QCOMPARE(events.size(), 2);
        const unsigned keycode = m_observer->keycodeOf(XK_a);
        QVERIFY(keycode != 0);
        QVERIFY(events.at(0).press);
        QCOMPARE(events.at(0).keycode, keycode);
        QVERIFY(!events.at(1).press);
        QCOMPARE(events.at(1).keycode, keycode);
    }

    // The key that shows "a" moves, as it does when the user switches to a
    // layout that has it elsewhere, while the backend is already connected.
    void shouldFollowALayoutChangedWhileRunning()
    {
        XTestKeystrokeBackend backend;
        QVERIFY(backend.keyDown(0x41));
        QVERIFY(backend.keyUp(0x41));
        QCOMPARE(m_observer->waitForEvents(2).size(), 2);
        m_observer->clear();

        const unsigned usual = m_observer->keycodeOf(XK_a);
        const unsigned moved = m_observer->spareKeycode();
        QVERIFY(moved != 0);
        m_observer->setKeysym(usual, XK_eacute);
        m_observer->setKeysym(moved, XK_a);
        QVERIFY(backend.keyDown(0x41));
        QVERIFY(backend.keyUp(0x41));
        const QVector<XKeyObserver::Event> events = m_observer->waitForEvents(2);
        m_observer->setKeysym(moved, 0);
        m_observer->setKeysym(usual, XK_a);

        QCOMPARE(events.size(), 2);
        QCOMPARE(events.at(0).keycode, moved);
        QCOMPARE(events.at(1).keycode, moved);
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

    void shouldRefuseAnUnknownVirtualKey()
    {
        XTestKeystrokeBackend backend;
        LogCapture log;
        QVERIFY(!backend.keyDown(0x07));
        QVERIFY(!backend.keyUp(0x07));
        QVERIFY(m_observer->eventsAfterSettling().isEmpty());
        QCOMPARE(log.matching(QStringLiteral("no keysym for virtual key 0x7")).size(), 2);
    }

private:
    std::unique_ptr<XKeyObserver> m_observer;
};

KEYSTAGE_TEST_MAIN(XTestKeystrokeBackendTest)
#include "tst_xtestkeystrokebackend.moc"
