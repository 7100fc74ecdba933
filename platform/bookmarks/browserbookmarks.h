#pragma once

#include "bookmark.h"

// The bookmarks of every browser the user has: Firefox and the Chromium
// family, native, Flatpak and Snap. Blocks on file I/O; callable from any
// thread (each call uses database connections of its own).
class BrowserBookmarks
{
public:
    // Under the user's HOME and XDG_CONFIG_HOME.
    static BookmarkList query();
    static BookmarkList query(const QString& home, const QString& configHome);
};
