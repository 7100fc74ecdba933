#include "keystrokebackend.h"

#include "logging.h"
#include "uinputkeystrokebackend.h"
#include "xtestkeystrokebackend.h"

#include <QGuiApplication>

KeystrokeBackend::~KeystrokeBackend() = default;

KeystrokeBackend::Session KeystrokeBackend::Session::current()
{
    Session session;
    session.sessionType = qgetenv("XDG_SESSION_TYPE");
    session.waylandDisplay = qgetenv("WAYLAND_DISPLAY");
    session.display = qgetenv("DISPLAY");
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        session.qtPlatform = QGuiApplication::platformName();
    return session;
}

bool KeystrokeBackend::Session::isWayland() const
{
    return sessionType == "wayland" || !waylandDisplay.isEmpty() || qtPlatform.startsWith(QLatin1String("wayland"));
}

bool KeystrokeBackend::prefersX11(const Session& session)
{
    if (session.isWayland())
        return false;
    return session.qtPlatform == QLatin1String("xcb") || !session.display.isEmpty();
}

KeystrokeBackend::Choice KeystrokeBackend::create()
{
    return choose(Session::current(), std::make_unique<UinputKeystrokeBackend>(),
                  std::make_unique<XTestKeystrokeBackend>());
}

KeystrokeBackend::Choice KeystrokeBackend::choose(const Session& session, std::unique_ptr<KeystrokeBackend> uinput,
                                                  std::unique_ptr<KeystrokeBackend> xtest)
{
    const bool wayland = session.isWayland();
    const bool x11First = prefersX11(session);
    KeystrokeBackend* order[] = {uinput.get(), xtest.get()};
    if (x11First)
        std::swap(order[0], order[1]);

    Choice choice;
    for (KeystrokeBackend* backend : order) {
        if (!backend->isUsable())
            continue;
        choice.xClientsOnly = wayland && backend == xtest.get();
        if (choice.xClientsOnly)
            LOG_MSG(QStringLiteral("ERROR: keystrokes through xtest on a Wayland session reach X clients only!! "
                                   "uinput: %1")
                        .arg(uinput->unusableReason()));
        else
            LOG_MSG(QStringLiteral("keystrokes through %1").arg(backend->name()));
        choice.backend = backend == xtest.get() ? std::move(xtest) : std::move(uinput);
        return choice;
    }
    LOG_MSG(QStringLiteral("ERROR: no way to send keystrokes!! %1: %2; %3: %4")
                .arg(order[0]->name(), order[0]->unusableReason(), order[1]->name(), order[1]->unusableReason()));
    choice.backend = std::move(uinput);
    return choice;
}

QString KeystrokeBackend::fixText()
{
    return tr("To let them type, install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package "
              "has put it into /usr/lib/udev/rules.d) and run \"sudo udevadm control --reload && sudo udevadm "
              "trigger\", or log in to an X11 session.");
}

QString KeystrokeBackend::xClientsOnlyText()
{
    return tr("This is a Wayland session, and without access to /dev/uinput keys are typed through XWayland, which "
              "only programs running under X receive. To reach every program, install the udev rule "
              "70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d), "
              "run \"sudo udevadm control --reload && sudo udevadm trigger\" and start %1 again.")
        .arg(QCoreApplication::applicationName());
}
