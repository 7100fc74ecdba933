#include "udevhidrawsource.h"

#include <libudev.h>
#include <unistd.h>

namespace {

// libudev's own test for a running udev: without its control socket nobody
// sends processed events, and libudev quietly listens to nothing.
bool udevIsRunning()
{
    return ::access("/run/udev/control", F_OK) == 0;
}

QByteArray toBytes(const char* text)
{
    return text ? QByteArray(text) : QByteArray();
}

} // namespace

UdevHidrawSource::UdevHidrawSource(struct udev* context, udev_monitor* monitor) : m_udev(context), m_monitor(monitor) {}

UdevHidrawSource::~UdevHidrawSource()
{
    udev_monitor_unref(m_monitor);
    udev_unref(m_udev);
}

std::unique_ptr<UdevHidrawSource> UdevHidrawSource::create(QString* reason)
{
    if (!udevIsRunning()) {
        *reason = QStringLiteral("udev is not running (no /run/udev/control)");
        return nullptr;
    }
    struct udev* context = udev_new();
    if (!context) {
        *reason = QStringLiteral("udev_new failed");
        return nullptr;
    }
    udev_monitor* monitor = udev_monitor_new_from_netlink(context, "udev");
    if (!monitor || udev_monitor_filter_add_match_subsystem_devtype(monitor, "hidraw", nullptr) < 0 ||
        udev_monitor_enable_receiving(monitor) < 0 || udev_monitor_get_fd(monitor) < 0) {
        *reason = QStringLiteral("cannot listen to udev's events");
        udev_monitor_unref(monitor);
        udev_unref(context);
        return nullptr;
    }
    return std::unique_ptr<UdevHidrawSource>(new UdevHidrawSource(context, monitor));
}

int UdevHidrawSource::fd() const
{
    return udev_monitor_get_fd(m_monitor);
}

bool UdevHidrawSource::receive(Event* event)
{
    udev_device* device = udev_monitor_receive_device(m_monitor);
    if (!device)
        return false;
    event->action = toBytes(udev_device_get_action(device));
    event->devicePath = toBytes(udev_device_get_devpath(device));
    // Owned by the child device; gone from sysfs when the node was removed.
    udev_device* hid = udev_device_get_parent_with_subsystem_devtype(device, "hid", nullptr);
    event->hidId = hid ? toBytes(udev_device_get_property_value(hid, "HID_ID")) : QByteArray();
    udev_device_unref(device);
    return true;
}
