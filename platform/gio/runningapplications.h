#pragma once

#include "applicationentry.h"

#include <QStringList>

// Names and icons for the programs behind the desktop's windows, borrowed
// from the installed application that runs the same program.
class RunningApplications
{
public:
    // One entry per executable, in the order given. The entry's executable
    // is always the running one (what a folder follows); a program no
    // installed application runs is named by its file name.
    static ApplicationList describe(const QStringList& executables, const ApplicationList& installed);

    // The installed application that runs this executable: the same path,
    // else the same file name, else a desktop id named after it
    // ("org.gnome.gedit.desktop" for gedit); null when none does.
    static const ApplicationEntry* findInstalled(const QString& executable, const ApplicationList& installed);
};
