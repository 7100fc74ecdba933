#include "firefoxbookmarks.h"

#include "logging.h"

#include <QAtomicInt>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>

namespace {

// A profile's places.sqlite holds the history too; beyond this it is not
// worth copying to find the bookmarks.
constexpr qint64 MaxPlacesBytes = qint64(1) << 30;
// Folders nest a handful deep; a deeper chain is a loop in a damaged file.
constexpr int MaxFolderDepth = 64;

struct Node
{
    qint64 parent = 0;
    QString title;
    QString guid;
};

QString rootFolderName(const QString& guid)
{
    if (guid == QLatin1String("menu________"))
        return QCoreApplication::translate("FirefoxBookmarks", "Bookmarks Menu");
    if (guid == QLatin1String("toolbar_____"))
        return QCoreApplication::translate("FirefoxBookmarks", "Bookmarks Toolbar");
    if (guid == QLatin1String("unfiled_____"))
        return QCoreApplication::translate("FirefoxBookmarks", "Other Bookmarks");
    if (guid == QLatin1String("mobile______"))
        return QCoreApplication::translate("FirefoxBookmarks", "Mobile Bookmarks");
    return QString();
}

// Folder paths by folder id, each walked once. A null result marks a folder
// whose bookmarks are not to be listed: the tags tree, a loop, an orphan.
class FolderPaths
{
public:
    explicit FolderPaths(const QHash<qint64, Node>& nodes) : m_nodes(nodes) {}

    QString path(qint64 folder)
    {
        auto cached = m_paths.constFind(folder);
        if (cached != m_paths.constEnd())
            return *cached;
        QStringList names;
        bool listed = false;
        qint64 id = folder;
        for (int depth = 0; depth < MaxFolderDepth; ++depth) {
            auto node = m_nodes.constFind(id);
            if (node == m_nodes.constEnd() || node->guid == QLatin1String("tags________"))
                break;
            if (node->guid == QLatin1String("root________") || node->parent == 0) {
                listed = true;
                break;
            }
            const QString root = rootFolderName(node->guid);
            names.prepend(root.isEmpty() ? node->title : root);
            id = node->parent;
        }
        const QString result = listed ? names.join(QLatin1String(" / ")) : QString();
        m_paths.insert(folder, result);
        return result;
    }

private:
    const QHash<qint64, Node>& m_nodes;
    QHash<qint64, QString> m_paths;
};

BookmarkList readOpenDatabase(QSqlDatabase& database, const QString& browser, const QString& placesFile)
{
    BookmarkList bookmarks;
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT b.id, b.type, b.parent, b.title, b.guid, p.url FROM moz_bookmarks b "
                                   "LEFT JOIN moz_places p ON p.id = b.fk ORDER BY b.parent, b.position"))) {
        LOG_MSG(QStringLiteral("not a Firefox bookmark database: %1 (%2)").arg(placesFile, query.lastError().text()));
        return bookmarks;
    }
    QHash<qint64, Node> folders;
    struct Row
    {
        qint64 parent;
        QString title;
        QString url;
    };
    QVector<Row> rows;
    while (query.next()) {
        const int type = query.value(1).toInt();
        const qint64 parent = query.value(2).toLongLong();
        if (type == 2)
            folders.insert(query.value(0).toLongLong(),
                           Node{parent, query.value(3).toString(), query.value(4).toString()});
        else if (type == 1 && isOpenableBookmarkUrl(query.value(5).toString()))
            rows.append(Row{parent, query.value(3).toString(), query.value(5).toString()});
    }
    FolderPaths paths(folders);
    for (const Row& row : rows) {
        const QString folder = paths.path(row.parent);
        if (!folder.isNull())
            bookmarks.append(Bookmark{browser, row.title.isEmpty() ? row.url : row.title, row.url, folder});
    }
    return bookmarks;
}

QString uniqueConnectionName()
{
    static QAtomicInt counter;
    return QStringLiteral("keystage-places-%1").arg(counter.fetchAndAddRelaxed(1));
}

