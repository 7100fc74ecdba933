#include "logcapture.h"

namespace {
// The handler runs on whichever thread logs. One lock covers both the
// capture in use and its list, so a capture ending on the test's thread
// waits for a message being added on another and is never used after.
QMutex activeMutex;
LogCapture* active = nullptr;
} // namespace

LogCapture::LogCapture()
{
    QMutexLocker locker(&activeMutex);
    active = this;
    m_previous = qInstallMessageHandler(&LogCapture::handler);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(m_previous);
    QMutexLocker locker(&activeMutex);
    active = nullptr;
}

void LogCapture::handler(QtMsgType, const QMessageLogContext&, const QString& message)
{
    QMutexLocker locker(&activeMutex);
    if (active)
        active->m_messages << message;
}

QStringList LogCapture::messages() const
{
    QMutexLocker locker(&activeMutex);
    // A list of its own: one that shared its data with m_messages would give
    // it up outside the lock while the handler appends on another thread.
    QStringList copy = m_messages;
    copy.detach();
    return copy;
}

QStringList LogCapture::matching(const QString& text) const
{
    return messages().filter(text);
}
