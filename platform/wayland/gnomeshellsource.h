#pragma once

#include "foregroundsource.h"
#include "keystageappid.h"

#include <QDBusConnection>

class QDBusServiceWatcher;

// GNOME Shell: the Keystage Focus extension shipped with the program
// (packaging/gnome-shell) owns a name on the session bus and publishes the
// focused window's process as a property with a change signal. Followed
// while started; picked up whenever the extension is turned on.
class GnomeShellSource : public ForegroundSource
{
    Q_OBJECT

public:
    static constexpr char ExtensionUuid[] = "keystage-focus@vantorix.io";
    static constexpr char Service[] = KEYSTAGE_APP_ID ".ShellFocus";
    static constexpr char Path[] = "/io/vantorix/Keystage/ShellFocus";
    static constexpr char Interface[] = KEYSTAGE_APP_ID ".ShellFocus";

    explicit GnomeShellSource(const QDBusConnection& bus, QObject* parent = nullptr);
    ~GnomeShellSource() override;

    QString name() const override;
    // How to install or turn on the extension when it does not answer.
    QString notice() const override;
    void start() override;
    void stop() override;

    // Whether the extension is installed for every user or for this one.
    static bool isExtensionInstalled();

private slots:
    void onFocusChanged(uint pid);

private:
    void readFocus();
    bool connectFocusSignal(bool connect);

    QDBusConnection m_bus;
    QDBusServiceWatcher* m_watcher = nullptr;
};
