#include "instancecheck.h"
#include "testmain.h"

#include <QProcess>
#include <QStandardPaths>

#include <cstring>
#include <unistd.h>

namespace {

// Started with this argument, the test binary only waits: a second process
// with the same image name as the test itself.
int sleepHelper(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--sleep-helper") == 0) {
        ::sleep(120);
        return 0;
    }
    return -1;
}

bool startHelper(QProcess* process, const QString& program, const QStringList& prefix = {})
{
    const QStringList arguments = prefix + QStringList{program, QStringLiteral("--sleep-helper")};
    process->start(arguments.first(), arguments.mid(1));
    return process->waitForStarted(30000);
}

} // namespace

class InstanceCheckTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldKnowItsOwnImageName()
    {
        QCOMPARE(ownImageBaseName(), QStringLiteral("tst_instancecheck"));
        QCOMPARE(processImageBaseName(QCoreApplication::applicationPid()), ownImageBaseName());
        QCOMPARE(processImageBaseName(999999999), QString());
    }

    void shouldSeeAnotherProcessOfTheSameProgram()
    {
        QVERIFY(!isAnotherInstanceRunning(ownImageBaseName()));
        QProcess second;
        QVERIFY(startHelper(&second, QCoreApplication::applicationFilePath()));
        QVERIFY(isAnotherInstanceRunning(ownImageBaseName()));
        second.kill();
        QVERIFY(second.waitForFinished(30000));
        QVERIFY(!isAnotherInstanceRunning(ownImageBaseName()));
    }

    void shouldIgnoreTheExtensionAndAReplacedBinary()
    {
        // "name.bin" counts as "name", and a binary deleted while it runs
        // (a rebuild or upgrade) still counts as the same program.
        QTemporaryDir dir;
        const QString copy = dir.path() + QStringLiteral("/ks_probe.bin");
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), copy));
        QVERIFY(QFile::setPermissions(copy, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
        QProcess first;
        QProcess second;
        QVERIFY(startHelper(&first, copy));
        QVERIFY(!isAnotherInstanceRunning(QStringLiteral("ks_probe")));
        QVERIFY(QFile::remove(copy));
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), copy));
        QVERIFY(QFile::setPermissions(copy, QFile::ReadOwner | QFile::ExeOwner));
        QVERIFY(startHelper(&second, copy));
        QCOMPARE(processImageBaseName(first.processId()), QStringLiteral("ks_probe"));
        QVERIFY(isAnotherInstanceRunning(QStringLiteral("ks_probe")));
        first.kill();
        second.kill();
        QVERIFY(first.waitForFinished(30000));
        QVERIFY(second.waitForFinished(30000));
    }

    void shouldNotCountProcessesOfOtherUsers()
    {
        const QString setpriv = QStandardPaths::findExecutable(QStringLiteral("setpriv"));
        if (::getuid() != 0 || setpriv.isEmpty())
            QSKIP("needs root and setpriv to start a process as another user");
        QTemporaryDir dir;
        QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther |
                                              QFile::ExeOther);
        const QString copy = dir.path() + QStringLiteral("/ks_other_user");
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), copy));
        QVERIFY(QFile::setPermissions(copy, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));

        QProcess foreign;
        QVERIFY(startHelper(&foreign, copy,
                            {setpriv, QStringLiteral("--reuid=nobody"), QStringLiteral("--regid=nogroup"),
                             QStringLiteral("--clear-groups")}));
        QProcess own;
        QVERIFY(startHelper(&own, copy));
        // setpriv replaces itself with the program once it has changed user.
        QTRY_COMPARE_WITH_TIMEOUT(processImageBaseName(foreign.processId()), QStringLiteral("ks_other_user"), 30000);
        QVERIFY(!isAnotherInstanceRunning(QStringLiteral("ks_other_user")));
        foreign.kill();
        own.kill();
        foreign.waitForFinished(30000);
        own.waitForFinished(30000);
    }

    void shouldCountNothingForAnEmptyName() { QVERIFY(!isAnotherInstanceRunning(QString())); }
};

KEYSTAGE_TEST_MAIN_WITH(InstanceCheckTest, sleepHelper)
#include "tst_instancecheck.moc"
