#include "keypadaccess.h"

#include "logging.h"

#include <QFile>

#include <algorithm>
#include <cctype>
#include <libudev.h>
#include <unistd.h>

namespace {

// sysfs writes USB ids as four hexadecimal digits; toUInt() alone would
// also take "0x1f" and the like.
bool parseUsbId(const QByteArray& text, quint32* value)
{
    if (text.size() != 4 || !std::all_of(text.cbegin(), text.cend(), [](char c) { return std::isxdigit(uchar(c)); }))
        return false;
    *value = text.toUInt(nullptr, 16);
    return true;
}

bool isKeypad(const UsbIdFilter& keypads, const KeypadAccess::UsbDevice& device, quint32* productId)
{
    quint32 vendorId = 0;
    return parseUsbId(device.idVendor, &vendorId) && parseUsbId(device.idProduct, productId) &&
           keypads.accepts(vendorId, *productId);
}

QByteArray toBytes(const char* text)
{
    return text ? QByteArray(text) : QByteArray();
}

KeypadAccess::UsbDevice readDevice(udev_device* device)
{
    return {toBytes(udev_device_get_sysattr_value(device, "idVendor")),
            toBytes(udev_device_get_sysattr_value(device, "idProduct")), toBytes(udev_device_get_devnode(device))};
}

QVector<KeypadAccess::UsbDevice> enumerate(struct udev* context, quint32 vendorId)
{
    QVector<KeypadAccess::UsbDevice> devices;
    udev_enumerate* enumeration = udev_enumerate_new(context);
    if (!enumeration)
        return devices;
    const QByteArray vendor = QByteArray::number(vendorId, 16);
    udev_enumerate_add_match_subsystem(enumeration, "usb");
    udev_enumerate_add_match_property(enumeration, "DEVTYPE", "usb_device");
    udev_enumerate_add_match_sysattr(enumeration, "idVendor", vendor.constData());
    udev_enumerate_scan_devices(enumeration);
    udev_list_entry* entry = nullptr;
    udev_list_entry_foreach(entry, udev_enumerate_get_list_entry(enumeration))
    {
        udev_device* device = udev_device_new_from_syspath(context, udev_list_entry_get_name(entry));
        if (!device)
            continue;
        devices.append(readDevice(device));
        udev_device_unref(device);
    }
    udev_enumerate_unref(enumeration);
    return devices;
}

} // namespace

KeypadAccess::Result KeypadAccess::check(const UsbIdFilter& keypads)
{
    return evaluate(keypads, presentUsbDevices(keypads.vendorId), [](const QString& path) {
        return ::access(QFile::encodeName(path).constData(), R_OK | W_OK) == 0;
    });
}

KeypadAccess::Result KeypadAccess::evaluate(const UsbIdFilter& keypads, const QVector<UsbDevice>& devices,
                                            const std::function<bool(const QString&)>& canReadWrite)
{
    for (const UsbDevice& device : devices) {
        quint32 productId = 0;
        // Without a node there is nothing to open, whatever the rules say.
        if (device.devNode.isEmpty() || !isKeypad(keypads, device, &productId))
            continue;
        Result result;
        result.nodePath = QFile::decodeName(device.devNode);
        result.productId = productId;
        result.status = canReadWrite(result.nodePath) ? Accessible : NoPermission;
        return result;
    }
    return Result();
}

QString KeypadAccess::fixText()
{
    return tr("Install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into "
              "/usr/lib/udev/rules.d), then run \"sudo udevadm control --reload && sudo udevadm trigger\" or unplug "
              "and replug the keypad.");
}

QVector<KeypadAccess::UsbDevice> KeypadAccess::presentUsbDevices(quint32 vendorId)
{
    struct udev* context = udev_new();
    if (!context) {
        LOG_MSG(QStringLiteral("udev_new failed; cannot look for keypads!!"));
        return {};
    }
    const QVector<UsbDevice> devices = enumerate(context, vendorId);
    udev_unref(context);
    return devices;
}
