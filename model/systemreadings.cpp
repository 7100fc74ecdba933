#include "systemreadings.h"

#include <QMutex>

namespace {

QMutex& readingsMutex()
{
    static QMutex mutex;
    return mutex;
}

SystemReadings& stored()
{
    static SystemReadings readings;
    return readings;
}

void append(QVector<float>& history, const QVector<float>& before, double value)
{
    history = before;
    if (value < 0)
        return;
    history.append(float(value));
    if (history.size() > SystemReadings::HistoryLength)
        history.remove(0, history.size() - SystemReadings::HistoryLength);
}

} // namespace

void SystemReadings::appendHistoryOf(const SystemReadings& previous)
{
    append(processorHistory, previous.processorHistory, processorPercent);
    append(memoryHistory, previous.memoryHistory, memoryPercent);
    const bool networkKnown = receiveBytesPerSecond >= 0 && sendBytesPerSecond >= 0;
    append(networkHistory, previous.networkHistory, networkKnown ? receiveBytesPerSecond + sendBytesPerSecond : -1);
    serial = previous.serial + 1;
}

SystemReadings SystemReadings::current()
{
    QMutexLocker locker(&readingsMutex());
    return stored();
}

void SystemReadings::publish(const SystemReadings& readings)
{
    QMutexLocker locker(&readingsMutex());
    stored() = readings;
}

void SystemReadings::clear()
{
    QMutexLocker locker(&readingsMutex());
    stored() = SystemReadings();
}
