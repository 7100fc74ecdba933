// Installed applications come from a fixture XDG_DATA_DIRS, read by a fresh
// copy of this test: GIO reads the variable once per process.
#include "desktopexec.h"
#include "installedapplications.h"
#include "programlocator.h"
#include "runningapplications.h"
#include "testfiles.h"
#include "testmain.h"
#include "wlrtoplevelsource.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

namespace {

const char ListOption[] = "--list-installed-applications";

// The app ids a Wayland compositor may name, for the helper to map.
const char* const AppIds[] = {"org.example.Editor", "Percent", "hidden", "envonly", "org.example.Unknown"};

// The helper process: the installed applications as JSON on stdout, and the
// programs of some app ids.
int listApplications(int argc, char** argv)
{
    if (argc < 2 || qstrcmp(argv[1], ListOption) != 0)
        return -1;
    QJsonObject programs;
    for (const char* appId : AppIds)
        programs.insert(QLatin1String(appId), WlrToplevelSource::programForAppId(QLatin1String(appId)));
    QJsonArray list{programs};
    for (const ApplicationEntry& entry : InstalledApplications::query())
        list.append(QJsonObject{{"name", entry.name},
                                {"commandLine", entry.commandLine},
                                {"executable", entry.executable},
                                {"iconName", entry.iconName},
                                {"iconPath", entry.iconPath},
                                {"desktopId", entry.desktopId}});
    std::fputs(QJsonDocument(list).toJson().constData(), stdout);
    return 0;
}

// GIO leaves out entries whose program it cannot find.
void writeProgram(const QString& path)
{
    QVERIFY(TestFiles::write(path, "#!/bin/sh\n"));
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

} // namespace

class ApplicationQueriesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QString system = m_fixture.filePath(QStringLiteral("usr/share/applications/"));
        const QString flatpak = m_fixture.filePath(QStringLiteral("flatpak/exports/share"));
        writeProgram(m_fixture.filePath(QStringLiteral("My Tool/run")));
        writeProgram(m_fixture.filePath(QStringLiteral("bin/flatpak")));
        QVERIFY(TestFiles::write(system + QStringLiteral("org.example.Editor.desktop"),
                                 "[Desktop Entry]\nType=Application\nName=Text Editor\nName[de]=Texteditor\n"
                                 "Comment=Edit text\nExec=sh -c 'exit 0' %U\nIcon=accessories-text-editor\n"));
        QVERIFY(TestFiles::write(system + QStringLiteral("percent.desktop"),
                                 "[Desktop Entry]\nType=Application\nName=Percent\nExec=\"" +
                                     m_fixture.filePath(QStringLiteral("My Tool/run")).toUtf8() +
                                     "\" --rate=50%% %f\n"
                                     "Icon=" +
                                     m_fixture.filePath(QStringLiteral("icon.png")).toUtf8() + "\n"));
        QVERIFY(TestFiles::write(system + QStringLiteral("hidden.desktop"),
                                 "[Desktop Entry]\nType=Application\nName=Hidden\nExec=true\nNoDisplay=true\n"));
        QVERIFY(TestFiles::write(system + QStringLiteral("envonly.desktop"),
                                 "[Desktop Entry]\nType=Application\nName=Env\nExec=env LANG=C %U\n"));
        QVERIFY(TestFiles::write(
            system + QStringLiteral("missing.desktop"),
            "[Desktop Entry]\nType=Application\nName=Missing\nExec=nowhere\nTryExec=/nonexistent/nowhere\n"));
        QVERIFY(TestFiles::write(flatpak + QStringLiteral("/applications/org.example.Flat.desktop"),
                                 "[Desktop Entry]\nType=Application\nName=Flat App\nIcon=org.example.Flat\n"
                                 "Exec=flatpak run --branch=stable --arch=x86_64 --command=flat --file-forwarding "
                                 "org.example.Flat @@u %U @@\n"));

