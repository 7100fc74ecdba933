#include "wlrtoplevelsource.h"

#include "desktopexec.h"
#include "logging.h"
#include "programlocator.h"
#include "wlr-foreign-toplevel-management-unstable-v1-client-protocol.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSocketNotifier>

#include <cstring>
#include <wayland-client.h>

// GIO names a struct member "signals", which Qt defines as a keyword.
#pragma push_macro("signals")
#undef signals
#include <gio/gdesktopappinfo.h>
#pragma pop_macro("signals")

namespace {

// Versions 1 to 3 send what this source reads.
constexpr uint32_t ManagerVersion = 3;

WlrToplevelSource* sourceOf(void* data)
{
    return static_cast<WlrToplevelSource*>(data);
}

void onTitle(void*, zwlr_foreign_toplevel_handle_v1*, const char*) {}

void onAppId(void* data, zwlr_foreign_toplevel_handle_v1* handle, const char* appId)
{
    if (WlrToplevelSource::Toplevel* toplevel = sourceOf(data)->toplevel(handle))
        toplevel->appId = QString::fromUtf8(appId);
}

void onOutput(void*, zwlr_foreign_toplevel_handle_v1*, wl_output*) {}

void onState(void* data, zwlr_foreign_toplevel_handle_v1* handle, wl_array* states)
{
    WlrToplevelSource::Toplevel* toplevel = sourceOf(data)->toplevel(handle);
    if (!toplevel)
        return;
    toplevel->pendingActivated = false;
    const auto* state = static_cast<const uint32_t*>(states->data);
    for (size_t i = 0; i < states->size / sizeof(uint32_t); ++i)
        toplevel->pendingActivated |= state[i] == ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED;
}

void onDone(void* data, zwlr_foreign_toplevel_handle_v1* handle)
{
    sourceOf(data)->onDone(handle);
}

void onClosed(void* data, zwlr_foreign_toplevel_handle_v1* handle)
{
    sourceOf(data)->onClosed(handle);
}

void onParent(void*, zwlr_foreign_toplevel_handle_v1*, zwlr_foreign_toplevel_handle_v1*) {}

const zwlr_foreign_toplevel_handle_v1_listener HandleListener = {
    onTitle, onAppId, onOutput, onOutput, onState, onDone, onClosed, onParent,
};

void onNewToplevel(void* data, zwlr_foreign_toplevel_manager_v1*, zwlr_foreign_toplevel_handle_v1* handle)
{
    sourceOf(data)->onToplevel(handle);
}

void onFinished(void*, zwlr_foreign_toplevel_manager_v1*) {}

const zwlr_foreign_toplevel_manager_v1_listener ManagerListener = {onNewToplevel, onFinished};

void onGlobal(void* data, wl_registry* registry, uint32_t id, const char* interface, uint32_t version)
{
    sourceOf(data)->onGlobal(registry, id, interface, version);
}

void onGlobalRemoved(void*, wl_registry*, uint32_t) {}

const wl_registry_listener RegistryListener = {onGlobal, onGlobalRemoved};

// The program a desktop entry starts, by its base name; empty for none.
QString entryProgram(const QString& desktopId)
{
    GDesktopAppInfo* info = g_desktop_app_info_new(desktopId.toUtf8().constData());
    if (!info)
        return QString();
    const DesktopExec exec(QString::fromUtf8(g_app_info_get_commandline(G_APP_INFO(info))));
    g_object_unref(info);
    ProgramLocator locator;
    const QString program = QFileInfo(exec.executable(locator)).fileName();
    // A sandbox runner names no program of its own.
    return program == QLatin1String("flatpak") ? QString() : program;
}

} // namespace

WlrToplevelSource::WlrToplevelSource(const QString& display, QObject* parent)
    : ForegroundSource(parent), m_display(display)
{
    m_retry.setSingleShot(true);
    m_retry.setInterval(RetryMs);
    connect(&m_retry, &QTimer::timeout, this, &WlrToplevelSource::connectNow);
}

WlrToplevelSource::~WlrToplevelSource()
{
    disconnectNow();
}

QString WlrToplevelSource::name() const
{
    return QStringLiteral("wlroots");
}

QString WlrToplevelSource::notice() const
{
    if (m_notOffered)
        return QCoreApplication::translate(
            "ForegroundSource",
            "This compositor does not tell which application is in front, so folders cannot open by application. "
            "Compositors that offer wlroots' toplevel list do (sway, river, labwc, Wayfire, Hyprland).");
    return QCoreApplication::translate("ForegroundSource",
                                       "Folders open by application: the compositor's toplevel list tells which is "
                                       "in front.");
}

QString WlrToplevelSource::applicationName() const
{
    return m_program;
}

void WlrToplevelSource::start()
{
    if (isStarted())
        return;
    setStarted(true);
    connectNow();
}

