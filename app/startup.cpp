#include "startup.h"

#include "controlservice.h"
#include "iconthemeindex.h"
#include "instancecheck.h"
#include "ipctoken.h"
#include "keystageappid.h"
#include "keystageversion.h"
#include "mainwindow.h"
#include "metatypes.h"
#include "myapplication.h"
#include "sessionbus.h"
#include "settings.h"
#include "settingskeys.h"
#include "simulatedkeypad.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QThread>
#include <QTranslator>

#include <memory>

namespace {

// The keypad of "--virtual-keypad". It is the transport before the device
// thread starts, so no real keypad is ever opened; it goes only after the
// main window, and with it the device thread, has gone.
class StartupKeypad
{
public:
    explicit StartupKeypad(bool wanted)
    {
        if (!wanted)
            return;
        m_keypad = std::make_unique<SimulatedKeypad>();
        HidTransport::setInstance(m_keypad.get());
    }
    ~StartupKeypad()
    {
        if (m_keypad && HidTransport::instance() == m_keypad.get())
            HidTransport::setInstance(nullptr);
    }
    StartupKeypad(const StartupKeypad&) = delete;
    StartupKeypad& operator=(const StartupKeypad&) = delete;

private:
    std::unique_ptr<SimulatedKeypad> m_keypad;
};

} // namespace

void Startup::setIdentity()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Vantorix"));
    QCoreApplication::setApplicationName(QStringLiteral("Keystage"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KEYSTAGE_VERSION));
    // Docks group the windows under the desktop entry, and Wayland names the
    // window by it.
    QGuiApplication::setDesktopFileName(QStringLiteral(KEYSTAGE_APP_ID));
}

int Startup::checkedLanguageIndex(int stored)
{
    return stored < 0 || stored > 5 ? -1 : stored;
}

void Startup::resolveInstance(StartupFlags* flags)
{
    const QString ownName = ownImageBaseName();
    const bool mustQuit = mustQuitForOtherInstance(
        (*flags)[WaitInstance], [&ownName] { return isAnotherInstanceRunning(ownName); }, [] { QThread::msleep(500); });
    if (mustQuit) {
        flags->set(QuitAtOnce);
        flags->set(BringToFront);
    }

    // With no other instance this very process opens the file later through
    // its own hand-over thread, so both cases share one path.
    if ((*flags)[OpenFile]) {
        qDebug().noquote() << "VSE is running, pass extension file path by IPC!";
        // Absolute, because the receiver runs in a directory of its own.
        sendIpcToken(TokenOpenFile, QFileInfo(flags->openFilePath).absoluteFilePath());
    } else if ((*flags)[BringToFront]) {
        qDebug().noquote() << "Not allow multip application instance, bring app to front.";
        sendIpcToken(TokenBringToFront);
    }
}

void Startup::applyStyleSheet()
{
    QFile style(QStringLiteral(":/style/keystage.qss"));
    if (style.open(QIODevice::ReadOnly | QIODevice::Text))
        qApp->setStyleSheet(QString::fromUtf8(style.readAll()));
}

namespace {
const char GlIntegrationVariable[] = "QT_XCB_GL_INTEGRATION";
} // namespace

bool Startup::switchOffOpenGl()
{
    if (qEnvironmentVariableIsSet(GlIntegrationVariable))
        return false;
    qputenv(GlIntegrationVariable, "none");
    return true;
}

void Startup::forgetOpenGlSwitch(bool switchedOff)
{
    if (switchedOff)
        qunsetenv(GlIntegrationVariable);
}

int Startup::run(int& argc, char** argv)
{
    setIdentity();
    // Closing the window sends it to the tray; only Quit ends the process.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);

    const bool openGlSwitchedOff = switchOffOpenGl();
    MyApplication application(argc, argv);
    QThread::currentThread()->setObjectName(QStringLiteral("UI Thread"));

    // argv as left by Qt, which has taken its own options (-platform ...) out.
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    StartupFlags flags = parseCommandLine(arguments);
    takeRestartEnvironment(&flags);
    resolveInstance(&flags);
    if (flags[QuitAtOnce])
        return -1;

    // Before the first read of the settings file: a damaged one must not abort us.
    Settings::setAsideUnreadableStore();
    QSettings settings;
    const int langIdx = checkedLanguageIndex(settings.value(SettingsKeys::LangIdx, -1).toInt());
    QTranslator translator;
    MainWindow::installTranslator(&translator, langIdx);

    registerModelMetaTypes();
    applyStyleSheet();
    IconThemeIndex::applyFallbackTheme();

    // Declared before the window: it must outlive the device thread.
    const StartupKeypad virtualKeypad(flags.virtualKeypad);
    MainWindow window(&settings, flags[RunInBackground]);
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    window.setAttribute(Qt::WA_TranslucentBackground);
    // In the background from the start the window is not even mapped: it
    // would flash on screen, and its editor would be made for nothing. Its
    // native window is made all the same, as the xcb platform reads the
    // switch when it makes its first one.
    if (flags[RunInBackground])
        window.winId();
    else
        window.show();
    forgetOpenGlSwitch(openGlSwitchedOff);
    // After the window, before the loop: calls are answered once it runs.
    const ControlService control(window.core(), sessionBusIfAny());
    return application.exec();
}
