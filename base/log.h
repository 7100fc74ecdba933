#pragma once

#include <QFile>
#include <QMutex>
#include <QObject>
#include <QString>

// Writes one file per run into the application data directory and keeps the
// newest files only. Every thread logs through the one instance owned by the
// main window; the mutex keeps entries whole.
class Log : public QObject
{
    Q_OBJECT
public:
    static constexpr int MaxLogFiles = 20;

    explicit Log(QObject* parent = nullptr);
    ~Log() override;

    void logMsg(const QString& record);

    bool isOpen() const;
    QString filePath() const;
    static QString logDirectory();

private:
    void pruneOldFiles(const QString& directory);

    QMutex m_mutex;
    QFile m_file;
};
