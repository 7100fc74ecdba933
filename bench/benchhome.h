#pragma once

#include <QCoreApplication>
#include <QTemporaryDir>

// Benchmarks keep settings and logs in a scratch folder, never the user's.
inline void useScratchHome(const QTemporaryDir& home)
{
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toUtf8());
}

// No window shows unless the caller chose a platform; before the application object.
inline void preferOffscreen()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

// The names under which the program finds its settings and log folder.
inline void nameAsProgram()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Vantorix"));
    QCoreApplication::setApplicationName(QStringLiteral("Keystage"));
}
