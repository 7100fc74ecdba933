#include "ka_execute.h"
#include "keyitem.h"
#include "logcapture.h"
#include "recordingactionservices.h"
#include "testmain.h"

#include <QStandardPaths>
#include <QTemporaryDir>

// Launch and website keys: how a command is taken apart and what is started
// or opened for it.
class TestKAExecute : public QObject
{
    Q_OBJECT

private slots:
    void shouldSplitTheProgramFromItsArguments_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("rest");
        // clang-format off
        QTest::newRow("quoted program") << "\"/opt/my app/run\" --x \"a b\"" << "/opt/my app/run" << "--x \"a b\"";
        QTest::newRow("plain program")  << "/usr/bin/env FOO=1  tool "       << "/usr/bin/env"    << "FOO=1  tool";
        QTest::newRow("program alone")  << "  gimp  "                        << "gimp"            << "";
        QTest::newRow("unclosed quote") << "\"/opt/x y"                      << "/opt/x y"        << "";
        QTest::newRow("tab")            << "prog\t-v"                        << "prog"            << "-v";
        // clang-format on
    }

    void shouldSplitTheProgramFromItsArguments()
    {
        QFETCH(QString, command);
        QFETCH(QString, program);
        QFETCH(QString, rest);
        const CommandLine parts = splitCommandLine(command);
        QCOMPARE(parts.program, program);
        QCOMPARE(parts.rest, rest);
    }

    void shouldStartAProgramInItsOwnDirectoryWithItsArguments()
    {
        const QString program = makeFile(QStringLiteral("run tool"), true);
        executeCmd(QStringLiteral("\"%1\" --flag \"two words\" plain").arg(program));
        QCOMPARE(services.calls(),
                 QStringList{QStringLiteral("start %1 [--flag, two words, plain] in %2").arg(program, dir.path())});
    }

    void shouldOpenDocumentsAndFoldersWithTheDesktop()
    {
        const QString document = makeFile(QStringLiteral("notes file.txt"), false);
        executeCmd(document); // a path with a blank, unquoted
        executeCmd(dir.path());
        QCOMPARE(services.calls(),
                 (QStringList{QStringLiteral("open file://") + document, QStringLiteral("open file://") + dir.path()}));
    }

    void shouldOpenAProgramThatWillNotStart()
    {
        const QString program = makeFile(QStringLiteral("broken"), true);
        services.startSucceeds = false;
        executeCmd(program);
        QCOMPARE(services.calls().last(), QStringLiteral("open file://") + program);
    }

    void shouldFindAProgramOnThePath()
    {
        const QString shell = QStandardPaths::findExecutable(QStringLiteral("sh"));
        if (shell.isEmpty())
            QSKIP("no sh on PATH");
        executeCmd(QStringLiteral("sh -c true"));
        QCOMPARE(services.calls().value(0),
                 QStringLiteral("start %1 [-c, true] in %2").arg(shell, QFileInfo(shell).absolutePath()));
    }

    void shouldOpenWebsites_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("opened");
        // clang-format off
        QTest::newRow("bare host")         << "example.org"                << "http://example.org";
        QTest::newRow("with scheme")       << "https://example.org/a?b=c"  << "https://example.org/a?b=c";
        QTest::newRow("host and port")     << "localhost:8080"             << "http://localhost:8080";
        QTest::newRow("mail")              << "mailto:someone@example.org" << "mailto:someone@example.org";
        QTest::newRow("colon in the path") << "example.org/a:b"            << "http://example.org/a:b";
        // clang-format on
    }

    void shouldOpenWebsites()
    {
        QFETCH(QString, text);
        QFETCH(QString, opened);
        LogCapture capture;
        executeCmd(text);
        QCOMPARE(services.calls(), QStringList{QStringLiteral("open ") + opened});
        QCOMPARE(capture.matching(QStringLiteral("execute: ") + text).size(), 1);
    }

    void shouldHandTheWorkToTheTaskThread()
    {
        KeyItem item(KAT_OPEN_WEBSITE, 0, 2);
        static_cast<KA_Execute*>(item.action[0])->path = QStringLiteral("example.org");
        QVERIFY(item.action[0]->doAction(0));
        QCOMPARE(services.calls(), (QStringList{"task executeCmd", "open http://example.org"}));
    }

    void cleanup() { services.clear(); }

private:
    QString makeFile(const QString& name, bool executable)
    {
        const QString path = dir.filePath(name);
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write("#!/bin/sh\n");
        file.close();
        if (executable)
            file.setPermissions(file.permissions() | QFile::ExeOwner);
        return path;
    }

    QTemporaryDir dir;
    RecordingActionServices services;
};

KEYSTAGE_TEST_MAIN(TestKAExecute)
#include "tst_ka_execute.moc"
