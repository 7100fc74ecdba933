#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

// Finds programs on PATH as a shell would, for many names at once: each PATH
// directory is listed once instead of probing every directory for every
// name, which costs a system call per probe.
class ProgramLocator
{
public:
    // The PATH of the environment.
    ProgramLocator();
    explicit ProgramLocator(const QStringList& directories);

    // The absolute path of the program in the first directory that has it as
    // an executable file; empty when none has. A name with a slash is taken
    // as it is.
    QString find(const QString& name);

private:
    const QSet<QString>& entries(int directory);

    QStringList m_directories;
    QHash<int, QSet<QString>> m_entries;
};
