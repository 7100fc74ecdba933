#include "sleepmonitor.h"

#include "logging.h"

#include <QDBusConnectionInterface>

namespace {

const QString LogindService = QStringLiteral("org.freedesktop.login1");
const QString LogindPath = QStringLiteral("/org/freedesktop/login1");
const QString LogindManager = QStringLiteral("org.freedesktop.login1.Manager");

} // namespace

SleepMonitor::SleepMonitor(QObject* parent) : QObject(parent)
{
    subscribe(QDBusConnection::systemBus());
}

SleepMonitor::SleepMonitor(const QDBusConnection& bus, QObject* parent) : QObject(parent)
{
    subscribe(bus);
}

bool SleepMonitor::isActive() const
{
    return m_active;
}

void SleepMonitor::subscribe(QDBusConnection bus)
{
    if (!bus.isConnected()) {
        LOG_MSG(QStringLiteral("No D-Bus connection (%1); suspend and resume go unnoticed!!")
                    .arg(bus.lastError().message()));
        return;
    }
    // Subscribed even without logind: the match follows the name, so a logind
    // that starts later is heard all the same.
    m_active = bus.connect(LogindService, LogindPath, LogindManager, QStringLiteral("PrepareForSleep"), this,
                           SLOT(onPrepareForSleep(bool)));
    if (!m_active) {
        LOG_MSG(QStringLiteral("Cannot subscribe to PrepareForSleep (%1); suspend and resume go unnoticed!!")
                    .arg(bus.lastError().message()));
        return;
    }
    if (!bus.interface() || !bus.interface()->isServiceRegistered(LogindService))
        LOG_MSG(QStringLiteral("systemd-logind is not on the bus; no suspend and resume notices until it is!!"));
}

void SleepMonitor::onPrepareForSleep(bool start)
{
    LOG_MSG(start ? QStringLiteral("system is about to sleep") : QStringLiteral("system resumed"));
    if (start)
        emit aboutToSleep();
    else
        emit resumed();
}
