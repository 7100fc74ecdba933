#pragma once

#include <QString>

#include <cstddef>

// An open HID device as the transport knows it. The protocol layer only
// passes it back; each transport decides what it points at.
struct HidDeviceHandle;

// The HID calls the keypad protocol makes, one to one with hidapi's
// functions and with hidapi's return conventions: byte counts (report id
// included) on success, -1 on failure, 0 from a read that timed out.
//
// The program talks to real keypads through HidapiTransport; the tests and
// the on-screen virtual keypad put a SimulatedKeypad in its place.
class HidTransport
{
public:
    virtual ~HidTransport() = default;

    virtual int init() = 0;
    virtual int exit() = 0;
    // The first device enumerated with this vendor and product id, or null.
    virtual HidDeviceHandle* open(unsigned short vendorId, unsigned short productId) = 0;
    virtual void close(HidDeviceHandle* device) = 0;
    virtual int write(HidDeviceHandle* device, const unsigned char* data, size_t length) = 0;
    virtual int readTimeout(HidDeviceHandle* device, unsigned char* data, size_t length, int milliseconds) = 0;
    virtual int sendFeatureReport(HidDeviceHandle* device, const unsigned char* data, size_t length) = 0;
    // data[0] holds the report id on entry.
    virtual int getFeatureReport(HidDeviceHandle* device, unsigned char* data, size_t length) = 0;
    virtual QString error(HidDeviceHandle* device) = 0;

    // The transport every VTHidDev uses. Defaults to hidapi; whoever installs
    // another keeps ownership and must reinstall null before destroying it.
    static HidTransport* instance();
    static void setInstance(HidTransport* transport);
};
