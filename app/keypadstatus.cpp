#include "keypadstatus.h"

#include "hid_comm.h"
#include "keypadaccess.h"
#include "keypadusbids.h"
#include "logging.h"

KeypadStatus::KeypadStatus(Hid_Comm* hid, QObject* parent) : QObject(parent), m_hid(hid)
{
    m_settleTimer.setSingleShot(true);
    m_settleTimer.setInterval(SettleMs);
    connect(&m_settleTimer, &QTimer::timeout, this, &KeypadStatus::settle);
    if (!hid)
        return;
    connect(hid, &Hid_Comm::KeyboardStatusChange, this, &KeypadStatus::onKeyboardStatusChange, Qt::QueuedConnection);
    // Now that no notice can be lost, the notices sent before: queued, so
    // that whoever connects to this object right after making it hears of
    // a keypad that is open already. A notice that crosses this one only
    // repeats it.
    QMetaObject::invokeMethod(
        this, [this] { onKeyboardStatusChange(m_hid && m_hid->isOpened()); }, Qt::QueuedConnection);
}

KeypadStatus::State KeypadStatus::state() const
{
    return m_state;
}

void KeypadStatus::onKeyboardStatusChange(bool connected)
{
    if (!m_hid)
        return;
    m_settleTimer.start();
    if (connected)
        emit keypadOpened();
}

void KeypadStatus::settle()
{
    if (!m_hid)
        return;
    State state = Absent;
    if (m_hid->isOpened()) {
        state = Connected;
    } else {
        const KeypadAccess::Result access = KeypadAccess::check(keypadUsbIds());
        if (access.status == KeypadAccess::NoPermission) {
            LOG_MSG(QStringLiteral("keypad at %1 cannot be opened: no permission").arg(access.nodePath));
            state = NoPermission;
        }
    }
    m_state = state;
    emit stateChanged(state);
}