void WlrToplevelSource::stop()
{
    m_retry.stop();
    disconnectNow();
    m_program.clear();
    setStarted(false);
}

void WlrToplevelSource::connectNow()
{
    if (!isStarted() || m_connection)
        return;
    m_connection = wl_display_connect(m_display.isEmpty() ? nullptr : m_display.toUtf8().constData());
    if (!m_connection) {
        m_retry.start();
        return;
    }
    m_registry = wl_display_get_registry(m_connection);
    wl_registry_add_listener(m_registry, &RegistryListener, this);
    // The globals, then the toplevels the manager announces at once.
    if (wl_display_roundtrip(m_connection) < 0 || (m_manager && wl_display_roundtrip(m_connection) < 0)) {
        disconnectNow();
        m_retry.start();
        return;
    }
    m_notOffered = !m_manager;
    if (m_notOffered) {
        LOG_MSG(QStringLiteral("the compositor offers no zwlr_foreign_toplevel_manager_v1!!"));
        disconnectNow();
        return;
    }
    // Known from here on, even with no window activated.
    setProcessId(0);
    m_notifier = new QSocketNotifier(wl_display_get_fd(m_connection), QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &WlrToplevelSource::onReadable);
    wl_display_flush(m_connection);
}

void WlrToplevelSource::onReadable()
{
    if (!m_connection)
        return;
    if (wl_display_dispatch(m_connection) < 0) {
        LOG_MSG(QStringLiteral("the compositor went away, connecting again"));
        disconnectNow();
        m_program.clear();
        setProcessId(Unknown);
        m_retry.start();
        return;
    }
    wl_display_flush(m_connection);
}

void WlrToplevelSource::disconnectNow()
{
    delete m_notifier;
    m_notifier = nullptr;
    if (!m_connection)
        return;
    for (auto it = m_toplevels.keyBegin(); it != m_toplevels.keyEnd(); ++it)
        zwlr_foreign_toplevel_handle_v1_destroy(*it);
    m_toplevels.clear();
    m_active = nullptr;
    if (m_manager)
        zwlr_foreign_toplevel_manager_v1_destroy(m_manager);
    m_manager = nullptr;
    if (m_registry)
        wl_registry_destroy(m_registry);
    m_registry = nullptr;
    wl_display_disconnect(m_connection);
    m_connection = nullptr;
}

void WlrToplevelSource::onGlobal(wl_registry* registry, uint32_t id, const char* interface, uint32_t version)
{
    if (m_manager || std::strcmp(interface, zwlr_foreign_toplevel_manager_v1_interface.name) != 0)
        return;
    m_manager = static_cast<zwlr_foreign_toplevel_manager_v1*>(
        wl_registry_bind(registry, id, &zwlr_foreign_toplevel_manager_v1_interface, qMin(version, ManagerVersion)));
    zwlr_foreign_toplevel_manager_v1_add_listener(m_manager, &ManagerListener, this);
}

void WlrToplevelSource::onToplevel(zwlr_foreign_toplevel_handle_v1* handle)
{
    m_toplevels.insert(handle, Toplevel());
    zwlr_foreign_toplevel_handle_v1_add_listener(handle, &HandleListener, this);
}

WlrToplevelSource::Toplevel* WlrToplevelSource::toplevel(zwlr_foreign_toplevel_handle_v1* handle)
{
    const auto found = m_toplevels.find(handle);
    return found == m_toplevels.end() ? nullptr : &found.value();
}

// A window's state arrives in pieces and holds from "done" on.
void WlrToplevelSource::onDone(zwlr_foreign_toplevel_handle_v1* handle)
{
    Toplevel* window = toplevel(handle);
    if (!window)
        return;
    window->activated = window->pendingActivated;
    // The window losing the focus may report after the one gaining it.
    if (window->activated)
        setActive(handle, window->appId);
    else if (m_active == handle)
        setActive(nullptr, QString());
}

void WlrToplevelSource::onClosed(zwlr_foreign_toplevel_handle_v1* handle)
{
    if (m_active == handle)
        setActive(nullptr, QString());
    m_toplevels.remove(handle);
    zwlr_foreign_toplevel_handle_v1_destroy(handle);
}

void WlrToplevelSource::setActive(zwlr_foreign_toplevel_handle_v1* handle, const QString& appId)
{
    m_active = handle;
    m_program = appId.isEmpty() ? QString() : programForAppId(appId);
}

QString WlrToplevelSource::programForAppId(const QString& appId)
{
    if (appId.isEmpty())
        return QString();
    QString program = entryProgram(appId + QLatin1String(".desktop"));
    if (program.isEmpty() && appId != appId.toLower())
        program = entryProgram(appId.toLower() + QLatin1String(".desktop"));
    return program.isEmpty() ? appId : program;
}
