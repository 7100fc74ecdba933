#include "querycache.h"

#include "browserbookmarks.h"
#include "installedapplications.h"
#include "logging.h"
#include "objectregistry.h"
#include "runningapplications.h"
#include "taskproxy.h"
#include "windowsystem.h"

#include <QCoreApplication>
#include <QMetaEnum>
#include <QMutex>
#include <QThread>

struct QueryCache::Result
{
    ApplicationList installed;
    bool hasInstalled = false;
    ApplicationList running;
    BookmarkList bookmarks;
};

// The worker's way back: it posts to the cache only while the cache lives.
// The destructor clears the receiver under the lock, and Qt drops events
// already posted to an object it deletes.
class QueryCache::Delivery
{
public:
    explicit Delivery(QueryCache* receiver) : m_receiver(receiver) {}

    void post(Query query, const Result& result)
    {
        QMutexLocker lock(&m_mutex);
        if (!m_receiver)
            return;
        QueryCache* receiver = m_receiver;
        QMetaObject::invokeMethod(
            receiver, [receiver, query, result] { receiver->deliver(query, result); }, Qt::QueuedConnection);
    }

    void detach()
    {
        QMutexLocker lock(&m_mutex);
        m_receiver = nullptr;
    }

private:
    QMutex m_mutex;
    QueryCache* m_receiver;
};

QueryCache::Sources QueryCache::desktopSources()
{
    std::shared_ptr<WindowSystem> windows = WindowSystem::create();
    Sources sources;
    sources.installed = &InstalledApplications::query;
    sources.runningExecutables = [windows] { return windows->runningApplicationExecutables(); };
    sources.bookmarks = [] { return BrowserBookmarks::query(); };
    sources.canListRunning = windows->canQueryForegroundApplication();
    return sources;
}

QueryCache::QueryCache(Sources sources, QObject* parent)
    : QObject(parent), m_sources(std::move(sources)), m_delivery(std::make_shared<Delivery>(this))
{
}

QueryCache::~QueryCache()
{
    m_delivery->detach();
    // Threads of our own end with their query; a TaskProxy's worker is its own.
    for (const QPointer<QThread>& thread : qAsConst(m_threads)) {
        if (thread)
            thread->wait();
    }
}

QueryCache* QueryCache::instance()
{
    static QPointer<QueryCache> session;
    if (!session)
        session = new QueryCache(desktopSources(), QCoreApplication::instance());
    return session;
}

void QueryCache::request(Query query)
{
    if (!m_have[query] && !m_busy[query])
        start(query);
}

void QueryCache::refresh(Query query)
{
    if (m_busy[query])
        m_again[query] = true;
    else
        start(query);
}

bool QueryCache::isRunning(Query query) const
{
    return m_busy[query];
}

bool QueryCache::hasResult(Query query) const
{
    return m_have[query];
}

void QueryCache::start(Query query)
{
    m_busy[query] = true;
    m_again[query] = false;
    emit started(query);
    dispatch(query, work(query));
}

// Runs on the worker: everything it uses is copied in.
std::function<void()> QueryCache::work(Query query)
{
    const Sources sources = m_sources;
    const std::shared_ptr<Delivery> delivery = m_delivery;
    const bool haveInstalled = m_have[InstalledApplications];
    const ApplicationList installed = m_installed;
    return [query, sources, delivery, haveInstalled, installed] {
        Result result;
        if (query == Bookmarks) {
            if (sources.bookmarks)
                result.bookmarks = sources.bookmarks();
        } else if (query == InstalledApplications || !haveInstalled) {
            // The running applications borrow names and icons from the installed ones.
            if (sources.installed)
                result.installed = sources.installed();
            result.hasInstalled = true;
        } else {
            result.installed = installed;
        }
        if (query == RunningApplications && sources.runningExecutables)
            result.running = RunningApplications::describe(sources.runningExecutables(), result.installed);
        delivery->post(query, result);
    };
}

void QueryCache::dispatch(Query query, std::function<void()> work)
{
    const QString name = QString::fromLatin1(QMetaEnum::fromType<Query>().valueToKey(query));
    if (auto* proxy = qobject_cast<TaskProxy*>(ObjectRegistry::find(ComponentId::TaskProxy))) {
        if (proxy->runTask(name, std::move(work)) >= 0)
            return;
    }
    QThread* thread = QThread::create(std::move(work));
    thread->setObjectName(name);
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    m_threads.removeAll(QPointer<QThread>());
    m_threads.append(thread);
    thread->start();
}

void QueryCache::deliver(Query query, const Result& result)
{
    if (result.hasInstalled) {
        m_installed = result.installed;
        m_have[InstalledApplications] = true;
    }
    if (query == RunningApplications)
        m_runningApplications = result.running;
    else if (query == Bookmarks)
        m_bookmarks = result.bookmarks;
    m_have[query] = true;
    m_busy[query] = false;
    LOG_MSG(QStringLiteral("query %1 done").arg(query));
    emit finished(query);
    if (query != InstalledApplications && result.hasInstalled)
        emit finished(InstalledApplications);
    if (m_again[query])
        start(query);
}
