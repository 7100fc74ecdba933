#pragma once

#include <QIcon>
#include <QString>
#include <QVector>

// One application a key can start or a folder can follow: an installed one
// (from its desktop entry) or a running one (from its window's process).
struct ApplicationEntry
{
    // In the user's language, as the desktop's menus show it.
    QString name;
    // A command line that starts it, without the desktop entry's field codes,
    // in the quoting the launch action reads.
    QString commandLine;
    // The program's absolute path where it could be found, else its name.
    QString executable;
    // A theme icon name, or the path of an icon file; either may be empty.
    QString iconName;
    QString iconPath;
    // "org.gnome.TextEditor.desktop"; empty for a running program that
    // matches no installed application.
    QString desktopId;
    QString description;

    // Call on the GUI thread: icon themes are not thread-safe.
    QIcon icon() const;
};

using ApplicationList = QVector<ApplicationEntry>;
