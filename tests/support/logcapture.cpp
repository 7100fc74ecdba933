#include "logcapture.h"

#include <atomic>

namespace {
// Read by the handler on whichever thread logs.
std::atomic<LogCapture*> active{nullptr};
} // namespace

LogCapture::LogCapture()
{
    active = this;
    m_previous = qInstallMessageHandler(&LogCapture::handler);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(m_previous);
    active = nullptr;
}

void LogCapture::handler(QtMsgType, const QMessageLogContext&, const QString& message)
{
    LogCapture* capture = active.load();
    if (!capture)
        return;
    QMutexLocker locker(&capture->m_mutex);
    capture->m_messages << message;
}

QStringList LogCapture::messages() const
{
    QMutexLocker locker(&m_mutex);
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
