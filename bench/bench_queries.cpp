// What the editor's slow queries cost on a large desktop: 300 installed
// applications, and 5,000 bookmarks (2,500 in a Firefox profile, 2,500 in a
// Chrome profile). Beside each figure, the floors: reading the same files'
// bytes and nothing more, and for the applications GIO's own listing, which
// parses every desktop entry again on each call.
//
// GIO indexes the desktop entries on its first call in a process and then
// answers from memory; the first call is what the editor's first chooser
// waits for, so both are shown.
#include "browserbookmarks.h"
#include "installedapplications.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

#pragma push_macro("signals")
#undef signals
#include <gio/gio.h>
#pragma pop_macro("signals")
#include <functional>
#include <vector>

namespace {

constexpr int Applications = 300;
constexpr int BookmarksPerBrowser = 2500;
constexpr int Runs = 15;

void writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(content);
}

void makeApplications(const QString& share)
{
    for (int i = 0; i < Applications; ++i) {
        QByteArray entry = "[Desktop Entry]\nType=Application\nName=Application " + QByteArray::number(i) +
                           "\nComment=Does thing number " + QByteArray::number(i) + "\n";
        for (const char* language : {"de", "fr", "it", "ja", "zh_TW"})
            entry += "Name[" + QByteArray(language) + "]=App " + QByteArray::number(i) + " " + language + "\n";
        entry += "Exec=sh -c 'exit " + QByteArray::number(i % 100) + "' %U\nIcon=app-" + QByteArray::number(i) +
                 "\nCategories=Utility;\nMimeType=text/plain;\n";
        writeFile(QStringLiteral("%1/applications/org.example.App%2.desktop").arg(share).arg(i), entry);
    }
}

void makeFirefoxProfile(const QString& home)
{
    const QString profile = home + QStringLiteral("/.mozilla/firefox/ab12.default-release");
    QDir().mkpath(profile);
    writeFile(home + QStringLiteral("/.mozilla/firefox/profiles.ini"),
              "[Profile0]\nName=default-release\nIsRelative=1\nPath=ab12.default-release\n");
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("fixture"));
        database.setDatabaseName(profile + QStringLiteral("/places.sqlite"));
        database.open();
        QSqlQuery query(database);
        query.exec(QStringLiteral("CREATE TABLE moz_places (id INTEGER PRIMARY KEY, url TEXT, title TEXT)"));
        query.exec(QStringLiteral("CREATE TABLE moz_bookmarks (id INTEGER PRIMARY KEY, type INTEGER, fk INTEGER, "
                                  "parent INTEGER, position INTEGER, title TEXT, guid TEXT)"));
        database.transaction();
        query.exec(QStringLiteral("INSERT INTO moz_bookmarks VALUES (1, 2, NULL, 0, 0, '', 'root________'), "
                                  "(2, 2, NULL, 1, 0, 'toolbar', 'toolbar_____')"));
        // 50 folders of 50 bookmarks, and a history ten times that size.
        for (int f = 0; f < 50; ++f)
            query.exec(QStringLiteral("INSERT INTO moz_bookmarks VALUES (%1, 2, NULL, 2, %2, 'Folder %2', 'f%2')")
                           .arg(100 + f)
                           .arg(f));
        for (int i = 0; i < BookmarksPerBrowser * 10; ++i)
            query.exec(
                QStringLiteral("INSERT INTO moz_places VALUES (%1, 'https://site%1.example/page', 'x')").arg(i + 1));
        for (int i = 0; i < BookmarksPerBrowser; ++i)
            query.exec(QStringLiteral("INSERT INTO moz_bookmarks VALUES (%1, 1, %2, %3, %4, 'Bookmark %2', 'b%2')")
                           .arg(1000 + i)
                           .arg(i * 10 + 1)
                           .arg(100 + i % 50)
                           .arg(i / 50));
        database.commit();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("fixture"));
}

