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
        VirtualKey::setWindowSystem(nullptr);
        VirtualKey::setMainWindowId(0);
        VirtualKey::setBackend(nullptr);
        m_backend.reset();
    }

    void shouldPressModifiersInOrderAndReleaseInReverse_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("modifiers");
        QTest::addColumn<QString>("expected");
        // clang-format off
        QTest::newRow("key alone")        << 0x41 << ""                   << "65+ 65-";
        QTest::newRow("Command: Windows") << 0x41 << "win"                << "91+ 65+ 65- 91-";
        QTest::newRow("Ctrl and Shift")   << 0x2E << "ctrl shift"         << "17+ 16+ 46+ 46- 16- 17-";
        QTest::newRow("all four")         << 0x41 << "shift ctrl alt win" << "91+ 18+ 17+ 16+ 65+ 65- 16- 17- 18- 91-";
        // clang-format on
    }

    void shouldPressModifiersInOrderAndReleaseInReverse()
    {
        QFETCH(int, key);
        QFETCH(QString, modifiers);
        QFETCH(QString, expected);
        VirtualKey::sendKeyEvent(key, modifiers.contains(QLatin1String("win")),
                                 modifiers.contains(QLatin1String("alt")), modifiers.contains(QLatin1String("ctrl")),
                                 modifiers.contains(QLatin1String("shift")));
        const Events events = m_backend->events();
        QCOMPARE(trace(events), expected);
        const int half = events.size() / 2;
        QVERIFY(gapMs(events.at(half - 1), events.at(half)) >= VirtualKey::PauseMs);
    }

    // Modifiers alone would still reach the desktop, and a lone Super tap
    // opens the launcher on many desktops.
    void shouldSendNothingForAKeyWithoutMapping()
    {
        LogCapture log;
        for (int key : {-1, 0x07, 0x1000})
            VirtualKey::sendKeyEvent(key, true, true, true, true);
        QVERIFY(m_backend->events().isEmpty());
        QCOMPARE(log.matching(QStringLiteral("unknown virtual key")).size(), 3);
    }

    // No releases are added: a key the macro leaves down stays down.
    void shouldPlayMacroStepsAsRecordedSkippingUnknownKeys()
    {
        LogCapture log;
        VirtualKey::sendMacroKeyEvent(
            {step(16, true), step(7, true), step(65, true), step(65, false), step(66, true), step(0, false)});
        const Events events = m_backend->events();
        QCOMPARE(trace(events), QStringLiteral("16+ 65+ 65- 66+"));
        for (int i = 1; i < events.size(); ++i)
            QVERIFY2(gapMs(events.at(i - 1), events.at(i)) >= VirtualKey::PauseMs, qPrintable(QString::number(i)));
        QCOMPARE(log.matching(QStringLiteral("press: ")).join(QLatin1Char(',')),
                 QStringLiteral("press: 16 0,press: 65 0,press: 65 2,press: 66 0"));
        QCOMPARE(log.matching(QStringLiteral("macro step with unknown virtual key")).size(), 2);
    }

    void shouldTellTheUserOnceWhenKeystrokesCannotBeSent()
    {
        m_backend->setUnusable(QStringLiteral("cannot open /dev/uinput: Permission denied"));
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
        const QString chord = QStringLiteral("91+ 18+ 17+ 16+ %1+ %1- 16- 17- 18- 91-");
        const QString typed = trace(m_backend->events());
        QVERIFY2(typed == chord.arg(65) + QLatin1Char(' ') + chord.arg(66) ||
                     typed == chord.arg(66) + QLatin1Char(' ') + chord.arg(65),
                 qPrintable(typed));
    }

    void shouldTypeWithTheMainWindowInFrontOfTheBroadcaster_data()
    {
        QTest::addColumn<quint64>("foreground");
        QTest::addColumn<QString>("title");
        QTest::addColumn<bool>("obeys");
        QTest::addColumn<quint64>("mainWindow");
        QTest::addColumn<bool>("moved");
        QTest::newRow("broadcaster in front") << OtherWindow << Broadcaster << true << MainWindow << true;
        QTest::newRow("window manager refuses") << OtherWindow << Broadcaster << false << MainWindow << true;
        QTest::newRow("another program") << OtherWindow << QStringLiteral("Editor") << true << MainWindow << false;
        QTest::newRow("similar title") << OtherWindow << (Broadcaster + QStringLiteral(" - Scene 1")) << true
                                       << MainWindow << false;
        QTest::newRow("main window with that title") << MainWindow << Broadcaster << true << MainWindow << false;
        // Not yet shown, or its native window just went away.
        QTest::newRow("main window without a native window")
            << OtherWindow << Broadcaster << true << quint64(0) << false;
    }

    void shouldTypeWithTheMainWindowInFrontOfTheBroadcaster()
    {
        QFETCH(quint64, foreground);
        QFETCH(QString, title);
        QFETCH(bool, obeys);
        QFETCH(quint64, mainWindow);
        QFETCH(bool, moved);
        FakeWindowSystem windows;
        windows.setForeground(foreground, title);
        windows.setObeysActivation(obeys);
        VirtualKey::setWindowSystem(&windows);
        VirtualKey::setMainWindowId(mainWindow);

        VirtualKey::sendKeyEvent(0x41, false, false, true, false);
        const Events events = m_backend->events();
        QCOMPARE(trace(events), QStringLiteral("17+ 65+ 65- 17-"));
        const QVector<FakeWindowSystem::Activation> activations = windows.activations();
        QCOMPARE(activations.size(), moved ? 2 : 0);
        if (moved) {
            QCOMPARE(activations.at(0).windowId, MainWindow);
            QVERIFY(activations.at(0).monotonicNs < events.first().monotonicNs);
            QCOMPARE(activations.at(1).windowId, OtherWindow);
            QVERIFY(activations.at(1).monotonicNs > events.last().monotonicNs);
            QCOMPARE(windows.foregroundWindowId(), OtherWindow);
        }
        // Macros play into whatever window is in front.
        VirtualKey::sendMacroKeyEvent({step(65, true), step(65, false)});
        QCOMPARE(windows.activations().size(), activations.size());
    }

private:
    std::unique_ptr<RecordingKeystrokeBackend> m_backend;
};

KEYSTAGE_TEST_MAIN(VirtualKeyTest)
#include "tst_virtualkey.moc"
