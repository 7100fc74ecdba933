#include "fakewindowsystem.h"
#include "keystrokebackend.h"
#include "logcapture.h"
#include "recordingkeystrokebackend.h"
#include "testmain.h"
#include "virtualkey.h"

#include <QSignalSpy>

#include <thread>

namespace {

using Events = QVector<RecordingKeystrokeBackend::Event>;

// "91+ 65+ 65- 91-": virtual keys in decimal, + down, - up.
QString trace(const Events& events)
{
    QStringList parts;
    for (const auto& event : events)
        parts << QStringLiteral("%1%2").arg(event.virtualKey).arg(event.down ? '+' : '-');
    return parts.join(QLatin1Char(' '));
}

qint64 gapMs(const RecordingKeystrokeBackend::Event& from, const RecordingKeystrokeBackend::Event& to)
{
    return (to.monotonicNs - from.monotonicNs) / 1000000;
}

MarcoKeyItem step(int key, bool press)
{
    MarcoKeyItem item;
    item.nativeKeyCode = quint16(key);
    item.isPress = press;
    return item;
}

const QString Broadcaster = QStringLiteral("XSplit Broadcaster");
constexpr quint64 MainWindow = 42;
constexpr quint64 OtherWindow = 7;

} // namespace

class VirtualKeyTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_backend = std::make_unique<RecordingKeystrokeBackend>();
        VirtualKey::setBackend(m_backend.get());
    }

    void cleanup()
    {
        VirtualKey::setWindowSystem(nullptr, nullptr);
        VirtualKey::setBackend(nullptr);
        m_backend.reset();
    }

    void shouldPressModifiersInOrderAndReleaseInReverse_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("win");
        QTest::addColumn<bool>("alt");
        QTest::addColumn<bool>("ctrl");
        QTest::addColumn<bool>("shift");
        QTest::addColumn<QString>("expected");
        QTest::newRow("key alone") << 0x41 << false << false << false << false << "65+ 65-";
        QTest::newRow("Command is the Windows key") << 0x41 << true << false << false << false << "91+ 65+ 65- 91-";
        QTest::newRow("Option is Alt") << 0x70 << false << true << false << false << "18+ 112+ 112- 18-";
        QTest::newRow("Control and Shift") << 0x2E << false << false << true << true << "17+ 16+ 46+ 46- 16- 17-";
        QTest::newRow("all four") << 0x41 << true << true << true << true << "91+ 18+ 17+ 16+ 65+ 65- 16- 17- 18- 91-";
        QTest::newRow("paste") << 86 << false << false << true << false << "17+ 86+ 86- 17-";
    }

    void shouldPressModifiersInOrderAndReleaseInReverse()
    {
        QFETCH(int, key);
        QFETCH(bool, win);
        QFETCH(bool, alt);
        QFETCH(bool, ctrl);
        QFETCH(bool, shift);
        QFETCH(QString, expected);
        VirtualKey::sendKeyEvent(key, win, alt, ctrl, shift);
        QCOMPARE(trace(m_backend->events()), expected);
    }

    void shouldPauseBeforeTheReleases()
    {
        VirtualKey::sendKeyEvent(0x41, true, true, true, true);
        const Events events = m_backend->events();
        QCOMPARE(events.size(), 10);
        QVERIFY2(gapMs(events.at(4), events.at(5)) >= VirtualKey::PauseMs,
                 qPrintable(QString::number(gapMs(events.at(4), events.at(5)))));
    }

    void shouldSendNothingForAKeyWithoutMapping_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("unset") << -1;
        QTest::newRow("reserved") << 0x07;
        QTest::newRow("out of range") << 0x1000;
    }

    // Modifiers alone would still reach the desktop, and a lone Super tap
    // opens the launcher on many desktops.
    void shouldSendNothingForAKeyWithoutMapping()
    {
        QFETCH(int, key);
        LogCapture log;
        VirtualKey::sendKeyEvent(key, true, true, true, true);
        QVERIFY(m_backend->events().isEmpty());
        QCOMPARE(log.matching(QStringLiteral("unknown virtual key %1").arg(key)).size(), 1);
    }

    void shouldPlayMacroStepsAsRecorded()
    {
        LogCapture log;
        VirtualKey::sendMacroKeyEvent(
            {step(16, true), step(65, true), step(65, false), step(66, true), step(16, false), step(66, false)});
        const Events events = m_backend->events();
        QCOMPARE(trace(events), QStringLiteral("16+ 65+ 65- 66+ 16- 66-"));
        for (int i = 1; i < events.size(); ++i)
            QVERIFY2(gapMs(events.at(i - 1), events.at(i)) >= VirtualKey::PauseMs, qPrintable(QString::number(i)));
        const QStringList expectedTrace = {QStringLiteral("press: 16 0"), QStringLiteral("press: 65 0"),
                                           QStringLiteral("press: 65 2"), QStringLiteral("press: 66 0"),
                                           QStringLiteral("press: 16 2"), QStringLiteral("press: 66 2")};
        QCOMPARE(log.matching(QStringLiteral("press: ")), expectedTrace);
    }

    void shouldLeaveAKeyDownThatTheMacroDoesNotRelease()
    {
        VirtualKey::sendMacroKeyEvent({step(17, true), step(67, true), step(67, false)});
        QCOMPARE(trace(m_backend->events()), QStringLiteral("17+ 67+ 67-"));
    }

    void shouldSkipMacroStepsWithUnknownKeys()
    {
        LogCapture log;
        VirtualKey::sendMacroKeyEvent({step(7, true), step(65, true), step(65, false), step(0, false)});
        QCOMPARE(trace(m_backend->events()), QStringLiteral("65+ 65-"));
        QCOMPARE(log.matching(QStringLiteral("macro step with unknown virtual key")).size(), 2);
    }

    void shouldPlayNothingForAnEmptyMacro()
    {
        VirtualKey::sendMacroKeyEvent({});
        QVERIFY(m_backend->events().isEmpty());
    }

    void shouldTellTheUserOnceWhenKeystrokesCannotBeSent()
    {
        m_backend->setUnusable(QStringLiteral("cannot open /dev/uinput: Permission denied"));
        VirtualKey::setBackend(m_backend.get());
        QSignalSpy told(VirtualKey::instance(), &VirtualKey::keystrokesUnavailable);
        LogCapture log;

        QVERIFY(!VirtualKey::checkAvailable());
        VirtualKey::sendKeyEvent(0x41, false, false, true, false);
        VirtualKey::sendMacroKeyEvent({step(65, true), step(65, false)});
        QVERIFY(!VirtualKey::checkAvailable());

        QCOMPARE(told.size(), 1);
        QCOMPARE(told.at(0).at(0).toString(), KeystrokeBackend::fixText());
        QCOMPARE(log.matching(QStringLiteral("Permission denied")).size(), 1);
        QVERIFY(m_backend->events().isEmpty());
    }

    void shouldTypeAgainOnceTheBackendWorks()
    {
        m_backend->setUnusable(QStringLiteral("not yet"));
        VirtualKey::sendKeyEvent(0x41, false, false, false, false);
        m_backend->setUnusable(QString());
        QVERIFY(VirtualKey::checkAvailable());
        VirtualKey::sendKeyEvent(0x41, false, false, false, false);
        QCOMPARE(trace(m_backend->events()), QStringLiteral("65+ 65-"));
    }

    void shouldNotInterleaveChordsFromSeveralThreads()
    {
        std::thread first([] { VirtualKey::sendKeyEvent(0x41, true, true, true, true); });
        std::thread second([] { VirtualKey::sendKeyEvent(0x42, true, true, true, true); });
        first.join();
        second.join();
        const QString a = QStringLiteral("91+ 18+ 17+ 16+ 65+ 65- 16- 17- 18- 91-");
        const QString b = QStringLiteral("91+ 18+ 17+ 16+ 66+ 66- 16- 17- 18- 91-");
        const QString typed = trace(m_backend->events());
        QVERIFY2(typed == a + QLatin1Char(' ') + b || typed == b + QLatin1Char(' ') + a, qPrintable(typed));
    }

    void shouldTypeWithTheMainWindowInFrontOfTheBroadcaster_data()
    {
        QTest::addColumn<quint64>("foreground");
        QTest::addColumn<QString>("title");
        QTest::addColumn<bool>("obeys");
        QTest::addColumn<bool>("moved");
        QTest::newRow("broadcaster in front") << OtherWindow << Broadcaster << true << true;
        QTest::newRow("window manager refuses") << OtherWindow << Broadcaster << false << true;
        QTest::newRow("another program") << OtherWindow << QStringLiteral("Editor") << true << false;
        QTest::newRow("similar title") << OtherWindow << (Broadcaster + QStringLiteral(" - Scene 1")) << true << false;
        QTest::newRow("main window with that title") << MainWindow << Broadcaster << true << false;
    }

    void shouldTypeWithTheMainWindowInFrontOfTheBroadcaster()
    {
        QFETCH(quint64, foreground);
        QFETCH(QString, title);
        QFETCH(bool, obeys);
        QFETCH(bool, moved);
        FakeWindowSystem windows;
        windows.setForeground(foreground, title);
        windows.setObeysActivation(obeys);
        VirtualKey::setWindowSystem(&windows, [] { return MainWindow; });

        VirtualKey::sendKeyEvent(0x41, false, false, true, false);

        const Events events = m_backend->events();
        QCOMPARE(trace(events), QStringLiteral("17+ 65+ 65- 17-"));
        const QVector<FakeWindowSystem::Activation> activations = windows.activations();
        if (!moved) {
            QVERIFY(activations.isEmpty());
            return;
        }
        QCOMPARE(activations.size(), 2);
        QCOMPARE(activations.at(0).windowId, MainWindow);
        QVERIFY(activations.at(0).monotonicNs < events.first().monotonicNs);
        QCOMPARE(activations.at(1).windowId, OtherWindow);
        QVERIFY(activations.at(1).monotonicNs > events.last().monotonicNs);
        QCOMPARE(windows.foregroundWindowId(), OtherWindow);
    }

    void shouldLeaveMacrosToTheWindowInFront()
    {
        FakeWindowSystem windows;
        windows.setForeground(OtherWindow, Broadcaster);
        VirtualKey::setWindowSystem(&windows, [] { return MainWindow; });
        VirtualKey::sendMacroKeyEvent({step(65, true), step(65, false)});
        QVERIFY(windows.activations().isEmpty());
        QCOMPARE(trace(m_backend->events()), QStringLiteral("65+ 65-"));
    }

private:
    std::unique_ptr<RecordingKeystrokeBackend> m_backend;
};

KEYSTAGE_TEST_MAIN(VirtualKeyTest)
#include "tst_virtualkey.moc"
