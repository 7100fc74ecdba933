#pragma once

#include "hidtransport.h"

// Real keypads through Debian's hidapi, libusb back end. That back end gives
// every transfer a 1000 ms timeout of its own, so a wedged keypad costs a
// second per call and never blocks the program (the hidraw back end's writes
// wait in the kernel for up to five seconds).
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
};
