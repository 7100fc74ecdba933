#pragma once

#include <QVector>
#include <QtGlobal>

// USB identities of the keypads. Hot-plug filtering, the permission check and
// the udev rules all go by these, so a new model is added here once.
namespace KeypadIds {

constexpr quint32 VendorId = 0xFFFF;
// The firmware boot loader enumerates as a device of its own.
constexpr quint32 BootLoaderProductId = 0xFF00;

// In the order the device thread tries them.
QVector<quint32> supportedProductIds();

// A keypad (not its boot loader) with this vendor and product id.
bool isSupportedKeypad(quint32 vendorId, quint32 productId);

} // namespace KeypadIds
