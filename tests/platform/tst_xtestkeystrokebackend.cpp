// Runs on its own Xvfb server without a window manager (see CMakeLists.txt).
#include "logcapture.h"
#include "testmain.h"
#include "uinputkeystrokebackend.h"
#include "virtualkeytable.h"
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

    std::unique_ptr<XKeyObserver> m_observer;
};

KEYSTAGE_TEST_MAIN(XTestKeystrokeBackendTest)
#include "tst_xtestkeystrokebackend.moc"
