#include "privatebus.h"

#include <QDeadlineTimer>
#include <QStandardPaths>

namespace {
// Starting a daemon on a loaded machine can take a while; a healthy one never does.
constexpr int Patience = 30000;
} // namespace

QString PrivateBus::daemonProgram()
{
    return QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
}

PrivateBus::~PrivateBus()
{
    stop();
}

QString PrivateBus::start(const QString& program)
{
    if (program.isEmpty() || !m_dir.isValid())
        return QString();
    m_daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_daemon.start(program, {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                             QStringLiteral("--nosyslog"), QStringLiteral("--print-address"),
                             QStringLiteral("--address=unix:dir=") + m_dir.path()});
    if (!m_daemon.waitForStarted(Patience))
        return QString();
    const QDeadlineTimer deadline(Patience);
    while (!m_daemon.canReadLine() && m_daemon.state() == QProcess::Running && !deadline.hasExpired())
        m_daemon.waitForReadyRead(int(deadline.remainingTime()));
    m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    return m_address;
}

QString PrivateBus::deadAddress() const
{
    return QStringLiteral("unix:path=") + m_dir.filePath(QStringLiteral("no-such-bus"));
}

void PrivateBus::stop()
{
    if (m_daemon.state() == QProcess::NotRunning)
        return;
    m_daemon.kill();
    m_daemon.waitForFinished(Patience);
}
