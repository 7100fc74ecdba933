// Folder conditions against a real compositor: sway, headless with software
// rendering, on the test's own runtime directory, with copies of the foot
// terminal (a native Wayland client) under two program names (and app ids)
// brought to the front in turn; followed through sway's IPC and through the
// wlroots toplevel list. Skips when sway or foot is not installed.
#include "foldercondition.h"
#include "genericwindowsystem.h"
#include "ka_folder.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "objectregistry.h"
#include "settings.h"
#include "swayipcsource.h"
#include "testmain.h"
#include "wlrtoplevelsource.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QWidget>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int Patience = 30000;

// sway refuses to run as root: there, it and its clients run as nobody.
struct Command
{
    QString program;
    QStringList arguments;
};

Command asUser(const QString& program, const QStringList& arguments)
{
    if (::getuid() != 0)
        return {program, arguments};
    return {QStandardPaths::findExecutable(QStringLiteral("setpriv")),
            QStringList{QStringLiteral("--reuid=nobody"), QStringLiteral("--regid=nogroup"),
                        QStringLiteral("--clear-groups"), program} +
                arguments};
}

// A directory the compositor's user owns, as XDG_RUNTIME_DIR must be.
bool giveToCompositorUser(const QString& path)
{
    if (::getuid() != 0)
        return true;
    const passwd* nobody = ::getpwnam("nobody");
    return nobody && ::chown(QFile::encodeName(path).constData(), nobody->pw_uid, nobody->pw_gid) == 0;
}

} // namespace

class FolderConditionOnSwayTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_sway = QStandardPaths::findExecutable(QStringLiteral("sway"));
        m_swaymsg = QStandardPaths::findExecutable(QStringLiteral("swaymsg"));
        m_foot = QStandardPaths::findExecutable(QStringLiteral("foot"));
        if (m_sway.isEmpty() || m_swaymsg.isEmpty() || m_foot.isEmpty())
            QSKIP("sway, swaymsg or foot is not installed");
        if (::getuid() == 0 && QStandardPaths::findExecutable(QStringLiteral("setpriv")).isEmpty())
            QSKIP("as root, setpriv is needed to run sway as another user");
        QVERIFY(m_programs.isValid() && m_runtime.isValid());
        // Readable and runnable by the compositor's user.
        QVERIFY(::chmod(QFile::encodeName(m_programs.path()).constData(), 0755) == 0);
        QVERIFY(::chmod(QFile::encodeName(m_runtime.path()).constData(), 0700) == 0);
        QVERIFY(giveToCompositorUser(m_runtime.path()));
        for (const QString& name : {QStringLiteral("editor"), QStringLiteral("viewer")})
            QVERIFY(QFile::copy(m_foot, m_programs.filePath(name)));
        startSway();
        QVERIFY2(!m_socket.isEmpty(), "sway did not start");
    }

    void cleanupTestCase()
    {
        for (QProcess* process : {&m_editor, &m_viewer, &m_compositor}) {
            process->kill();
            process->waitForFinished(Patience);
        }
    }

    void shouldOpenTheFolderOncePerChangeOfApplication_data()
    {
        QTest::addColumn<bool>("toplevelList");
        QTest::newRow("sway IPC") << false;
        QTest::newRow("wlroots toplevel list") << true;
    }

    // Only a change of the application in front opens the folder: staying
    // in it after leaving the folder does not pull the user back.
    void shouldOpenTheFolderOncePerChangeOfApplication()
    {
        QFETCH(bool, toplevelList);
        Settings settings;
        ObjectRegistry::registerObject(ComponentId::Settings, &settings);
        KeyItemModel model;
        ObjectRegistry::registerObject(ComponentId::KeyItemModel, &model);
        QWidget hiddenMainWindow;
        ObjectRegistry::registerObject(ComponentId::MainWindow, &hiddenMainWindow);
        model.changeLayoutButtonView(V_Key_15);
        QVERIFY(model.createKeyAction(1, KAT_FOLDER));
        auto* folder = qobject_cast<KA_Folder*>(model.keyItemAt(1)->currentAction());
        folder->appName = QStringLiteral("/opt/somewhere/editor");

        std::unique_ptr<ForegroundSource> followed;
        if (toplevelList)
            followed = std::make_unique<WlrToplevelSource>(QDir(m_runtime.path()).filePath(m_display));
        else
            followed = std::make_unique<SwayIpcSource>(QStringLiteral("sway"), m_socket);
        auto windowSystem = std::make_unique<GenericWindowSystem>(QStringLiteral("wayland"), std::move(followed));
        ForegroundSource* source = windowSystem->foregroundSource();
        FolderCondition condition(600, std::move(windowSystem));
        condition.startFolderConditionDetect();
        QVERIFY(condition.isDetecting());

        startClient(&m_viewer, QStringLiteral("viewer"));
        startClient(&m_editor, QStringLiteral("editor"));
        const QList<std::pair<QProcess*, bool>> steps = {
            {&m_viewer, false}, {&m_editor, true}, {&m_editor, false}, {&m_viewer, false}, {&m_editor, true}};
        for (const auto& [client, opens] : steps) {
            model.changeListToRoot();
            focus(*client);
            QTRY_COMPARE_WITH_TIMEOUT(source->applicationName(), client->objectName(), Patience);
            condition.onBkTimerTimeout();
            QCOMPARE(model.currentFolder() == folder, opens);
        }
        condition.stopFolderConditionDetect();
        QCOMPARE(source->processId(), ForegroundSource::Unknown);
        ObjectRegistry::clear();
    }

