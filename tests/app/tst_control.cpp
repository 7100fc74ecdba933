#include "agentcore.h"
#include "buttonlayoutconfig.h"
#include "controladaptor.h"
#include "controlinterface.h"
#include "controlservice.h"
#include "hid_comm.h"
#include "keypadstatus.h"
#include "keypadtable.h"
#include "privatebus.h"
#include "settings.h"
#include "settingskeys.h"
#include "simulatedkeypad.h"
#include "testmain.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QProcess>

namespace {

constexpr int WaitMs = 30000;
// The default pages: Copy at 0, Paste at 1, the "Media" folder at 2; 5 is empty.
constexpr int MediaKey = 2;
constexpr int EmptyKey = 5;

struct Ctl
{
    int exitCode = -1;
    QString out;
    QString err;
};

// What the bus tells a client: the control interface's signals and its
// property changes, in order.
class Recorder : public QObject
{
    Q_OBJECT

public:
    QStringList events;

public slots:
    void keyPressed(int key) { events << QStringLiteral("pressed %1").arg(key); }
    void keyReleased(int key) { events << QStringLiteral("released %1").arg(key); }
    void pageChanged(const QString& title, int key) { events << QStringLiteral("page %1 %2").arg(title).arg(key); }
    void propertiesChanged(const QString&, const QVariantMap& changed, const QStringList&)
    {
        for (auto it = changed.begin(); it != changed.end(); ++it)
            events << QStringLiteral("%1=%2").arg(it.key(), it.value().toString());
    }
};

} // namespace

