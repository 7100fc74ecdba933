#pragma once

#include <QString>

// Where one browser installation keeps its profiles: the native package's
// directory, or the Flatpak's or Snap's private copy of it.
struct BookmarkSource
{
    QString browser;
    // Firefox: the directory of profiles.ini; Chromium family: the user
    // data directory with "Local State" and one directory per profile.
    QString directory;
};
