#pragma once

#include <QString>
#include <QStringList>

class ProgramLocator;

// The Exec line of a desktop entry turned into what a key stores: a command
// line without field codes, and the program it runs.
class DesktopExec
{
public:
    // The Exec value as GIO gives it (the key file's own escapes undone).
    // A line that does not parse yields no arguments.
    explicit DesktopExec(const QString& exec);

    bool isValid() const { return !m_arguments.isEmpty(); }
    // The arguments with every field code removed (%% stays as %), those
    // that held only field codes dropped, and Flatpak's empty file
    // forwarding markers ("@@u @@") dropped with them.
    QStringList arguments() const { return m_arguments; }
    // The arguments quoted for the launch action: a program with blanks in
    // double quotes, arguments as QProcess::splitCommand reads them.
    QString commandLine() const;
    // The program that runs, past an "env NAME=value" prefix, resolved on
    // PATH to an absolute path where it can be found.
    QString executable(ProgramLocator& locator) const;

    static QString removeFieldCodes(const QString& argument);
    static QString quoteArgument(const QString& argument);

private:
    QStringList m_arguments;
};
