#pragma once

#include "usbidfilter.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QVector>

#include <functional>

// Whether the user may open the keypad that is plugged in. Without the udev
// rule that gives the logged-in user the keypad's USB device node, opening
// the keypad fails in a way the device layer cannot tell from "no keypad",
// so the program asks before it blames the keypad.
class KeypadAccess
{
    Q_DECLARE_TR_FUNCTIONS(KeypadAccess)

public:
    enum Status
    {
        NoKeypad,
        Accessible,
        NoPermission
    };

    struct Result
    {
        Status status = NoKeypad;
        QString nodePath;      // "/dev/bus/usb/BBB/DDD"; empty without a keypad
        quint32 productId = 0; // 0 without a keypad
    };

    // A present USB device, with its sysfs attributes as udev reads them.
    struct UsbDevice
    {
        QByteArray idVendor;  // "ffff"
        QByteArray idProduct; // "1f43"
        QByteArray devNode;   // "/dev/bus/usb/001/004"
    };

    // The first of the given keypads present, checked with access(2) for
    // reading and writing. NoKeypad also when udev cannot enumerate (logged).
    static Result check(const UsbIdFilter& keypads);

    // The decision over given devices; canReadWrite tells about one node.
    static Result evaluate(const UsbIdFilter& keypads, const QVector<UsbDevice>& devices,
                           const std::function<bool(const QString&)>& canReadWrite);

    // What the user can do about NoPermission, as one sentence.
    static QString fixText();

    // The USB devices of that vendor that udev knows of.
    static QVector<UsbDevice> presentUsbDevices(quint32 vendorId);
};
