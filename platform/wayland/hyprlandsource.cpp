#include "hyprlandsource.h"

#include "logging.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcessEnvironment>

namespace {

const QString EventSocket = QStringLiteral(".socket2.sock");
const QString RequestSocket = QStringLiteral(".socket.sock");
// An event line longer than this is no event: drop the connection.
constexpr int MaxLine = 64 * 1024;

} // namespace

HyprlandSource::HyprlandSource(const QString& instanceDirectory, QObject* parent)
    : ForegroundSource(parent), m_directory(instanceDirectory)
{
    m_retry.setSingleShot(true);
    m_retry.setInterval(RetryMs);
    connect(&m_retry, &QTimer::timeout, this, &HyprlandSource::connectNow);
    connect(&m_events, &QLocalSocket::connected, this, &HyprlandSource::askActiveWindow);
    connect(&m_events, &QLocalSocket::readyRead, this, &HyprlandSource::onEvents);
    connect(&m_events, &QLocalSocket::disconnected, this, &HyprlandSource::onLost);
    connect(&m_events, &QLocalSocket::errorOccurred, this, [this] {
        if (m_events.state() == QLocalSocket::UnconnectedState)
            onLost();
    });
}

HyprlandSource::~HyprlandSource()
{
    stop();
}

QString HyprlandSource::name() const
{
    return QStringLiteral("Hyprland");
}

void HyprlandSource::start()
{
    if (isStarted())
        return;
    setStarted(true);
    connectNow();
}

void HyprlandSource::stop()
{
    if (!isStarted())
        return;
    setStarted(false);
    m_retry.stop();
    m_events.abort();
    m_eventBuffer.clear();
    if (m_request) {
        m_request->disconnect(this);
        m_request->abort();
        m_request->deleteLater();
        m_request = nullptr;
    }
    m_askAgain = false;
}

QString HyprlandSource::instanceDirectory(const QProcessEnvironment& environment)
{
    const QString signature = environment.value(QStringLiteral("HYPRLAND_INSTANCE_SIGNATURE"));
    const QString runtime = environment.value(QStringLiteral("XDG_RUNTIME_DIR"));
    const QString current = runtime + QStringLiteral("/hypr/") + signature;
    if (!runtime.isEmpty() && QFileInfo::exists(current))
        return current;
    const QString older = QStringLiteral("/tmp/hypr/") + signature;
    return QFileInfo::exists(older) || runtime.isEmpty() ? older : current;
}

QString HyprlandSource::liveInstanceDirectory(const QString& directory)
{
    if (QFileInfo::exists(directory + QLatin1Char('/') + EventSocket))
        return directory;
    const QFileInfoList instances =
        QDir(QFileInfo(directory).absolutePath()).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Time);
    for (const QFileInfo& instance : instances) {
        if (QFileInfo::exists(instance.absoluteFilePath() + QLatin1Char('/') + EventSocket))
            return instance.absoluteFilePath();
    }
    return directory;
}

void HyprlandSource::connectNow()
{
    if (!isStarted() || m_events.state() != QLocalSocket::UnconnectedState)
        return;
    m_eventBuffer.clear();
    m_liveDirectory = liveInstanceDirectory(m_directory);
    m_events.connectToServer(m_liveDirectory + QLatin1Char('/') + EventSocket);
    // A socket that is not there fails at once, before the state settles.
    if (m_events.state() == QLocalSocket::UnconnectedState)
        onLost();
}

void HyprlandSource::onEvents()
{
    m_eventBuffer.append(m_events.readAll());
    bool activeChanged = false;
    int end;
    while ((end = m_eventBuffer.indexOf('\n')) >= 0) {
        const QByteArray line = m_eventBuffer.left(end);
        m_eventBuffer.remove(0, end + 1);
        activeChanged = activeChanged || line.startsWith("activewindowv2>>");
    }
    if (m_eventBuffer.size() > MaxLine) {
        LOG_MSG(QStringLiteral("ERROR: Hyprland event line too long, reconnecting!!"));
        m_events.abort();
        return;
    }
    if (activeChanged)
        askActiveWindow();
}

void HyprlandSource::onLost()
{
    if (!isStarted())
        return;
    setProcessId(Unknown);
    if (!m_retry.isActive()) {
        LOG_MSG(QStringLiteral("Hyprland event socket not reachable, trying again"));
        m_retry.start();
    }
}

// The request socket takes one command per connection and closes it after
// the answer.
void HyprlandSource::askActiveWindow()
{
    if (m_request) {
        m_askAgain = true;
        return;
    }
    m_askAgain = false;
    m_answer.clear();
    m_request = new QLocalSocket(this);
    connect(m_request, &QLocalSocket::connected, this, [this] { m_request->write("j/activewindow"); });
    connect(m_request, &QLocalSocket::readyRead, this, [this] { m_answer.append(m_request->readAll()); });
    connect(m_request, &QLocalSocket::disconnected, this, &HyprlandSource::onAnswer);
    connect(m_request, &QLocalSocket::errorOccurred, this, [this] {
        if (m_request && m_request->state() == QLocalSocket::UnconnectedState)
            onAnswer();
    });
    // A Hyprland that hangs must not stop the events that come after.
    QTimer::singleShot(RequestTimeoutMs, m_request, [this] { onAnswer(); });
    m_request->connectToServer(m_liveDirectory + QLatin1Char('/') + RequestSocket);
    if (m_request->state() == QLocalSocket::UnconnectedState)
        onAnswer();
}

// "{}" when no window is active; anything unreadable leaves the last answer.
void HyprlandSource::onAnswer()
{
    if (!m_request)
        return;
    if (m_request->isOpen())
        m_answer.append(m_request->readAll());
    m_request->disconnect(this);
    m_request->abort();
    m_request->deleteLater();
    m_request = nullptr;
    QJsonParseError error;
    const QJsonDocument answer = QJsonDocument::fromJson(m_answer, &error);
    if (error.error == QJsonParseError::NoError && answer.isObject())
        setProcessId(answer.object().value(QStringLiteral("pid")).toVariant().toLongLong());
    else
        LOG_MSG(QStringLiteral("ERROR: Hyprland's active window unreadable!!"));
    if (m_askAgain && isStarted())
        askActiveWindow();
}
