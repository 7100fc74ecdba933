#include "localhttpserver.h"

#include <QTcpSocket>

LocalHttpServer::LocalHttpServer(QObject* parent) : QObject(parent)
{
    connect(&m_server, &QTcpServer::newConnection, this, &LocalHttpServer::onNewConnection);
}

bool LocalHttpServer::listen()
{
    return m_server.listen(QHostAddress::LocalHost);
}

QUrl LocalHttpServer::url(const QString& path) const
{
    return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(m_server.serverPort()).arg(path));
}

void LocalHttpServer::setRoute(const QString& path, const Route& route)
{
    m_routes.insert(path, route);
}

quint16 LocalHttpServer::closedPort()
{
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost);
    return probe.serverPort(); // closed again when probe goes
}

void LocalHttpServer::onNewConnection()
{
    while (QTcpSocket* socket = m_server.nextPendingConnection()) {
        socket->setParent(this);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { onRequestData(socket); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }
}

void LocalHttpServer::onRequestData(QTcpSocket* socket)
{
    QByteArray request = socket->property("request").toByteArray() + socket->readAll();
    socket->setProperty("request", request);
    if (!request.contains("\r\n\r\n") || socket->property("answered").toBool())
        return;
    socket->setProperty("answered", true);
    const QString path = QString::fromLatin1(request.split(' ').value(1));
    m_requested << path;
    const Route route = m_routes.value(path, Route{QByteArray("not here"), 404});
    if (route.silent)
        return;
    const qint64 length = route.announcedLength >= 0 ? route.announcedLength : route.body.size();
    socket->write(QStringLiteral("HTTP/1.1 %1 Canned\r\nContent-Type: application/octet-stream\r\n"
                                 "Content-Length: %2\r\nConnection: close\r\n\r\n")
                      .arg(route.status)
                      .arg(length)
                      .toLatin1());
    socket->write(route.body);
    if (!route.holdOpen)
        socket->disconnectFromHost();
}
