#include "log.h"

#include "logging.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QStandardPaths>
#include <QTextStream>

Log::Log(QObject* parent) : QObject(parent)
{
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_hhmmss"));
    const QString directory = logDirectory();
    const QString path = directory + QLatin1Char('/') + stamp + QStringLiteral(".txt");

    QDir dir(directory);
    if (!dir.exists())
        dir.mkpath(QStringLiteral("."));

    m_file.setFileName(path);
    // These two lines are logged while the main window is still being built,
    // so they reach the debug output only: the file's first entry is always
    // the main window's own.
    if (m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text))
        LOG_MSG(QStringLiteral("Log file %1 created successfully.").arg(path));
    else
        LOG_MSG(QStringLiteral("Unable to create log file %1.").arg(path));

    pruneOldFiles(directory);
}

Log::~Log() = default;

QString Log::logDirectory()
{
    const QStringList locations = QStandardPaths::standardLocations(QStandardPaths::AppDataLocation);
    const QString base = locations.isEmpty() ? QString() : locations.first();
    return base + QStringLiteral("/LOGS");
}

void Log::pruneOldFiles(const QString& directory)
{
    const QStringList names = QDir(directory).entryList(QDir::Files, QDir::Name);
    const int excess = names.size() - MaxLogFiles;
    for (int i = 0; i < excess; ++i) {
        // "lines" is historical wording: the limit counts files.
        LOG_MSG(QStringLiteral("Exceeded maximum number of logged lines (%1) removing log file %2")
                    .arg(MaxLogFiles)
                    .arg(names.at(i)));
        QFile::remove(directory + QLatin1Char('/') + names.at(i));
    }
}

void Log::logMsg(const QString& record)
{
    QMutexLocker locker(&m_mutex);
    if (!m_file.isOpen()) {
        qDebug().noquote() << "Log::logMsg"
                           << "Error: Log file hasn't been opened yet: " << record;
        return;
    }
    QTextStream stream(&m_file);
    stream.setCodec("UTF-8");
    stream.seek(m_file.size());
    stream << QString::number(QDateTime::currentMSecsSinceEpoch()) << QStringLiteral(": ") << record << '\n';
    stream.flush();
    m_file.flush();
    qDebug().noquote() << "LOGMSG" << record;
}

bool Log::isOpen() const
{
    return m_file.isOpen();
}

QString Log::filePath() const
{
    return m_file.fileName();
}
