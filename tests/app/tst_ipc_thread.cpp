#include "ipc_thread.h"
#include "ipctoken.h"
#include "log.h"
#include "objectregistry.h"
#include "testmain.h"

// Stands in for the main window: records the queued calls in order.
class RecordingWindow : public QObject
{
    Q_OBJECT
public:
    QStringList calls;
    QThread* callThread = nullptr;

public slots:
    void bringWindowToFront()
    {
        calls << QStringLiteral("front");
        callThread = QThread::currentThread();
    }
    void openExtensionFile(const QString& path) { calls << QStringLiteral("open:") + path; }
};

class IpcThreadTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        ObjectRegistry::registerMainWindow(&m_window, nullptr);
        m_window.calls.clear();
    }
    void cleanup()
    {
        ObjectRegistry::clear();
        QFile::remove(ipcTokenPath(TokenBringToFront));
        QFile::remove(ipcTokenPath(TokenOpenFile));
    }

    void shouldHandleBringToFrontBeforeOpenFileInOnePass()
    {
        QTemporaryDir dir;
        const QString file = dir.path() + QStringLiteral("/Größe.kslayout");
        QFile(file).open(QIODevice::WriteOnly);
        // Open-file written first; bring-to-front still comes first.
        QVERIFY(sendIpcToken(TokenOpenFile, dir.path() + QStringLiteral("/./Größe.kslayout")));
        QVERIFY(sendIpcToken(TokenBringToFront));

        IPC_Thread thread;
        QCOMPARE(thread.objectName(), QStringLiteral("ipc_thread"));
        QVERIFY(thread.isRunning());
        QTRY_COMPARE_WITH_TIMEOUT(m_window.calls.size(), 2, 30000);
        QCOMPARE(m_window.calls.at(0), QStringLiteral("front"));
        QCOMPARE(m_window.calls.at(1), QStringLiteral("open:") + QFileInfo(file).canonicalFilePath());
        QCOMPARE(m_window.callThread, QThread::currentThread());
        QVERIFY(!QFile::exists(ipcTokenPath(TokenBringToFront)));
        QVERIFY(!QFile::exists(ipcTokenPath(TokenOpenFile)));
    }

    void shouldLeaveTokensAloneWithoutAMainWindow()
    {
        ObjectRegistry::clear();
        QVERIFY(sendIpcToken(TokenBringToFront));
        IPC_Thread thread;
        thread.handelActionAccordingToken(TokenBringToFront);
        QVERIFY(QFile::exists(ipcTokenPath(TokenBringToFront)));
    }

    void shouldDropALinkPlantedAsOpenFileTokenUnread()
    {
        QTemporaryDir dir;
        const QString victim = dir.path() + QStringLiteral("/victim");
        QFile file(victim);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("/etc/passwd");
        file.close();
        QVERIFY(QFile::link(victim, ipcTokenPath(TokenOpenFile)));

        IPC_Thread thread;
        thread.stop();
        thread.handelActionAccordingToken(TokenOpenFile);
        QCoreApplication::processEvents();
        QVERIFY(m_window.calls.isEmpty());
        QVERIFY(!QFileInfo(ipcTokenPath(TokenOpenFile)).isSymLink());
        QVERIFY(QFile::exists(victim));
    }

    void shouldStopPromptlyAndLogItsLife()
    {
        QObject window;
        Log log;
        ObjectRegistry::registerMainWindow(&window, &log);
        {
            // A pass of a minute: stop() must cut it short, not sit it out.
            IPC_Thread thread(nullptr, 60000);
            QTRY_VERIFY_WITH_TIMEOUT(thread.isRunning(), 30000);
            QElapsedTimer stopping;
            stopping.start();
            thread.stop();
            QVERIFY(thread.isFinished());
            QVERIFY2(stopping.elapsed() < 30000, qPrintable(QString::number(stopping.elapsed())));
        }
        QFile file(log.filePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        QVERIFY(text.contains(QStringLiteral("IPC_Thread::run,")));
        QVERIFY(text.contains(QStringLiteral(",ipc_thread\n\tstart\n")));
        QVERIFY(text.contains(QStringLiteral(",ipc_thread\n\texit\n")));
    }

private:
    RecordingWindow m_window;
};

KEYSTAGE_TEST_MAIN(IpcThreadTest)
#include "tst_ipc_thread.moc"
