// Runs against a private dbus-daemon of its own, standing in for the system
// bus, with the test itself playing systemd-logind.
#include "logcapture.h"
#include "privatebus.h"
#include "sleepmonitor.h"
#include "testmain.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QSignalSpy>

namespace {

const QString LogindService = QStringLiteral("org.freedesktop.login1");
constexpr int Patience = 30000;

void sendPrepareForSleep(QDBusConnection& from, bool start)
{
    QDBusMessage signal =
        QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/login1"),
                                   QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"));
    signal << start;
    QVERIFY(from.send(signal));
}

} // namespace

class SleepMonitorTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (PrivateBus::daemonProgram().isEmpty())
            QSKIP("dbus-daemon is not installed");
        m_address = m_bus.start();
        QVERIFY2(!m_address.isEmpty(), "dbus-daemon printed no address");
    }

    void cleanup()
    {
        for (const QString& name : qAsConst(m_connections))
            QDBusConnection::disconnectFromBus(name);
        m_connections.clear();
    }

    void shouldReportSleepAndResumeFromLogindOnly()
    {
        QDBusConnection logind = busConnection(QStringLiteral("logind"));
        QVERIFY(logind.registerService(LogindService));
        LogCapture capture;
        SleepMonitor monitor(busConnection(QStringLiteral("monitor")));
        QVERIFY(monitor.isActive());
        QVERIFY(capture.matching(QStringLiteral("not on the bus")).isEmpty());
        QSignalSpy sleeping(&monitor, &SleepMonitor::aboutToSleep);
        QSignalSpy resumed(&monitor, &SleepMonitor::resumed);

        QDBusConnection impostor = busConnection(QStringLiteral("impostor"));
        sendPrepareForSleep(impostor, false);
        // A round trip on the impostor's connection: the bus has passed its
        // signal on before logind's below, so it would arrive first.
        QVERIFY(impostor.interface()->isServiceRegistered(LogindService));
        sendPrepareForSleep(logind, true);
        QTRY_COMPARE_WITH_TIMEOUT(sleeping.count(), 1, Patience);
        QCOMPARE(resumed.count(), 0);

        sendPrepareForSleep(logind, false);
        QTRY_COMPARE_WITH_TIMEOUT(resumed.count(), 1, Patience);
        QCOMPARE(sleeping.count(), 1);
    }

    void shouldHearLogindThatStartsLater()
    {
        LogCapture capture;
        SleepMonitor monitor(busConnection(QStringLiteral("monitor")));
        QVERIFY(monitor.isActive());
        QSignalSpy sleeping(&monitor, &SleepMonitor::aboutToSleep);

        QDBusConnection logind = busConnection(QStringLiteral("logind"));
        QVERIFY(logind.registerService(LogindService));
        sendPrepareForSleep(logind, true);
        QTRY_COMPARE_WITH_TIMEOUT(sleeping.count(), 1, Patience);
        QCOMPARE(capture.matching(QStringLiteral("systemd-logind is not on the bus")).size(), 1);
    }

    void shouldCarryOnWithoutBus()
    {
        LogCapture capture;
        m_connections.append(QStringLiteral("nowhere"));
        SleepMonitor monitor(QDBusConnection::connectToBus(m_bus.deadAddress(), m_connections.last()));
        QVERIFY(!monitor.isActive());
        QCOMPARE(capture.matching(QStringLiteral("suspend and resume go unnoticed")).size(), 1);
    }

private:
    QDBusConnection busConnection(const QString& name)
    {
        m_connections.append(name);
        QDBusConnection connection = QDBusConnection::connectToBus(m_address, name);
        if (!connection.isConnected())
            qWarning() << "cannot reach the private bus:" << connection.lastError().message();
        return connection;
    }

    PrivateBus m_bus;
    QString m_address;
    QStringList m_connections;
};

KEYSTAGE_TEST_MAIN(SleepMonitorTest)
#include "tst_sleepmonitor.moc"
