#include "keypadmonitor.h"
#include "logcapture.h"
#include "testmain.h"

#include <QQueue>
#include <QSignalSpy>

#include <sys/socket.h>
#include <unistd.h>

namespace {

using Event = HidrawEventSource::Event;

// Events scripted by the test; one byte on a socket pair per event makes the
// descriptor readable exactly as udev's netlink socket would be.
class ScriptedSource : public HidrawEventSource
{
public:
    ScriptedSource() { ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0, m_fds); }
    ~ScriptedSource() override
    {
        ::close(m_fds[0]);
        ::close(m_fds[1]);
    }

    void push(const Event& event)
    {
        m_events.enqueue(event);
        const char wake = 1;
        QCOMPARE(::write(m_fds[1], &wake, 1), ssize_t(1));
    }

    int fd() const override { return m_fds[0]; }

    bool receive(Event* event) override
    {
        char wake = 0;
        if (::read(m_fds[0], &wake, 1) != 1 || m_events.isEmpty())
            return false;
        *event = m_events.dequeue();
        return true;
    }

private:
    int m_fds[2] = {-1, -1};
    QQueue<Event> m_events;
};

class NoDescriptorSource : public HidrawEventSource
{
public:
    int fd() const override { return -1; }
    bool receive(Event*) override { return false; }
};

std::unique_ptr<HidrawEventSource> noSource()
{
    return nullptr;
}

const QByteArray KeypadPath = "/devices/pci0000:00/0000:00:14.0/usb1/1-2/1-2:1.0/0003:FFFF:1F43.0007/hidraw/hidraw3";

} // namespace

class KeypadMonitorTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldAnnounceOnlyKeypadNodes_data()
    {
        QTest::addColumn<QByteArray>("action");
        QTest::addColumn<QByteArray>("hidId");
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<int>("arrivals");
        QTest::addColumn<int>("removals");
        QTest::addColumn<quint32>("pid");

        const QByteArray mouse = "/devices/usb1/1-1/1-1:1.0/0003:046D:C077.0001/hidraw/hidraw0";
        QTest::newRow("keypad added") << QByteArray("add") << QByteArray("0003:0000FFFF:00001F43") << KeypadPath << 1
                                      << 0 << quint32(0x1F43);
        QTest::newRow("each product") << QByteArray("add") << QByteArray("0003:0000FFFF:00001F44") << KeypadPath << 1
                                      << 0 << quint32(0x1F44);
        QTest::newRow("library model") << QByteArray("add") << QByteArray("0003:0000FFFF:0000110E") << KeypadPath << 1
                                       << 0 << quint32(0x110E);
        QTest::newRow("keypad removed, parent gone")
            << QByteArray("remove") << QByteArray() << KeypadPath << 0 << 1 << quint32(0);
        QTest::newRow("keypad removed, parent known")
            << QByteArray("remove") << QByteArray("0003:0000FFFF:00001F40") << mouse << 0 << 1 << quint32(0);
        QTest::newRow("id wins over path")
            << QByteArray("add") << QByteArray("0003:0000046D:0000C077") << KeypadPath << 0 << 0 << quint32(0);
        QTest::newRow("other vendor") << QByteArray("add") << QByteArray("0003:0000046D:0000C077") << mouse << 0 << 0
                                      << quint32(0);
        QTest::newRow("other vendor removed") << QByteArray("remove") << QByteArray() << mouse << 0 << 0 << quint32(0);
        QTest::newRow("unknown product") << QByteArray("add") << QByteArray("0003:0000FFFF:00001F46") << KeypadPath << 0
                                         << 0 << quint32(0);
        QTest::newRow("boot loader") << QByteArray("add") << QByteArray("0003:0000FFFF:0000FF00") << KeypadPath << 0
                                     << 0 << quint32(0);
        QTest::newRow("change") << QByteArray("change") << QByteArray("0003:0000FFFF:00001F43") << KeypadPath << 0 << 0
                                << quint32(0);
        QTest::newRow("bind") << QByteArray("bind") << QByteArray("0003:0000FFFF:00001F43") << KeypadPath << 0 << 0
                              << quint32(0);
        QTest::newRow("no action") << QByteArray() << QByteArray("0003:0000FFFF:00001F43") << KeypadPath << 0 << 0
                                   << quint32(0);
        QTest::newRow("garbage id") << QByteArray("add") << QByteArray("FFFF1F43") << KeypadPath << 0 << 0
                                    << quint32(0);
        QTest::newRow("nothing known") << QByteArray("remove") << QByteArray() << QByteArray() << 0 << 0 << quint32(0);
    }
    void shouldAnnounceOnlyKeypadNodes()
    {
        QFETCH(QByteArray, action);
        QFETCH(QByteArray, hidId);
        QFETCH(QByteArray, path);
        QFETCH(int, arrivals);
        QFETCH(int, removals);
        QFETCH(quint32, pid);

        KeypadMonitor monitor(noSource());
        QSignalSpy arrived(&monitor, &KeypadMonitor::keypadArrived);
        QSignalSpy removed(&monitor, &KeypadMonitor::keypadRemoved);
        monitor.handleEvent({action, hidId, path});

        QCOMPARE(arrived.count(), arrivals);
        QCOMPARE(removed.count(), removals);
        if (arrivals) {
            QCOMPARE(arrived.first().at(0).value<quint32>(), quint32(0xFFFF));
            QCOMPARE(arrived.first().at(1).value<quint32>(), pid);
        }
    }

    void shouldLogEventsItCannotPlace()
    {
        KeypadMonitor monitor(noSource());
        LogCapture capture;
        monitor.handleEvent({"add", "0003:nonsense", KeypadPath});
        monitor.handleEvent({"remove", QByteArray(), "/devices/virtual/misc/hidraw0"});
        QCOMPARE(capture.matching(QStringLiteral("0003:nonsense")).size(), 1);
        QCOMPARE(capture.matching(QStringLiteral("/devices/virtual/misc/hidraw0")).size(), 1);
    }

    void shouldDeliverSourceEventsThroughTheEventLoop()
    {
        auto source = std::make_unique<ScriptedSource>();
        ScriptedSource* script = source.get();
        KeypadMonitor monitor(std::move(source));
        QVERIFY(monitor.isActive());
        QSignalSpy arrived(&monitor, &KeypadMonitor::keypadArrived);
        QSignalSpy removed(&monitor, &KeypadMonitor::keypadRemoved);

        script->push({"add", "0003:0000046D:0000C077", "/devices/usb1/0003:046D:C077.0001/hidraw/hidraw0"});
        script->push({"add", "0003:0000FFFF:00001F45", KeypadPath});
        QTRY_COMPARE_WITH_TIMEOUT(arrived.count(), 1, 30000);
        QCOMPARE(arrived.first().at(1).value<quint32>(), quint32(0x1F45));

        script->push({"remove", QByteArray(), KeypadPath});
        QTRY_COMPARE_WITH_TIMEOUT(removed.count(), 1, 30000);
        QCOMPARE(arrived.count(), 1);
    }

    void shouldStayInertWithoutSource_data()
    {
        QTest::addColumn<bool>("noDescriptor");
        QTest::newRow("no source") << false;
        QTest::newRow("no descriptor") << true;
    }
    void shouldStayInertWithoutSource()
    {
        QFETCH(bool, noDescriptor);
        LogCapture capture;
        std::unique_ptr<HidrawEventSource> source;
        if (noDescriptor)
            source = std::make_unique<NoDescriptorSource>();
        KeypadMonitor monitor(std::move(source));
        QVERIFY(!monitor.isActive());
        QCOMPARE(capture.matching(QStringLiteral("No keypad hot-plug notices")).size(), 1);
        // Filtering still works for events handed in from elsewhere.
        QSignalSpy arrived(&monitor, &KeypadMonitor::keypadArrived);
        monitor.handleEvent({"add", "0003:0000FFFF:00001F43", KeypadPath});
        QCOMPARE(arrived.count(), 1);
    }

    void shouldLogOnceWhenUdevIsMissing()
    {
        // Whatever this machine has: with udev the monitor listens silently,
        // without it it says so once.
        LogCapture capture;
        KeypadMonitor monitor;
        QCOMPARE(capture.matching(QStringLiteral("No keypad hot-plug notices")).size(), monitor.isActive() ? 0 : 1);
    }
};

KEYSTAGE_TEST_MAIN(KeypadMonitorTest)
#include "tst_keypadmonitor.moc"
