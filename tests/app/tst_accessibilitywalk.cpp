// Walks the accessibility tree of the running editor the way a screen reader
// does: over AT-SPI on D-Bus. A private session bus and at-spi2-core's bus
// launcher stand in for the desktop's; the editor runs in a copy of this
// test (so that the walker's blocking calls never wait on their own GUI
// thread) and reports what it shows, the walker finds it all by name.
#include "focuschain.h"
#include "formarea.h"
#include "keyitemform.h"
#include "keyitemgridview.h"
#include "mainwindow.h"
#include "privatebus.h"
#include "startup.h"
#include "testmain.h"

#include <QAccessible>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDeadlineTimer>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int Patience = 30000;
constexpr int CallTimeout = 10000;
// The editor copy ends itself after this even if nobody stops it.
constexpr int HelperLifetime = 240000;
const char HelperFlag[] = "--accessible-window";

const QString AccessibleInterface = QStringLiteral("org.a11y.atspi.Accessible");
const QString RootPath = QStringLiteral("/org/a11y/atspi/accessible/root");
// AtspiStateType: the bit of "selected".
constexpr int StateSelected = 23;

void report(const QString& line)
{
    std::fprintf(stdout, "%s\n", line.toUtf8().constData());
    std::fflush(stdout);
}

// The editor copy: the main window on its default keys with the first key
// selected, so a property form is up; it reports the layout's key count and
// the name of each form control, then runs until stopped.
int runEditor(int argc, char** argv)
{
    if (argc < 2 || qstrcmp(argv[1], HelperFlag) != 0)
        return -1;
    TestEnvironment environment;
    setTestEnvironment(&environment);
    QCoreApplication::setOrganizationName(QStringLiteral("Vantorix"));
    QCoreApplication::setApplicationName(QStringLiteral("Keystage"));
    QApplication app(argc, argv);
    Startup::applyStyleSheet();
    QSettings settings;
    MainWindow window(&settings, false);
    window.keyGrid()->pressButton(0);
    window.show();
    report(QStringLiteral("KEYS %1").arg(window.keyGrid()->keyButtonCount()));
    for (QWidget* control : FocusChain::controls(window.formArea()->keyForm()))
        report(
            QStringLiteral("CONTROL %1").arg(QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name)));
    report(QStringLiteral("READY"));
    QTimer::singleShot(HelperLifetime, &app, &QCoreApplication::quit);
    return app.exec();
}

struct Node
{
    QString name;
    QString role;
    QList<uint> states;

    bool hasState(int state) const
    {
        const int word = state / 32;
        return word < states.size() && (states.at(word) & (1u << (state % 32)));
    }
};

using Reference = QPair<QString, QString>; // bus name, object path

QString findProgram(const QString& name)
{
    const QString inPath = QStandardPaths::findExecutable(name);
    if (!inPath.isEmpty())
        return inPath;
    return QStandardPaths::findExecutable(
        name, {QStringLiteral("/usr/libexec"), QStringLiteral("/usr/lib/at-spi2-core"),
               QStringLiteral("/usr/libexec/at-spi2-core"), QStringLiteral("/usr/lib/x86_64-linux-gnu/at-spi2-core")});
}

void stop(QProcess& process)
{
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate();
    if (!process.waitForFinished(5000)) {
        process.kill();
        process.waitForFinished(5000);
    }
}

} // namespace

class AccessibilityWalkTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QString daemon = findProgram(QStringLiteral("dbus-daemon"));
        const QString launcher = findProgram(QStringLiteral("at-spi-bus-launcher"));
        if (daemon.isEmpty() || launcher.isEmpty())
            QSKIP("dbus-daemon or at-spi2-core's at-spi-bus-launcher is not installed");
        m_sessionAddress = m_sessionBus.start(daemon);
        QVERIFY2(!m_sessionAddress.isEmpty(), "dbus-daemon printed no address");
        startAccessibilityBus(launcher);
        startEditor();
    }

    void cleanupTestCase()
    {
        stop(m_editor);
        stop(m_launcher);
        m_sessionBus.stop();
        QDBusConnection::disconnectFromBus(QStringLiteral("walker-a11y"));
        QDBusConnection::disconnectFromBus(QStringLiteral("walker-session"));
    }

    void shouldFindEveryKeyPaletteEntryAndFormControlByName()
    {
        const QList<Node> nodes = walk(findEditorRoot());
        const auto find = [&nodes](const QString& name, const QString& role) -> const Node* {
            for (const Node& node : nodes) {
                if (node.name == name && (role.isEmpty() || node.role == role))
                    return &node;
            }
            return nullptr;
        };
        const QString button = QStringLiteral("push button");

        // The default keys: Copy, Paste and the Media folder; Copy is selected.
        QStringList keys = {QStringLiteral("Key 1: Copy, Hotkey"), QStringLiteral("Key 2: Paste, Hotkey"),
                            QStringLiteral("Key 3: Media, Folder")};
        for (int number = keys.size() + 1; number <= m_keyCount; ++number)
            keys << QStringLiteral("Key %1: empty").arg(number);
        for (const QString& key : qAsConst(keys))
            QVERIFY2(find(key, button), qPrintable(key));
        QVERIFY(find(keys.at(0), button)->hasState(StateSelected));
        QVERIFY(!find(keys.at(1), button)->hasState(StateSelected));

        for (const char* name : {"Folder", "Hotkey", "Macro", "Launch", "Website", "Text String", "Settings",
                                 "My Favorite", "About", "Minimize", "Close"})
            QVERIFY2(find(QLatin1String(name), button), name);
        QVERIFY(find(QStringLiteral("Folder tree"), QStringLiteral("tree")));
        QVERIFY(find(QStringLiteral("Keypad status: No keypad connected"), QString()));

        QVERIFY(!m_controls.isEmpty());
        for (const QString& control : qAsConst(m_controls)) {
            QVERIFY2(!control.isEmpty(), "a form control without a name");
            QVERIFY2(find(control, QString()), qPrintable(control));
        }
    }

