#include "windowsystem.h"

#include "genericwindowsystem.h"
#include "x11windowsystem.h"

#include <QGuiApplication>

WindowSystem::~WindowSystem() = default;

std::unique_ptr<WindowSystem> WindowSystem::create()
{
    const QString platform = QGuiApplication::platformName();
    if (platform == QLatin1String("xcb"))
        return std::make_unique<X11WindowSystem>();
    return std::make_unique<GenericWindowSystem>(
        platform.startsWith(QLatin1String("wayland")) ? QStringLiteral("wayland") : platform);
}
