#include "runtimeactionservices.h"

#include "logging.h"
#include "objectregistry.h"
#include "taskproxy.h"
#include "virtualkey.h"
#include "windowsystem.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QProcess>
#include <QSemaphore>
#include <QThread>

#include <memory>

RuntimeActionServices::RuntimeActionServices(std::unique_ptr<WindowSystem> windowSystem)
    : m_windowSystem(std::move(windowSystem))
{
}

RuntimeActionServices::~RuntimeActionServices() = default;

void RuntimeActionServices::sendKeyEvent(int nativeKey, bool win, bool alt, bool ctrl, bool shift)
{
    VirtualKey::sendKeyEvent(nativeKey, win, alt, ctrl, shift);
}

void RuntimeActionServices::sendMacroKeyEvent(QList<MarcoKeyItem> steps)
{
    VirtualKey::sendMacroKeyEvent(std::move(steps));
}

// The clipboard belongs to the GUI thread. A key action thread hands the text
// over and waits until it is set, but not for ever: a GUI thread that is
// itself waiting for the key action thread (while quitting) must not
// deadlock it.
bool RuntimeActionServices::setClipboardText(const QString& text)
{
    auto* app = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    if (!app)
        return false;
    if (QThread::currentThread() == app->thread()) {
        QGuiApplication::clipboard()->setText(text);
        return true;
    }
    auto done = std::make_shared<QSemaphore>();
    QMetaObject::invokeMethod(
        app,
        [text, done] {
            QGuiApplication::clipboard()->setText(text);
            done->release();
        },
        Qt::QueuedConnection);
    if (done->tryAcquire(1, ClipboardWaitMs))
        return true;
    LOG_MSG(QStringLiteral("The GUI thread did not take the text for the clipboard in time."));
    return false;
}

bool RuntimeActionServices::runTask(const QString& name, std::function<void()> work)
{
    auto* tasks = COMPONENT(TaskProxy, ComponentId::TaskProxy);
    return tasks && tasks->runTask(name, std::move(work)) >= 0;
}

bool RuntimeActionServices::startDetached(const QString& program, const QStringList& arguments,
                                          const QString& workingDirectory)
{
    return QProcess::startDetached(program, arguments, workingDirectory);
}

bool RuntimeActionServices::openUrl(const QUrl& url)
{
    return QDesktopServices::openUrl(url);
}

QString RuntimeActionServices::foregroundApplicationName()
{
    return m_windowSystem ? m_windowSystem->foregroundApplicationName() : QString();
}
