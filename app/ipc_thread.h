#pragma once

#include <QMutex>
#include <QThread>
#include <QWaitCondition>
#include <atomic>

// Polls the hand-over token files every 800 ms and passes what it finds to the
// main window as queued calls; it never touches widgets itself.
class IPC_Thread : public QThread
{
    Q_OBJECT
public:
    static constexpr int PollIntervalMs = 800;

    // Starts polling at once. The interval is for tests that need a pass
    // long enough to show that stop() does not sit it out.
    explicit IPC_Thread(QObject* parent = nullptr, int pollIntervalMs = PollIntervalMs);
    ~IPC_Thread() override;

    void handelActionAccordingToken(int token);

public slots:
    void stop();

protected:
    void run() override;

private:
    void waitForNextPass();

    const int m_pollIntervalMs;
    std::atomic<bool> m_stop{false};
    // stop() wakes the wait between passes, so quitting never sits out
    // the rest of an 800 ms pause.
    QMutex m_waitMutex;
    QWaitCondition m_wake;
};
