#include "hidapitransport.h"

#include <hidapi.h>

namespace {
hid_device* hid(HidDeviceHandle* device)
{
    return reinterpret_cast<hid_device*>(device);
}
} // namespace

int HidapiTransport::init()
{
    return hid_init();
}

int HidapiTransport::exit()
{
    return hid_exit();
}

HidDeviceHandle* HidapiTransport::open(unsigned short vendorId, unsigned short productId)
{
    return reinterpret_cast<HidDeviceHandle*>(hid_open(vendorId, productId, nullptr));
}

void HidapiTransport::close(HidDeviceHandle* device)
{
    hid_close(hid(device));
}

int HidapiTransport::write(HidDeviceHandle* device, const unsigned char* data, size_t length)
{
    return hid_write(hid(device), data, length);
}

int HidapiTransport::readTimeout(HidDeviceHandle* device, unsigned char* data, size_t length, int milliseconds)
{
    return hid_read_timeout(hid(device), data, length, milliseconds);
}

int HidapiTransport::sendFeatureReport(HidDeviceHandle* device, const unsigned char* data, size_t length)
{
    return hid_send_feature_report(hid(device), data, length);
}

int HidapiTransport::getFeatureReport(HidDeviceHandle* device, unsigned char* data, size_t length)
{
    return hid_get_feature_report(hid(device), data, length);
}

QString HidapiTransport::error(HidDeviceHandle* device)
{
    const wchar_t* text = hid_error(hid(device));
    return text ? QString::fromWCharArray(text) : QString();
}
