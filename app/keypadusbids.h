#pragma once

#include "keypadtable.h"
#include "usbidfilter.h"

// The keypads (not their boot loader) as the udev services look for them.
inline UsbIdFilter keypadUsbIds()
{
    return {KeypadTable::VendorId, KeypadTable::productIds()};
}
