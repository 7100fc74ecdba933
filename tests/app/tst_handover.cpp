// The single-instance rule and the hand-over with real processes of the built
// program. Each test runs a private copy of the program under a name of its
// own, so nothing else on the machine counts as an instance.
#include "ipctoken.h"
#include "testfiles.h"
#include "testmain.h"

#include <QDir>
#include <QProcess>

#include <csignal>

namespace {

constexpr int Patience = 60000; // an upper bound on a loaded machine, not an expectation

QString newestLogText()
{
    const QDir dir(testEnvironment()->logDirectory());
    const QStringList names = dir.entryList(QDir::Files, QDir::Name);
    QString text;
    // Concatenate all: two starts in the same second share one file name.
    for (const QString& name : names) {
        QFile file(dir.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            text += QString::fromUtf8(file.readAll());
    }
    return text;
}

} // namespace

class HandoverTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        m_program = m_dir.path() + QStringLiteral("/ks_handover");
        QVERIFY(QFile::copy(QStringLiteral(KEYSTAGE_EXECUTABLE), m_program));
        QVERIFY(QFile::setPermissions(m_program, QFile::ReadOwner | QFile::ExeOwner));
    }

    void init()
    {
        QDir(testEnvironment()->logDirectory()).removeRecursively();
        QDir(settingsDirectory()).removeRecursively();
        QFile::remove(ipcTokenPath(TokenBringToFront));
        QFile::remove(ipcTokenPath(TokenOpenFile));
    }

    void cleanup()
    {
        for (QProcess* process : {&m_first, &m_second}) {
            if (process->state() != QProcess::NotRunning) {
                process->kill();
                process->waitForFinished(Patience);
            }
        }
    }

    void shouldBringTheRunningInstanceToFrontAndExitWithMinusOne()
    {
        startFirst();
        QProcess second;
        second.start(m_program, QStringList());
        QVERIFY(second.waitForFinished(Patience));
        QCOMPARE(second.exitStatus(), QProcess::NormalExit);
        QCOMPARE(second.exitCode(), 255);
        QVERIFY(second.readAllStandardError().contains("Not allow multip application instance, bring app to front."));
        QTRY_VERIFY_WITH_TIMEOUT(newestLogText().contains(QStringLiteral("\tbring window to front\n")), Patience);
        QCOMPARE(m_first.state(), QProcess::Running);
    }

    void shouldHandTheFileToOpenToTheRunningInstance()
    {
        startFirst();
        QTemporaryDir dir;
        const QString file = dir.path() + QStringLiteral("/Mein Layöut.kslayout");
        QFile(file).open(QIODevice::WriteOnly);
        // A relative path, as typed in a terminal somewhere else.
        QProcess second;
        second.setWorkingDirectory(dir.path());
        second.start(m_program, {QStringLiteral("--openFile"), QStringLiteral("Mein Layöut.kslayout")});
        QVERIFY(second.waitForFinished(Patience));
        QCOMPARE(second.exitCode(), 255);
        QTRY_VERIFY_WITH_TIMEOUT(newestLogText().contains(QStringLiteral("\topen extension file: ") +
                                                          QFileInfo(file).canonicalFilePath() + QLatin1Char('\n')),
                                 Patience);
    }

    void shouldActOnTokensLeftBehindInItsFirstPassInOrder()
    {
        // As left by a process that crashed after writing them.
        QTemporaryDir dir;
        const QString file = dir.path() + QStringLiteral("/left.kslayout");
        QFile(file).open(QIODevice::WriteOnly);
        QVERIFY(sendIpcToken(TokenOpenFile, file));
        QVERIFY(sendIpcToken(TokenBringToFront));
        startFirst();
        QTRY_VERIFY_WITH_TIMEOUT(newestLogText().contains(QStringLiteral("\topen extension file: ")), Patience);
        const QString text = newestLogText();
        const int front = text.indexOf(QStringLiteral("\tbring window to front\n"));
        const int open = text.indexOf(QStringLiteral("\topen extension file: ") + file);
        QVERIFY2(front >= 0, qPrintable(text));
        QVERIFY2(open > front, qPrintable(text));
        QVERIFY(!QFile::exists(ipcTokenPath(TokenBringToFront)));
        QVERIFY(!QFile::exists(ipcTokenPath(TokenOpenFile)));
    }

    void shouldOpenTheFileItselfWhenNoOtherInstanceRuns()
    {
        QTemporaryDir dir;
        const QString file = dir.path() + QStringLiteral("/alone.kslayout");
        QFile(file).open(QIODevice::WriteOnly);
        startFirst({QStringLiteral("--openFile"), file});
        QTRY_VERIFY_WITH_TIMEOUT(newestLogText().contains(QStringLiteral("\topen extension file: ") + file), Patience);
    }

    void shouldWaitForThePreviousInstanceToEnd()
    {
        startFirst();
        QByteArray& secondOutput = m_secondOutput;
        connect(&m_second, &QProcess::readyReadStandardError, this,
                [this] { m_secondOutput += m_second.readAllStandardError(); });
        m_second.start(m_program, {QStringLiteral("--waitInst")});
        QVERIFY(m_second.waitForStarted(Patience));
        QTRY_VERIFY_WITH_TIMEOUT(secondOutput.count("Wait another instance terminate.") >= 2, Patience);
        QVERIFY(!secondOutput.contains("IPC_Thread::run"));

        // A termination signal quits the first one cleanly.
        ::kill(pid_t(m_first.processId()), SIGTERM);
        QVERIFY(m_first.waitForFinished(Patience));
        QCOMPARE(m_first.exitStatus(), QProcess::NormalExit);
        QCOMPARE(m_first.exitCode(), 0);
        QVERIFY(newestLogText().contains(QStringLiteral("\tquit requested\n")));

        // Then the waiting one starts for real: its hand-over thread runs.
        QTRY_VERIFY_WITH_TIMEOUT(secondOutput.contains("IPC_Thread::run"), Patience);
        QCOMPARE(m_second.state(), QProcess::Running);
    }

    // The start-up message about damaged settings waits for the user; a
    // termination signal meanwhile ends the program the way Quit does.
    void shouldQuitCleanlyOnATerminationSignalWhileTheDamagedSettingsMessageIsOpen()
    {
        QVERIFY(QDir().mkpath(settingsDirectory()));
        QVERIFY(TestFiles::write(settingsDirectory() + QStringLiteral("/Keystage.conf"), "[General]\ninst=damaged\n"));
        m_first.start(m_program, QStringList());
        QVERIFY(m_first.waitForStarted(Patience));
        QTRY_VERIFY_WITH_TIMEOUT(
            newestLogText().contains(QStringLiteral("\ttelling the user: Your settings were damaged")), Patience);

        ::kill(pid_t(m_first.processId()), SIGTERM);
        QVERIFY(m_first.waitForFinished(Patience));
        QCOMPARE(m_first.exitStatus(), QProcess::NormalExit);
        QCOMPARE(m_first.exitCode(), 0);
        const QString log = newestLogText();
        QVERIFY2(log.contains(QStringLiteral("\tquit requested\n")), qPrintable(log));
        QVERIFY2(log.contains(QStringLiteral("\tmain window closed\n")), qPrintable(log));
    }

private:
    static QString settingsDirectory() { return testEnvironment()->configHome() + QStringLiteral("/Vantorix"); }

    void startFirst(const QStringList& arguments = {})
    {
        m_first.setProcessChannelMode(QProcess::SeparateChannels);
        m_first.start(m_program, arguments);
        QVERIFY(m_first.waitForStarted(Patience));
        // Up once its hand-over thread polls.
        QTRY_VERIFY_WITH_TIMEOUT(newestLogText().contains(QStringLiteral(",ipc_thread\n\tstart\n")), Patience);
    }

    QTemporaryDir m_dir;
    QString m_program;
    QProcess m_first;
    QProcess m_second;
    QByteArray m_secondOutput;
};

KEYSTAGE_TEST_MAIN(HandoverTest)
#include "tst_handover.moc"
