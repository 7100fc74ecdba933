#pragma once

#include "applicationentry.h"

#include <QByteArray>

// The applications the desktop's menus offer, through GIO's desktop entry
// index: every directory of XDG_DATA_HOME and XDG_DATA_DIRS, which is also
// where Flatpak and Snap export theirs. GIO reads those variables once per
// process and then follows changes of the directories itself.
//
// Blocks on file I/O; callable from any thread.
class InstalledApplications
{
public:
    // Sorted by name in the user's language; hidden entries (NoDisplay,
    // another desktop's OnlyShowIn, a missing TryExec) left out.
    static ApplicationList query();

    // One desktop entry given as the text of its file, read as query()
    // reads each: false when query() would not list it.
    static bool readDesktopEntry(const QByteArray& contents, ApplicationEntry* entry);
};
