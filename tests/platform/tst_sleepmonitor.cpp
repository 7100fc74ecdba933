// Runs against a private dbus-daemon of its own, standing in for the system
// bus, with the test itself playing systemd-logind.
#include "logcapture.h"
#include "sleepmonitor.h"
#include "testmain.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>

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
        const QString program = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
        if (program.isEmpty())
            QSKIP("dbus-daemon is not installed");
        QVERIFY(m_busDir.isValid());
        m_daemon.setProgram(program);
        m_daemon.setArguments({QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                               QStringLiteral("--nosyslog"), QStringLiteral("--print-address"),
                               QStringLiteral("--address=unix:dir=") + m_busDir.path()});
        m_daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_daemon.start();
        QVERIFY2(m_daemon.waitForStarted(Patience), qPrintable(m_daemon.errorString()));
        const QDeadlineTimer deadline(Patience);
        while (!m_daemon.canReadLine() && m_daemon.state() == QProcess::Running && !deadline.hasExpired())
            m_daemon.waitForReadyRead(int(deadline.remainingTime()));
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
        QVERIFY2(!m_address.isEmpty(), "dbus-daemon printed no address");
    }

    void cleanupTestCase()
    {
        m_daemon.kill();
        m_daemon.waitForFinished(Patience);
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
        SleepMonitor monitor(QDBusConnection::connectToBus(
            QStringLiteral("unix:path=") + m_busDir.filePath(QStringLiteral("no-such-bus")), m_connections.last()));
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

    QTemporaryDir m_busDir;
    QProcess m_daemon;
    QString m_address;
    QStringList m_connections;
};

KEYSTAGE_TEST_MAIN(SleepMonitorTest)
#include "tst_sleepmonitor.moc"
