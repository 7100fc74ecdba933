#pragma once

#include <QString>
#include <QTemporaryDir>

// Points HOME and the XDG directories at a fresh temporary tree for the whole
// test process (and the programs it starts), so tests never see or touch the
// user's own configuration, logs or runtime files. Create it before the
// application object.
class TestEnvironment
{
public:
    TestEnvironment();

    QString root() const;
    QString dataHome() const;
    QString configHome() const;
    QString runtimeDir() const;
    // The log directory the program uses under this environment.
    QString logDirectory() const;

private:
    QTemporaryDir m_root;
};

// The process-wide environment made by KEYSTAGE_TEST_MAIN.
TestEnvironment* testEnvironment();
void setTestEnvironment(TestEnvironment* environment);
