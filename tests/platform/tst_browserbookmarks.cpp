// Browser profiles built by the test under its own HOME: Firefox databases
// made with Qt's SQLite driver, Chromium-family Bookmarks files.
#include "browserbookmarks.h"
#include "chromiumbookmarks.h"
#include "firefoxbookmarks.h"
#include "logcapture.h"
#include "testfiles.h"
#include "testmain.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

namespace {

// The part of Firefox's schema the reader uses. Rows: folders and bookmarks
// of a toolbar with a "News" folder, a tag (whose entries repeat bookmarks),
// a place: query, a bookmarklet and two folders that are each other's parent.
const char* const PlacesSchema[] = {
    "CREATE TABLE moz_places (id INTEGER PRIMARY KEY, url TEXT, title TEXT)",
    "CREATE TABLE moz_bookmarks (id INTEGER PRIMARY KEY, type INTEGER, fk INTEGER, parent INTEGER, "
    "position INTEGER, title TEXT, guid TEXT)",
    "INSERT INTO moz_places VALUES (1, 'https://news.example/', 'x'), (2, 'https://docs.example/a', 'x'), "
    "(3, 'place:sort=8', 'x'), (4, 'javascript:alert(1)', 'x'), (5, 'https://loop.example/', 'x')",
    "INSERT INTO moz_bookmarks VALUES (1, 2, NULL, 0, 0, '', 'root________'), "
    "(2, 2, NULL, 1, 0, 'menu', 'menu________'), (3, 2, NULL, 1, 1, 'toolbar', 'toolbar_____'), "
    "(4, 2, NULL, 1, 2, 'tags', 'tags________'), (5, 2, NULL, 1, 3, 'unfiled', 'unfiled_____'), "
    "(10, 2, NULL, 3, 0, 'News', 'newsfolder01'), (11, 1, 1, 10, 0, 'Daily news', 'bm1'), "
    "(12, 1, 2, 2, 0, '', 'bm2'), (13, 2, NULL, 4, 0, 'work', 'tag1'), (14, 1, 2, 13, 0, NULL, 'bm3'), "
    "(15, 1, 3, 5, 0, 'Recent', 'bm4'), (16, 1, 4, 5, 1, 'Bookmarklet', 'bm5'), "
    "(20, 2, NULL, 21, 0, 'A', 'loopa'), (21, 2, NULL, 20, 0, 'B', 'loopb'), (22, 1, 5, 20, 0, 'Lost', 'bm6')",
};

// The bookmarks the schema above yields, in the reader's order.
QStringList firefoxBookmarks(const QString& browser)
{
    return {browser + "|Docs|https://docs.example/a|Bookmarks Menu",
            browser + "|Daily news|https://news.example/|Bookmarks Toolbar / News"};
}

// Keeps the last connection open, so that its rows stay in the write-ahead
// log as they do while Firefox runs.
class PlacesDatabase
{
public:
    explicit PlacesDatabase(const QString& path) : m_name(QStringLiteral("fixture-") + path)
    {
        QDir().mkpath(QFileInfo(path).path());
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name);
        database.setDatabaseName(path);
        database.open();
        QSqlQuery query(database);
        query.exec(QStringLiteral("PRAGMA journal_mode=WAL"));
        query.exec(QStringLiteral("PRAGMA wal_autocheckpoint=0"));
        for (const char* statement : PlacesSchema)
            query.exec(QString::fromLatin1(statement));
        // Docs gets its title only in the log.
        query.exec(QStringLiteral("UPDATE moz_bookmarks SET title = 'Docs' WHERE id = 12"));
    }
    ~PlacesDatabase()
    {
        QSqlDatabase::database(m_name).close();
        QSqlDatabase::removeDatabase(m_name);
    }
    PlacesDatabase(const PlacesDatabase&) = delete;
    PlacesDatabase& operator=(const PlacesDatabase&) = delete;

private:
    QString m_name;
};

