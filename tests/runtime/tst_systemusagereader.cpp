#include "systemusagereader.h"
#include "testfiles.h"
#include "testmain.h"

#include <QTemporaryDir>

namespace {

QByteArray stat(quint64 user, quint64 system, quint64 idle, quint64 iowait)
{
    return QStringLiteral("cpu  %1 0 %2 %3 %4 0 0 0 0 0\ncpu0 1 2 3 4 5 6 7 8 0 0\nintr 12\n")
        .arg(user)
        .arg(system)
        .arg(idle)
        .arg(iowait)
        .toLatin1();
}

QByteArray meminfo(quint64 totalKb, quint64 availableKb)
{
    return QStringLiteral("MemTotal:       %1 kB\nMemFree:          1000 kB\nMemAvailable:   %2 kB\n")
        .arg(totalKb)
        .arg(availableKb)
        .toLatin1();
}

// Interface name -> received, sent bytes.
QByteArray netDev(const QList<std::tuple<QString, quint64, quint64>>& interfaces)
{
    QByteArray text = "Inter-|   Receive                                                |  Transmit\n"
                      " face |bytes    packets errs drop fifo frame compressed multicast|bytes    packets errs "
                      "drop fifo colls carrier compressed\n";
    for (const auto& [name, received, sent] : interfaces)
        text +=
            QStringLiteral("%1: %2 10 0 0 0 0 0 0 %3 20 0 0 0 0 0 0\n").arg(name).arg(received).arg(sent).toLatin1();
    return text;
}

} // namespace

// The sampler's figures from two samples of fixture /proc files.
class SystemUsageReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldComputeTheFiguresBetweenTwoSamples_data()
    {
        QTest::addColumn<QByteArray>("stat1");
        QTest::addColumn<QByteArray>("stat2");
        QTest::addColumn<QByteArray>("mem");
        QTest::addColumn<QByteArray>("net1");
        QTest::addColumn<QByteArray>("net2");
        QTest::addColumn<double>("processor");
        QTest::addColumn<double>("memory");
        QTest::addColumn<double>("received");
        QTest::addColumn<double>("sent");

        const QByteArray eth1 = netDev({{"lo", 5000, 5000}, {"eth0", 1000, 2000}});
        QTest::newRow("busy a quarter, 2 s of traffic without loopback")
            << stat(100, 100, 800, 0) << stat(150, 100, 950, 0) << meminfo(8000, 2000) << eth1
            << netDev({{"lo", 900000, 900000}, {"eth0", 5000, 2500}}) << 25.0 << 75.0 << 2000.0 << 250.0;
        QTest::newRow("waiting for the disk is idle") << stat(0, 0, 0, 0) << stat(10, 10, 40, 40) << meminfo(1000, 1000)
                                                      << eth1 << eth1 << 20.0 << 0.0 << 0.0 << 0.0;
        QTest::newRow("all interfaces summed")
            << stat(0, 0, 0, 0) << stat(100, 0, 0, 0) << meminfo(1000, 0) << netDev({{"eth0", 0, 0}, {"wlan0", 0, 0}})
            << netDev({{"eth0", 1000, 0}, {"wlan0", 3000, 2000}}) << 100.0 << 100.0 << 2000.0 << 1000.0;
        QTest::newRow("wrapped counters are no traffic, never negative")
            << stat(500, 0, 500, 0) << stat(400, 0, 700, 0) << meminfo(1000, 500)
            << netDev({{"eth0", 4294967000u, 4294967000u}}) << netDev({{"eth0", 100, 50}}) << 0.0 << 50.0 << 0.0 << 0.0;
        QTest::newRow("a vanished and a new interface count nothing")
            << stat(0, 0, 0, 0) << stat(1, 0, 3, 0) << meminfo(1000, 250) << netDev({{"eth0", 9000, 9000}})
            << netDev({{"wlan0", 777777, 777777}}) << 25.0 << 75.0 << 0.0 << 0.0;
        QTest::newRow("unreadable files: not known")
            << QByteArray("garbage") << QByteArray() << QByteArray("MemTotal: 1000 kB\n") << QByteArray()
            << QByteArray("nonsense") << -1.0 << -1.0 << -1.0 << -1.0;
        QTest::newRow("no time passed between the samples: not known")
            << stat(1, 1, 1, 1) << stat(1, 1, 1, 1) << meminfo(0, 0) << eth1 << eth1 << -1.0 << -1.0 << 0.0 << 0.0;
    }

    void shouldComputeTheFiguresBetweenTwoSamples()
    {
        QFETCH(QByteArray, stat1);
        QFETCH(QByteArray, stat2);
        QFETCH(QByteArray, mem);
        QFETCH(QByteArray, net1);
        QFETCH(QByteArray, net2);
        QFETCH(double, processor);
        QFETCH(double, memory);
        QFETCH(double, received);
        QFETCH(double, sent);

        QTemporaryDir root;
        const auto put = [&root](const char* file, const QByteArray& bytes) {
            QVERIFY(TestFiles::write(root.filePath(QLatin1String(file)), bytes));
        };
        put("proc/stat", stat1);
        put("proc/meminfo", mem);
        put("proc/net/dev", net1);
        SystemUsageReader reader(root.path());
        const SystemReadings first = reader.sample(0);
        QCOMPARE(first.receiveBytesPerSecond, -1.0); // a rate needs two samples
        put("proc/stat", stat2);
        put("proc/net/dev", net2);
        const SystemReadings second = reader.sample(2000);

        QCOMPARE(second.processorPercent, processor);
        QCOMPARE(second.memoryPercent, memory);
        QCOMPARE(second.receiveBytesPerSecond, received);
        QCOMPARE(second.sendBytesPerSecond, sent);
        QCOMPARE(reader.fileReads(), 6);
    }

    void shouldKeepTheLastMinuteOfKnownFigures()
    {
        SystemReadings history;
        for (int i = 0; i < SystemReadings::HistoryLength + 5; ++i) {
            SystemReadings next;
            next.processorPercent = i;
            next.memoryPercent = i % 2 ? -1 : 50; // unknown figures leave no point
            next.appendHistoryOf(history);
            history = next;
        }
        QCOMPARE(history.processorHistory.size(), SystemReadings::HistoryLength);
        QCOMPARE(history.processorHistory.first(), 5.0f);
        QCOMPARE(history.processorHistory.last(), float(SystemReadings::HistoryLength + 4));
        QCOMPARE(history.memoryHistory.size(), (SystemReadings::HistoryLength + 5) / 2 + 1);
        QVERIFY(history.networkHistory.isEmpty());
    }
};

KEYSTAGE_TEST_MAIN(SystemUsageReaderTest)
#include "tst_systemusagereader.moc"
