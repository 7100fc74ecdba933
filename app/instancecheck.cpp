#include "instancecheck.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace {

QString imageBaseName(QString exePath)
{
    // A binary replaced while running (a rebuild, a package upgrade) reads
    // back with this mark; it is still the same program.
    const QLatin1String deleted(" (deleted)");
    if (exePath.endsWith(deleted))
        exePath.chop(deleted.size());
    return QFileInfo(exePath).baseName();
}

bool ownedByCurrentUser(const QString& procEntry)
{
    struct stat info;
    if (::stat(QFile::encodeName(procEntry).constData(), &info) != 0)
        return false;
    return info.st_uid == ::getuid();
}

} // namespace

QString ownImageBaseName()
{
    return imageBaseName(QFile::symLinkTarget(QStringLiteral("/proc/self/exe")));
}

QString processImageBaseName(qint64 pid)
{
    const QString target = QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(pid));
    return target.isEmpty() ? QString() : imageBaseName(target);
}

bool isAnotherInstanceRunning(const QString& imageBaseName)
{
    if (imageBaseName.isEmpty())
        return false;
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    int matches = 0;
    for (const QString& entry : entries) {
        bool isPid = false;
        const qint64 pid = entry.toLongLong(&isPid);
        if (!isPid || !ownedByCurrentUser(QStringLiteral("/proc/") + entry))
            continue;
        if (processImageBaseName(pid) == imageBaseName)
            ++matches;
    }
    return matches >= 2;
}

bool mustQuitForOtherInstance(bool waitForOther, const std::function<bool()>& otherRunning,
                              const std::function<void()>& sleepBetweenChecks)
{
    while (otherRunning()) {
        if (!waitForOther)
            return true;
        qDebug().noquote() << "Wait another instance terminate.";
        sleepBetweenChecks();
    }
    return false;
}
