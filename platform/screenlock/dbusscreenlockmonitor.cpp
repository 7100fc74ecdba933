#include "dbusscreenlockmonitor.h"

#include "logging.h"
#include "sessionbus.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QFile>
#include <QStandardPaths>

#include <iterator>

namespace {

const QString LogindService = QStringLiteral("org.freedesktop.login1");
const QString LogindPath = QStringLiteral("/org/freedesktop/login1");
const QString LogindManager = QStringLiteral("org.freedesktop.login1.Manager");
const QString LogindSession = QStringLiteral("org.freedesktop.login1.Session");
const QString PropertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
const QString LockedHint = QStringLiteral("LockedHint");

// The screen savers that announce themselves, tried in this order. The
// interface is named as the service.
struct ScreenSaverService
{
    const char* service;
    const char* path;
};
constexpr ScreenSaverService ScreenSavers[] = {
    {"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver"},
    {"org.freedesktop.ScreenSaver", "/ScreenSaver"},
    {"org.gnome.ScreenSaver", "/org/gnome/ScreenSaver"},
};
constexpr int ScreenSaverCount = int(std::size(ScreenSavers));

} // namespace

DBusScreenLockMonitor::DBusScreenLockMonitor(QObject* parent)
    : DBusScreenLockMonitor(QDBusConnection::systemBus(), ::sessionBusIfAny(), parent)
{
}

DBusScreenLockMonitor::DBusScreenLockMonitor(const QDBusConnection& systemBus, const QDBusConnection& sessionBus,
                                             QObject* parent)
    : ScreenLockMonitor(parent), m_systemBus(systemBus), m_sessionBus(sessionBus)
{
    start();
}

DBusScreenLockMonitor::~DBusScreenLockMonitor() = default;

bool DBusScreenLockMonitor::available() const
{
    return m_available;
}

bool DBusScreenLockMonitor::isLocked() const
{
    return m_locked;
}

bool DBusScreenLockMonitor::logindAnswered() const
{
    return m_logindAnswered;
}

bool DBusScreenLockMonitor::screenSaverAnswered() const
{
    return m_screenSaverAnswered;
}

bool DBusScreenLockMonitor::isSettled() const
{
    return m_pendingProbes == 0;
}

void DBusScreenLockMonitor::start()
{
    m_pendingProbes = 2;
    if (m_systemBus.isConnected()) {
        findSession(true);
    } else {
        LOG_MSG(QStringLiteral("No system bus: no screen locks from logind!!"));
        finishProbe();
    }
    if (m_sessionBus.isConnected()) {
        probeScreenSaver(0);
    } else {
        LOG_MSG(QStringLiteral("No session bus: no screen locks from a screen saver!!"));
        finishProbe();
    }
}

void DBusScreenLockMonitor::whenAnswered(const QDBusPendingCall& call, std::function<void(const QDBusMessage&)> onReply,
                                         std::function<void(const QString&)> onError)
{
    auto* watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [onReply = std::move(onReply), onError = std::move(onError)](QDBusPendingCallWatcher* finished) {
                finished->deleteLater();
                const QDBusMessage reply = finished->reply();
                if (reply.type() == QDBusMessage::ReplyMessage)
                    onReply(reply);
                else
                    onError(reply.errorMessage().isEmpty() ? reply.errorName() : reply.errorMessage());
            });
}

void DBusScreenLockMonitor::finishProbe()
{
    if (m_pendingProbes > 0)
        --m_pendingProbes;
    if (m_pendingProbes == 0 && !m_available)
        LOG_MSG(QStringLiteral("Neither logind nor a screen saver reports screen locks!!"));
}

// ---- logind ----

// Our own session first; a process started outside one (a service, a
// terminal over ssh) follows the user's display session.
void DBusScreenLockMonitor::findSession(bool byPid)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(LogindService, LogindPath, LogindManager,
                                       byPid ? QStringLiteral("GetSessionByPID") : QStringLiteral("GetSession"));
    if (byPid)
        call << quint32(QCoreApplication::applicationPid());
    else
        call << QStringLiteral("auto");
    whenAnswered(
        m_systemBus.asyncCall(call),
        [this](const QDBusMessage& reply) {
            const QDBusObjectPath session = reply.arguments().value(0).value<QDBusObjectPath>();
            if (session.path().isEmpty()) {
                LOG_MSG(QStringLiteral("logind named no session!!"));
                finishProbe();
                return;
            }
            followSession(session);
        },
        [this, byPid](const QString& error) {
            if (byPid) {
                findSession(false);
                return;
            }
            LOG_MSG(QStringLiteral("No logind session to watch for locks: %1").arg(error));
            finishProbe();
        });
}

