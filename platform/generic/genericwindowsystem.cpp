#include "genericwindowsystem.h"

#include <QWindow>

GenericWindowSystem::GenericWindowSystem(const QString& name) : m_name(name) {}

QString GenericWindowSystem::name() const
{
    return m_name;
}

void GenericWindowSystem::activateWindow(QWindow* window)
{
    if (!window)
        return;
    window->raise();
    window->requestActivate();
}

quint64 GenericWindowSystem::foregroundWindowId()
{
    return 0;
}

QString GenericWindowSystem::foregroundWindowTitle()
{
    return QString();
}

bool GenericWindowSystem::activateWindowId(quint64)
{
    return false;
}

bool GenericWindowSystem::canQueryForegroundApplication() const
{
    return false;
}

QString GenericWindowSystem::foregroundApplicationName()
{
    return QString();
}

QStringList GenericWindowSystem::runningApplicationExecutables()
{
    return QStringList();
}
