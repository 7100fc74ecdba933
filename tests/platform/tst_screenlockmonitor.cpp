// Runs against two private dbus-daemons of its own, standing in for the
// system bus and the session bus, with the test playing systemd-logind and
// the desktop's screen saver.
#include "dbusscreenlockmonitor.h"
#include "logcapture.h"
#include "testmain.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDeadlineTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <memory>

namespace {

constexpr int Patience = 30000;
const QString SessionPath = QStringLiteral("/org/freedesktop/login1/session/_3");

// A dbus-daemon of the test's own; empty address when it could not start.
class PrivateBus
{
public:
    QString start(const QString& program)
    {
        if (!m_dir.isValid())
            return QString();
        m_daemon.setProgram(program);
        m_daemon.setArguments({QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                               QStringLiteral("--nosyslog"), QStringLiteral("--print-address"),
                               QStringLiteral("--address=unix:dir=") + m_dir.path()});
        m_daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_daemon.start();
        if (!m_daemon.waitForStarted(Patience))
            return QString();
        const QDeadlineTimer deadline(Patience);
        while (!m_daemon.canReadLine() && m_daemon.state() == QProcess::Running && !deadline.hasExpired())
            m_daemon.waitForReadyRead(int(deadline.remainingTime()));
        return QString::fromUtf8(m_daemon.readLine()).trimmed();
    }

    ~PrivateBus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished(Patience);
    }

private:
    QTemporaryDir m_dir;
    QProcess m_daemon;
};

} // namespace

// logind's manager: finds sessions; GetSessionByPID can be made to fail, as
// for a process outside any session.
class FakeLogindManager : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    bool knowsPid = true;

public slots:
    QDBusObjectPath GetSessionByPID(uint pid)
    {
        if (!knowsPid || pid == 0)
            sendErrorReply(QStringLiteral("org.freedesktop.login1.NoSessionForPID"), QStringLiteral("no session"));
        return QDBusObjectPath(SessionPath);
    }

    QDBusObjectPath GetSession(const QString& id)
    {
        if (id != QLatin1String("auto"))
            sendErrorReply(QStringLiteral("org.freedesktop.login1.NoSuchSession"), id);
        return QDBusObjectPath(SessionPath);
    }
};

class FakeLogindSession : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Session")
    Q_PROPERTY(bool LockedHint READ lockedHint)

public:
    bool locked = false;
    bool lockedHint() const { return locked; }

    // logind announces the new value; the invalidated form makes the
    // listener read it.
    void setLocked(QDBusConnection& bus, bool value, bool announceValue)
    {
        locked = value;
        QDBusMessage signal = QDBusMessage::createSignal(SessionPath, QStringLiteral("org.freedesktop.DBus.Properties"),
                                                         QStringLiteral("PropertiesChanged"));
        QVariantMap changed;
        QStringList invalidated;
        if (announceValue)
            changed.insert(QStringLiteral("LockedHint"), value);
        else
            invalidated << QStringLiteral("LockedHint");
        signal << QStringLiteral("org.freedesktop.login1.Session") << changed << invalidated;
        QVERIFY(bus.send(signal));
    }
};

class FakeScreenSaver : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

public:
    bool active = false;

    void setActive(bool value)
    {
        active = value;
        emit ActiveChanged(value);
    }

public slots:
    bool GetActive() const { return active; }

signals:
    void ActiveChanged(bool active);
};

class ScreenLockMonitorTest : public QObject
{
    Q_OBJECT

    PrivateBus m_systemDaemon;
    PrivateBus m_sessionDaemon;
    QString m_systemAddress;
    QString m_sessionAddress;
    QStringList m_connections;
    FakeLogindManager m_manager;
    FakeLogindSession m_session;
    FakeScreenSaver m_screenSaver;

    QDBusConnection busConnection(const QString& address, const QString& name)
    {
        m_connections.append(name);
        return QDBusConnection::connectToBus(address, name);
    }

    QDBusConnection startLogind(bool locked)
    {
        QDBusConnection bus = busConnection(m_systemAddress, QStringLiteral("logind"));
        m_session.locked = locked;
        bus.registerObject(QStringLiteral("/org/freedesktop/login1"), &m_manager, QDBusConnection::ExportAllSlots);
        bus.registerObject(SessionPath, &m_session, QDBusConnection::ExportAllProperties);
        if (!bus.registerService(QStringLiteral("org.freedesktop.login1")))
            qWarning() << "cannot own logind's name";
        return bus;
    }

