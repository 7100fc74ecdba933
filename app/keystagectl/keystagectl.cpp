// keystagectl: drives the running Keystage through its control interface on
// the session bus. Exit codes: 0 done, 1 refused by the program (no such
// folder, key or level), 2 usage, 3 the program is not running or there is
// no session bus, 4 the program did not answer.
#include "controlinterface.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QTextStream>

namespace {

enum ExitCode
{
    Done = 0,
    Refused = 1,
    Usage = 2,
    NotRunning = 3,
    NoAnswer = 4,
};

// A frozen program must not freeze the script that asks it.
constexpr int AnswerTimeoutMs = 10000;

// keystagectl has no translations of its own: its messages are English, like
// its command names and the output scripts parse.
QString message(const char* text)
{
    return QString::fromUtf8(text);
}

QTextStream& out()
{
    static QTextStream stream(stdout);
    return stream;
}

QTextStream& err()
{
    static QTextStream stream(stderr);
    return stream;
}

QString usage()
{
    return message("Usage: keystagectl COMMAND [ARGUMENT]\n"
                   "Commands:\n"
                   "  status            what the keypad shows and whether it is connected\n"
                   "  press KEY         presses and releases a key of the page shown (0 = top left)\n"
                   "  folder NAME|KEY   opens a folder of the root page by its title or key\n"
                   "  back              goes back to the root page\n"
                   "  brightness LEVEL  sets the keypad's brightness (0 to 100)\n"
                   "  layout NUMBER     switches the button layout (0 to 5)\n");
}

class Client
{
public:
    explicit Client(const QDBusConnection& bus) : m_bus(bus) {}

    // Done, or the exit code with the reason already written.
    int reach()
    {
        if (!m_bus.isConnected()) {
            err() << message("keystagectl: no session bus: %1").arg(m_bus.lastError().message()) << '\n';
            return NotRunning;
        }
        if (!m_bus.interface()->isServiceRegistered(ControlInterface::service())) {
            err() << message("keystagectl: Keystage is not running (nothing answers as %1 on the session bus).")
                         .arg(ControlInterface::service())
                  << '\n';
            return NotRunning;
        }
        return Done;
    }

    QDBusMessage call(const QString& method, const QVariantList& arguments = {})
    {
        QDBusMessage message = QDBusMessage::createMethodCall(ControlInterface::service(), ControlInterface::path(),
                                                              ControlInterface::name(), method);
        message.setArguments(arguments);
        return m_bus.call(message, QDBus::Block, AnswerTimeoutMs);
    }

    QVariantMap properties()
    {
        QDBusMessage message =
            QDBusMessage::createMethodCall(ControlInterface::service(), ControlInterface::path(),
                                           QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("GetAll"));
        message << ControlInterface::name();
        m_last = m_bus.call(message, QDBus::Block, AnswerTimeoutMs);
        if (m_last.type() != QDBusMessage::ReplyMessage || m_last.arguments().isEmpty())
            return QVariantMap();
        QVariantMap map;
        m_last.arguments().constFirst().value<QDBusArgument>() >> map;
        return map;
    }

    QDBusMessage lastReply() const { return m_last; }

private:
    QDBusConnection m_bus;
    QDBusMessage m_last;
};

// Exit code of a reply; the program's own message tells the user why.
int outcome(const QDBusMessage& reply)
{
    if (reply.type() != QDBusMessage::ErrorMessage)
        return Done;
    const QString name = reply.errorName();
    if (name == QLatin1String("org.freedesktop.DBus.Error.NoReply") ||
        name == QLatin1String("org.freedesktop.DBus.Error.Timeout")) {
        err() << message("keystagectl: Keystage did not answer.") << '\n';
        return NoAnswer;
    }
    if (name == QLatin1String("org.freedesktop.DBus.Error.ServiceUnknown")) {
        err() << message("keystagectl: Keystage is not running.") << '\n';
        return NotRunning;
    }
    err() << "keystagectl: " << reply.errorMessage() << '\n';
    return Refused;
}

bool toNumber(const QString& text, int* number)
{
    bool ok = false;
    *number = text.toInt(&ok);
    return ok;
}

int status(Client& client)
{
    const QVariantMap p = client.properties();
    if (p.isEmpty())
        return outcome(client.lastReply());
    const bool connected = p.value(QStringLiteral("Connected")).toBool();
    out() << message("Keypad: %1")
                 .arg(connected ? message("connected, %1").arg(p.value(QStringLiteral("Model")).toString())
                                : message("not connected"))
          << '\n';
    out() << message("Layout: %1 (%2, %3 keys)")
                 .arg(p.value(QStringLiteral("Layout")).toInt())
                 .arg(p.value(QStringLiteral("LayoutName")).toString())
                 .arg(p.value(QStringLiteral("KeyCount")).toInt())
          << '\n';
    const int folderKey = p.value(QStringLiteral("CurrentFolderKey")).toInt();
    if (folderKey < 0)
        out() << message("Page: root") << '\n';
    else
        out() << message("Page: folder \"%1\" (key %2)")
                     .arg(p.value(QStringLiteral("CurrentPage")).toString())
                     .arg(folderKey)
              << '\n';
    return Done;
}

// A name first; a number that names no folder is taken as the folder's key.
int folder(Client& client, const QString& name)
{
    const QDBusMessage reply = client.call(QStringLiteral("ShowFolder"), {name});
    int key = -1;
    if (reply.type() == QDBusMessage::ErrorMessage && reply.errorName() == ControlInterface::noSuchFolderError() &&
        toNumber(name, &key))
        return outcome(client.call(QStringLiteral("ShowFolderAt"), {key}));
    return outcome(reply);
}

int numberCommand(Client& client, const QString& method, const QString& argument)
{
    int number = 0;
    if (!toNumber(argument, &number)) {
        err() << message("keystagectl: \"%1\" is not a number.").arg(argument) << '\n';
        return Usage;
    }
    return outcome(client.call(method, {number}));
}

int run(const QStringList& arguments)
{
    const QString command = arguments.value(0);
    const int wanted = QStringList{QStringLiteral("press"), QStringLiteral("folder"), QStringLiteral("brightness"),
                                   QStringLiteral("layout")}
                               .contains(command)
                           ? 2
                           : 1;
    const bool known = QStringList{QStringLiteral("status"), QStringLiteral("back"),       QStringLiteral("press"),
                                   QStringLiteral("folder"), QStringLiteral("brightness"), QStringLiteral("layout")}
                           .contains(command);
    if (command == QLatin1String("--help") || command == QLatin1String("-h")) {
        out() << usage();
        return Done;
    }
    if (!known || arguments.size() != wanted) {
        err() << usage();
        return Usage;
    }
    Client client(QDBusConnection::sessionBus());
    if (const int reached = client.reach())
        return reached;
    const QString argument = arguments.value(1);
    if (command == QLatin1String("status"))
        return status(client);
    if (command == QLatin1String("back"))
        return outcome(client.call(QStringLiteral("ShowRootPage")));
    if (command == QLatin1String("folder"))
        return folder(client, argument);
    if (command == QLatin1String("press"))
        return numberCommand(client, QStringLiteral("PressKey"), argument);
    if (command == QLatin1String("brightness"))
        return numberCommand(client, QStringLiteral("SetBrightness"), argument);
    return numberCommand(client, QStringLiteral("SetLayout"), argument);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("keystagectl"));
    QStringList arguments = QCoreApplication::arguments();
    arguments.removeFirst();
    const int code = run(arguments);
    out().flush();
    err().flush();
    return code;
}
