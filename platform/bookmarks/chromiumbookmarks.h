#pragma once

#include "bookmark.h"
#include "bookmarksource.h"

#include <QVector>

// Chromium and the browsers built on it (Google Chrome, Brave, Vivaldi,
// Microsoft Edge) keep each profile's bookmarks in a JSON file "Bookmarks"
// inside the profile's directory.
class ChromiumBookmarks
{
public:
    // The native user data directories under configHome and the Flatpak and
    // Snap ones under home.
    static QVector<BookmarkSource> sources(const QString& home, const QString& configHome);

    static BookmarkList readInstallation(const BookmarkSource& source);

    // One "Bookmarks" file; a file that is not one gives a log line and no
    // bookmarks.
    static BookmarkList readBookmarksFile(const QString& file, const QString& browser);
};