// SQLite writes beside a database with a write-ahead log, so the copies
// must be writable whatever the originals were.
bool copyWritable(const QString& from, const QString& to)
{
    return QFile::copy(from, to) && QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner);
}

bool copyIfPresent(const QString& from, const QString& to)
{
    return !QFileInfo::exists(from) || copyWritable(from, to);
}

} // namespace

QVector<BookmarkSource> FirefoxBookmarks::sources(const QString& home)
{
    const QString firefox = QStringLiteral("Firefox");
    return {{firefox, home + QStringLiteral("/.mozilla/firefox")},
            {firefox, home + QStringLiteral("/.var/app/org.mozilla.firefox/.mozilla/firefox")},
            {firefox, home + QStringLiteral("/snap/firefox/common/.mozilla/firefox")}};
}

QStringList FirefoxBookmarks::profileDirectories(const QString& installation)
{
    QStringList profiles;
    const QDir base(installation);
    const QString ini = base.filePath(QStringLiteral("profiles.ini"));
    if (QFileInfo::exists(ini)) {
        QSettings settings(ini, QSettings::IniFormat);
        for (const QString& group : settings.childGroups()) {
            if (!group.startsWith(QLatin1String("Profile")))
                continue;
            const QString path = settings.value(group + QStringLiteral("/Path")).toString();
            const bool relative = settings.value(group + QStringLiteral("/IsRelative"), 1).toInt() != 0;
            if (!path.isEmpty())
                profiles.append(QDir::cleanPath(relative ? base.filePath(path) : path));
        }
    }
    for (const QFileInfo& entry : base.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden)) {
        const QString path = QDir::cleanPath(entry.absoluteFilePath());
        if (!profiles.contains(path) && QFileInfo::exists(path + QStringLiteral("/places.sqlite")))
            profiles.append(path);
    }
    return profiles;
}

BookmarkList FirefoxBookmarks::readInstallation(const BookmarkSource& source)
{
    QStringList withPlaces;
    for (const QString& profile : profileDirectories(source.directory)) {
        if (QFileInfo::exists(profile + QStringLiteral("/places.sqlite")))
            withPlaces.append(profile);
    }
    BookmarkList bookmarks;
    for (const QString& profile : withPlaces) {
        // Profile directories are "<salt>.<name>"; the name is what the user chose.
        const QString name = QFileInfo(profile).fileName().section(QLatin1Char('.'), 1);
        const QString browser = withPlaces.size() > 1 && !name.isEmpty()
                                    ? QStringLiteral("%1 (%2)").arg(source.browser, name)
                                    : source.browser;
        bookmarks += readPlaces(profile + QStringLiteral("/places.sqlite"), browser);
    }
    return bookmarks;
}

BookmarkList FirefoxBookmarks::readPlaces(const QString& placesFile, const QString& browser)
{
    const QFileInfo info(placesFile);
    if (!info.isFile() || info.size() > MaxPlacesBytes) {
        LOG_MSG(QStringLiteral("skipped bookmark database %1 (%2 bytes)").arg(placesFile).arg(info.size()));
        return BookmarkList();
    }
    if (!logMsgWhenRetFail(QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE")),
                           QStringLiteral("Qt's SQLite driver is missing, no Firefox bookmarks!!")))
        return BookmarkList();
    QTemporaryDir copyDir;
    const QString copy = copyDir.filePath(QStringLiteral("places.sqlite"));
    if (!copyDir.isValid() || !copyWritable(placesFile, copy) ||
        !copyIfPresent(placesFile + QStringLiteral("-wal"), copy + QStringLiteral("-wal"))) {
        LOG_MSG(QStringLiteral("cannot copy %1").arg(placesFile));
        return BookmarkList();
    }
    const QString connection = uniqueConnectionName();
    BookmarkList bookmarks;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(copy);
        if (database.open())
            bookmarks = readOpenDatabase(database, browser, placesFile);
        else
            LOG_MSG(QStringLiteral("cannot open %1: %2").arg(placesFile, database.lastError().text()));
        database.close();
    }
    QSqlDatabase::removeDatabase(connection);
    return bookmarks;
}