private:
    // The launcher owns org.a11y.Bus on the session bus and hands out the
    // address of the accessibility bus it runs.
    void startAccessibilityBus(const QString& program)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_sessionAddress);
        m_launcher.setProcessEnvironment(environment);
        m_launcher.setProgram(program);
        m_launcher.setArguments({QStringLiteral("--launch-immediately")});
        m_launcher.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_launcher.start();
        QVERIFY2(m_launcher.waitForStarted(Patience), qPrintable(m_launcher.errorString()));

        QDBusConnection session = QDBusConnection::connectToBus(m_sessionAddress, QStringLiteral("walker-session"));
        QVERIFY(session.isConnected());
        QDBusMessage getAddress =
            QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                                           QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"));
        // Not started by the bus itself: that would be a second launcher.
        getAddress.setAutoStartService(false);
        QString address;
        const QDeadlineTimer deadline(Patience);
        while (address.isEmpty() && !deadline.hasExpired()) {
            const QDBusMessage reply = session.call(getAddress, QDBus::Block, CallTimeout);
            if (reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty())
                address = reply.arguments().constFirst().toString();
            else
                QTest::qWait(100);
        }
        QVERIFY2(!address.isEmpty(), "the accessibility bus never came up");
        m_bus = QDBusConnection::connectToBus(address, QStringLiteral("walker-a11y"));
        QVERIFY(m_bus.isConnected());
    }

    void startEditor()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_sessionAddress);
        environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
        environment.insert(QStringLiteral("QT_ACCESSIBILITY"), QStringLiteral("1"));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        environment.remove(QStringLiteral("NO_AT_BRIDGE"));
        m_editor.setProcessEnvironment(environment);
        m_editor.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_editor.start(QCoreApplication::applicationFilePath(), {QLatin1String(HelperFlag)});
        QVERIFY2(m_editor.waitForStarted(Patience), qPrintable(m_editor.errorString()));
        const QDeadlineTimer deadline(2 * Patience);
        bool ready = false;
        while (!ready && m_editor.state() == QProcess::Running && !deadline.hasExpired()) {
            if (!m_editor.canReadLine()) {
                m_editor.waitForReadyRead(int(deadline.remainingTime()));
                continue;
            }
            const QString line = QString::fromUtf8(m_editor.readLine()).trimmed();
            if (line.startsWith(QStringLiteral("KEYS ")))
                m_keyCount = line.mid(5).toInt();
            else if (line.startsWith(QStringLiteral("CONTROL ")))
                m_controls << line.mid(8);
            ready = line == QStringLiteral("READY");
        }
        QVERIFY2(ready, "the editor did not come up");
        QVERIFY(m_keyCount >= 6);
    }

    QDBusMessage call(const Reference& at, const QString& interface, const QString& method,
                      const QVariantList& arguments = {})
    {
        QDBusMessage message = QDBusMessage::createMethodCall(at.first, at.second, interface, method);
        message.setArguments(arguments);
        return m_bus.call(message, QDBus::Block, CallTimeout);
    }

    QList<Reference> childrenOf(const Reference& at)
    {
        QList<Reference> children;
        const QDBusMessage reply = call(at, AccessibleInterface, QStringLiteral("GetChildren"));
        if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
            return children;
        const QDBusArgument list = reply.arguments().constFirst().value<QDBusArgument>();
        list.beginArray();
        while (!list.atEnd()) {
            QString service;
            QDBusObjectPath path;
            list.beginStructure();
            list >> service >> path;
            list.endStructure();
            children << Reference(service, path.path());
        }
        list.endArray();
        return children;
    }

    Node nodeAt(const Reference& at)
    {
        Node node;
        const QDBusMessage name = call(at, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
                                       {AccessibleInterface, QStringLiteral("Name")});
        if (!name.arguments().isEmpty())
            node.name = name.arguments().constFirst().value<QDBusVariant>().variant().toString();
        const QDBusMessage role = call(at, AccessibleInterface, QStringLiteral("GetRoleName"));
        if (!role.arguments().isEmpty())
            node.role = role.arguments().constFirst().toString();
        const QDBusMessage state = call(at, AccessibleInterface, QStringLiteral("GetState"));
        if (!state.arguments().isEmpty())
            state.arguments().constFirst().value<QDBusArgument>() >> node.states;
        return node;
    }

    // The editor among the registry's applications, known by its process.
    Reference findEditorRoot()
    {
        const Reference registry(QStringLiteral("org.a11y.atspi.Registry"), RootPath);
        const QDeadlineTimer deadline(2 * Patience);
        while (!deadline.hasExpired()) {
            for (const Reference& application : childrenOf(registry)) {
                QDBusMessage pid = QDBusMessage::createMethodCall(
                    QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                    QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetConnectionUnixProcessID"));
                pid << application.first;
                const QDBusMessage reply = m_bus.call(pid, QDBus::Block, CallTimeout);
                if (!reply.arguments().isEmpty() && reply.arguments().constFirst().toLongLong() == m_editor.processId())
                    return application;
            }
            QTest::qWait(200);
        }
        return Reference();
    }

    QList<Node> walk(const Reference& root)
    {
        QList<Node> nodes;
        if (root.first.isEmpty()) {
            QTest::qFail("the editor never registered with the accessibility registry", __FILE__, __LINE__);
            return nodes;
        }
        QList<Reference> pending = {root};
        QSet<Reference> seen;
        // Bounded, so that a cycle, a runaway tree or an editor that stopped
        // answering cannot keep the test going.
        const QDeadlineTimer deadline(2 * Patience);
        while (!pending.isEmpty() && nodes.size() < 5000 && !deadline.hasExpired()) {
            const Reference at = pending.takeFirst();
            if (seen.contains(at))
                continue;
            seen.insert(at);
            nodes << nodeAt(at);
            pending << childrenOf(at);
        }
        return nodes;
    }

    PrivateBus m_sessionBus;
    QProcess m_launcher;
    QProcess m_editor;
    QString m_sessionAddress;
    QDBusConnection m_bus{QString()};
    int m_keyCount = 0;
    QStringList m_controls;
};

KEYSTAGE_TEST_MAIN_WITH(AccessibilityWalkTest, runEditor)
#include "tst_accessibilitywalk.moc"
