#pragma once

#include <QCoreApplication>
#include <QDateTime>
#include <QString>
#include <QStringList>

class Settings;

// "Back up everything": the keys of every layout, each as a .kslayout file,
// and My Favorite as a .ksfavorites file, in a new folder named for the
// time, inside a folder the user picked. Every file can be imported again
// on its own. Nothing half-written stays behind on failure.
class ConfigurationBackup
{
    Q_DECLARE_TR_FUNCTIONS(ConfigurationBackup)

public:
    struct Result
    {
        bool ok = false;
        // The new folder, and the files in it.
        QString folder;
        QStringList files;
        // For the user, translated; empty on success.
        QString error;
    };

    static Result write(const Settings& store, const QString& parentFolder,
                        const QDateTime& when = QDateTime::currentDateTime());

    // "Keystage backup 2026-11-23 14-05"
    static QString folderName(const QDateTime& when);
    // "Layout 15 keys vertical.kslayout"
    static QString layoutFileName(int layout);
    static QString favoritesFileName();
};
