#include "ipc_thread.h"

#include "ipctoken.h"
#include "logging.h"
#include "objectregistry.h"

#include <QFile>

IPC_Thread::IPC_Thread(QObject* parent, int pollIntervalMs) : QThread(parent), m_pollIntervalMs(pollIntervalMs)
{
    setObjectName(QStringLiteral("ipc_thread"));
    // Cleared here rather than in run(): a stop() that comes before the
    // thread got going must not be undone, or stop() would wait forever.
    m_stop = false;
    start();
}

IPC_Thread::~IPC_Thread()
{
    stop();
}

void IPC_Thread::stop()
{
    {
        // Set under the mutex: the loop tests the flag under it before it
        // waits, so the wake can never fall between that test and the wait.
        QMutexLocker locker(&m_waitMutex);
        m_stop = true;
        m_wake.wakeAll();
    }
    quit();
    wait();
}

void IPC_Thread::run()
{
    LOG_MSG(QStringLiteral("start"));
    // The flag is tested after a whole pass, so within one pass a request to
    // come to the front is always handled before a file to open.
    do {
        waitForNextPass();
        handelActionAccordingToken(TokenBringToFront);
        handelActionAccordingToken(TokenOpenFile);
    } while (!m_stop);
    LOG_MSG(QStringLiteral("exit"));
}

void IPC_Thread::waitForNextPass()
{
    QMutexLocker locker(&m_waitMutex);
    if (!m_stop)
        m_wake.wait(&m_waitMutex, m_pollIntervalMs);
}

void IPC_Thread::handelActionAccordingToken(int token)
{
    QObject* mainWindow = COMPONENT_OBJECT(ComponentId::MainWindow);
    if (!mainWindow)
        return;
    const QString path = ipcTokenPath(token);
    if (path.isEmpty())
        return;

    if (token == TokenBringToFront) {
        // unlink(): whatever stands there is removed itself, never followed.
        if (QFile::remove(path))
            QMetaObject::invokeMethod(mainWindow, "bringWindowToFront", Qt::QueuedConnection);
        return;
    }

    QByteArray contents;
    switch (readIpcToken(path, &contents)) {
    case TokenRead::Absent:
    case TokenRead::Unreadable:
        return;
    case TokenRead::NotAFile:
        LOG_MSG(QStringLiteral("ERROR: %1 is a symbolic link, removed without reading it!!").arg(path));
        QFile::remove(path);
        return;
    case TokenRead::Read:
        break;
    }
    QFile::remove(path);
    const QString filePath = longPathName(QString::fromUtf8(contents));
    LOG_MSG(QStringLiteral("open extension file request: %1").arg(filePath));
    QMetaObject::invokeMethod(mainWindow, "openExtensionFile", Qt::QueuedConnection, Q_ARG(QString, filePath));
}
