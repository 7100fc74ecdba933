#include "sysmonitor.h"

#include "logging.h"
#include "systemreadings.h"
#include "systemusagereader.h"

#include <QElapsedTimer>
#include <QThread>
#include <QTimer>

// Owns the reader and the timer; lives on the sampler thread.
class SysMonitor::Worker : public QObject
{
public:
    Worker(SysMonitor* monitor, const QString& root, int intervalMs)
        : m_monitor(monitor), m_reader(root), m_intervalMs(intervalMs)
    {
    }

    void start()
    {
        if (!m_timer) {
            m_timer = new QTimer(this);
            m_timer->setTimerType(Qt::CoarseTimer);
            QObject::connect(m_timer, &QTimer::timeout, this, [this] { sampleNow(); });
        }
        // The first sample after a pause averages over the pause: a fair
        // figure to start with, where none would leave the key static.
        if (!m_sinceLast.isValid())
            m_sinceLast.start();
        sampleNow();
        m_timer->start(m_intervalMs);
    }

    void stop()
    {
        if (m_timer)
            m_timer->stop();
    }

private:
    void sampleNow()
    {
        const qint64 elapsed = m_sinceLast.restart();
        SystemReadings readings = m_reader.sample(elapsed);
        readings.appendHistoryOf(SystemReadings::current());
        SystemReadings::publish(readings);
        m_monitor->m_fileReads.store(m_reader.fileReads());
        ++m_monitor->m_samples;
        QMetaObject::invokeMethod(m_monitor, &SysMonitor::sampled, Qt::QueuedConnection);
    }

    SysMonitor* m_monitor;
    SystemUsageReader m_reader;
    const int m_intervalMs;
    QTimer* m_timer = nullptr;
    QElapsedTimer m_sinceLast;
};

SysMonitor::SysMonitor(const QString& root, int intervalMs, QObject* parent) : QObject(parent)
{
    m_thread = new QThread(this);
    m_thread->setObjectName(QStringLiteral("SysMonitor"));
    m_worker = new Worker(this, root, qMax(1, intervalMs));
    m_worker->moveToThread(m_thread);
    connect(m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    m_thread->start(QThread::LowPriority);
}

SysMonitor::~SysMonitor()
{
    setActive(false);
    m_thread->quit();
    m_thread->wait();
    // Queued sampled() calls die with this object.
}

void SysMonitor::setActive(bool active)
{
    if (active == m_active)
        return;
    m_active = active;
    LOG_MSG(active ? QStringLiteral("sampling system usage") : QStringLiteral("system usage sampler idle"));
    Worker* worker = m_worker;
    if (active)
        QMetaObject::invokeMethod(
            worker, [worker] { worker->start(); }, Qt::QueuedConnection);
    else
        QMetaObject::invokeMethod(
            worker, [worker] { worker->stop(); }, Qt::QueuedConnection);
}
