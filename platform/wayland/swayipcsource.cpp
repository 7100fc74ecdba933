#include "swayipcsource.h"

#include "logging.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>

namespace {

const QByteArray Magic = QByteArrayLiteral("i3-ipc");
constexpr int HeaderSize = 6 + 4 + 4;
// A frame longer than this is no IPC message: drop the connection.
constexpr quint32 MaxPayload = 64 * 1024 * 1024;

} // namespace

SwayIpcSource::SwayIpcSource(const QString& name, const QString& socketPath, QObject* parent)
    : ForegroundSource(parent), m_name(name), m_socketPath(socketPath)
{
    m_retry.setSingleShot(true);
    m_retry.setInterval(RetryMs);
    connect(&m_retry, &QTimer::timeout, this, &SwayIpcSource::connectNow);
    connect(&m_socket, &QLocalSocket::connected, this, [this] {
        send(Subscribe, QByteArrayLiteral("[\"window\"]"));
        send(GetTree, QByteArray());
    });
    connect(&m_socket, &QLocalSocket::readyRead, this, &SwayIpcSource::onReadyRead);
    connect(&m_socket, &QLocalSocket::disconnected, this, &SwayIpcSource::onLost);
    connect(&m_socket, &QLocalSocket::errorOccurred, this, [this] {
        if (m_socket.state() == QLocalSocket::UnconnectedState)
            onLost();
    });
}

SwayIpcSource::~SwayIpcSource()
{
    stop();
}

QString SwayIpcSource::name() const
{
    return m_name;
}

void SwayIpcSource::start()
{
    if (isStarted())
        return;
    setStarted(true);
    connectNow();
}

void SwayIpcSource::stop()
{
    if (!isStarted())
        return;
    setStarted(false);
    m_retry.stop();
    m_socket.abort();
    m_buffer.clear();
}

void SwayIpcSource::connectNow()
{
    if (!isStarted() || m_socket.state() != QLocalSocket::UnconnectedState)
        return;
    m_buffer.clear();
    m_socket.connectToServer(liveSocketPath(m_socketPath));
    // A socket that is not there fails at once, before the state settles.
    if (m_socket.state() == QLocalSocket::UnconnectedState)
        onLost();
}

QString SwayIpcSource::liveSocketPath(const QString& socketPath)
{
    const QFileInfo given(socketPath);
    if (given.exists())
        return socketPath;
    // sway-ipc.1000.4242.sock -> sway-ipc.1000.*.sock
    const QStringList parts = given.fileName().split(QLatin1Char('.'));
    if (parts.size() < 3)
        return socketPath;
    const QString pattern =
        parts.mid(0, parts.size() - 2).join(QLatin1Char('.')) + QStringLiteral(".*.") + parts.constLast();
    const QFileInfoList found =
        QDir(given.absolutePath()).entryInfoList({pattern}, QDir::System | QDir::Files, QDir::Time);
    return found.isEmpty() ? socketPath : found.constFirst().absoluteFilePath();
}

qint64 SwayIpcSource::focusedProcessId(const QJsonObject& node)
{
    if (node.value(QStringLiteral("focused")).toBool())
        return node.value(QStringLiteral("pid")).toVariant().toLongLong();
    for (const QString& children : {QStringLiteral("nodes"), QStringLiteral("floating_nodes")}) {
        for (const QJsonValue& child : node.value(children).toArray()) {
            const qint64 pid = focusedProcessId(child.toObject());
            if (pid != ForegroundSource::Unknown)
                return pid;
        }
    }
    return ForegroundSource::Unknown;
}

void SwayIpcSource::send(quint32 type, const QByteArray& payload)
{
    QByteArray frame = Magic;
    quint32 header[2] = {qToLittleEndian(quint32(payload.size())), qToLittleEndian(type)};
    frame.append(reinterpret_cast<const char*>(header), sizeof header);
    frame.append(payload);
    m_socket.write(frame);
}

void SwayIpcSource::onReadyRead()
{
    m_buffer.append(m_socket.readAll());
    while (m_buffer.size() >= HeaderSize) {
        if (!m_buffer.startsWith(Magic)) {
            LOG_MSG(QStringLiteral("ERROR: %1 IPC sent no frame, reconnecting!!").arg(m_name));
            m_socket.abort();
            return;
        }
        const quint32 length = qFromLittleEndian<quint32>(m_buffer.constData() + 6);
        const quint32 type = qFromLittleEndian<quint32>(m_buffer.constData() + 10);
        if (length > MaxPayload) {
            LOG_MSG(QStringLiteral("ERROR: %1 IPC frame of %2 bytes, reconnecting!!").arg(m_name).arg(length));
            m_socket.abort();
            return;
        }
        if (quint32(m_buffer.size()) < HeaderSize + length)
            return;
        const QByteArray payload = m_buffer.mid(HeaderSize, int(length));
        m_buffer.remove(0, HeaderSize + int(length));
        onMessage(type, payload);
    }
}

// A focus event names the new window; the tree answers for the window that
// had the focus before we subscribed.
void SwayIpcSource::onMessage(quint32 type, const QByteArray& payload)
{
    const QJsonObject message = QJsonDocument::fromJson(payload).object();
    if (type == GetTree) {
        const qint64 pid = focusedProcessId(message);
        setProcessId(pid == Unknown ? 0 : pid);
    } else if (type == WindowEvent && message.value(QStringLiteral("change")).toString() == QLatin1String("focus")) {
        const QJsonObject container = message.value(QStringLiteral("container")).toObject();
        setProcessId(container.value(QStringLiteral("pid")).toVariant().toLongLong());
    }
}

void SwayIpcSource::onLost()
{
    if (!isStarted())
        return;
    setProcessId(Unknown);
    if (!m_retry.isActive()) {
        LOG_MSG(QStringLiteral("%1 IPC not reachable, trying again").arg(m_name));
        m_retry.start();
    }
}
