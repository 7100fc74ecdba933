#include "logcapture.h"
#include "taskproxy.h"
#include "testmain.h"

#include <QSemaphore>
#include <QSignalSpy>

namespace {

// Opens the gate once the proxy reports that it dropped its waiting tasks,
// so the running task ends only after the destructor has made its choice.
QSemaphore* gateOnDrop = nullptr;
QtMessageHandler previousHandler = nullptr;

void releaseGateOnDrop(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (gateOnDrop && message.contains(QLatin1String("dropped")))
        gateOnDrop->release();
    if (previousHandler)
        previousHandler(type, context, message);
}

} // namespace

class TaskProxyTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldRunTasksInOrderOnOneWorkerThread()
    {
        TaskProxy proxy;
        QSignalSpy finished(&proxy, &TaskProxy::taskFinished);
        QMutex mutex;
        QStringList ran;
        QSet<QThread*> threads;
        QSemaphore gate;
        QList<int> tokens;
        // The first task holds the worker so the others are queued behind it.
        tokens << proxy.runTask(QStringLiteral("first"), [&] {
            gate.acquire();
            QMutexLocker locker(&mutex);
            ran << QStringLiteral("first");
            threads << QThread::currentThread();
        });
        for (int i = 2; i <= 5; ++i) {
            tokens << proxy.runTask(QStringLiteral("task%1").arg(i), [&, i] {
                QMutexLocker locker(&mutex);
                ran << QStringLiteral("task%1").arg(i);
                threads << QThread::currentThread();
            });
        }
        gate.release();
        QTRY_COMPARE(finished.count(), 5);

        QCOMPARE(ran, (QStringList{"first", "task2", "task3", "task4", "task5"}));
        QCOMPARE(threads.size(), 1);
        QThread* worker = *threads.begin();
        QVERIFY(worker != QThread::currentThread());
        QCOMPARE(worker->objectName(), QStringLiteral("TaskProxy"));
        QList<int> reported;
        for (const QList<QVariant>& arguments : finished)
            reported << arguments.at(0).toInt();
        QCOMPARE(reported, tokens);
        QCOMPARE(QSet<int>(tokens.begin(), tokens.end()).size(), tokens.size());
        QVERIFY(!tokens.contains(-1));
    }

    void shouldReportTheFinishOnTheReceiversThread()
    {
        TaskProxy proxy;
        QThread* reportedOn = nullptr;
        int reportedToken = 0;
        connect(&proxy, &TaskProxy::taskFinished, this, [&](int token) {
            reportedOn = QThread::currentThread();
            reportedToken = token;
        });
        const int token = proxy.runTask(QStringLiteral("nothing"), [] {});
        QTRY_COMPARE(reportedToken, token);
        QCOMPARE(reportedOn, QThread::currentThread());
    }

    void shouldLogTheTaskName()
    {
        LogCapture capture;
        TaskProxy proxy;
        QSignalSpy finished(&proxy, &TaskProxy::taskFinished);
        proxy.runTask(QStringLiteral("executeCmd"), [] {});
        QTRY_COMPARE(finished.count(), 1);
        QCOMPARE(capture.matching(QStringLiteral("executeCmd")).size(), 1);
    }

    void shouldRefuseATaskWithoutWork()
    {
        LogCapture capture;
        TaskProxy proxy;
        QSignalSpy finished(&proxy, &TaskProxy::taskFinished);
        QCOMPARE(proxy.runTask(QStringLiteral("empty"), nullptr), -1);
        QCOMPARE(capture.matching(QStringLiteral("ERROR: task empty has no work!!")).size(), 1);
        // The worker still serves the next one.
        const int token = proxy.runTask(QStringLiteral("after"), [] {});
        QTRY_COMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).toInt(), token);
    }

    void shouldFinishTheRunningTaskAndDropTheWaitingOnesWhenDestroyed()
    {
        QSemaphore started;
        QSemaphore gate;
        QAtomicInt runningDone = 0;
        QAtomicInt waitingRan = 0;
        int finishedCount = 0;
        {
            TaskProxy proxy;
            connect(
                &proxy, &TaskProxy::taskFinished, this, [&] { ++finishedCount; }, Qt::DirectConnection);
            proxy.runTask(QStringLiteral("running"), [&] {
                started.release();
                gate.acquire();
                runningDone = 1;
            });
            for (int i = 0; i < 3; ++i)
                proxy.runTask(QStringLiteral("waiting"), [&] { waitingRan.fetchAndAddOrdered(1); });
            started.acquire();
            gateOnDrop = &gate;
            previousHandler = qInstallMessageHandler(releaseGateOnDrop);
        }
        qInstallMessageHandler(previousHandler);
        gateOnDrop = nullptr;
        QCOMPARE(int(runningDone), 1);
        QCOMPARE(int(waitingRan), 0);
        QCOMPARE(finishedCount, 1);
    }

    void shouldBeDestroyedWhileIdle()
    {
        auto* proxy = new TaskProxy;
        QSignalSpy finished(proxy, &TaskProxy::taskFinished);
        proxy->runTask(QStringLiteral("one"), [] {});
        QTRY_COMPARE(finished.count(), 1);
        delete proxy;
    }
};

KEYSTAGE_TEST_MAIN(TaskProxyTest)
#include "tst_taskproxy.moc"
