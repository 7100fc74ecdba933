#include "softwareupdate.h"

#include "keystageversion.h"
#include "logging.h"
#include "objectregistry.h"
#include "settings.h"
#include "settingskeys.h"
#include "updatefeedurl.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QStandardPaths>

namespace {

Settings* settingsStore()
{
    return qobject_cast<Settings*>(ObjectRegistry::find(ComponentId::Settings));
}

QVersionNumber runningVersion()
{
    return QVersionNumber::fromString(QStringLiteral(KEYSTAGE_VERSION));
}

bool openInDesktopInstaller(const QString& packagePath)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(packagePath));
}

int httpStatus(QNetworkReply* reply)
{
    return reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

QString partialPath(const QString& packagePath)
{
    return packagePath + QStringLiteral(".part");
}

} // namespace

QUrl SoftwareUpdate::buildFeedUrl()
{
    return QUrl(QStringLiteral(KEYSTAGE_UPDATE_FEED_URL));
}

SoftwareUpdate::SoftwareUpdate(const QUrl& feedUrl, QObject* parent)
    : QObject(parent), m_feedUrl(feedUrl), m_network(new QNetworkAccessManager(this)),
      m_launcher(openInDesktopInstaller)
{
}

SoftwareUpdate::~SoftwareUpdate()
{
    if (m_reply) {
        m_reply->disconnect(this);
        m_reply->abort();
    }
    discardPackage();
}

bool SoftwareUpdate::isEnabled() const
{
    const Settings* settings = settingsStore();
    return settings && settings->value(SettingsKeys::CheckForUpdates, false).toBool();
}

void SoftwareUpdate::setEnabled(bool enabled)
{
    Settings* settings = settingsStore();
    if (!logMsgWhenRetFail(settings != nullptr, QStringLiteral("no settings store for check_for_updates!!")))
        return;
    settings->setValue(SettingsKeys::CheckForUpdates, enabled);
    settings->save();
    LOG_MSG(
        QStringLiteral("checking for updates turned %1").arg(enabled ? QStringLiteral("on") : QStringLiteral("off")));
    if (enabled)
        return;
    if (m_reply)
        stop(State::Idle, tr("Checking for updates is turned off."));
    else if (m_state != State::Handed)
        setState(State::Idle, QString());
}

void SoftwareUpdate::setInstallerLauncher(InstallerLauncher launcher)
{
    m_launcher = std::move(launcher);
}

void SoftwareUpdate::setTimeoutMs(int milliseconds)
{
    m_timeoutMs = milliseconds;
}

void SoftwareUpdate::setMaxPackageSize(qint64 bytes)
{
    m_maxPackageSize = bytes;
}

void SoftwareUpdate::setState(State state, const QString& message)
{
    m_state = state;
    m_message = message;
    emit stateChanged(state);
}

void SoftwareUpdate::fail(const QString& message)
{
    LOG_MSG(QStringLiteral("ERROR: software update: %1").arg(message));
    setState(State::Failed, message);
}

QNetworkRequest SoftwareUpdate::request(const QUrl& url) const
{
    QNetworkRequest request(url);
    request.setTransferTimeout(m_timeoutMs);
    // Release downloads are often redirected; never from HTTPS to HTTP.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Keystage/" KEYSTAGE_VERSION));
    return request;
}

QNetworkReply* SoftwareUpdate::startRequest(const QUrl& url)
{
    m_refusal.clear();
    m_stopped = false;
    m_reply = m_network->get(request(url));
    return m_reply;
}

bool SoftwareUpdate::checkNow()
{
    if (!hasFeed() || m_reply)
        return false;
    if (!isEnabled()) {
        LOG_MSG(QStringLiteral("update check refused: checking for updates is turned off."));
        setState(State::Idle, tr("Checking for updates is turned off."));
        return false;
    }
    if (!UpdateFeed::isAcceptableUrl(m_feedUrl)) {
        fail(tr("This build names an update address that is not HTTPS; it is not used."));
        return false;
    }
    LOG_MSG(QStringLiteral("checking %1").arg(m_feedUrl.toString()));
    QNetworkReply* reply = startRequest(m_feedUrl);
    connect(reply, &QNetworkReply::downloadProgress, this, [this](qint64 received, qint64 total) {
        if (received > UpdateFeed::MaxFeedSize || total > UpdateFeed::MaxFeedSize)
            refuse(tr("The update information is too large."));
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply] { onFeedFinished(reply); });
    setState(State::Checking, tr("Checking for updates…"));
    return true;
}

// Ends the request with a problem of ours (too large, cannot save).
void SoftwareUpdate::refuse(const QString& problem)
{
    if (!m_reply || !m_refusal.isEmpty())
        return;
    m_refusal = problem;
    m_reply->abort();
}

void SoftwareUpdate::stop(State state, const QString& message)
{
    if (!m_reply)
        return;
    m_stopped = true;
    m_stopState = state;
    m_stopMessage = message;
    m_reply->abort();
}

void SoftwareUpdate::cancel()
{
    if (isDownloading())
        stop(State::Available, tr("The download was cancelled."));
}

QString SoftwareUpdate::problemOf(QNetworkReply* reply) const
{
    if (!m_refusal.isEmpty())
        return m_refusal;
    const int status = httpStatus(reply);
    switch (reply->error()) {
    case QNetworkReply::NoError:
        return status == 200 ? QString() : tr("The update server answered with HTTP status %1.").arg(status);
    // Qt aborts a request whose transfer timeout ran out.
    case QNetworkReply::OperationCanceledError:
    case QNetworkReply::TimeoutError:
        return tr("The update server did not answer in time.");
    default:
        break;
    }
    if (status != 0)
        return tr("The update server answered with HTTP status %1.").arg(status);
    return tr("The update server could not be reached: %1").arg(reply->errorString());
}

