#include "instancecheck.h"
#include "logcapture.h"
#include "startup.h"
#include "startupflags.h"
#include "testmain.h"

using Flags = std::array<bool, StartupFlagCount>;
Q_DECLARE_METATYPE(Flags)

class StartupFlagsTest : public QObject
{
    Q_OBJECT

private slots:
    // The user's own choice stands; ours lasts only while Qt starts.
    void shouldSwitchOffOpenGlOnlyUnlessTheUserChose_data()
    {
        QTest::addColumn<QByteArray>("userValue"); // null: not set
        QTest::addColumn<QByteArray>("whileStarting");
        QTest::newRow("not set") << QByteArray() << QByteArray("none");
        QTest::newRow("user wants GLX") << QByteArray("xcb_glx") << QByteArray("xcb_glx");
        QTest::newRow("set but empty") << QByteArray("") << QByteArray("");
    }

    void shouldSwitchOffOpenGlOnlyUnlessTheUserChose()
    {
        QFETCH(QByteArray, userValue);
        QFETCH(QByteArray, whileStarting);
        const QByteArray saved = qgetenv("QT_XCB_GL_INTEGRATION");
        const bool wasSet = qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION");
        if (userValue.isNull())
            qunsetenv("QT_XCB_GL_INTEGRATION");
        else
            qputenv("QT_XCB_GL_INTEGRATION", userValue);

        const bool switchedOff = Startup::switchOffOpenGl();
        const bool setWhileStarting = qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION");
        const QByteArray valueWhileStarting = qgetenv("QT_XCB_GL_INTEGRATION");
        Startup::forgetOpenGlSwitch(switchedOff);
        const bool setAfter = qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION");
        const QByteArray valueAfter = qgetenv("QT_XCB_GL_INTEGRATION");
        if (wasSet)
            qputenv("QT_XCB_GL_INTEGRATION", saved);
        else
            qunsetenv("QT_XCB_GL_INTEGRATION");

        QVERIFY(setWhileStarting);
        QCOMPARE(valueWhileStarting, whileStarting);
        QCOMPARE(setAfter, !userValue.isNull());
        QCOMPARE(valueAfter, userValue.isNull() ? QByteArray() : userValue);
    }

    void shouldExamineOnlyTheFirstArgument_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<Flags>("expected");
        QTest::addColumn<QString>("path");
        const Flags none{};
        Flags background{};
        background[RunInBackground] = true;
        Flags wait{};
        wait[WaitInstance] = true;
        Flags open{};
        open[OpenFile] = true;

