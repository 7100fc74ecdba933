#include "recordingtransport.h"

#include <cstring>

RecordingTransport::RecordingTransport()
{
    clock.start();
    HidTransport::setInstance(this);
}

RecordingTransport::~RecordingTransport()
{
    HidTransport::setInstance(nullptr);
}

HidDeviceHandle* RecordingTransport::open(unsigned short, unsigned short productId)
{
    if (openFails)
        return nullptr;
    ++opens;
    openedProduct = productId;
    return reinterpret_cast<HidDeviceHandle*>(&token);
}

void RecordingTransport::close(HidDeviceHandle*)
{
    ++closes;
}

int RecordingTransport::write(HidDeviceHandle*, const unsigned char* data, size_t length)
{
    QMutexLocker locker(&mutex);
    recorded.append({Write, QByteArray(reinterpret_cast<const char*>(data), int(length)), clock.nsecsElapsed()});
    return int(length);
}

int RecordingTransport::readTimeout(HidDeviceHandle*, unsigned char* data, size_t length, int)
{
    QMutexLocker locker(&mutex);
    recorded.append({Read, QByteArray(), clock.nsecsElapsed()});
    if (inputReports.isEmpty())
        return readResult;
    const QByteArray report = inputReports.takeFirst();
    const int count = qMin(int(length), report.size());
    std::memcpy(data, report.constData(), size_t(count));
    return count;
}

int RecordingTransport::sendFeatureReport(HidDeviceHandle*, const unsigned char* data, size_t length)
{
    QMutexLocker locker(&mutex);
    recorded.append({Feature, QByteArray(reinterpret_cast<const char*>(data), int(length)), clock.nsecsElapsed()});
    return int(length) - featureSendShortBy;
}

int RecordingTransport::getFeatureReport(HidDeviceHandle*, unsigned char* data, size_t length)
{
    QMutexLocker locker(&mutex);
    recorded.append({GetFeature, QByteArray(reinterpret_cast<const char*>(data), int(length)), clock.nsecsElapsed()});
    const int count = qMin(int(length), featureAnswer.size());
    std::memcpy(data, featureAnswer.constData(), size_t(count));
    return featureAnswerCount == -2 ? count : featureAnswerCount;
}

QList<RecordingTransport::Call> RecordingTransport::calls(Kind kind) const
{
    QMutexLocker locker(&mutex);
    QList<Call> result;
    for (const Call& call : recorded) {
        if (call.kind == kind)
            result.append(call);
    }
    return result;
}

void RecordingTransport::clearCalls()
{
    QMutexLocker locker(&mutex);
    recorded.clear();
}
