#include "gnomeshellsource.h"

#include "logging.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QFileInfo>
#include <QStandardPaths>

GnomeShellSource::GnomeShellSource(const QDBusConnection& bus, QObject* parent) : ForegroundSource(parent), m_bus(bus)
{
}

GnomeShellSource::~GnomeShellSource()
{
    stop();
}

QString GnomeShellSource::name() const
{
    return QStringLiteral("GNOME Shell");
}

QString GnomeShellSource::notice() const
{
    if (m_bus.isConnected() && m_bus.interface()->isServiceRegistered(QString::fromLatin1(Service)))
        return QCoreApplication::translate("ForegroundSource",
                                           "Folders open by application: the Keystage Focus extension of GNOME Shell "
                                           "tells which is in front.");
    if (isExtensionInstalled())
        return QCoreApplication::translate("ForegroundSource",
                                           "To open folders by application, turn on the Keystage Focus extension in "
                                           "Extensions, or run: gnome-extensions enable %1")
            .arg(QString::fromLatin1(ExtensionUuid));
    return QCoreApplication::translate("ForegroundSource",
                                       "To open folders by application on GNOME, install Keystage's GNOME Shell "
                                       "extension (%1) and turn it on.")
        .arg(QString::fromLatin1(ExtensionUuid));
}

void GnomeShellSource::start()
{
    if (isStarted() || !m_bus.isConnected())
        return;
    setStarted(true);
    if (!connectFocusSignal(true))
        LOG_MSG(QStringLiteral("ERROR: GNOME Shell focus signal not followed!!"));
    m_watcher = new QDBusServiceWatcher(
        QString::fromLatin1(Service), m_bus,
        QDBusServiceWatcher::WatchForRegistration | QDBusServiceWatcher::WatchForUnregistration, this);
    connect(m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &GnomeShellSource::readFocus);
    connect(m_watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] { setProcessId(Unknown); });
    readFocus();
}

void GnomeShellSource::stop()
{
    if (!isStarted())
        return;
    setStarted(false);
    delete m_watcher;
    m_watcher = nullptr;
    connectFocusSignal(false);
}

bool GnomeShellSource::isExtensionInstalled()
{
    const QString relative = QStringLiteral("gnome-shell/extensions/") + QString::fromLatin1(ExtensionUuid) +
                             QStringLiteral("/metadata.json");
    return !QStandardPaths::locate(QStandardPaths::GenericDataLocation, relative).isEmpty();
}

void GnomeShellSource::onFocusChanged(uint pid)
{
    if (isStarted())
        setProcessId(pid);
}

// The focus before we listened; unanswered while the extension is off.
void GnomeShellSource::readFocus()
{
    QDBusMessage get =
        QDBusMessage::createMethodCall(QString::fromLatin1(Service), QString::fromLatin1(Path),
                                       QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    get << QString::fromLatin1(Interface) << QStringLiteral("FocusedPid");
    auto* pending = new QDBusPendingCallWatcher(m_bus.asyncCall(get), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* call) {
        call->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *call;
        if (isStarted() && !reply.isError())
            setProcessId(reply.value().variant().toLongLong());
    });
}

bool GnomeShellSource::connectFocusSignal(bool connect)
{
    const QString service = QString::fromLatin1(Service), path = QString::fromLatin1(Path);
    const QString interface = QString::fromLatin1(Interface), signal = QStringLiteral("FocusChanged");
    return connect ? m_bus.connect(service, path, interface, signal, this, SLOT(onFocusChanged(uint)))
                   : m_bus.disconnect(service, path, interface, signal, this, SLOT(onFocusChanged(uint)));
}
