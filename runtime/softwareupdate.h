#pragma once

#include "updatefeed.h"

#include <QCryptographicHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>

class QFile;
class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;

// The program's own update path, beside the distribution's package manager:
// reads the release feed this build names, compares its version with the
// running one, downloads the package with its progress, checks its SHA-256
// against the feed and hands it to the desktop's package installer.
//
// It never touches the network unless the user turned on "Check for
// updates" (kept in the settings store) and the build names a feed. Every
// request has a transfer timeout and a size limit; every failure ends in a
// state with a message for the user. No widgets; lives on the GUI thread
// (the network calls are asynchronous).
class SoftwareUpdate : public QObject
{
    Q_OBJECT
public:
    enum class State
    {
        Idle,        // nothing asked yet, or turned off
        Checking,    // reading the feed
        UpToDate,    // the feed offers nothing newer
        Available,   // a newer version can be installed
        Downloading, // fetching the package
        Handed,      // the package installer has it; a restart is due once it is done
        Failed,      // see message()
    };
    Q_ENUM(State)

    static constexpr int DefaultTimeoutMs = 30000;
    static constexpr qint64 DefaultMaxPackageSize = 256 * 1024 * 1024;

    // Opens the verified package in whatever installs packages on this
    // desktop; false when nothing could be opened.
    using InstallerLauncher = std::function<bool(const QString& packagePath)>;

    // The feed this build names (CMake option KEYSTAGE_UPDATE_FEED_URL);
    // empty when updates come from the package manager alone.
    static QUrl buildFeedUrl();

    explicit SoftwareUpdate(const QUrl& feedUrl = buildFeedUrl(), QObject* parent = nullptr);
    ~SoftwareUpdate() override;

    bool hasFeed() const { return !m_feedUrl.isEmpty(); }
    // The user's "Check for updates"; off without a settings store.
    bool isEnabled() const;
    // Stored at once; turning it off stops a check or download under way.
    void setEnabled(bool enabled);

    State state() const { return m_state; }
    QString message() const { return m_message; }
    const UpdateFeed& offer() const { return m_offer; }
    bool isDownloading() const { return m_state == State::Downloading; }
    // Where the verified package was saved.
    QString packagePath() const { return m_packagePath; }

    void setInstallerLauncher(InstallerLauncher launcher);
    void setTimeoutMs(int milliseconds);
    void setMaxPackageSize(qint64 bytes);

public slots:
    // Reads the feed; false (and no network) when turned off, without a
    // feed, or while busy.
    bool checkNow();
    // Downloads, verifies and hands over the offered package.
    bool install();
    // Stops a download; the offer stays.
    void cancel();

signals:
    void stateChanged(SoftwareUpdate::State state);
    void downloadProgress(qint64 received, qint64 total);

private:
    QNetworkRequest request(const QUrl& url) const;
    QNetworkReply* startRequest(const QUrl& url);
    void setState(State state, const QString& message);
    void fail(const QString& message);
    // Aborts the reply; its finished handler then ends in the given state.
    void stop(State state, const QString& message);
    void refuse(const QString& problem);
    QString problemOf(QNetworkReply* reply) const;
    void onFeedFinished(QNetworkReply* reply);
    bool openPackageFile();
    void onPackageHeaders(QNetworkReply* reply);
    void onPackageData(QNetworkReply* reply);
    void onPackageFinished(QNetworkReply* reply);
    void verifyAndHandOver();
    void discardPackage();

    QUrl m_feedUrl;
    QNetworkAccessManager* m_network;
    InstallerLauncher m_launcher;
    int m_timeoutMs = DefaultTimeoutMs;
    qint64 m_maxPackageSize = DefaultMaxPackageSize;

    State m_state = State::Idle;
    QString m_message;
    UpdateFeed m_offer;

    // The request under way, and why it was cut short (empty: it was not).
    QPointer<QNetworkReply> m_reply;
    QString m_refusal;
    bool m_stopped = false;
    State m_stopState = State::Idle;
    QString m_stopMessage;

    // The package being downloaded.
    std::unique_ptr<QFile> m_file;
    QCryptographicHash m_hash{QCryptographicHash::Sha256};
    qint64 m_received = 0;
    qint64 m_expected = -1;
    QString m_packagePath;
};
