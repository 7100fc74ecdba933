#include "updatefeed.h"

#include <QHostAddress>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QRegularExpression>

namespace {

bool isLoopbackHost(const QString& host)
{
    if (host.compare(QLatin1String("localhost"), Qt::CaseInsensitive) == 0)
        return true;
    const QHostAddress address(host);
    return !address.isNull() && address.isLoopback();
}

bool parseVersion(const QJsonValue& value, QVersionNumber& version)
{
    const QString text = value.toString();
    int suffix = -1;
    version = QVersionNumber::fromString(text, &suffix);
    return !version.isNull() && suffix == text.size();
}

} // namespace

bool UpdateFeed::isAcceptableUrl(const QUrl& url)
{
    if (!url.isValid() || url.host().isEmpty())
        return false;
    if (url.scheme() == QLatin1String("https"))
        return true;
    return url.scheme() == QLatin1String("http") && isLoopbackHost(url.host());
}

bool UpdateFeed::parse(const QByteArray& json, UpdateFeed& feed, QString& error)
{
    if (json.size() > MaxFeedSize) {
        error = tr("The update information is too large.");
        return false;
    }
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error != QJsonParseError::NoError || !document.isObject()) {
        error = tr("The update information is not readable.");
        return false;
    }
    const QJsonObject object = document.object();
    if (!parseVersion(object.value(QLatin1String("version")), feed.version)) {
        error = tr("The update information has no valid version.");
        return false;
    }
    feed.packageUrl = QUrl(object.value(QLatin1String("url")).toString(), QUrl::StrictMode);
    if (!isAcceptableUrl(feed.packageUrl) || !feed.packageUrl.path().endsWith(QLatin1String(".deb"))) {
        error = tr("The update information has no valid package address (an HTTPS address of a .deb package).");
        return false;
    }
    static const QRegularExpression hex(QStringLiteral("^[0-9a-fA-F]{64}$"));
    const QString sha256 = object.value(QLatin1String("sha256")).toString();
    if (!hex.match(sha256).hasMatch()) {
        error = tr("The update information has no valid SHA-256 checksum.");
        return false;
    }
    feed.sha256 = sha256.toLower().toLatin1();
    feed.notes = object.value(QLatin1String("notes")).toString().left(MaxNotesLength);
    return true;
}

QString UpdateFeed::packageFileName() const
{
    static const QRegularExpression plainName(QStringLiteral("^[A-Za-z0-9][A-Za-z0-9._+~-]*\\.deb$"));
    const QString name = packageUrl.fileName();
    if (plainName.match(name).hasMatch())
        return name;
    return QStringLiteral("keystage_%1.deb").arg(version.toString());
}
