#include "foregroundsource.h"

#include "gnomeshellsource.h"
#include "hyprlandsource.h"
#include "kwinscriptsource.h"
#include "sessionbus.h"
#include "swayipcsource.h"
#include "wlrtoplevelsource.h"
#include "x11windowsystem.h"

#include <QCoreApplication>
#include <QProcessEnvironment>

ForegroundSource::ForegroundSource(QObject* parent) : QObject(parent) {}

ForegroundSource::~ForegroundSource() = default;

QString ForegroundSource::notice() const
{
    return QCoreApplication::translate("ForegroundSource", "Folders open by application: %1 tells which is in front.")
        .arg(name());
}

qint64 ForegroundSource::processId() const
{
    return m_pid.load();
}

QString ForegroundSource::applicationName() const
{
    const qint64 pid = processId();
    return pid > 0 ? X11WindowSystem::executableBaseName(pid) : QString();
}

bool ForegroundSource::isStarted() const
{
    return m_started;
}

void ForegroundSource::setProcessId(qint64 pid)
{
    if (m_pid.exchange(pid) != pid)
        emit processIdChanged(pid);
}

void ForegroundSource::setStarted(bool started)
{
    m_started = started;
    if (!started)
        setProcessId(Unknown);
}

// The compositor's own socket first: it is there whenever its variable is.
std::unique_ptr<ForegroundSource> ForegroundSource::forDesktop(const QProcessEnvironment& environment)
{
    const QString sway = environment.value(QStringLiteral("SWAYSOCK"));
    if (!sway.isEmpty())
        return std::make_unique<SwayIpcSource>(QStringLiteral("sway"), sway);
    const QString hyprland = environment.value(QStringLiteral("HYPRLAND_INSTANCE_SIGNATURE"));
    if (!hyprland.isEmpty())
        return std::make_unique<HyprlandSource>(HyprlandSource::instanceDirectory(environment));
    const QString i3 = environment.value(QStringLiteral("I3SOCK"));
    if (!i3.isEmpty())
        return std::make_unique<SwayIpcSource>(QStringLiteral("i3"), i3);
    const QStringList desktops = environment.value(QStringLiteral("XDG_CURRENT_DESKTOP")).split(QLatin1Char(':'));
    if (desktops.contains(QStringLiteral("KDE"), Qt::CaseInsensitive))
        return std::make_unique<KWinScriptSource>(sessionBusIfAny());
    if (desktops.contains(QStringLiteral("GNOME"), Qt::CaseInsensitive))
        return std::make_unique<GnomeShellSource>(sessionBusIfAny());
    // Any other compositor may offer wlroots' toplevel list; the source says
    // so when it does not.
    if (environment.contains(QStringLiteral("WAYLAND_DISPLAY")))
        return std::make_unique<WlrToplevelSource>(environment.value(QStringLiteral("WAYLAND_DISPLAY")));
    return nullptr;
}
