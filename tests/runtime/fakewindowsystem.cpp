#include "fakewindowsystem.h"

#include <chrono>

void FakeWindowSystem::setForeground(quint64 windowId, const QString& title)
{
    QMutexLocker lock(&m_mutex);
    m_foreground = windowId;
    m_titles.insert(windowId, title);
}

void FakeWindowSystem::setObeysActivation(bool obeys)
{
    QMutexLocker lock(&m_mutex);
    m_obeys = obeys;
}

void FakeWindowSystem::setForegroundApplication(const QString& name)
{
    QMutexLocker lock(&m_mutex);
    m_application = name;
}

void FakeWindowSystem::setCanQueryForegroundApplication(bool canQuery)
{
    QMutexLocker lock(&m_mutex);
    m_canQuery = canQuery;
}

QVector<FakeWindowSystem::Activation> FakeWindowSystem::activations() const
{
    QMutexLocker lock(&m_mutex);
    return m_activations;
}

QString FakeWindowSystem::name() const
{
    return QStringLiteral("fake");
}

void FakeWindowSystem::activateWindow(QWindow*) {}

quint64 FakeWindowSystem::foregroundWindowId()
{
    QMutexLocker lock(&m_mutex);
    return m_foreground;
}

QString FakeWindowSystem::foregroundWindowTitle()
{
    QMutexLocker lock(&m_mutex);
    return m_titles.value(m_foreground);
}

bool FakeWindowSystem::activateWindowId(quint64 windowId)
{
    QMutexLocker lock(&m_mutex);
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    m_activations.append({windowId, std::chrono::duration_cast<std::chrono::nanoseconds>(now).count()});
    if (m_obeys)
        m_foreground = windowId;
    return true;
}

bool FakeWindowSystem::canQueryForegroundApplication() const
{
    QMutexLocker lock(&m_mutex);
    return m_canQuery;
}

QString FakeWindowSystem::foregroundApplicationName()
{
    QMutexLocker lock(&m_mutex);
    return m_canQuery ? m_application : QString();
}

QStringList FakeWindowSystem::runningApplicationExecutables()
{
    return {};
}

void FakeWindowSystem::watchForegroundApplication(bool watch)
{
    QMutexLocker locker(&m_mutex);
    m_watched = watch;
}

bool FakeWindowSystem::isForegroundApplicationKnown() const
{
    QMutexLocker locker(&m_mutex);
    return m_known;
}

bool FakeWindowSystem::isWatched() const
{
    QMutexLocker locker(&m_mutex);
    return m_watched;
}

void FakeWindowSystem::setForegroundKnown(bool known)
{
    QMutexLocker locker(&m_mutex);
    m_known = known;
}
