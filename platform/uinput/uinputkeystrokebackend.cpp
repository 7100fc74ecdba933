#include "uinputkeystrokebackend.h"

#include "libevdevuinputdevice.h"
#include "logging.h"
#include "virtualkeytable.h"

#include <QThread>

UinputKeystrokeBackend::UinputKeystrokeBackend(std::unique_ptr<UinputDevice> device)
    : m_device(device ? std::move(device) : std::make_unique<LibevdevUinputDevice>())
{
}

UinputKeystrokeBackend::~UinputKeystrokeBackend() = default;

QString UinputKeystrokeBackend::name() const
{
    return QStringLiteral("uinput");
}

bool UinputKeystrokeBackend::isUsable()
{
    QMutexLocker lock(&m_mutex);
    return ensureDevice();
}

QString UinputKeystrokeBackend::unusableReason() const
{
    QMutexLocker lock(&m_mutex);
    return m_created ? QString() : m_reason;
}

bool UinputKeystrokeBackend::keyDown(int virtualKey)
{
    return sendKey(virtualKey, true);
}

bool UinputKeystrokeBackend::keyUp(int virtualKey)
{
    return sendKey(virtualKey, false);
}

// A failed attempt is repeated on the next need: access to /dev/uinput may
// be granted while the program runs. Only a new reason is logged.
bool UinputKeystrokeBackend::ensureDevice()
{
    if (m_created)
        return true;
    QString reason;
    m_created = m_device->create(VirtualKeyTable::evdevCodes(), &reason);
    if (m_created) {
        LOG_MSG(QStringLiteral("uinput keyboard created"));
        m_reason.clear();
    } else if (reason != m_reason) {
        LOG_MSG(QStringLiteral("ERROR: uinput unusable!! %1").arg(reason));
        m_reason = reason;
    }
    return m_created;
}

bool UinputKeystrokeBackend::sendKey(int virtualKey, bool down)
{
    const quint16 code = VirtualKeyTable::evdevCode(virtualKey);
    // Messages are put together only on failure: this is the keystroke's path.
    if (code == 0)
        return logMsgWhenRetFail(false, QStringLiteral("no evdev key for virtual key 0x%1!!").arg(virtualKey, 0, 16));
    QMutexLocker lock(&m_mutex);
    const bool wasCreated = m_created;
    if (!ensureDevice())
        return false;
    if (!wasCreated)
        QThread::msleep(SettleMs);
    if (!m_device->writeKey(code, down))
        return logMsgWhenRetFail(false, QStringLiteral("uinput write of key %1 failed!!").arg(code));
    return true;
}
