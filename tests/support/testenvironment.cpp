#include "testenvironment.h"

#include <QDir>
#include <QFile>

namespace {
TestEnvironment* current = nullptr;

QString makeDirectory(const QString& path, QFile::Permissions permissions)
{
    QDir().mkpath(path);
    QFile::setPermissions(path, permissions);
    return path;
}
} // namespace

TestEnvironment::TestEnvironment() : m_root(QDir::tempPath() + QStringLiteral("/keystage-test-XXXXXX"))
{
    const QFile::Permissions privateDir = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    const QFile::Permissions normalDir = privateDir | QFile::ReadGroup | QFile::ExeGroup;
    qputenv("HOME", QFile::encodeName(makeDirectory(root() + QStringLiteral("/home"), normalDir)));
    qputenv("XDG_DATA_HOME", QFile::encodeName(makeDirectory(dataHome(), normalDir)));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(makeDirectory(configHome(), normalDir)));
    qputenv("XDG_CACHE_HOME", QFile::encodeName(makeDirectory(root() + QStringLiteral("/cache"), normalDir)));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(makeDirectory(runtimeDir(), privateDir)));
}

QString TestEnvironment::root() const
{
    return m_root.path();
}

QString TestEnvironment::dataHome() const
{
    return root() + QStringLiteral("/data");
}

QString TestEnvironment::configHome() const
{
    return root() + QStringLiteral("/config");
}

QString TestEnvironment::runtimeDir() const
{
    return root() + QStringLiteral("/runtime");
}

QString TestEnvironment::logDirectory() const
{
    return dataHome() + QStringLiteral("/Vantorix/Keystage/LOGS");
}

TestEnvironment* testEnvironment()
{
    return current;
}

void setTestEnvironment(TestEnvironment* environment)
{
    current = environment;
}
