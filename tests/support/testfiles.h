#pragma once

// Whole-file reads and writes for tests.

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace TestFiles {

// The file's bytes; empty when it cannot be read.
inline QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Replaces the file, making its directory first; false when any of it fails.
inline bool write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           file.write(bytes) == bytes.size();
}

} // namespace TestFiles
