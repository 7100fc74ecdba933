#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

// A dbus-daemon of the test's own, standing in for the system or the session
// bus, so tests never touch the machine's buses. Stopped when destroyed.
class PrivateBus
{
public:
    // Empty when dbus-daemon is not installed: the test skips then.
    static QString daemonProgram();

    PrivateBus() = default;
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    // Starts the daemon and returns its address; empty on failure.
    QString start(const QString& program = daemonProgram());
    QString address() const { return m_address; }
    // A path in the bus's own folder where no bus listens.
    QString deadAddress() const;
    void stop();

private:
    QTemporaryDir m_dir;
    QProcess m_daemon;
    QString m_address;
};
