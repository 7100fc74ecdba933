#pragma once

#include "foregroundsource.h"

#include <QHash>
#include <QString>
#include <QTimer>

class QSocketNotifier;
struct wl_display;
struct wl_registry;
struct zwlr_foreign_toplevel_handle_v1;
struct zwlr_foreign_toplevel_manager_v1;

// Other wlroots compositors (river, labwc, Wayfire, ...): their foreign
// toplevel list says which window is activated and its app id, which the
// window's desktop entry turns into a program. It knows no process ids: the
// name comes from applicationName(), and processId() is 0 once the source
// has heard from the compositor.
//
// A connection of its own to the compositor, read in the GUI thread's event
// loop, so it works whatever Qt's platform is.
class WlrToplevelSource : public ForegroundSource
{
    Q_OBJECT

public:
    static constexpr int RetryMs = 2000;

    // The display's socket name ("wayland-1") or path; empty for the
    // default, as WAYLAND_DISPLAY says.
    explicit WlrToplevelSource(const QString& display = QString(), QObject* parent = nullptr);
    ~WlrToplevelSource() override;

    QString name() const override;
    QString notice() const override;
    QString applicationName() const override;
    void start() override;
    void stop() override;

    // The program an app id stands for: the executable of the desktop entry
    // "<app id>.desktop" (or its lower-case name), else the app id itself.
    static QString programForAppId(const QString& appId);

    // Called by the protocol's listeners.
    struct Toplevel
    {
        QString appId;
        bool activated = false;
        bool pendingActivated = false;
    };
    void onToplevel(zwlr_foreign_toplevel_handle_v1* handle);
    void onDone(zwlr_foreign_toplevel_handle_v1* handle);
    void onClosed(zwlr_foreign_toplevel_handle_v1* handle);
    void onGlobal(wl_registry* registry, uint32_t id, const char* interface, uint32_t version);
    Toplevel* toplevel(zwlr_foreign_toplevel_handle_v1* handle);

private:
    void connectNow();
    void onReadable();
    void disconnectNow();
    void setActive(zwlr_foreign_toplevel_handle_v1* handle, const QString& appId);

    QString m_display;
    wl_display* m_connection = nullptr;
    wl_registry* m_registry = nullptr;
    zwlr_foreign_toplevel_manager_v1* m_manager = nullptr;
    QSocketNotifier* m_notifier = nullptr;
    QHash<zwlr_foreign_toplevel_handle_v1*, Toplevel> m_toplevels;
    zwlr_foreign_toplevel_handle_v1* m_active = nullptr;
    QString m_program;
    // The compositor answered without offering the toplevel list.
    bool m_notOffered = false;
    QTimer m_retry;
};
