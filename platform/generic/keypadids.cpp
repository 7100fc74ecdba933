#include "keypadids.h"

namespace KeypadIds {

QVector<quint32> supportedProductIds()
{
    return {0x1F43, 0x1F42, 0x1F41, 0x1F40, 0x1F45, 0x1F44, 0x110E};
}

bool isSupportedKeypad(quint32 vendorId, quint32 productId)
{
    return vendorId == VendorId && supportedProductIds().contains(productId);
}

} // namespace KeypadIds
