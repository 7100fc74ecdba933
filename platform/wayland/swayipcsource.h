#pragma once

#include "foregroundsource.h"

#include <QByteArray>
#include <QLocalSocket>
#include <QTimer>

class QJsonObject;

// sway (and i3) through their IPC socket: subscribed to window events, the
// focused container's "pid" is the process in front. The tree is read once
// on connecting, for the window focused before the subscription.
class SwayIpcSource : public ForegroundSource
{
    Q_OBJECT

public:
    // The retry pace while the socket is away (a compositor restarting).
    static constexpr int RetryMs = 2000;

    SwayIpcSource(const QString& name, const QString& socketPath, QObject* parent = nullptr);
    ~SwayIpcSource() override;

    QString name() const override;
    void start() override;
    void stop() override;

    // The socket to use: the given one, or when it has gone (a restarted
    // compositor names its socket after its new process) the newest socket
    // of the same kind in the same directory.
    static QString liveSocketPath(const QString& socketPath);
    // The process of the focused node of a tree: 0 when it is no window (an
    // empty workspace), Unknown when no node has the focus.
    static qint64 focusedProcessId(const QJsonObject& node);

private:
    enum MessageType : quint32
    {
        Subscribe = 2,
        GetTree = 4,
        WindowEvent = 0x80000003,
    };

    void connectNow();
    void send(quint32 type, const QByteArray& payload);
    void onReadyRead();
    void onMessage(quint32 type, const QByteArray& payload);
    void onLost();

    QString m_name;
    QString m_socketPath;
    QLocalSocket m_socket;
    QByteArray m_buffer;
    QTimer m_retry;
};
