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
