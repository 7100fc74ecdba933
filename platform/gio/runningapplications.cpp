#include "runningapplications.h"

#include "desktopexec.h"

#include <QFileInfo>

#include <functional>

namespace {

QString canonical(const QString& path)
{
    const QString resolved = QFileInfo(path).canonicalFilePath();
    return resolved.isEmpty() ? path : resolved;
}

// "org.gnome.gedit.desktop" -> "gedit"
QString desktopIdStem(const QString& desktopId)
{
    QString stem = desktopId;
    if (stem.endsWith(QLatin1String(".desktop")))
        stem.chop(8);
    return stem.mid(stem.lastIndexOf(QLatin1Char('.')) + 1);
}

const ApplicationEntry* findBy(const ApplicationList& installed,
                               const std::function<bool(const ApplicationEntry&)>& test)
{
    for (const ApplicationEntry& entry : installed) {
        if (test(entry))
            return &entry;
    }
    return nullptr;
}

} // namespace

const ApplicationEntry* RunningApplications::findInstalled(const QString& executable, const ApplicationList& installed)
{
    const QString path = canonical(executable);
    const QString fileName = QFileInfo(executable).fileName();
    if (fileName.isEmpty())
        return nullptr;
    if (const ApplicationEntry* same = findBy(installed, [&](const ApplicationEntry& entry) {
            return entry.executable.startsWith(QLatin1Char('/')) && canonical(entry.executable) == path;
        }))
        return same;
    if (const ApplicationEntry* sameName = findBy(installed, [&](const ApplicationEntry& entry) {
            return QFileInfo(entry.executable).fileName() == fileName;
        }))
        return sameName;
    return findBy(installed, [&](const ApplicationEntry& entry) {
        return desktopIdStem(entry.desktopId).compare(fileName, Qt::CaseInsensitive) == 0;
    });
}

ApplicationList RunningApplications::describe(const QStringList& executables, const ApplicationList& installed)
{
    ApplicationList running;
    for (const QString& executable : executables) {
        ApplicationEntry entry;
        if (const ApplicationEntry* match = findInstalled(executable, installed)) {
            entry = *match;
        } else {
            entry.name = QFileInfo(executable).fileName();
            entry.commandLine = DesktopExec::quoteArgument(executable);
            // Many programs install an icon under their own name.
            entry.iconName = entry.name;
        }
        entry.executable = executable;
        running.append(entry);
    }
    return running;
}
