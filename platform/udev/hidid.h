#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <optional>

// The bus, vendor and product of a HID device as udev and the kernel name it.
struct HidId
{
    quint32 bus = 0;
    quint32 vendorId = 0;
    quint32 productId = 0;

    // udev's HID_ID property of a "hid" device: "0003:0000FFFF:00001F43",
    // three colon-separated hexadecimal fields. Nothing for anything else.
    static std::optional<HidId> parse(const QByteArray& text);

    // From a sysfs device path that runs through a HID device, whose kernel
    // name is "BBBB:VVVV:PPPP.NNNN" ("/devices/.../0003:FFFF:1F43.0001/hidraw/
    // hidraw0"). A removed node's parent can no longer be looked up in sysfs,
    // but its path still names the HID device it belonged to.
    static std::optional<HidId> fromDevicePath(const QByteArray& devicePath);
};
