#include "kwinscriptsource.h"

#include "logging.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

namespace {

const QString KWinService = QStringLiteral("org.kde.KWin");
const QString ScriptingPath = QStringLiteral("/Scripting");
const QString ScriptingInterface = QStringLiteral("org.kde.kwin.Scripting");

QDBusMessage scriptingCall(const QString& method)
{
    return QDBusMessage::createMethodCall(KWinService, ScriptingPath, ScriptingInterface, method);
}

} // namespace

KWinScriptSource::KWinScriptSource(const QDBusConnection& bus, QObject* parent) : ForegroundSource(parent), m_bus(bus)
{
}

// Quitting: the script must not outlive us, so this one call waits, briefly.
KWinScriptSource::~KWinScriptSource()
{
    finish(QDBus::Block);
}

QString KWinScriptSource::name() const
{
    return QStringLiteral("KWin");
}

QString KWinScriptSource::notice() const
{
    if (!m_bus.isConnected())
        return QCoreApplication::translate("ForegroundSource",
                                           "Folders cannot open by application: there is no session bus to ask KWin.");
    return ForegroundSource::notice();
}

void KWinScriptSource::start()
{
    if (isStarted() || !m_bus.isConnected())
        return;
    setStarted(true);
    if (!m_bus.registerObject(QString::fromLatin1(ReportPath), this, QDBusConnection::ExportScriptableSlots))
        LOG_MSG(QStringLiteral("ERROR: KWin report object not registered!!"));
    m_watcher = new QDBusServiceWatcher(KWinService, m_bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(m_watcher, &QDBusServiceWatcher::serviceRegistered, this, [this] {
        LOG_MSG(QStringLiteral("KWin has started again, loading the foreground script"));
        load();
    });
    load();
}

void KWinScriptSource::stop()
{
    finish(QDBus::NoBlock);
}

void KWinScriptSource::finish(QDBus::CallMode mode)
{
    if (!isStarted())
        return;
    setStarted(false);
    delete m_watcher;
    m_watcher = nullptr;
    m_bus.call(scriptingCall(QStringLiteral("unloadScript")) << QString::fromLatin1(PluginName), mode, UnloadWaitMs);
    m_bus.unregisterObject(QString::fromLatin1(ReportPath));
}

QByteArray KWinScriptSource::script(const QString& reportTo)
{
    // Plasma 6 names them windowActivated and activeWindow, Plasma 5
    // clientActivated and activeClient.
    return QByteArrayLiteral("function report(window) {\n"
                             "    callDBus(\"") +
           reportTo.toUtf8() + QByteArrayLiteral("\", \"") + QByteArray(ReportPath) +
           QByteArrayLiteral("\", \"" KEYSTAGE_APP_ID ".KWinReport\", \"WindowActivated\",\n"
                             "             String(window ? window.pid : 0));\n"
                             "}\n"
                             "if (workspace.windowActivated)\n"
                             "    workspace.windowActivated.connect(report);\n"
                             "else\n"
                             "    workspace.clientActivated.connect(report);\n"
                             "report(workspace.activeWindow !== undefined ? workspace.activeWindow"
                             " : workspace.activeClient);\n");
}

void KWinScriptSource::WindowActivated(const QString& pid)
{
    if (!isStarted())
        return;
    bool ok = false;
    const qint64 value = pid.toLongLong(&ok);
    setProcessId(ok && value > 0 ? value : 0);
}

// A script of ours left loaded (a crash) goes first; then ours is loaded and
// started. Nothing here waits for KWin.
void KWinScriptSource::load()
{
    if (!m_scriptFile.isOpen() && !m_scriptFile.open()) {
        LOG_MSG(QStringLiteral("ERROR: KWin script file not created!!"));
        return;
    }
    m_scriptFile.resize(0);
    m_scriptFile.write(script(m_bus.baseService()));
    m_scriptFile.flush();

    m_bus.call(scriptingCall(QStringLiteral("unloadScript")) << QString::fromLatin1(PluginName), QDBus::NoBlock);
    auto* pending =
        new QDBusPendingCallWatcher(m_bus.asyncCall(scriptingCall(QStringLiteral("loadScript"))
                                                    << m_scriptFile.fileName() << QString::fromLatin1(PluginName)),
                                    this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* call) {
        call->deleteLater();
        const QDBusPendingReply<int> reply = *call;
        if (!isStarted())
            return;
        if (reply.isError() || reply.value() < 0) {
            LOG_MSG(
                QStringLiteral("ERROR: KWin did not load the foreground script: %1!!").arg(reply.error().message()));
            return;
        }
        m_bus.call(scriptingCall(QStringLiteral("start")), QDBus::NoBlock);
    });
}