    QDBusConnection startScreenSaver(bool active)
    {
        QDBusConnection bus = busConnection(m_sessionAddress, QStringLiteral("screensaver"));
        m_screenSaver.active = active;
        bus.registerObject(QStringLiteral("/org/freedesktop/ScreenSaver"), &m_screenSaver,
                           QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
        if (!bus.registerService(QStringLiteral("org.freedesktop.ScreenSaver")))
            qWarning() << "cannot own the screen saver's name";
        return bus;
    }

    std::unique_ptr<DBusScreenLockMonitor> monitor()
    {
        auto made =
            std::make_unique<DBusScreenLockMonitor>(busConnection(m_systemAddress, QStringLiteral("monitor system")),
                                                    busConnection(m_sessionAddress, QStringLiteral("monitor session")));
        return made;
    }

private slots:
    void initTestCase()
    {
        const QString program = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
        if (program.isEmpty())
            QSKIP("dbus-daemon is not installed");
        m_systemAddress = m_systemDaemon.start(program);
        m_sessionAddress = m_sessionDaemon.start(program);
        QVERIFY2(!m_systemAddress.isEmpty() && !m_sessionAddress.isEmpty(), "dbus-daemon printed no address");
    }

    void cleanup()
    {
        for (const QString& name : qAsConst(m_connections))
            QDBusConnection::disconnectFromBus(name);
        m_connections.clear();
        m_manager.knowsPid = true;
    }

    void shouldFollowTheLogindSession_data()
    {
        QTest::addColumn<bool>("knowsPid");
        QTest::addColumn<bool>("announceValue");
        QTest::newRow("own session, value announced") << true << true;
        QTest::newRow("no session of its own: the display's") << false << true;
        QTest::newRow("value invalidated, read again") << true << false;
    }

    void shouldFollowTheLogindSession()
    {
        QFETCH(bool, knowsPid);
        QFETCH(bool, announceValue);
        m_manager.knowsPid = knowsPid;
        QDBusConnection logind = startLogind(true);
        auto watcher = monitor();
        QSignalSpy locked(watcher.get(), &ScreenLockMonitor::lockedChanged);
        QTRY_VERIFY_WITH_TIMEOUT(watcher->isSettled(), Patience);
        QVERIFY(watcher->available());
        QVERIFY(watcher->logindAnswered());
        QVERIFY(!watcher->screenSaverAnswered());
        QVERIFY(watcher->isLocked());

        m_session.setLocked(logind, false, announceValue);
        QTRY_COMPARE_WITH_TIMEOUT(locked.size(), 2, Patience);
        QCOMPARE(locked.at(0).at(0).toBool(), true);
        QCOMPARE(locked.at(1).at(0).toBool(), false);
        m_session.setLocked(logind, true, announceValue);
        QTRY_COMPARE_WITH_TIMEOUT(locked.size(), 3, Patience);
        QVERIFY(watcher->isLocked());
    }

    void shouldFollowTheScreenSaver()
    {
        startScreenSaver(false);
        auto watcher = monitor();
        QSignalSpy locked(watcher.get(), &ScreenLockMonitor::lockedChanged);
        QSignalSpy available(watcher.get(), &ScreenLockMonitor::availableChanged);
        QTRY_VERIFY_WITH_TIMEOUT(watcher->isSettled(), Patience);
        QVERIFY(watcher->screenSaverAnswered());
        QVERIFY(!watcher->logindAnswered());
        QCOMPARE(available.size(), 1);
        QVERIFY(!watcher->isLocked());

        m_screenSaver.setActive(true);
        QTRY_COMPARE_WITH_TIMEOUT(locked.size(), 1, Patience);
        QVERIFY(watcher->isLocked());
        m_screenSaver.setActive(false);
        QTRY_COMPARE_WITH_TIMEOUT(locked.size(), 2, Patience);
        QVERIFY(!watcher->isLocked());
    }

    // With both, the session is locked while either says so.
    void shouldBeLockedWhileEitherSourceSaysSo()
    {
        QDBusConnection logind = startLogind(false);
        startScreenSaver(false);
        auto watcher = monitor();
        QTRY_VERIFY_WITH_TIMEOUT(watcher->isSettled(), Patience);
        QVERIFY(watcher->logindAnswered() && watcher->screenSaverAnswered());
        QSignalSpy locked(watcher.get(), &ScreenLockMonitor::lockedChanged);

        // One source alone locks while the other says unlocked.
        m_screenSaver.setActive(true);
        QTRY_COMPARE_WITH_TIMEOUT(locked.size(), 1, Patience);
        m_screenSaver.setActive(false);
        QTRY_COMPARE_WITH_TIMEOUT(locked.size(), 2, Patience);
        m_session.setLocked(logind, true, true);
        QTRY_COMPARE_WITH_TIMEOUT(locked.size(), 3, Patience);
        m_session.setLocked(logind, false, true);
        QTRY_COMPARE_WITH_TIMEOUT(locked.size(), 4, Patience);
        const QList<bool> states = {locked.at(0).at(0).toBool(), locked.at(1).at(0).toBool(),
                                    locked.at(2).at(0).toBool(), locked.at(3).at(0).toBool()};
        QCOMPARE(states, (QList<bool>{true, false, true, false}));
    }

    void shouldBeUnavailableWithoutAnySource()
    {
        LogCapture capture;
        auto watcher = monitor();
        QTRY_VERIFY_WITH_TIMEOUT(watcher->isSettled(), Patience);
        QVERIFY(!watcher->available());
        QVERIFY(!watcher->isLocked());
        QCOMPARE(capture.matching(QStringLiteral("Neither logind nor a screen saver reports screen locks")).size(), 1);
    }

    void shouldBeUnavailableWithoutBuses()
    {
        m_connections << QStringLiteral("nowhere");
        const QDBusConnection nowhere =
            QDBusConnection::connectToBus(QStringLiteral("unix:path=/nonexistent/bus"), QStringLiteral("nowhere"));
        DBusScreenLockMonitor watcher(nowhere, nowhere);
        QVERIFY(watcher.isSettled());
        QVERIFY(!watcher.available());
    }
};

KEYSTAGE_TEST_MAIN(ScreenLockMonitorTest)
#include "tst_screenlockmonitor.moc"