QJsonObject url(const QString& name, const QString& address)
{
    return {{"type", "url"}, {"name", name}, {"url", address}};
}

QJsonObject folder(const QString& name, const QJsonArray& children)
{
    return {{"type", "folder"}, {"name", name}, {"children", children}};
}

QByteArray chromiumBookmarks(const QString& tag)
{
    const QJsonObject roots{
        {"bookmark_bar", folder("Bookmarks bar", {url("Mail " + tag, "https://mail.example/"),
                                                  folder("Dev", {url("", "https://dev.example/")})})},
        {"other", folder("Other bookmarks", {url("Script", "javascript:void(0)")})},
        {"synced", folder("Mobile bookmarks", {url("Phone", "https://m.example/")})},
        {"sync_transaction_version", "1"}};
    return QJsonDocument(QJsonObject{{"roots", roots}, {"version", 1}}).toJson();
}

QStringList describe(const BookmarkList& bookmarks)
{
    QStringList lines;
    for (const Bookmark& bookmark : bookmarks)
        lines << QStringList{bookmark.browser, bookmark.title, bookmark.url, bookmark.folder}.join(QLatin1Char('|'));
    return lines;
}

} // namespace

class BrowserBookmarksTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        m_config = m_home->filePath(QStringLiteral(".config"));
    }

    void shouldReadFirefoxProfilesWhereverFirefoxIsInstalled_data()
    {
        QTest::addColumn<QString>("installation");
        QTest::addColumn<QByteArray>("profilesIni");
        QTest::addColumn<QStringList>("profiles");
        QTest::addColumn<QStringList>("expected");
        const QByteArray oneProfile = "[Profile0]\nName=default-release\nIsRelative=1\nPath=ab12.default-release\n";
        QTest::newRow("native") << ".mozilla/firefox" << oneProfile << QStringList{"ab12.default-release"}
                                << firefoxBookmarks("Firefox");
        QTest::newRow("flatpak") << ".var/app/org.mozilla.firefox/.mozilla/firefox" << oneProfile
                                 << QStringList{"ab12.default-release"} << firefoxBookmarks("Firefox");
        QTest::newRow("snap") << "snap/firefox/common/.mozilla/firefox" << oneProfile
                              << QStringList{"ab12.default-release"} << firefoxBookmarks("Firefox");
        QTest::newRow("two profiles, one not in profiles.ini")
            << ".mozilla/firefox" << oneProfile << QStringList{"ab12.default-release", "cd34.work"}
            << firefoxBookmarks("Firefox (default-release)") + firefoxBookmarks("Firefox (work)");
        QTest::newRow("no profiles.ini") << ".mozilla/firefox" << QByteArray() << QStringList{"ef56.default"}
                                         << firefoxBookmarks("Firefox");
    }

    void shouldReadFirefoxProfilesWhereverFirefoxIsInstalled()
    {
        QFETCH(QString, installation);
        QFETCH(QByteArray, profilesIni);
        QFETCH(QStringList, profiles);
        QFETCH(QStringList, expected);
        const QString base = m_home->filePath(installation);
        if (!profilesIni.isEmpty())
            QVERIFY(TestFiles::write(base + QStringLiteral("/profiles.ini"), profilesIni));
        std::vector<std::unique_ptr<PlacesDatabase>> open;
        for (const QString& profile : profiles)
            open.push_back(std::make_unique<PlacesDatabase>(base + '/' + profile + QStringLiteral("/places.sqlite")));
        QVERIFY(QFileInfo::exists(base + '/' + profiles.first() + QStringLiteral("/places.sqlite-wal")));
        QCOMPARE(describe(BrowserBookmarks::query(m_home->path(), m_config)), expected);
    }

    void shouldReadChromiumFamilyProfiles_data()
    {
        QTest::addColumn<QString>("userData");
        QTest::addColumn<QStringList>("profiles");
        QTest::addColumn<QString>("browser");
        QTest::newRow("chromium") << ".config/chromium" << QStringList{"Default"} << "Chromium";
        QTest::newRow("chrome, two profiles")
            << ".config/google-chrome" << QStringList{"Default", "Profile 1"} << "Google Chrome";
        QTest::newRow("brave flatpak") << ".var/app/com.brave.Browser/config/BraveSoftware/Brave-Browser"
                                       << QStringList{"Default"} << "Brave";
        QTest::newRow("vivaldi") << ".config/vivaldi" << QStringList{"Default"} << "Vivaldi";
        QTest::newRow("edge") << ".config/microsoft-edge" << QStringList{"Default"} << "Microsoft Edge";
        QTest::newRow("chromium snap") << "snap/chromium/common/chromium" << QStringList{"Default"} << "Chromium";
    }

    void shouldReadChromiumFamilyProfiles()
    {
        QFETCH(QString, userData);
        QFETCH(QStringList, profiles);
        QFETCH(QString, browser);
        const QString base = m_home->filePath(userData);
        QStringList expected;
        for (const QString& profile : profiles) {
            QVERIFY(TestFiles::write(base + '/' + profile + QStringLiteral("/Bookmarks"), chromiumBookmarks(profile)));
            const QString shown =
                profiles.size() > 1 ? QStringLiteral("%1 (%2)").arg(browser, "Name of " + profile) : browser;
            expected << shown + "|Mail " + profile + "|https://mail.example/|Bookmarks bar"
                     << shown + "|https://dev.example/|https://dev.example/|Bookmarks bar / Dev"
                     << shown + "|Phone|https://m.example/|Mobile bookmarks";
        }
        QVERIFY(TestFiles::write(base + QStringLiteral("/Local State"),
                                 R"({"profile":{"info_cache":{"Default":{"name":"Name of Default"},
                      "Profile 1":{"name":"Name of Profile 1"}}}})"));
        QCOMPARE(describe(BrowserBookmarks::query(m_home->path(), m_config)), expected);
    }

    void shouldLogDamagedFilesAndGoOn_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("logged");
        QByteArray nested;
        for (int i = 0; i < 5000; ++i)
            nested += "{\"roots\":";
        QTest::newRow("places not a database") << ".mozilla/firefox/x.default/places.sqlite" << QByteArray(4096, '\x5a')
                                               << "not a Firefox bookmark database";
        QTest::newRow("places another database")
            << ".mozilla/firefox/x.default/places.sqlite" << QByteArray() << "not a Firefox bookmark database";
        QTest::newRow("bookmarks not JSON")
            << ".config/chromium/Default/Bookmarks" << QByteArray("{\"roots\": [") << "not a bookmark file";
        QTest::newRow("bookmarks nested too deep")
            << ".config/chromium/Default/Bookmarks" << nested << "not a bookmark file";
        QTest::newRow("bookmarks of the wrong shape")
            << ".config/chromium/Default/Bookmarks"
            << QByteArray(R"({"roots": {"bookmark_bar": {"children": [1, "x", {"type": "url"}]}, "other": 5}})") << "";
    }

    void shouldLogDamagedFilesAndGoOn()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        QFETCH(QString, logged);
        const QString path = m_home->filePath(file);
        QVERIFY(TestFiles::write(path, content));
        // An empty file is a valid, empty SQLite database.
        QVERIFY(TestFiles::write(m_home->filePath(QStringLiteral(".config/vivaldi/Default/Bookmarks")),
                                 chromiumBookmarks("x")));
        LogCapture log;
        const QStringList found = describe(BrowserBookmarks::query(m_home->path(), m_config));
        QCOMPARE(found.size(), 3);
        QVERIFY(found.first().startsWith(QLatin1String("Vivaldi|")));
        if (!logged.isEmpty())
            QVERIFY2(!log.matching(logged).isEmpty(), qPrintable(log.messages().join('\n')));
    }

private:
    std::unique_ptr<QTemporaryDir> m_home;
    QString m_config;
};

KEYSTAGE_TEST_MAIN(BrowserBookmarksTest)
#include "tst_browserbookmarks.moc"