// The control interface on a private session bus, driven by keystagectl and
// watched by a client of its own.
class ControlTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (PrivateBus::daemonProgram().isEmpty())
            QSKIP("dbus-daemon is not installed");
        QVERIFY(!m_bus.start().isEmpty());
    }

    void init()
    {
        QFile::remove(Settings().fileName());
        m_keypad = std::make_unique<SimulatedKeypad>();
        HidTransport::setInstance(m_keypad.get());
        m_core = std::make_unique<AgentCore>();
        m_service = std::make_unique<ControlService>(m_core.get(), serviceBus());
        QVERIFY(m_service->isPublished());
        QTRY_COMPARE_WITH_TIMEOUT(m_core->keypadStatus()->state(), KeypadStatus::Connected, WaitMs);
        QTRY_COMPARE_WITH_TIMEOUT(m_keypad->backlight(), SettingsKeys::BrightnessDefault, WaitMs);
    }

    void cleanup()
    {
        m_service.reset();
        m_core.reset();
        HidTransport::setInstance(nullptr);
        m_keypad.reset();
    }

    void shouldDoWhatKeystagectlAsks_data()
    {
        QTest::addColumn<bool>("startInFolder");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("said");
        QTest::addColumn<int>("folderKey");
        QTest::addColumn<int>("layout");
        QTest::addColumn<int>("backlight");
        const int v15 = ButtonLayoutConfig::DefaultLayout;
        const QString none;
        auto args = [](const char* text) { return QString::fromLatin1(text).split(QLatin1Char(' ')); };
        QTest::newRow("status on the root page")
            << false << args("status") << 0
            << "Keypad: connected, " + KeypadTable::modelName(v15) + "\nLayout: 3 (V_Key_15, 15 keys)\nPage: root\n"
            << -1 << v15 << -1;
        QTest::newRow("status in a folder")
            << true << args("status") << 0 << "Page: folder \"Media\" (key 2)" << MediaKey << v15 << -1;
        QTest::newRow("folder by title") << false << args("folder Media") << 0 << none << MediaKey << v15 << -1;
        QTest::newRow("folder by title in any case")
            << false << args("folder media") << 0 << none << MediaKey << v15 << -1;
        QTest::newRow("folder by key") << false << args("folder 2") << 0 << none << MediaKey << v15 << -1;
        QTest::newRow("no folder of that title")
            << false << args("folder Nope") << 1 << "No folder titled \"Nope\"" << -1 << v15 << -1;
        QTest::newRow("key that is no folder")
            << false << args("folder 0") << 1 << "Key 0 of the root page is not a folder" << -1 << v15 << -1;
        QTest::newRow("back to the root page") << true << args("back") << 0 << none << -1 << v15 << -1;
        QTest::newRow("press a folder key") << false << args("press 2") << 0 << none << MediaKey << v15 << -1;
        QTest::newRow("press the back key of a folder") << true << args("press 14") << 0 << none << -1 << v15 << -1;
        QTest::newRow("press an empty key")
            << false << args("press 5") << 1 << "Key 5 has no action" << -1 << v15 << -1;
        QTest::newRow("press beyond the keypad")
            << false << args("press 15") << 1 << "Key 15 is not on the keypad (0 to 14)" << -1 << v15 << -1;
        QTest::newRow("brightness") << false << args("brightness 40") << 0 << none << -1 << v15 << 40;
        QTest::newRow("brightness too high")
            << false << args("brightness 101") << 1 << "Brightness 101 is outside 0 to 100" << -1 << v15 << -1;
        QTest::newRow("brightness not a number")
            << false << args("brightness bright") << 2 << "\"bright\" is not a number" << -1 << v15 << -1;
        QTest::newRow("layout") << true << args("layout 0") << 0 << none << -1 << 0 << -1;
        QTest::newRow("layout that does not exist")
            << false << args("layout 6") << 1 << "Layout 6 does not exist" << -1 << v15 << -1;
        QTest::newRow("unknown command") << false << args("jump") << 2 << "Usage:" << -1 << v15 << -1;
        QTest::newRow("argument missing") << false << args("press") << 2 << "Usage:" << -1 << v15 << -1;
    }

    void shouldDoWhatKeystagectlAsks()
    {
        QFETCH(bool, startInFolder);
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, said);
        QFETCH(int, folderKey);
        QFETCH(int, layout);
        QFETCH(int, backlight);
        if (startInFolder) {
            adaptor()->ShowFolderAt(MediaKey, QDBusMessage());
            QCOMPARE(adaptor()->currentFolderKey(), MediaKey);
        }
        const int backlightBefore = m_keypad->backlight();

        const Ctl ctl = keystagectl(arguments, m_bus.address());
        QVERIFY2(ctl.exitCode == exitCode,
                 qPrintable(QStringLiteral("exit %1: %2").arg(ctl.exitCode).arg(ctl.out + ctl.err)));
        QVERIFY2((exitCode == 0 ? ctl.out : ctl.err).contains(said), qPrintable(ctl.out + ctl.err));
        QTRY_COMPARE_WITH_TIMEOUT(adaptor()->currentFolderKey(), folderKey, WaitMs);
        QCOMPARE(adaptor()->layout(), layout);
        QCOMPARE(m_core->layoutConfig()->currentLayout(), layout);
        if (backlight >= 0) {
            QTRY_COMPARE_WITH_TIMEOUT(m_keypad->backlight(), backlight, WaitMs);
            QCOMPARE(m_core->settingsStore()->value(SettingsKeys::Brightness).toInt(), backlight);
        } else {
            QCOMPARE(m_keypad->backlight(), backlightBefore);
        }
    }

    void shouldSayWhenTheProgramCannotBeReached_data()
    {
        QTest::addColumn<bool>("deadBus");
        QTest::addColumn<QString>("said");
        QTest::newRow("not running") << false << "Keystage is not running";
        QTest::newRow("no session bus") << true << "no session bus";
    }

    void shouldSayWhenTheProgramCannotBeReached()
    {
        QFETCH(bool, deadBus);
        QFETCH(QString, said);
        m_service.reset();
        const Ctl ctl = keystagectl({QStringLiteral("status")}, deadBus ? m_bus.deadAddress() : m_bus.address());
        QCOMPARE(ctl.exitCode, 3);
        QVERIFY2(ctl.err.contains(said), qPrintable(ctl.err));
        QVERIFY(ctl.out.isEmpty());
    }

    // Whoever changes the page or presses a key, the keypad or a client,
    // every client hears of it, once.
    void shouldTellClientsOfPressesAndPages_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QStringList>("heard");
        QTest::newRow("key pressed over the bus")
            << "bus press" << QStringList{"pressed 2", "released 2", "page Media 2", "CurrentFolderKey=2"};
        QTest::newRow("key pressed on the keypad")
            << "keypad press" << QStringList{"pressed 2", "released 2", "page Media 2", "CurrentFolderKey=2"};
        QTest::newRow("folder shown") << "folder" << QStringList{"page Media 2", "CurrentFolderKey=2"};
        QTest::newRow("layout switched") << "layout"
                                         << QStringList{"page  -1", "Layout=0", "LayoutName=H_Key_6", "KeyCount=6"};
        QTest::newRow("keypad unplugged") << "unplug" << QStringList{"Connected=false", "Model="};
    }

    void shouldTellClientsOfPressesAndPages()
    {
        QFETCH(QString, action);
        QFETCH(QStringList, heard);
        if (action == QLatin1String("layout"))
            adaptor()->ShowFolderAt(MediaKey, QDBusMessage());
        QDBusConnection client = QDBusConnection::connectToBus(m_bus.address(), QStringLiteral("control-client"));
        Recorder recorder;
        const QString service = ControlInterface::service(), path = ControlInterface::path();
        const QString iface = ControlInterface::name();
        QVERIFY(client.connect(service, path, iface, "KeyPressed", &recorder, SLOT(keyPressed(int))));
        QVERIFY(client.connect(service, path, iface, "KeyReleased", &recorder, SLOT(keyReleased(int))));
        QVERIFY(client.connect(service, path, iface, "PageChanged", &recorder, SLOT(pageChanged(QString, int))));
        QVERIFY(client.connect(service, path, "org.freedesktop.DBus.Properties", "PropertiesChanged", &recorder,
                               SLOT(propertiesChanged(QString, QVariantMap, QStringList))));

        if (action == QLatin1String("bus press")) {
            client.asyncCall(QDBusMessage::createMethodCall(service, path, iface, "PressKey") << MediaKey);
        } else if (action == QLatin1String("keypad press")) {
            const int bit = KeypadTable::deviceKeyId(ButtonLayoutConfig::DefaultLayout, MediaKey) - 1;
            m_keypad->pressKey(bit);
            m_keypad->releaseKey(bit);
        } else if (action == QLatin1String("folder")) {
            client.asyncCall(QDBusMessage::createMethodCall(service, path, iface, "ShowFolder")
                             << QStringLiteral("Media"));
        } else if (action == QLatin1String("layout")) {
            client.asyncCall(QDBusMessage::createMethodCall(service, path, iface, "SetLayout") << 0);
        } else {
            m_keypad->unplug();
            m_core->hidComm()->onKeyboardWasRemoved();
        }
        for (const QString& event : heard)
            QTRY_VERIFY2_WITH_TIMEOUT(recorder.events.contains(event), qPrintable(recorder.events.join(", ")), WaitMs);
        // Anything still on its way comes in before the count.
        roundTrip(client);
        QCOMPARE(QSet<QString>(recorder.events.begin(), recorder.events.end()).size(), recorder.events.size());
        QDBusConnection::disconnectFromBus(QStringLiteral("control-client"));
    }

    // A second program on the same bus finds the name taken and stays off it.
    void shouldLeaveTheNameToTheFirstProgram()
    {
        ControlService second(m_core.get(), QDBusConnection::connectToBus(m_bus.address(), QStringLiteral("second")));
        QVERIFY(!second.isPublished());
        QVERIFY(m_service->isPublished());
        QCOMPARE(keystagectl({QStringLiteral("status")}, m_bus.address()).exitCode, 0);
        QDBusConnection::disconnectFromBus(QStringLiteral("second"));
    }

