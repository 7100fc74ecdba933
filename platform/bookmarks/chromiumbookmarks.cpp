#include "chromiumbookmarks.h"

#include "logging.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// Real bookmark files stay far below this; a bigger one is not read.
constexpr qint64 MaxFileBytes = 64 << 20;
constexpr int MaxFolderDepth = 64;

struct Browser
{
    const char* name;
    const char* configDirectory;
    const char* flatpakId;
};

// The user data directory sits at the same place inside a Flatpak's private
// config directory as natively.
constexpr Browser Browsers[] = {
    {"Chromium", "chromium", "org.chromium.Chromium"},
    {"Google Chrome", "google-chrome", "com.google.Chrome"},
    {"Brave", "BraveSoftware/Brave-Browser", "com.brave.Browser"},
    {"Vivaldi", "vivaldi", "com.vivaldi.Vivaldi"},
    {"Microsoft Edge", "microsoft-edge", "com.microsoft.Edge"},
};

QJsonObject readJsonObject(const QString& path, bool logFailure)
{
    QFile file(path);
    if (file.size() > MaxFileBytes || !file.open(QIODevice::ReadOnly)) {
        if (logFailure)
            LOG_MSG(QStringLiteral("cannot read %1 (%2 bytes)").arg(path).arg(file.size()));
        return QJsonObject();
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (logFailure && !document.isObject())
        LOG_MSG(QStringLiteral("not a bookmark file: %1 (%2)").arg(path, error.errorString()));
    return document.object();
}

void collect(const QJsonObject& node, const QString& folder, const QString& browser, int depth, BookmarkList* bookmarks)
{
    if (depth > MaxFolderDepth)
        return;
    const QString type = node.value(QLatin1String("type")).toString();
    const QString name = node.value(QLatin1String("name")).toString();
    if (type == QLatin1String("url")) {
        const QString url = node.value(QLatin1String("url")).toString();
        if (isOpenableBookmarkUrl(url))
            bookmarks->append(Bookmark{browser, name.isEmpty() ? url : name, url, folder});
        return;
    }
    const QString path = folder.isEmpty() ? name : folder + QStringLiteral(" / ") + name;
    for (const QJsonValue child : node.value(QLatin1String("children")).toArray())
        collect(child.toObject(), path, browser, depth + 1, bookmarks);
}

// The names the user gave the profiles, from "Local State"; the directory
// name ("Profile 1") where there is none.
QString profileName(const QJsonObject& localState, const QString& directory)
{
    const QJsonObject cache =
        localState.value(QLatin1String("profile")).toObject().value(QLatin1String("info_cache")).toObject();
    const QString name = cache.value(directory).toObject().value(QLatin1String("name")).toString();
    return name.isEmpty() ? directory : name;
}

} // namespace

QVector<BookmarkSource> ChromiumBookmarks::sources(const QString& home, const QString& configHome)
{
    QVector<BookmarkSource> sources;
    for (const Browser& browser : Browsers) {
        const QString name = QString::fromLatin1(browser.name);
        const QString directory = QString::fromLatin1(browser.configDirectory);
        sources.append({name, configHome + QLatin1Char('/') + directory});
        sources.append(
            {name,
             QStringLiteral("%1/.var/app/%2/config/%3").arg(home, QString::fromLatin1(browser.flatpakId), directory)});
    }
    sources.append({QStringLiteral("Chromium"), home + QStringLiteral("/snap/chromium/common/chromium")});
    sources.append(
        {QStringLiteral("Brave"), home + QStringLiteral("/snap/brave/current/.config/BraveSoftware/Brave-Browser")});
    return sources;
}

BookmarkList ChromiumBookmarks::readInstallation(const BookmarkSource& source)
{
    const QDir base(source.directory);
    QStringList profiles;
    for (const QString& entry : base.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        if (QFileInfo::exists(base.filePath(entry + QStringLiteral("/Bookmarks"))))
            profiles.append(entry);
    }
    if (profiles.isEmpty())
        return BookmarkList();
    const QJsonObject localState = readJsonObject(base.filePath(QStringLiteral("Local State")), false);
    BookmarkList bookmarks;
    for (const QString& profile : profiles) {
        const QString browser = profiles.size() > 1
                                    ? QStringLiteral("%1 (%2)").arg(source.browser, profileName(localState, profile))
                                    : source.browser;
        bookmarks += readBookmarksFile(base.filePath(profile + QStringLiteral("/Bookmarks")), browser);
    }
    return bookmarks;
}

BookmarkList ChromiumBookmarks::readBookmarksFile(const QString& file, const QString& browser)
{
    BookmarkList bookmarks;
    const QJsonObject roots = readJsonObject(file, true).value(QLatin1String("roots")).toObject();
    // Fixed order, as the browser shows them; "sync_transaction_version" and
    // the like are no roots.
    for (const char* root : {"bookmark_bar", "other", "synced"}) {
        const QJsonObject node = roots.value(QLatin1String(root)).toObject();
        if (!node.isEmpty())
            collect(node, QString(), browser, 0, &bookmarks);
    }
    return bookmarks;
}
