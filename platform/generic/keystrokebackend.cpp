#include "keystrokebackend.h"

#include "logging.h"
#include "uinputkeystrokebackend.h"
#include "xtestkeystrokebackend.h"

#include <QGuiApplication>

KeystrokeBackend::~KeystrokeBackend() = default;

bool KeystrokeBackend::prefersX11(const QString& qtPlatform, const QByteArray& display,
                                  const QByteArray& waylandDisplay)
{
    if (qtPlatform == QLatin1String("xcb"))
        return true;
    if (qtPlatform.startsWith(QLatin1String("wayland")))
        return false;
    // XWayland sets DISPLAY as well, but XTest there reaches X clients only.
    return !display.isEmpty() && waylandDisplay.isEmpty();
}

std::unique_ptr<KeystrokeBackend> KeystrokeBackend::create()
{
    const QString platform =
        qobject_cast<QGuiApplication*>(QCoreApplication::instance()) ? QGuiApplication::platformName() : QString();
    std::unique_ptr<KeystrokeBackend> first = std::make_unique<UinputKeystrokeBackend>();
    std::unique_ptr<KeystrokeBackend> second = std::make_unique<XTestKeystrokeBackend>();
    if (prefersX11(platform, qgetenv("DISPLAY"), qgetenv("WAYLAND_DISPLAY")))
        std::swap(first, second);

    for (std::unique_ptr<KeystrokeBackend>* backend : {&first, &second}) {
        if ((*backend)->isUsable()) {
            LOG_MSG(QStringLiteral("keystrokes through %1").arg((*backend)->name()));
            return std::move(*backend);
        }
    }
    LOG_MSG(QStringLiteral("ERROR: no way to send keystrokes!! %1: %2; %3: %4")
                .arg(first->name(), first->unusableReason(), second->name(), second->unusableReason()));
    return first->name() == QLatin1String("uinput") ? std::move(first) : std::move(second);
}

QString KeystrokeBackend::fixText()
{
    return tr("To let them type, install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package "
              "has put it into /usr/lib/udev/rules.d) and run \"sudo udevadm control --reload && sudo udevadm "
              "trigger\", or log in to an X11 session.");
}
