#include "windowsystem.h"

#include "foregroundsource.h"
#include "genericwindowsystem.h"
#include "x11windowsystem.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QProcessEnvironment>

WindowSystem::~WindowSystem() = default;

void WindowSystem::watchForegroundApplication(bool) {}

bool WindowSystem::isForegroundApplicationKnown() const
{
    return true;
}

QString WindowSystem::foregroundSourceNotice() const
{
    if (canQueryForegroundApplication())
        return QString();
    return QCoreApplication::translate(
        "WindowSystem",
        "This desktop does not tell which application is in front, so folders cannot open by application. On "
        "Wayland, sway, Hyprland, KDE Plasma and GNOME (with Keystage's extension) do.");
}

std::unique_ptr<WindowSystem> WindowSystem::create()
{
    const QString platform = QGuiApplication::platformName();
    if (platform == QLatin1String("xcb"))
        return std::make_unique<X11WindowSystem>();
    if (platform.startsWith(QLatin1String("wayland")))
        return std::make_unique<GenericWindowSystem>(
            QStringLiteral("wayland"), ForegroundSource::forDesktop(QProcessEnvironment::systemEnvironment()));
    return std::make_unique<GenericWindowSystem>(platform);
}
