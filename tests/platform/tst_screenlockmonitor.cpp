// Runs against two private dbus-daemons of its own, standing in for the
// system bus and the session bus, with the test playing systemd-logind and
// the desktop's screen saver.
#include "dbusscreenlockmonitor.h"
#include "privatebus.h"
#include "testmain.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QSignalSpy>

#include <memory>

namespace {

constexpr int Patience = 30000;
const QString SessionPath = QStringLiteral("/org/freedesktop/login1/session/_3");

} // namespace

// logind: its manager finds sessions (GetSessionByPID fails for a process
// outside any session), and the session has the LockedHint.
class FakeLogind : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    bool knowsPid = true;

public slots:
    QDBusObjectPath GetSessionByPID(uint)
    {
        if (!knowsPid)
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

class FakeSession : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Session")
    Q_PROPERTY(bool LockedHint MEMBER locked)

public:
    bool locked = true;

    // logind announces the new value, or only that it changed.
    void setLocked(QDBusConnection& bus, bool value, bool announceValue)
    {
        locked = value;
        QDBusMessage signal = QDBusMessage::createSignal(SessionPath, QStringLiteral("org.freedesktop.DBus.Properties"),
                                                         QStringLiteral("PropertiesChanged"));
        const QString name = QStringLiteral("LockedHint");
        signal << QStringLiteral("org.freedesktop.login1.Session")
               << (announceValue ? QVariantMap{{name, value}} : QVariantMap())
               << (announceValue ? QStringList() : QStringList{name});
        QVERIFY(bus.send(signal));
    }
};

class FakeScreenSaver : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

public:
    bool active = false;

public slots:
    bool GetActive() const { return active; }

signals:
    void ActiveChanged(bool active);
};

class ScreenLockMonitorTest : public QObject
{
    Q_OBJECT

    PrivateBus m_system;
    PrivateBus m_session;
    QString m_systemAddress;
    QString m_sessionAddress;
    QStringList m_connections;
    FakeLogind m_logind;
    FakeSession m_lockHint;
    FakeScreenSaver m_screenSaver;

    QDBusConnection bus(const QString& address, const QString& name)
    {
        m_connections.append(name);
        return QDBusConnection::connectToBus(address, name);
    }

    // Plays a service on a bus under its well-known name.
    QDBusConnection serve(const QString& address, const QString& service, const QString& path, QObject* object,
                          QDBusConnection::RegisterOptions options)
    {
        QDBusConnection connection = bus(address, service);
        connection.registerObject(path, object, options);
        if (!connection.registerService(service))
            qWarning() << "cannot own" << service;
        return connection;
    }

    std::unique_ptr<DBusScreenLockMonitor> newMonitor()
    {
        return std::make_unique<DBusScreenLockMonitor>(bus(m_systemAddress, QStringLiteral("system")),
                                                       bus(m_sessionAddress, QStringLiteral("session")));
    }

private slots:
    void initTestCase()
    {
        if (PrivateBus::daemonProgram().isEmpty())
            QSKIP("dbus-daemon is not installed");
        m_systemAddress = m_system.start();
        m_sessionAddress = m_session.start();
        QVERIFY2(!m_systemAddress.isEmpty() && !m_sessionAddress.isEmpty(), "dbus-daemon printed no address");
    }

    void cleanup()
    {
        for (const QString& name : qAsConst(m_connections))
            QDBusConnection::disconnectFromBus(name);
        m_connections.clear();
    }

    void shouldFollowTheLogindSession_data()
    {
        QTest::addColumn<bool>("knowsPid");
        QTest::addColumn<bool>("announceValue");
        QTest::newRow("own session, value announced") << true << true;
        QTest::newRow("outside any session: the display's") << false << true;
        QTest::newRow("value invalidated, read again") << true << false;
    }

    void shouldFollowTheLogindSession()
    {
        QFETCH(bool, knowsPid);
        QFETCH(bool, announceValue);
        m_logind.knowsPid = knowsPid;
        m_lockHint.locked = true;
        QDBusConnection logind =
            serve(m_systemAddress, QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
                  &m_logind, QDBusConnection::ExportAllSlots);
        logind.registerObject(SessionPath, &m_lockHint, QDBusConnection::ExportAllProperties);
        auto monitor = newMonitor();
        QTRY_VERIFY_WITH_TIMEOUT(monitor->isSettled(), Patience);
        QVERIFY(monitor->available() && monitor->logindAnswered() && !monitor->screenSaverAnswered());
        QVERIFY(monitor->isLocked());

        QSignalSpy locked(monitor.get(), &ScreenLockMonitor::lockedChanged);
        m_lockHint.setLocked(logind, false, announceValue);
        QTRY_COMPARE_WITH_TIMEOUT(locked.size(), 1, Patience);
        m_lockHint.setLocked(logind, true, announceValue);
        QTRY_COMPARE_WITH_TIMEOUT(locked.size(), 2, Patience);
        QCOMPARE(locked.at(0).at(0).toBool(), false);
        QCOMPARE(locked.at(1).at(0).toBool(), true);
    }

    void shouldFollowTheScreenSaver()
    {
        m_screenSaver.active = false;
        serve(m_sessionAddress, QStringLiteral("org.freedesktop.ScreenSaver"),
              QStringLiteral("/org/freedesktop/ScreenSaver"), &m_screenSaver,
              QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
        auto monitor = newMonitor();
        QTRY_VERIFY_WITH_TIMEOUT(monitor->isSettled(), Patience);
        QVERIFY(monitor->available() && monitor->screenSaverAnswered() && !monitor->logindAnswered());
        QVERIFY(!monitor->isLocked());

        QSignalSpy locked(monitor.get(), &ScreenLockMonitor::lockedChanged);
        emit m_screenSaver.ActiveChanged(true);
        QTRY_COMPARE_WITH_TIMEOUT(locked.size(), 1, Patience);
        emit m_screenSaver.ActiveChanged(false);
        QTRY_COMPARE_WITH_TIMEOUT(locked.size(), 2, Patience);
        QVERIFY(!monitor->isLocked());
    }

    void shouldBeUnavailableWithoutEitherService()
    {
        auto monitor = newMonitor();
        QTRY_VERIFY_WITH_TIMEOUT(monitor->isSettled(), Patience);
        QVERIFY(!monitor->available());
        // Nor without buses, and without waiting for them.
        const QDBusConnection none = bus(QStringLiteral("unix:path=/nonexistent/bus"), QStringLiteral("none"));
        DBusScreenLockMonitor withoutBuses(none, none);
        QVERIFY(withoutBuses.isSettled() && !withoutBuses.available());
    }
};

KEYSTAGE_TEST_MAIN(ScreenLockMonitorTest)
#include "tst_screenlockmonitor.moc"
