#include "backgroundtask.h"

#include "logging.h"
#include "taskproxy.h"

#include <QPointer>

#include <memory>

namespace BackgroundTask {

BackgroundRunner onTaskProxy(TaskProxy* proxy)
{
    const QPointer<TaskProxy> tasks(proxy);
    return [tasks](QObject* context, std::function<void()> work, std::function<void()> done) {
        if (!tasks) {
            LOG_MSG(QStringLiteral("ERROR: no task thread, work dropped!!"));
            return;
        }
        // Connected before the task is queued, so its end cannot be missed;
        // the token is known before the queued notice can arrive, because
        // it is delivered on this (the context's) thread.
        auto token = std::make_shared<int>(-1);
        auto connection = std::make_shared<QMetaObject::Connection>();
        *connection = QObject::connect(
            tasks.data(), &TaskProxy::taskFinished, context,
            [token, connection, done](int finished) {
                if (finished != *token)
                    return;
                QObject::disconnect(*connection);
                if (done)
                    done();
            },
            Qt::QueuedConnection);
        *token = tasks->runTask(QStringLiteral("preferences"), std::move(work));
        if (*token < 0)
            QObject::disconnect(*connection);
    };
}

void run(const BackgroundRunner& runner, QObject* context, std::function<void()> work, std::function<void()> done)
{
    if (runner) {
        runner(context, std::move(work), std::move(done));
        return;
    }
    work();
    if (done)
        done();
}

} // namespace BackgroundTask
