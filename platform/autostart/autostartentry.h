#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Whether the desktop starts the program when the user logs in: the XDG
// autostart entry $XDG_CONFIG_HOME/autostart/keystage.desktop (~/.config by
// default), which starts the program in the tray ("--runinbk").
//
// An entry of the same name in a system-wide autostart folder
// ($XDG_CONFIG_DIRS, /etc/xdg by default) counts too; the user's own file
// overrides it, so turning autostart off then writes a file with
// Hidden=true instead of removing one. Hidden=true and
// X-GNOME-Autostart-enabled=false both mean off.
class AutostartEntry
{
public:
    static constexpr char FileName[] = "keystage.desktop";

    // The program started at login; empty: defaultProgram().
    explicit AutostartEntry(const QString& program = QString());

    QString program() const;
    // The user's entry (which may not exist).
    QString filePath() const;
    // What the desktop will do at the next login, read from the files.
    bool isEnabled() const;
    // Writes or removes the entry. False, with the reason, when the file
    // could not be written or removed.
    bool setEnabled(bool enabled, QString* error = nullptr);

    // The installed program when there is one, else the running one.
    static QString defaultProgram();
    // The user's autostart folder and the system-wide ones, most important first.
    static QString userDirectory();
    static QStringList systemDirectories();
    // The file's text: a desktop entry that runs the program with "--runinbk".
    static QByteArray desktopEntry(const QString& program);
    // One argument of an Exec line, quoted and escaped as desktop entries need.
    static QString execArgument(const QString& argument);
    // Whether an entry's text asks to be started: not Hidden, not disabled.
    static bool entryStartsProgram(const QByteArray& text);

private:
    QString systemEntry() const;

    QString m_program;
};
