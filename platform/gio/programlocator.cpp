#include "programlocator.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

ProgramLocator::ProgramLocator()
    : ProgramLocator(QString::fromLocal8Bit(qgetenv("PATH")).split(QLatin1Char(':'), Qt::SkipEmptyParts))
{
}

ProgramLocator::ProgramLocator(const QStringList& directories) : m_directories(directories) {}

const QSet<QString>& ProgramLocator::entries(int directory)
{
    auto found = m_entries.find(directory);
    if (found == m_entries.end()) {
        // Names only: the one candidate a lookup finds is checked on its own.
        QSet<QString> names;
        QDirIterator it(m_directories[directory], QDir::AllEntries | QDir::System | QDir::Hidden);
        while (it.hasNext()) {
            it.next();
            names.insert(it.fileName());
        }
        found = m_entries.insert(directory, names);
    }
    return *found;
}

QString ProgramLocator::find(const QString& name)
{
    if (name.isEmpty())
        return QString();
    if (name.contains(QLatin1Char('/')))
        return name;
    for (int i = 0; i < m_directories.size(); ++i) {
        if (!entries(i).contains(name))
            continue;
        const QFileInfo candidate(QDir(m_directories[i]).absoluteFilePath(name));
        if (candidate.isFile() && candidate.isExecutable())
            return candidate.absoluteFilePath();
    }
    return QString();
}
