#pragma once

#include <QMutex>
#include <QObject>
#include <QQueue>
#include <QString>
#include <QWaitCondition>

#include <functional>

class QThread;

// One background thread for work that must not hold up the GUI or the key
// thread: starting programs, opening addresses, the editor's slow queries.
// Tasks run one at a time in the order they were handed in.
//
// Destruction drops the tasks that have not started (and logs how many) and
// waits for the one that is running, so a task must not block for ever.
class TaskProxy : public QObject
{
    Q_OBJECT
public:
    explicit TaskProxy(QObject* parent = nullptr);
    ~TaskProxy() override;

    // Queues the work; returns the token that taskFinished will carry, or -1
    // (with a log line) when there is no work to run.
    int runTask(const QString& name, std::function<void()> work);

signals:
    // Emitted from the worker thread: receivers on other threads get it
    // queued, as usual for auto connections.
    void taskFinished(int token);

private:
    struct Task
    {
        int token = 0;
        QString name;
        std::function<void()> work;
    };

    void workLoop();
    bool takeNextTask(Task* task);

    QThread* m_thread = nullptr;
    QMutex m_mutex;
    QWaitCondition m_wake;
    QQueue<Task> m_queue;
    int m_lastToken = 0;
    bool m_stopping = false;
};
