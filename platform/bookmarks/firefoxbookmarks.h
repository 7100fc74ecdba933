#pragma once

#include "bookmark.h"
#include "bookmarksource.h"

#include <QStringList>
#include <QVector>

// Firefox keeps its bookmarks in each profile's places.sqlite, which it
// holds locked while it runs; the reader copies it (with its write-ahead
// log) and reads the copy through Qt's SQLite driver.
class FirefoxBookmarks
{
public:
    // The native, Flatpak and Snap profile directories under a home.
    static QVector<BookmarkSource> sources(const QString& home);

    // Every profile of an installation: those profiles.ini lists and any
    // other directory beside it holding a places.sqlite.
    static QStringList profileDirectories(const QString& installation);
    static BookmarkList readInstallation(const BookmarkSource& source);

    // One places.sqlite; a file that is not a readable Firefox database gives
    // a log line and no bookmarks. Callable from any thread.
    static BookmarkList readPlaces(const QString& placesFile, const QString& browser);
};