void SoftwareUpdate::onFeedFinished(QNetworkReply* reply)
{
    reply->deleteLater();
    m_reply = nullptr;
    if (m_stopped) {
        setState(m_stopState, m_stopMessage);
        return;
    }
    if (const QString problem = problemOf(reply); !problem.isEmpty()) {
        fail(problem);
        return;
    }
    UpdateFeed feed;
    QString error;
    if (!UpdateFeed::parse(reply->read(UpdateFeed::MaxFeedSize + 1), feed, error)) {
        fail(error);
        return;
    }
    m_offer = feed;
    const QVersionNumber running = runningVersion();
    LOG_MSG(QStringLiteral("the feed offers %1, this is %2").arg(feed.version.toString(), running.toString()));
    if (QVersionNumber::compare(feed.version.normalized(), running.normalized()) <= 0)
        setState(State::UpToDate, tr("Keystage %1 is up to date.").arg(running.toString()));
    else
        setState(State::Available,
                 tr("Keystage %1 is available. You have %2.").arg(feed.version.toString(), running.toString()));
}

bool SoftwareUpdate::install()
{
    if (m_state != State::Available || m_reply)
        return false;
    if (!isEnabled()) {
        setState(State::Idle, tr("Checking for updates is turned off."));
        return false;
    }
    if (!openPackageFile())
        return false;
    LOG_MSG(QStringLiteral("downloading %1").arg(m_offer.packageUrl.toString()));
    QNetworkReply* reply = startRequest(m_offer.packageUrl);
    connect(reply, &QNetworkReply::metaDataChanged, this, [this, reply] { onPackageHeaders(reply); });
    connect(reply, &QNetworkReply::readyRead, this, [this, reply] { onPackageData(reply); });
    connect(reply, &QNetworkReply::finished, this, [this, reply] { onPackageFinished(reply); });
    setState(State::Downloading, tr("Downloading Keystage %1…").arg(m_offer.version.toString()));
    emit downloadProgress(0, -1);
    return true;
}

bool SoftwareUpdate::openPackageFile()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QStringLiteral("/updates");
    QDir().mkpath(folder);
    m_packagePath = folder + QLatin1Char('/') + m_offer.packageFileName();
    QFile::remove(m_packagePath);
    m_file = std::make_unique<QFile>(partialPath(m_packagePath));
    if (!m_file->open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        fail(tr("The download cannot be saved: %1").arg(m_file->errorString()));
        m_file.reset();
        return false;
    }
    m_hash.reset();
    m_received = 0;
    m_expected = -1;
    return true;
}

void SoftwareUpdate::onPackageHeaders(QNetworkReply* reply)
{
    const QVariant length = reply->header(QNetworkRequest::ContentLengthHeader);
    m_expected = length.isValid() ? length.toLongLong() : -1;
    if (m_expected > m_maxPackageSize)
        refuse(tr("The package is larger than %1 MB; it is not downloaded.").arg(m_maxPackageSize / (1024 * 1024)));
}

void SoftwareUpdate::onPackageData(QNetworkReply* reply)
{
    if (!reply->isOpen()) // aborted
        return;
    const QByteArray data = reply->readAll();
    // An error page is no part of the package.
    if (!m_refusal.isEmpty() || m_stopped || !m_file || httpStatus(reply) != 200)
        return;
    m_received += data.size();
    if (m_received > m_maxPackageSize) {
        refuse(tr("The package is larger than %1 MB; it is not downloaded.").arg(m_maxPackageSize / (1024 * 1024)));
        return;
    }
    if (m_file->write(data) != data.size()) {
        refuse(tr("The download cannot be saved: %1").arg(m_file->errorString()));
        return;
    }
    m_hash.addData(data);
    emit downloadProgress(m_received, m_expected);
}

void SoftwareUpdate::onPackageFinished(QNetworkReply* reply)
{
    onPackageData(reply);
    reply->deleteLater();
    m_reply = nullptr;
    if (m_stopped) {
        discardPackage();
        setState(m_stopState, m_stopMessage);
        return;
    }
    QString problem;
    // A connection closed before the announced length arrived: Qt may or
    // may not call that an error.
    if (m_refusal.isEmpty() && httpStatus(reply) == 200 && m_expected >= 0 && m_received != m_expected)
        problem = tr("The download ended early: %1 of %2 bytes arrived.").arg(m_received).arg(m_expected);
    else
        problem = problemOf(reply);
    if (!problem.isEmpty()) {
        discardPackage();
        fail(problem);
        return;
    }
    verifyAndHandOver();
}

void SoftwareUpdate::verifyAndHandOver()
{
    m_file->close();
    if (m_hash.result().toHex() != m_offer.sha256) {
        discardPackage();
        fail(tr("The downloaded package does not match the checksum the update server gave, so it was deleted."));
        return;
    }
    m_file.reset();
    if (!QFile::rename(partialPath(m_packagePath), m_packagePath)) {
        QFile::remove(partialPath(m_packagePath));
        fail(tr("The download cannot be saved: %1").arg(m_packagePath));
        return;
    }
    LOG_MSG(QStringLiteral("verified %1, opening the package installer").arg(m_packagePath));
    if (!m_launcher(m_packagePath)) {
        fail(tr("No package installer could be opened. The verified package is saved as %1.").arg(m_packagePath));
        return;
    }
    setState(State::Handed, tr("The package installer has opened Keystage %1. Once it has installed it, "
                               "restart Keystage to use the new version.")
                                .arg(m_offer.version.toString()));
}

void SoftwareUpdate::discardPackage()
{
    if (!m_file)
        return;
    m_file->close();
    m_file->remove();
    m_file.reset();
}
