#pragma once

#include <QThread>
#include <atomic>

// Polls the hand-over token files every 800 ms and passes what it finds to the
// main window as queued calls; it never touches widgets itself.
class IPC_Thread : public QThread
{
    Q_OBJECT
public:
    static constexpr int PollIntervalMs = 800;

    // Starts polling at once.
    explicit IPC_Thread(QObject* parent = nullptr);
    ~IPC_Thread() override;

    void handelActionAccordingToken(int token);

public slots:
    void stop();

protected:
    void run() override;

private:
    std::atomic<bool> m_stop{false};
};
