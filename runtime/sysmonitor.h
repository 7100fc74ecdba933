#pragma once

#include <QObject>
#include <QString>

#include <atomic>
#include <memory>

class QThread;
class QTimer;
class SystemUsageReader;

// The system usage sampler: processor, memory and network use, once a
// second, on a thread of its own, published as SystemReadings::current().
// It samples only while active; inactive, it runs no timer and reads no
// file, and its thread sleeps in its event loop without waking.
//
// Lives on the GUI thread; setActive and the accessors are called there.
// sampled() is emitted on the GUI thread's side (queued) after each sample.
class SysMonitor : public QObject
{
    Q_OBJECT

public:
    static constexpr int DefaultIntervalMs = 1000;

    // root: where "proc/" is found; tests give fixture files.
    explicit SysMonitor(const QString& root = QStringLiteral("/"), int intervalMs = DefaultIntervalMs,
                        QObject* parent = nullptr);
    ~SysMonitor() override;

    bool isActive() const { return m_active; }
    // Samples taken and files read since construction.
    int sampleCount() const { return m_samples.load(); }
    int fileReads() const { return m_fileReads.load(); }

public slots:
    // The first sample of an activation is taken at once.
    void setActive(bool active);

signals:
    void sampled();

private:
    class Worker;

    QThread* m_thread = nullptr;
    Worker* m_worker = nullptr;
    bool m_active = false;
    std::atomic<int> m_samples{0};
    std::atomic<int> m_fileReads{0};
};
