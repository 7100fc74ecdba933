#include "genericwindowsystem.h"

#include "foregroundsource.h"

#include <QWindow>

GenericWindowSystem::GenericWindowSystem(const QString& name, std::unique_ptr<ForegroundSource> source)
    : m_name(name), m_source(std::move(source))
{
}

GenericWindowSystem::~GenericWindowSystem() = default;

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
    return m_source != nullptr;
}

QString GenericWindowSystem::foregroundApplicationName()
{
    return m_source ? m_source->applicationName() : QString();
}

void GenericWindowSystem::watchForegroundApplication(bool watch)
{
    if (!m_source)
        return;
    if (watch)
        m_source->start();
    else
        m_source->stop();
}

bool GenericWindowSystem::isForegroundApplicationKnown() const
{
    return !m_source || m_source->processId() != ForegroundSource::Unknown;
}

QString GenericWindowSystem::foregroundSourceNotice() const
{
    return m_source ? m_source->notice() : WindowSystem::foregroundSourceNotice();
}

ForegroundSource* GenericWindowSystem::foregroundSource() const
{
    return m_source.get();
}

QStringList GenericWindowSystem::runningApplicationExecutables()
{
    return QStringList();
}
