#include "logcapture.h"
#include "taskproxy.h"
#include "testmain.h"

#include <QSemaphore>

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
    // Reported on the receiver's thread, each task's name in the log.
    void shouldRunTasksInOrderOnOneWorkerThread()
    {
        LogCapture capture;
        TaskProxy proxy;
        QList<int> reported;
        connect(&proxy, &TaskProxy::taskFinished, this, [&](int token) {
            QCOMPARE(QThread::currentThread(), thread());
            reported << token;
        });
        QMutex mutex;
        QStringList ran;
        QSet<QThread*> threads;
        QSemaphore gate;
        QList<int> tokens;
        for (int i = 1; i <= 5; ++i) {
            tokens << proxy.runTask(QStringLiteral("task%1").arg(i), [&, i] {
                // The first task holds the worker so the others queue behind it.
                if (i == 1)
                    gate.acquire();
                QMutexLocker locker(&mutex);
                ran << QStringLiteral("task%1").arg(i);
                threads << QThread::currentThread();
            });
        }
        gate.release();
        QTRY_COMPARE(reported.size(), 5);

        QCOMPARE(ran, (QStringList{"task1", "task2", "task3", "task4", "task5"}));
        QCOMPARE(threads.size(), 1);
        QVERIFY(*threads.begin() != QThread::currentThread());
        QCOMPARE((*threads.begin())->objectName(), QStringLiteral("TaskProxy"));
        QCOMPARE(reported, tokens);
        QCOMPARE(QSet<int>(tokens.begin(), tokens.end()).size(), tokens.size());
        QVERIFY(!tokens.contains(-1));
        QCOMPARE(capture.matching(QStringLiteral("task3")).size(), 1);
    }

    void shouldRefuseATaskWithoutWork()
    {
        LogCapture capture;
        TaskProxy proxy;
        // Queued to this thread: a QSignalSpy would record on the worker.
        QList<int> finished;
        QObject receiver; // the connection ends with this test
        connect(
            &proxy, &TaskProxy::taskFinished, &receiver, [&](int token) { finished << token; }, Qt::QueuedConnection);
        QCOMPARE(proxy.runTask(QStringLiteral("empty"), nullptr), -1);
        QCOMPARE(capture.matching(QStringLiteral("ERROR: task empty has no work!!")).size(), 1);
        // The worker still serves the next one.
        const int token = proxy.runTask(QStringLiteral("after"), [] {});
        QTRY_COMPARE(finished, QList<int>{token});
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
};

KEYSTAGE_TEST_MAIN(TaskProxyTest)
#include "tst_taskproxy.moc"
