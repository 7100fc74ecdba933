#include "taskproxy.h"

#include "logging.h"

#include <QThread>

#include <climits>

TaskProxy::TaskProxy(QObject* parent) : QObject(parent)
{
    m_thread = QThread::create([this] { workLoop(); });
    m_thread->setObjectName(QStringLiteral("TaskProxy"));
    m_thread->start();
}

TaskProxy::~TaskProxy()
{
    int dropped = 0;
    {
        QMutexLocker locker(&m_mutex);
        m_stopping = true;
        dropped = m_queue.size();
        m_queue.clear();
        m_wake.wakeAll();
    }
    if (dropped > 0)
        LOG_MSG(QStringLiteral("dropped %1 task(s) not yet started").arg(dropped));
    m_thread->wait();
    delete m_thread;
}

int TaskProxy::runTask(const QString& name, std::function<void()> work)
{
    if (!logMsgWhenRetFail(bool(work), QStringLiteral("task %1 has no work!!").arg(name)))
        return -1;
    QMutexLocker locker(&m_mutex);
    // Wraps after two billion tasks; tokens only need to tell recent ones apart.
    m_lastToken = m_lastToken == INT_MAX ? 1 : m_lastToken + 1;
    m_queue.enqueue(Task{m_lastToken, name, std::move(work)});
    m_wake.wakeOne();
    return m_lastToken;
}

bool TaskProxy::takeNextTask(Task* task)
{
    QMutexLocker locker(&m_mutex);
    while (m_queue.isEmpty() && !m_stopping)
        m_wake.wait(&m_mutex);
    if (m_stopping)
        return false;
    *task = m_queue.dequeue();
    return true;
}

void TaskProxy::workLoop()
{
    Task task;
    while (takeNextTask(&task)) {
        LOG_MSG(QStringLiteral("task %1 (%2)").arg(task.name).arg(task.token));
        task.work();
        task.work = nullptr;
        emit taskFinished(task.token);
    }
}