        QTest::newRow("no arguments") << QStringList{"keystage"} << none << QString();
        QTest::newRow("runinbk") << QStringList{"keystage", "--runinbk"} << background << QString();
        QTest::newRow("waitInst") << QStringList{"keystage", "--waitInst"} << wait << QString();
        QTest::newRow("openFile with path")
            << QStringList{"keystage", "--openFile", "/x/a b.kslayout"} << open << "/x/a b.kslayout";
        QTest::newRow("openFile without path") << QStringList{"keystage", "--openFile"} << none << QString();
        QTest::newRow("case matters") << QStringList{"keystage", "--RunInBk"} << none << QString();
        QTest::newRow("option not first") << QStringList{"keystage", "file.txt", "--runinbk"} << none << QString();
        QTest::newRow("second option ignored")
            << QStringList{"keystage", "--waitInst", "--runinbk"} << wait << QString();
        QTest::newRow("prefix only") << QStringList{"keystage", "--runinbk=1"} << none << QString();
        QTest::newRow("empty first") << QStringList{"keystage", ""} << none << QString();
    }

    void shouldExamineOnlyTheFirstArgument()
    {
        QFETCH(QStringList, arguments);
        QFETCH(Flags, expected);
        QFETCH(QString, path);
        const StartupFlags flags = parseCommandLine(arguments);
        QCOMPARE(flags.flags, expected);
        QCOMPARE(flags.openFilePath, path);
    }

    // A restart from the tray says so in the environment, and only a restart
    // ("--waitInst") listens; the variable never reaches what we start.
    void shouldTakeTheRestartInBackgroundFromTheEnvironment_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("background");
        QTest::newRow("restart from the tray") << "--waitInst" << QByteArray("1") << true;
        QTest::newRow("restart from the window") << "--waitInst" << QByteArray() << false;
        QTest::newRow("other value") << "--waitInst" << QByteArray("yes") << false;
        QTest::newRow("not a restart") << "" << QByteArray("1") << false;
    }

    void shouldTakeTheRestartInBackgroundFromTheEnvironment()
    {
        QFETCH(QString, first);
        QFETCH(QByteArray, value);
        QFETCH(bool, background);
        if (value.isNull())
            qunsetenv(RestartInBackgroundVariable);
        else
            qputenv(RestartInBackgroundVariable, value);
        StartupFlags flags = parseCommandLine({QStringLiteral("keystage"), first});
        takeRestartEnvironment(&flags);
        QCOMPARE(flags[RunInBackground], background);
        QVERIFY(!qEnvironmentVariableIsSet(RestartInBackgroundVariable));
    }

    // Taken out wherever it stands; the first-argument rule applies to the rest.
    void shouldTakeTheVirtualKeypadOptionFromAnywhere_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<bool>("virtualKeypad");
        QTest::addColumn<bool>("background");
        QTest::newRow("before an option") << QStringList{"keystage", "--virtual-keypad", "--runinbk"} << true << true;
        QTest::newRow("after an option") << QStringList{"keystage", "--runinbk", "--virtual-keypad"} << true << true;
        QTest::newRow("case matters") << QStringList{"keystage", "--Virtual-Keypad", "--runinbk"} << false << false;
        QTest::newRow("program name") << QStringList{"--virtual-keypad", "--runinbk"} << false << true;
    }

    void shouldTakeTheVirtualKeypadOptionFromAnywhere()
    {
        QFETCH(QStringList, arguments);
        QFETCH(bool, virtualKeypad);
        QFETCH(bool, background);
        const StartupFlags flags = parseCommandLine(arguments);
        QCOMPARE(flags.virtualKeypad, virtualKeypad);
        QCOMPARE(flags[RunInBackground], background);
        const StartupFlags open = parseCommandLine({"keystage", "--openFile", "--virtual-keypad", "a.kslayout"});
        QVERIFY(open.virtualKeypad && open[OpenFile]);
        QCOMPARE(open.openFilePath, QStringLiteral("a.kslayout"));
    }

    void shouldQuitAtOnceWhenAnotherInstanceRunsAndNoWaitIsAsked()
    {
        int sleeps = 0;
        QVERIFY(mustQuitForOtherInstance(
            false, [] { return true; }, [&sleeps] { ++sleeps; }));
        QCOMPARE(sleeps, 0);
        QVERIFY(!mustQuitForOtherInstance(
            false, [] { return false; }, [&sleeps] { ++sleeps; }));
    }

    void shouldWaitWithoutBoundUntilTheOtherInstanceHasGone()
    {
        LogCapture capture;
        int checks = 0;
        int sleeps = 0;
        const bool quit = mustQuitForOtherInstance(
            true, [&checks] { return ++checks <= 7; }, [&sleeps] { ++sleeps; });
        QVERIFY(!quit);
        QCOMPARE(sleeps, 7);
        QCOMPARE(capture.matching(QStringLiteral("Wait another instance terminate.")).size(), 7);
    }

    void shouldKeepLanguageIndexInRange_data()
    {
        QTest::addColumn<int>("stored");
        QTest::addColumn<int>("expected");
        QTest::newRow("-5") << -5 << -1;
        QTest::newRow("-1") << -1 << -1;
        QTest::newRow("0") << 0 << 0;
        QTest::newRow("5") << 5 << 5;
        QTest::newRow("6") << 6 << -1;
    }

    void shouldKeepLanguageIndexInRange()
    {
        QFETCH(int, stored);
        QFETCH(int, expected);
        QCOMPARE(Startup::checkedLanguageIndex(stored), expected);
    }
};

KEYSTAGE_TEST_MAIN(StartupFlagsTest)
#include "tst_startupflags.moc"
