#pragma once

#include <QMutex>
#include <QStringList>

// Captures what the process writes to Qt's debug output while it lives, so
// tests can check the debug-output routing of log records.
class LogCapture
{
public:
    LogCapture();
    ~LogCapture();

    QStringList messages() const;
    // Messages that contain the text.
    QStringList matching(const QString& text) const;

private:
    static void handler(QtMsgType type, const QMessageLogContext& context, const QString& message);

    QStringList m_messages;
    QtMessageHandler m_previous = nullptr;
};
