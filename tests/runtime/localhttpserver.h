#pragma once

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QTcpServer>
#include <QUrl>

class QTcpSocket;

// A plain HTTP server on 127.0.0.1 for the update tests: each path answers
// with a canned response, one request per connection.
class LocalHttpServer : public QObject
{
    Q_OBJECT
public:
    struct Route
    {
        QByteArray body;
        int status = 200;
        // The Content-Length announced; -1: the body's own.
        qint64 announcedLength = -1;
        // Keep the connection open after the body instead of closing it;
        // with silent, answer nothing at all.
        bool holdOpen = false;
        bool silent = false;
    };

    explicit LocalHttpServer(QObject* parent = nullptr);
    bool listen();
    QUrl url(const QString& path) const;
    void setRoute(const QString& path, const Route& route);
    int requestCount() const { return m_requested.size(); }
    QStringList requestedPaths() const { return m_requested; }

    // A port on this machine where nobody listens.
    static quint16 closedPort();

private:
    void onNewConnection();
    void onRequestData(QTcpSocket* socket);

    QTcpServer m_server;
    QMap<QString, Route> m_routes;
    QStringList m_requested;
};