void makeChromeProfile(const QString& config)
{
    QJsonArray folders;
    for (int f = 0; f < 50; ++f) {
        QJsonArray children;
        for (int i = 0; i < BookmarksPerBrowser / 50; ++i)
            children.append(QJsonObject{{"type", "url"},
                                        {"name", QStringLiteral("Page %1.%2").arg(f).arg(i)},
                                        {"url", QStringLiteral("https://page%1-%2.example/").arg(f).arg(i)},
                                        {"date_added", "13300000000000000"},
                                        {"guid", QStringLiteral("00000000-0000-4000-8000-%1").arg(f * 100 + i)}});
        folders.append(
            QJsonObject{{"type", "folder"}, {"name", QStringLiteral("Folder %1").arg(f)}, {"children", children}});
    }
    const QJsonObject roots{
        {"bookmark_bar", QJsonObject{{"type", "folder"}, {"name", "Bookmarks bar"}, {"children", folders}}},
        {"other", QJsonObject{{"type", "folder"}, {"name", "Other bookmarks"}, {"children", QJsonArray()}}}};
    writeFile(config + QStringLiteral("/google-chrome/Default/Bookmarks"),
              QJsonDocument(QJsonObject{{"roots", roots}, {"version", 1}}).toJson());
}

qint64 readAllBytes(const QString& directory)
{
    qint64 total = 0;
    QDirIterator it(directory, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QFile file(it.next());
        if (file.open(QIODevice::ReadOnly))
            total += file.readAll().size();
    }
    return total;
}

double milliseconds(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return timer.nsecsElapsed() / 1e6;
}

double median(const std::function<void()>& work)
{
    std::vector<double> times;
    for (int i = 0; i < Runs; ++i)
        times.push_back(milliseconds(work));
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir root;
    const QString share = root.filePath(QStringLiteral("share"));
    const QString home = root.filePath(QStringLiteral("home"));
    const QString config = home + QStringLiteral("/.config");
    // Before anything asks GIO: it reads the variables once.
    qputenv("XDG_DATA_DIRS", QFile::encodeName(share));
    qputenv("XDG_DATA_HOME", QFile::encodeName(root.filePath(QStringLiteral("empty"))));
    qputenv("LANGUAGE", "de");
    QCoreApplication app(argc, argv);
    makeApplications(share);
    makeFirefoxProfile(home);
    makeChromeProfile(config);

    int count = 0;
    const double firstCall = milliseconds([&] { count = InstalledApplications::query().size(); });
    const double laterCalls = median([&] { InstalledApplications::query(); });
    const double applicationFloor = median([&] { readAllBytes(share); });
    // GIO's own listing, without anything done with it.
    const double gioFloor = median([&] {
        GList* all = g_app_info_get_all();
        for (GList* node = all; node; node = node->next)
            g_app_info_should_show(G_APP_INFO(node->data));
        g_list_free_full(all, g_object_unref);
    });
    std::printf("installed applications: %d listed\n", count);
    std::printf("  first call        %8.2f ms   (goal < 100 ms)\n", firstCall);
    std::printf("  later calls       %8.2f ms   (median of %d)\n", laterCalls, Runs);
    std::printf("  floor: read files %8.2f ms   (%d desktop entries)\n", applicationFloor, Applications);
    std::printf("  floor: GIO alone  %8.2f ms   (g_app_info_get_all, should_show)\n", gioFloor);

    const double bookmarks = median([&] { count = BrowserBookmarks::query(home, config).size(); });
    const double firefoxFloor = median([&] { readAllBytes(home + QStringLiteral("/.mozilla")); });
    const double chromeFloor = median([&] { readAllBytes(config); });
    std::printf("bookmarks: %d listed\n", count);
    std::printf("  query             %8.2f ms   (median of %d, goal < 100 ms)\n", bookmarks, Runs);
    std::printf("  floor: read files %8.2f ms   (places.sqlite %.2f, Bookmarks %.2f)\n", firefoxFloor + chromeFloor,
                firefoxFloor, chromeFloor);
    return 0;
}
