#pragma once

#include "keystageversion.h"
#include "testenvironment.h"

#include <QApplication>
#include <QThread>
#include <QtTest>

#ifdef KEYSTAGE_TSAN
#include "tsanqt.h"
using KeystageTestApplication = TsanApplication;
#else
using KeystageTestApplication = QApplication;
#endif

// Under the leak checker: animations that Qt starts by itself (a line edit's
// clear button fading in) delete themselves only when they end, which they
// never do once the last test has run and the event loop is gone.
inline void letQtAnimationsEnd()
{
#ifdef __SANITIZE_ADDRESS__
    QTest::qWait(500);
#endif
}

// Test entry with the program's identity and isolated user directories.
// KEYSTAGE_TEST_MAIN_WITH(TestClass, hook): hook(argc, argv) runs first and
// may return an exit code (>= 0) to act as a helper process instead.
#define KEYSTAGE_TEST_MAIN_WITH(TestObject, hook)                                                                      \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        const int hookResult = hook(argc, argv);                                                                       \
        if (hookResult >= 0)                                                                                           \
            return hookResult;                                                                                         \
        TestEnvironment environment;                                                                                   \
        setTestEnvironment(&environment);                                                                              \
        QCoreApplication::setOrganizationName(QStringLiteral("Vantorix"));                                             \
        QCoreApplication::setApplicationName(QStringLiteral("Keystage"));                                              \
        QCoreApplication::setApplicationVersion(QStringLiteral(KEYSTAGE_VERSION));                                     \
        KeystageTestApplication app(argc, argv);                                                                       \
        QThread::currentThread()->setObjectName(QStringLiteral("UI Thread"));                                          \
        TestObject test;                                                                                               \
        QTEST_SET_MAIN_SOURCE_PATH                                                                                     \
        const int failures = QTest::qExec(&test, argc, argv);                                                          \
        letQtAnimationsEnd();                                                                                          \
        return failures;                                                                                               \
    }

inline int noTestHook(int, char**)
{
    return -1;
}

#define KEYSTAGE_TEST_MAIN(TestObject) KEYSTAGE_TEST_MAIN_WITH(TestObject, noTestHook)
