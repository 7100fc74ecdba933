#pragma once

#include <QVector>
#include <QtGlobal>

// The USB devices a udev service looks for: one vendor, some products. The
// caller knows which keypads the program drives and passes them in.
struct UsbIdFilter
{
    quint32 vendorId = 0;
    QVector<quint32> productIds;

    bool accepts(quint32 vendor, quint32 product) const { return vendor == vendorId && productIds.contains(product); }
};