private:
    QDBusConnection serviceBus() const
    {
        return QDBusConnection::connectToBus(m_bus.address(), QStringLiteral("control-service"));
    }

    ControlAdaptor* adaptor() const { return m_service->adaptor(); }

    // The test's own event loop answers the program's side, so it keeps
    // running while keystagectl waits for its answers.
    static Ctl keystagectl(const QStringList& arguments, const QString& busAddress)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), busAddress);
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(KEYSTAGECTL_EXECUTABLE), arguments);
        Ctl ctl;
        if (!process.waitForStarted(WaitMs))
            return ctl;
        const bool ended = QTest::qWaitFor([&process] { return process.state() == QProcess::NotRunning; }, WaitMs);
        if (!ended || process.state() != QProcess::NotRunning || process.exitStatus() != QProcess::NormalExit)
            return ctl;
        ctl.exitCode = process.exitCode();
        ctl.out = QString::fromUtf8(process.readAllStandardOutput());
        ctl.err = QString::fromUtf8(process.readAllStandardError());
        return ctl;
    }

    // A call answered by the bus itself: every message sent before it has
    // been delivered once it returns.
    static void roundTrip(const QDBusConnection& client)
    {
        QDBusPendingCall ping = client.asyncCall(QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId")));
        const bool answered = QTest::qWaitFor([&ping] { return ping.isFinished(); }, WaitMs);
        Q_UNUSED(answered)
        QCoreApplication::processEvents();
    }

    PrivateBus m_bus;
    std::unique_ptr<SimulatedKeypad> m_keypad;
    std::unique_ptr<AgentCore> m_core;
    std::unique_ptr<ControlService> m_service;
};

KEYSTAGE_TEST_MAIN(ControlTest)
#include "tst_control.moc"
