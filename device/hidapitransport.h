#pragma once

#include "hidtransport.h"

#include <QMutex>
#include <QSet>

// Real keypads through Debian's hidapi, libusb back end. That back end gives
// every transfer a 1000 ms timeout of its own, so a wedged keypad costs a
// second per call and never blocks the program (the hidraw back end's writes
// wait in the kernel for up to five seconds).
//
// A handle closed by one thread (the polling thread after a failed read) may
// still be in the hands of another (an image write on the GUI thread); such
// calls fail with -1 instead of touching freed memory.
class HidapiTransport : public HidTransport
{
public:
    int init() override;
    int exit() override;
    HidDeviceHandle* open(unsigned short vendorId, unsigned short productId) override;
    void close(HidDeviceHandle* device) override;
    int write(HidDeviceHandle* device, const unsigned char* data, size_t length) override;
    int readTimeout(HidDeviceHandle* device, unsigned char* data, size_t length, int milliseconds) override;
    int sendFeatureReport(HidDeviceHandle* device, const unsigned char* data, size_t length) override;
    int getFeatureReport(HidDeviceHandle* device, unsigned char* data, size_t length) override;
    QString error(HidDeviceHandle* device) override;

private:
    QMutex mutex;
    QSet<HidDeviceHandle*> openHandles;
};
