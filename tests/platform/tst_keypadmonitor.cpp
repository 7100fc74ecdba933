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

// The caller says which keypads count; 0x1F46 and the boot loader do not.
const UsbIdFilter Keypads{0xFFFF, {0x1F43, 0x1F40, 0x1F45, 0x110E}};
const QByteArray Add = "add";
const QByteArray Remove = "remove";
const QByteArray KeypadPath = "/devices/pci0000:00/0000:00:14.0/usb1/1-2/1-2:1.0/0003:FFFF:1F43.0007/hidraw/hidraw3";

} // namespace

class KeypadMonitorTest : public QObject
{
    Q_OBJECT

private slots:
    // What the monitor announces: "+ffff:1f43" for an arrival, "-" for a removal.
    void shouldAnnounceOnlyKeypadNodes_data()
    {
        QTest::addColumn<QByteArray>("action");
        QTest::addColumn<QByteArray>("hidId");
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QString>("announced");
        const QByteArray mouse = "/devices/usb1/1-1/1-1:1.0/0003:046D:C077.0001/hidraw/hidraw0";
        QTest::newRow("keypad added") << Add << QByteArray("0003:0000FFFF:00001F43") << KeypadPath << "+ffff:1f43";
        QTest::newRow("library model") << Add << QByteArray("0003:0000FFFF:0000110E") << KeypadPath << "+ffff:110e";
        QTest::newRow("removed, parent gone") << Remove << QByteArray() << KeypadPath << "-";
        QTest::newRow("removed, parent known") << Remove << QByteArray("0003:0000FFFF:00001F40") << mouse << "-";
        QTest::newRow("id wins over path") << Add << QByteArray("0003:0000046D:0000C077") << KeypadPath << "";
        QTest::newRow("other vendor removed") << Remove << QByteArray() << mouse << "";
        QTest::newRow("unknown product") << Add << QByteArray("0003:0000FFFF:00001F46") << KeypadPath << "";
        QTest::newRow("boot loader") << Add << QByteArray("0003:0000FFFF:0000FF00") << KeypadPath << "";
        QTest::newRow("change") << QByteArray("change") << QByteArray("0003:0000FFFF:00001F43") << KeypadPath << "";
        QTest::newRow("no action") << QByteArray() << QByteArray("0003:0000FFFF:00001F43") << KeypadPath << "";
        QTest::newRow("garbage id") << Add << QByteArray("0003:nonsense") << KeypadPath << "";
        QTest::newRow("nothing known") << Remove << QByteArray() << QByteArray() << "";
    }

    void shouldAnnounceOnlyKeypadNodes()
    {
        QFETCH(QByteArray, action);
        QFETCH(QByteArray, hidId);
        QFETCH(QByteArray, path);
        QFETCH(QString, announced);
        KeypadMonitor monitor(Keypads, std::unique_ptr<HidrawEventSource>{});
        QStringList notices;
        connect(&monitor, &KeypadMonitor::keypadArrived, this,
                [&](quint32 vid, quint32 pid) { notices << QStringLiteral("+%1:%2").arg(vid, 0, 16).arg(pid, 0, 16); });
        connect(&monitor, &KeypadMonitor::keypadRemoved, this, [&] { notices << QStringLiteral("-"); });
        LogCapture capture;
        monitor.handleEvent({action, hidId, path});
        QCOMPARE(notices.join(QLatin1Char(' ')), announced);
        // An event it cannot place is logged rather than dropped silently.
        if (hidId.contains("nonsense") || (action == Remove && path.isEmpty()))
            QCOMPARE(capture.matching(QStringLiteral("Cannot tell the HID device")).size(), 1);
    }

    void shouldDeliverSourceEventsThroughTheEventLoop()
    {
        auto source = std::make_unique<ScriptedSource>();
        ScriptedSource* script = source.get();
        KeypadMonitor monitor(Keypads, std::move(source));
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
        KeypadMonitor monitor(Keypads, noDescriptor ? std::make_unique<NoDescriptorSource>() : nullptr);
        QVERIFY(!monitor.isActive());
        QCOMPARE(capture.matching(QStringLiteral("No keypad hot-plug notices")).size(), 1);
        // Filtering still works for events handed in from elsewhere.
        QSignalSpy arrived(&monitor, &KeypadMonitor::keypadArrived);
        monitor.handleEvent({Add, "0003:0000FFFF:00001F43", KeypadPath});
        QCOMPARE(arrived.count(), 1);
    }

    // Whatever this machine has: with udev the monitor listens silently,
    // without it it says so once.
    void shouldLogOnceWhenUdevIsMissing()
    {
        LogCapture capture;
        KeypadMonitor monitor(Keypads);
        QCOMPARE(capture.matching(QStringLiteral("No keypad hot-plug notices")).size(), monitor.isActive() ? 0 : 1);
    }
};

KEYSTAGE_TEST_MAIN(KeypadMonitorTest)
#include "tst_keypadmonitor.moc"
