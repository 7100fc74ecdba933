#pragma once

#include "applicationentry.h"
#include "bookmark.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <memory>

class QThread;

// The editor's slow queries (installed applications, running applications,
// bookmarks): run on the TaskProxy worker (or a thread of their own when
// there is none), kept for the editor session, asked anew on request.
// Results reach the GUI thread queued, so the window never waits.
class QueryCache : public QObject
{
    Q_OBJECT
public:
    enum Query
    {
        InstalledApplications,
        RunningApplications,
        Bookmarks,
    };
    Q_ENUM(Query)

    // Where the answers come from; each is called on a worker thread.
    struct Sources
    {
        std::function<ApplicationList()> installed;
        std::function<QStringList()> runningExecutables;
        std::function<BookmarkList()> bookmarks;
        // Whether the desktop tells which applications run (not Wayland).
        bool canListRunning = false;
    };
    // The desktop's own sources: GIO, the window system, the browsers' files.
    static Sources desktopSources();

    explicit QueryCache(Sources sources, QObject* parent = nullptr);
    ~QueryCache() override;

    // The editor session's cache, made on first use with the desktop's
    // sources and owned by the application object. GUI thread only.
    static QueryCache* instance();

    // Starts the query unless its result is kept or it runs already.
    void request(Query query);
    // Starts it anew, also when a result is kept; a query running now is
    // run once more when it ends, as it may have missed the change.
    void refresh(Query query);

    bool isRunning(Query query) const;
    bool hasResult(Query query) const;
    bool canListRunning() const { return m_sources.canListRunning; }

    ApplicationList installedApplications() const { return m_installed; }
    ApplicationList runningApplications() const { return m_runningApplications; }
    BookmarkList bookmarks() const { return m_bookmarks; }

signals:
    void started(QueryCache::Query query);
    void finished(QueryCache::Query query);

private:
    struct Result;
    class Delivery;
    static constexpr int QueryCount = 3;

    void start(Query query);
    std::function<void()> work(Query query);
    void dispatch(Query query, std::function<void()> work);
    void deliver(Query query, const Result& result);

    Sources m_sources;
    std::shared_ptr<Delivery> m_delivery;
    bool m_busy[QueryCount] = {};
    bool m_again[QueryCount] = {};
    bool m_have[QueryCount] = {};
    ApplicationList m_installed;
    ApplicationList m_runningApplications;
    BookmarkList m_bookmarks;
    QList<QPointer<QThread>> m_threads;
};
