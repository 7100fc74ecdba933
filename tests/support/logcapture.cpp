#include "logcapture.h"

namespace {
LogCapture* active = nullptr;
}

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
    if (!active)
        return;
    QMutexLocker locker(&active->m_mutex);
    active->m_messages << message;
}

QStringList LogCapture::messages() const
{
    QMutexLocker locker(&m_mutex);
    return m_messages;
}

QStringList LogCapture::matching(const QString& text) const
{
    return messages().filter(text);
}
