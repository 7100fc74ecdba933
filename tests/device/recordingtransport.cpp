#include "recordingtransport.h"

#include <QThread>

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

int RecordingTransport::readTimeout(HidDeviceHandle*, unsigned char* data, size_t length, int milliseconds)
{
    QMutexLocker locker(&mutex);
    recorded.append({Read, QByteArray(), clock.nsecsElapsed()});
    if (inputReports.isEmpty()) {
        // A polling thread must not spin on an idle device.
        if (readResult == 0) {
            locker.unlock();
            QThread::msleep(qMin(milliseconds, 20));
        }
        return readResult;
    }
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
    const QByteArray answer = featureAnswers.value(data[0], featureAnswer);
    const int count = qMin(int(length), answer.size());
    std::memcpy(data, answer.constData(), size_t(count));
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
