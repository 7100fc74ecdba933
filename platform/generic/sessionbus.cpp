#include "sessionbus.h"

#include <QFile>
#include <QStandardPaths>

QDBusConnection sessionBusIfAny()
{
    const QString runtimeDir = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") && !QFile::exists(runtimeDir + QStringLiteral("/bus")))
        return QDBusConnection(QStringLiteral("keystage-no-session-bus"));
    return QDBusConnection::sessionBus();
}
