#pragma once

#include "foregroundsource.h"

#include <QByteArray>
#include <QLocalSocket>
#include <QTimer>

class QProcessEnvironment;

// Hyprland: its event socket announces every change of the active window
// (activewindowv2); the request socket then says which process it belongs
// to ("j/activewindow"). One request at a time, the latest event winning.
class HyprlandSource : public ForegroundSource
{
    Q_OBJECT

public:
    static constexpr int RetryMs = 2000;
    static constexpr int RequestTimeoutMs = 5000;

    // The directory that holds the instance's .socket.sock and .socket2.sock.
    explicit HyprlandSource(const QString& instanceDirectory, QObject* parent = nullptr);
    ~HyprlandSource() override;

    QString name() const override;
    void start() override;
    void stop() override;

    // $XDG_RUNTIME_DIR/hypr/SIGNATURE, or /tmp/hypr/SIGNATURE where older
    // versions keep it.
    static QString instanceDirectory(const QProcessEnvironment& environment);
    // The given directory, or when it has gone (a restarted Hyprland has a
    // new signature) the newest instance beside it.
    static QString liveInstanceDirectory(const QString& directory);

private:
    void connectNow();
    void onEvents();
    void onLost();
    void askActiveWindow();
    void onAnswer();

    QString m_directory;
    QString m_liveDirectory;
    QLocalSocket m_events;
    QByteArray m_eventBuffer;
    QLocalSocket* m_request = nullptr;
    QByteArray m_answer;
    // An event came while a request was under way: ask again after it.
    bool m_askAgain = false;
    QTimer m_retry;
};
