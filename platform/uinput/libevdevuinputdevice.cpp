#include "libevdevuinputdevice.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <libevdev/libevdev-uinput.h>
#include <libevdev/libevdev.h>
#include <unistd.h>

LibevdevUinputDevice::LibevdevUinputDevice(const QString& nodePath) : m_nodePath(nodePath) {}

LibevdevUinputDevice::~LibevdevUinputDevice()
{
    destroy();
}

bool LibevdevUinputDevice::create(const QVector<quint16>& keyCodes, QString* reason)
{
    destroy();
    // Non-blocking: uinput never waits, but whatever else sits at the path
    // must not hold us up either.
    m_fd = ::open(QFile::encodeName(m_nodePath).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    if (m_fd < 0) {
        *reason = QStringLiteral("cannot open %1: %2").arg(m_nodePath, QString::fromLocal8Bit(std::strerror(errno)));
        return false;
    }
    m_prototype = libevdev_new();
    libevdev_set_name(m_prototype, "Keystage virtual keyboard");
    libevdev_set_id_bustype(m_prototype, BUS_VIRTUAL);
    libevdev_enable_event_type(m_prototype, EV_KEY);
    for (quint16 code : keyCodes)
        libevdev_enable_event_code(m_prototype, EV_KEY, code, nullptr);
    const int result = libevdev_uinput_create_from_device(m_prototype, m_fd, &m_device);
    if (result < 0) {
        *reason = QStringLiteral("cannot create a uinput keyboard on %1: %2")
                      .arg(m_nodePath, QString::fromLocal8Bit(std::strerror(-result)));
        m_device = nullptr;
        destroy();
        return false;
    }
    return true;
}

bool LibevdevUinputDevice::writeKey(quint16 code, bool down)
{
    if (!m_device)
        return false;
    return libevdev_uinput_write_event(m_device, EV_KEY, code, down ? 1 : 0) == 0 &&
           libevdev_uinput_write_event(m_device, EV_SYN, SYN_REPORT, 0) == 0;
}

void LibevdevUinputDevice::destroy()
{
    if (m_device)
        libevdev_uinput_destroy(m_device);
    m_device = nullptr;
    if (m_prototype)
        libevdev_free(m_prototype);
    m_prototype = nullptr;
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
}
