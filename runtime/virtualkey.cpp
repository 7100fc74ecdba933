#include "virtualkey.h"

#include "keystrokebackend.h"
#include "logging.h"
#include "virtualkeytable.h"
#include "windowsystem.h"

#include <QDebug>
#include <QMutex>
#include <QThread>
#include <QVector>

#include <atomic>
#include <memory>

namespace {

// While this broadcasting program is in front, synthetic keys do not reach
// the program the user meant; they are typed with our main window in front.
const QString BroadcasterTitle = QStringLiteral("XSplit Broadcaster");
constexpr int ForegroundChecks = 5;
constexpr int ForegroundCheckMs = 100;

// One lock for the backend choice and for typing, so that chords from
// several threads never interleave.
QMutex typingMutex;
std::unique_ptr<KeystrokeBackend> chosenBackend;
KeystrokeBackend* setBackendPointer = nullptr;
WindowSystem* windowSystem = nullptr;
// Written on the GUI thread, read while typing: never the window itself,
// which belongs to the GUI thread.
std::atomic<quint64> mainWindow{0};
bool userTold = false;

// Sets *xClientsOnly when this call made the choice and it was XTest on a
// Wayland session, which the user hears of once.
KeystrokeBackend* currentBackend(bool* xClientsOnly)
{
    if (setBackendPointer)
        return setBackendPointer;
    if (!chosenBackend) {
        KeystrokeBackend::Choice choice = KeystrokeBackend::create();
        chosenBackend = std::move(choice.backend);
        *xClientsOnly = choice.xClientsOnly;
    }
    return chosenBackend.get();
}

void tellUser()
{
    emit VirtualKey::instance()->keystrokesUnavailable(KeystrokeBackend::fixText());
}

// Under the typing lock: the backend to type with, or null when none is
// usable, after unlocking and telling the user the first time (unlocked, so
// a directly connected receiver may call back in).
KeystrokeBackend* usableBackend(QMutexLocker& lock)
{
    bool xClientsOnly = false;
    KeystrokeBackend* backend = currentBackend(&xClientsOnly);
    if (xClientsOnly) {
        // Unlocked: a receiver on this thread may show a modal message.
        lock.unlock();
        emit VirtualKey::instance()->keystrokesReachXOnly(KeystrokeBackend::xClientsOnlyText());
        lock.relock();
        backend = currentBackend(&xClientsOnly);
    }
    if (backend->isUsable())
        return backend;
    const bool news = !userTold;
    if (news) {
        LOG_MSG(QStringLiteral("ERROR: keystrokes cannot be sent through %1: %2!!")
                    .arg(backend->name(), backend->unusableReason()));
        userTold = true;
    }
    lock.unlock();
    if (news)
        tellUser();
    return nullptr;
}

void makeForeground(quint64 windowId)
{
    windowSystem->activateWindowId(windowId);
    for (int i = 0; i < ForegroundChecks && windowSystem->foregroundWindowId() != windowId; ++i)
        QThread::msleep(ForegroundCheckMs);
}

// The window to give the foreground back to afterwards; 0 when the rule
// does not apply.
quint64 moveAwayFromBroadcaster()
{
    const quint64 mainWindowId = mainWindow.load();
    if (!windowSystem || mainWindowId == 0 || windowSystem->foregroundWindowTitle() != BroadcasterTitle)
        return 0;
    const quint64 previous = windowSystem->foregroundWindowId();
    if (previous == mainWindowId)
        return 0;
    LOG_MSG(QStringLiteral("keystroke with %1 in front: main window brought forward").arg(BroadcasterTitle));
    makeForeground(mainWindowId);
    return previous;
}

void typeChord(KeystrokeBackend* backend, const QVector<int>& keys)
{
    QVector<int> down;
    for (int key : keys) {
        if (backend->keyDown(key))
            down.append(key);
    }
    QThread::msleep(VirtualKey::PauseMs);
    // Only what went down comes up, so a refused key leaves nothing stuck.
    for (auto it = down.crbegin(); it != down.crend(); ++it)
        backend->keyUp(*it);
}

void playSteps(KeystrokeBackend* backend, const QList<MarcoKeyItem>& steps)
{
    for (const MarcoKeyItem& step : steps) {
        const int key = step.nativeKeyCode;
        if (!VirtualKeyTable::contains(key)) {
            logMsgWhenRetFail(false, QStringLiteral("macro step with unknown virtual key %1 skipped!!").arg(key));
            continue;
        }
        if (step.isPress)
            backend->keyDown(key);
        else
            backend->keyUp(key);
        qDebug().noquote() << QStringLiteral("press: %1 %2").arg(key).arg(step.isPress ? 0 : VirtualKey::KeyUpFlag);
        QThread::msleep(VirtualKey::PauseMs);
    }
}

} // namespace

// On the way from a key press to its keystroke: failure messages are only
// put together when something failed.
void VirtualKey::sendKeyEvent(int nativeKey, bool win, bool alt, bool ctrl, bool shift)
{
    if (!VirtualKeyTable::contains(nativeKey)) {
        logMsgWhenRetFail(false, QStringLiteral("hotkey with unknown virtual key %1 not sent!!").arg(nativeKey));
        return;
    }
    QMutexLocker lock(&typingMutex);
    KeystrokeBackend* backend = usableBackend(lock);
    if (!backend)
        return;

    const quint64 previousForeground = moveAwayFromBroadcaster();
    QVector<int> keys;
    if (win)
        keys.append(WindowsKey);
    if (alt)
        keys.append(AltKey);
    if (ctrl)
        keys.append(ControlKey);
    if (shift)
        keys.append(ShiftKey);
    keys.append(nativeKey);
    typeChord(backend, keys);
    if (previousForeground != 0)
        makeForeground(previousForeground);
}

void VirtualKey::sendMacroKeyEvent(QList<MarcoKeyItem> steps)
{
    QMutexLocker lock(&typingMutex);
    KeystrokeBackend* backend = usableBackend(lock);
    if (backend)
        playSteps(backend, steps);
}

void VirtualKey::setBackend(KeystrokeBackend* backend)
{
    QMutexLocker lock(&typingMutex);
    setBackendPointer = backend;
    // Another backend is news of its own.
    userTold = false;
}

void VirtualKey::setWindowSystem(WindowSystem* system)
{
    QMutexLocker lock(&typingMutex);
    windowSystem = system;
}

void VirtualKey::setMainWindowId(quint64 windowId)
{
    mainWindow.store(windowId);
}

quint64 VirtualKey::mainWindowId()
{
    return mainWindow.load();
}

bool VirtualKey::checkAvailable()
{
    QMutexLocker lock(&typingMutex);
    return usableBackend(lock) != nullptr;
}

VirtualKey* VirtualKey::instance()
{
    static VirtualKey notifier;
    return &notifier;
}