void DBusScreenLockMonitor::followSession(const QDBusObjectPath& session)
{
    m_sessionPath = session.path();
    if (!m_systemBus.connect(LogindService, m_sessionPath, PropertiesInterface, QStringLiteral("PropertiesChanged"),
                             this, SLOT(onSessionPropertiesChanged(QString, QVariantMap, QStringList)))) {
        LOG_MSG(QStringLiteral("Cannot follow logind session %1: %2!!")
                    .arg(m_sessionPath, m_systemBus.lastError().message()));
        finishProbe();
        return;
    }
    readLockedHint();
}

void DBusScreenLockMonitor::readLockedHint()
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(LogindService, m_sessionPath, PropertiesInterface, QStringLiteral("Get"));
    call << LogindSession << LockedHint;
    const bool first = !m_logindAnswered;
    whenAnswered(
        m_systemBus.asyncCall(call),
        [this, first](const QDBusMessage& reply) {
            m_lockedHint = reply.arguments().value(0).value<QDBusVariant>().variant().toBool();
            m_logindAnswered = true;
            if (first) {
                LOG_MSG(QStringLiteral("screen locks from logind session %1").arg(m_sessionPath));
                finishProbe();
            }
            update();
        },
        [this, first](const QString& error) {
            LOG_MSG(QStringLiteral("logind session %1 gives no LockedHint: %2").arg(m_sessionPath, error));
            if (first) {
                m_systemBus.disconnect(LogindService, m_sessionPath, PropertiesInterface,
                                       QStringLiteral("PropertiesChanged"), this,
                                       SLOT(onSessionPropertiesChanged(QString, QVariantMap, QStringList)));
                finishProbe();
            }
        });
}

void DBusScreenLockMonitor::onSessionPropertiesChanged(const QString& interfaceName, const QVariantMap& changed,
                                                       const QStringList& invalidated)
{
    if (interfaceName != LogindSession || !m_logindAnswered)
        return;
    if (changed.contains(LockedHint)) {
        m_lockedHint = changed.value(LockedHint).toBool();
        update();
    } else if (invalidated.contains(LockedHint)) {
        readLockedHint();
    }
}

// ---- the screen saver ----

// Subscribed before asking, so that no change falls between the answer and
// the subscription.
void DBusScreenLockMonitor::probeScreenSaver(int candidate)
{
    if (candidate >= ScreenSaverCount) {
        LOG_MSG(QStringLiteral("No screen saver on the session bus"));
        finishProbe();
        return;
    }
    const QString service = QLatin1String(ScreenSavers[candidate].service);
    const QString path = QLatin1String(ScreenSavers[candidate].path);
    m_sessionBus.connect(service, path, service, QStringLiteral("ActiveChanged"), this,
                         SLOT(onScreenSaverActiveChanged(bool)));
    const QDBusMessage call = QDBusMessage::createMethodCall(service, path, service, QStringLiteral("GetActive"));
    whenAnswered(
        m_sessionBus.asyncCall(call),
        [this, service, path](const QDBusMessage& reply) {
            m_screenSaverActive = reply.arguments().value(0).toBool();
            m_screenSaverAnswered = true;
            LOG_MSG(QStringLiteral("screen locks from %1 at %2").arg(service, path));
            finishProbe();
            update();
        },
        [this, candidate, service, path](const QString&) {
            m_sessionBus.disconnect(service, path, service, QStringLiteral("ActiveChanged"), this,
                                    SLOT(onScreenSaverActiveChanged(bool)));
            probeScreenSaver(candidate + 1);
        });
}

void DBusScreenLockMonitor::onScreenSaverActiveChanged(bool active)
{
    m_screenSaverActive = active;
    if (m_screenSaverAnswered)
        update();
}

void DBusScreenLockMonitor::update()
{
    const bool available = m_logindAnswered || m_screenSaverAnswered;
    const bool locked = (m_logindAnswered && m_lockedHint) || (m_screenSaverAnswered && m_screenSaverActive);
    if (available != m_available) {
        m_available = available;
        emit availableChanged(available);
    }
    if (locked != m_locked) {
        m_locked = locked;
        LOG_MSG(locked ? QStringLiteral("screen locked") : QStringLiteral("screen unlocked"));
        emit lockedChanged(locked);
    }
}
