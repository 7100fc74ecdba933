#pragma once

#include "screenlockmonitor.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QStringList>
#include <QVariantMap>

#include <functional>

class QDBusMessage;
class QDBusPendingCall;

// Screen locks from D-Bus, from whichever of two sources exists:
// - systemd-logind (system bus): the LockedHint of this process's session,
//   found with GetSessionByPID, or GetSession("auto") for a process outside
//   any session, and followed through PropertiesChanged;
// - the desktop's screen saver (session bus): ActiveChanged and GetActive of
//   org.freedesktop.ScreenSaver, or of org.gnome.ScreenSaver.
// The session counts as locked while any source that answered says so.
//
// Every call is asynchronous: nothing here waits for a bus. available() is
// false until a source has answered and stays so when none does.
class DBusScreenLockMonitor : public ScreenLockMonitor
{
    Q_OBJECT

public:
    // The system bus for logind, the session bus for the screen saver.
    explicit DBusScreenLockMonitor(QObject* parent = nullptr);
    // Given buses, for tests; either may be unconnected.
    DBusScreenLockMonitor(const QDBusConnection& systemBus, const QDBusConnection& sessionBus,
                          QObject* parent = nullptr);
    ~DBusScreenLockMonitor() override;

    bool available() const override;
    bool isLocked() const override;

    bool logindAnswered() const;
    bool screenSaverAnswered() const;
    // Every source has answered or failed.
    bool isSettled() const;

private slots:
    void onSessionPropertiesChanged(const QString& interfaceName, const QVariantMap& changed,
                                    const QStringList& invalidated);
    void onScreenSaverActiveChanged(bool active);

private:
    void start();
    void findSession(bool byPid);
    void followSession(const QDBusObjectPath& session);
    void readLockedHint();
    void probeScreenSaver(int candidate);
    // Runs onReply with the answer, or onError with its message.
    void whenAnswered(const QDBusPendingCall& call, std::function<void(const QDBusMessage&)> onReply,
                      std::function<void(const QString&)> onError);
    void finishProbe();
    void update();

    QDBusConnection m_systemBus;
    QDBusConnection m_sessionBus;
    QString m_sessionPath;
    bool m_logindAnswered = false;
    bool m_lockedHint = false;
    bool m_screenSaverAnswered = false;
    bool m_screenSaverActive = false;
    int m_pendingProbes = 0;
    bool m_available = false;
    bool m_locked = false;
};
