#include "browserbookmarks.h"

#include "chromiumbookmarks.h"
#include "firefoxbookmarks.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

BookmarkList BrowserBookmarks::query()
{
    return query(QDir::homePath(), QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
}

BookmarkList BrowserBookmarks::query(const QString& home, const QString& configHome)
{
    BookmarkList bookmarks;
    for (const BookmarkSource& source : FirefoxBookmarks::sources(home)) {
        if (QFileInfo(source.directory).isDir())
            bookmarks += FirefoxBookmarks::readInstallation(source);
    }
    for (const BookmarkSource& source : ChromiumBookmarks::sources(home, configHome)) {
        if (QFileInfo(source.directory).isDir())
            bookmarks += ChromiumBookmarks::readInstallation(source);
    }
    return bookmarks;
}