private:
    void startSway()
    {
        const QString runtime = m_runtime.path();
        QFile config(m_programs.filePath(QStringLiteral("sway.conf")));
        QVERIFY(config.open(QIODevice::WriteOnly));
        config.write("xwayland disable\noutput * resolution 800x600\n");
        config.close();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"WAYLAND_DISPLAY", "DISPLAY", "SWAYSOCK", "I3SOCK"})
            environment.remove(QString::fromLatin1(name));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime);
        environment.insert(QStringLiteral("WLR_BACKENDS"), QStringLiteral("headless"));
        environment.insert(QStringLiteral("WLR_RENDERER"), QStringLiteral("pixman"));
        environment.insert(QStringLiteral("WLR_LIBINPUT_NO_DEVICES"), QStringLiteral("1"));
        m_compositor.setProcessEnvironment(environment);
        m_compositor.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_compositor.setStandardOutputFile(QProcess::nullDevice());
        const Command sway = asUser(m_sway, {QStringLiteral("-c"), config.fileName()});
        m_compositor.start(sway.program, sway.arguments);
        QVERIFY(m_compositor.waitForStarted(Patience));
        const QDir dir(runtime);
        QTRY_VERIFY_WITH_TIMEOUT(!dir.entryList({QStringLiteral("sway-ipc.*.sock")}, QDir::System).isEmpty() ||
                                     m_compositor.state() == QProcess::NotRunning,
                                 Patience);
        const QStringList sockets = dir.entryList({QStringLiteral("sway-ipc.*.sock")}, QDir::System);
        const QStringList displays = dir.entryList({QStringLiteral("wayland-?")}, QDir::System);
        if (sockets.isEmpty() || displays.isEmpty())
            return;
        m_socket = dir.filePath(sockets.constFirst());
        m_display = displays.constFirst();
        environment.insert(QStringLiteral("WAYLAND_DISPLAY"), m_display);
        environment.insert(QStringLiteral("SWAYSOCK"), m_socket);
        m_clientEnvironment = environment;
    }

    void startClient(QProcess* client, const QString& program)
    {
        if (client->state() == QProcess::Running)
            return;
        client->setObjectName(program);
        client->setProcessEnvironment(m_clientEnvironment);
        client->setStandardOutputFile(QProcess::nullDevice());
        client->setStandardErrorFile(QProcess::nullDevice());
        const Command foot = asUser(m_programs.filePath(program), {QStringLiteral("--app-id=%1").arg(program),
                                                                   QStringLiteral("sleep"), QStringLiteral("600")});
        client->start(foot.program, foot.arguments);
        QVERIFY(client->waitForStarted(Patience));
        // Mapped once sway lets it take the focus.
        QTRY_VERIFY_WITH_TIMEOUT(swaymsg(QStringLiteral("[pid=%1] focus").arg(client->processId())), Patience);
    }

    void focus(const QProcess& client) { QVERIFY(swaymsg(QStringLiteral("[pid=%1] focus").arg(client.processId()))); }

    bool swaymsg(const QString& command) const
    {
        QProcess message;
        message.setProcessEnvironment(m_clientEnvironment);
        message.start(m_swaymsg, {QStringLiteral("-s"), m_socket, command});
        return message.waitForFinished(Patience) && message.exitStatus() == QProcess::NormalExit &&
               message.exitCode() == 0;
    }

    QString m_sway, m_swaymsg, m_foot;
    QTemporaryDir m_programs;
    QTemporaryDir m_runtime;
    QProcess m_compositor, m_editor, m_viewer;
    QString m_socket, m_display;
    QProcessEnvironment m_clientEnvironment;
};

KEYSTAGE_TEST_MAIN(FolderConditionOnSwayTest)
#include "tst_folderconditiononsway.moc"
