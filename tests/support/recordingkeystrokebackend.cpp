#include "recordingkeystrokebackend.h"

#include "virtualkeytable.h"

#include <chrono>

QString RecordingKeystrokeBackend::name() const
{
    return QStringLiteral("recording");
}

bool RecordingKeystrokeBackend::isUsable()
{
    QMutexLocker lock(&m_mutex);
    return m_unusableReason.isEmpty();
}

QString RecordingKeystrokeBackend::unusableReason() const
{
    QMutexLocker lock(&m_mutex);
    return m_unusableReason;
}

bool RecordingKeystrokeBackend::keyDown(int virtualKey)
{
    return record(virtualKey, true);
}

bool RecordingKeystrokeBackend::keyUp(int virtualKey)
{
    return record(virtualKey, false);
}

void RecordingKeystrokeBackend::setUnusable(const QString& reason)
{
    QMutexLocker lock(&m_mutex);
    m_unusableReason = reason;
}

QVector<RecordingKeystrokeBackend::Event> RecordingKeystrokeBackend::events() const
{
    QMutexLocker lock(&m_mutex);
    return m_events;
}

void RecordingKeystrokeBackend::clear()
{
    QMutexLocker lock(&m_mutex);
    m_events.clear();
}

bool RecordingKeystrokeBackend::record(int virtualKey, bool down)
{
    QMutexLocker lock(&m_mutex);
    if (!m_unusableReason.isEmpty() || !VirtualKeyTable::contains(virtualKey))
        return false;
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    m_events.append({virtualKey, down, std::chrono::duration_cast<std::chrono::nanoseconds>(now).count()});
    return true;
}