        QProcess helper;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_DIRS"),
                           m_fixture.filePath(QStringLiteral("usr/share")) + QLatin1Char(':') + flatpak);
        environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("de"));
        environment.insert(QStringLiteral("PATH"), m_fixture.filePath(QStringLiteral("bin")) + QLatin1Char(':') +
                                                       environment.value(QStringLiteral("PATH")));
        environment.remove(QStringLiteral("XDG_CURRENT_DESKTOP"));
        helper.setProcessEnvironment(environment);
        helper.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(ListOption)});
        QVERIFY(helper.waitForFinished(120000));
        QJsonArray list = QJsonDocument::fromJson(helper.readAllStandardOutput()).array();
        QVERIFY(!list.isEmpty());
        m_programs = list.takeAt(0).toObject();
        for (const QJsonValue value : qAsConst(list))
            m_installed.insert(value[QLatin1String("desktopId")].toString(), value.toObject());
    }

    // The program a Wayland app id stands for: its desktop entry's, looked
    // up as named or in lower case; else the app id itself.
    void shouldMapAppIdsToPrograms_data()
    {
        QTest::addColumn<QString>("appId");
        QTest::addColumn<QString>("program");
        QTest::newRow("entry named after the id") << "org.example.Editor"
                                                  << "sh";
        QTest::newRow("entry in lower case") << "Percent"
                                             << "run";
        QTest::newRow("entry hidden from menus") << "hidden"
                                                 << "true";
        QTest::newRow("entry without a program") << "envonly"
                                                 << "envonly";
        QTest::newRow("no entry") << "org.example.Unknown"
                                  << "org.example.Unknown";
    }

    void shouldMapAppIdsToPrograms()
    {
        QFETCH(QString, appId);
        QFETCH(QString, program);
        QCOMPARE(m_programs.value(appId).toString(), program);
    }

    void shouldListInstalledApplicationsFromTheDataDirectories_data()
    {
        QTest::addColumn<QString>("desktopId");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("commandLine");
        QTest::addColumn<QString>("icon");
        QTest::addColumn<QString>("executable");
        const QString tool = m_fixture.filePath(QStringLiteral("My Tool/run"));
        QTest::newRow("translated name, field code dropped")
            << "org.example.Editor.desktop"
            << "Texteditor"
            << "sh -c \"exit 0\""
            << "accessories-text-editor" << QStandardPaths::findExecutable(QStringLiteral("sh"));
        QTest::newRow("quoted program, %% kept, icon file")
            << "percent.desktop"
            << "Percent"
            << "\"" + tool + "\" --rate=50%" << m_fixture.filePath(QStringLiteral("icon.png")) << tool;
        QTest::newRow("flatpak export without file forwarding")
            << "org.example.Flat.desktop"
            << "Flat App"
            << "flatpak run --branch=stable --arch=x86_64 --command=flat --file-forwarding org.example.Flat"
            << "org.example.Flat" << m_fixture.filePath(QStringLiteral("bin/flatpak"));
        QTest::newRow("NoDisplay") << "hidden.desktop" << QString() << QString() << QString() << QString();
        QTest::newRow("env assignments, no program")
            << "envonly.desktop" << QString() << QString() << QString() << QString();
        QTest::newRow("TryExec missing") << "missing.desktop" << QString() << QString() << QString() << QString();
    }

    void shouldListInstalledApplicationsFromTheDataDirectories()
    {
        QFETCH(QString, desktopId);
        QFETCH(QString, name);
        QFETCH(QString, commandLine);
        QFETCH(QString, icon);
        QFETCH(QString, executable);
        QCOMPARE(m_installed.contains(desktopId), !name.isEmpty());
        const QJsonObject entry = m_installed.value(desktopId);
        QCOMPARE(entry[QLatin1String("name")].toString(), name);
        QCOMPARE(entry[QLatin1String("commandLine")].toString(), commandLine);
        QCOMPARE(entry[QLatin1String("iconName")].toString() + entry[QLatin1String("iconPath")].toString(), icon);
        QCOMPARE(entry[QLatin1String("executable")].toString(), executable);
    }

    // What the launch action will run must be what the desktop entry runs.
    void shouldKeepTheArgumentsThroughTheLaunchActionsQuoting_data()
    {
        QTest::addColumn<QString>("exec");
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("field codes alone") << "app %U %i %c %k" << QStringList{"app"};
        QTest::newRow("field code inside") << "app --open=%u x" << QStringList{"app", "--open=", "x"};
        QTest::newRow("percent sign") << "app 100%%" << QStringList{"app", "100%"};
        QTest::newRow("blanks") << "\"/opt/a b/app\" 'one two'" << QStringList{"/opt/a b/app", "one two"};
        QTest::newRow("quotes") << "sh -c 'echo \"hi\"'" << QStringList{"sh", "-c", "echo \"hi\""};
        QTest::newRow("escapes") << "sh -c \"echo \\$HOME\"" << QStringList{"sh", "-c", "echo $HOME"};
        QTest::newRow("unbalanced quote") << "app \"open" << QStringList{};
    }

    void shouldKeepTheArgumentsThroughTheLaunchActionsQuoting()
    {
        QFETCH(QString, exec);
        QFETCH(QStringList, arguments);
        const DesktopExec desktopExec(exec);
        QCOMPARE(desktopExec.arguments(), arguments);
        if (arguments.isEmpty())
            return;
        // The launch action takes the program up to the first blank or in
        // double quotes, and the rest as QProcess splits a command.
        const QString line = desktopExec.commandLine();
        const QString program = arguments.first();
        const QString quotedProgram = DesktopExec::quoteArgument(program);
        QVERIFY(line.startsWith(quotedProgram));
        QCOMPARE(QProcess::splitCommand(line.mid(quotedProgram.size())), arguments.mid(1));
    }

    void shouldResolveTheProgramThatRuns_data()
    {
        QTest::addColumn<QString>("exec");
        QTest::addColumn<QString>("executable");
        const QString sh = QStandardPaths::findExecutable(QStringLiteral("sh"));
        // clang-format off
        QTest::newRow("on PATH")   << "sh -c true"           << sh;
        QTest::newRow("past env")  << "env A=1 B=2 sh %U"    << sh;
        QTest::newRow("absolute")  << "/opt/tool/run"        << "/opt/tool/run";
        QTest::newRow("not found") << "no-such-program-here" << "no-such-program-here";
        // clang-format on
    }

    void shouldResolveTheProgramThatRuns()
    {
        QFETCH(QString, exec);
        QFETCH(QString, executable);
        ProgramLocator locator;
        QCOMPARE(DesktopExec(exec).executable(locator), executable);
    }

    // The first directory with an executable file of that name wins.
    void shouldFindProgramsAsAShellWould_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("found");
        // clang-format off
        QTest::newRow("first directory")          << "both"  << "a/both";
        QTest::newRow("not executable there")     << "plain" << "b/plain";
        QTest::newRow("a directory of that name") << "dir"   << "b/dir";
        QTest::newRow("nowhere")                  << "none"  << "";
        // clang-format on
    }

    void shouldFindProgramsAsAShellWould()
    {
        QFETCH(QString, name);
        QFETCH(QString, found);
        QTemporaryDir dir;
        for (const char* program : {"a/both", "b/both", "b/plain", "b/dir"})
            writeProgram(dir.filePath(QString::fromLatin1(program)));
        QVERIFY(TestFiles::write(dir.filePath(QStringLiteral("a/plain")), "text"));
        QDir(dir.path()).mkpath(QStringLiteral("a/dir"));
        ProgramLocator locator({dir.filePath(QStringLiteral("a")), dir.filePath(QStringLiteral("b"))});
        QCOMPARE(locator.find(name), found.isEmpty() ? QString() : dir.filePath(found));
    }

    void shouldDescribeRunningProgramsByTheirInstalledApplication_data()
    {
        QTest::addColumn<QString>("executable");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("commandLine");
        // clang-format off
        QTest::newRow("same path")      << "/usr/bin/editor"        << "Editor" << "editor %U";
        QTest::newRow("same file name") << "/opt/editor/bin/editor" << "Editor" << "editor %U";
        QTest::newRow("desktop id")     << "/app/bin/gedit"         << "Gedit"  << "flatpak run org.gnome.gedit";
        QTest::newRow("unknown")        << "/opt/Odd Tool/odd"      << "odd"    << "\"/opt/Odd Tool/odd\"";
        // clang-format on
    }

    void shouldDescribeRunningProgramsByTheirInstalledApplication()
    {
        QFETCH(QString, executable);
        QFETCH(QString, name);
        QFETCH(QString, commandLine);
        ApplicationEntry editor;
        editor.name = QStringLiteral("Editor");
        editor.commandLine = QStringLiteral("editor %U");
        editor.executable = QStringLiteral("/usr/bin/editor");
        ApplicationEntry gedit;
        gedit.name = QStringLiteral("Gedit");
        gedit.commandLine = QStringLiteral("flatpak run org.gnome.gedit");
        gedit.executable = QStringLiteral("/usr/bin/flatpak");
        gedit.desktopId = QStringLiteral("org.gnome.gedit.desktop");
        const ApplicationList running = RunningApplications::describe({executable}, {gedit, editor});
        QCOMPARE(running.size(), 1);
        QCOMPARE(running[0].name, name);
        QCOMPARE(running[0].commandLine, commandLine);
        // A folder follows the program that runs, not the launcher.
        QCOMPARE(running[0].executable, executable);
    }

private:
    QTemporaryDir m_fixture;
    QHash<QString, QJsonObject> m_installed;
    QJsonObject m_programs;
};

KEYSTAGE_TEST_MAIN_WITH(ApplicationQueriesTest, listApplications)
#include "tst_applicationqueries.moc"
