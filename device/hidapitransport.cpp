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
    QMutexLocker locker(&mutex);
    // hid_exit ends libusb's context under any device still open elsewhere.
    return openHandles.isEmpty() ? hid_exit() : 0;
}

HidDeviceHandle* HidapiTransport::open(unsigned short vendorId, unsigned short productId)
{
    QMutexLocker locker(&mutex);
    auto* device = reinterpret_cast<HidDeviceHandle*>(hid_open(vendorId, productId, nullptr));
    if (device)
        openHandles.insert(device);
    return device;
}

void HidapiTransport::close(HidDeviceHandle* device)
{
    QMutexLocker locker(&mutex);
    if (openHandles.remove(device))
        hid_close(hid(device));
}

int HidapiTransport::write(HidDeviceHandle* device, const unsigned char* data, size_t length)
{
    QMutexLocker locker(&mutex);
    return openHandles.contains(device) ? hid_write(hid(device), data, length) : -1;
}

// Reads run on the polling thread while the GUI thread writes images, so they
// do not take the lock; the device thread never closes a handle it is reading.
int HidapiTransport::readTimeout(HidDeviceHandle* device, unsigned char* data, size_t length, int milliseconds)
{
    {
        QMutexLocker locker(&mutex);
        if (!openHandles.contains(device))
            return -1;
    }
    return hid_read_timeout(hid(device), data, length, milliseconds);
}

int HidapiTransport::sendFeatureReport(HidDeviceHandle* device, const unsigned char* data, size_t length)
{
    QMutexLocker locker(&mutex);
    return openHandles.contains(device) ? hid_send_feature_report(hid(device), data, length) : -1;
}

int HidapiTransport::getFeatureReport(HidDeviceHandle* device, unsigned char* data, size_t length)
{
    QMutexLocker locker(&mutex);
    return openHandles.contains(device) ? hid_get_feature_report(hid(device), data, length) : -1;
}

QString HidapiTransport::error(HidDeviceHandle* device)
{
    QMutexLocker locker(&mutex);
    const wchar_t* text = hid_error(openHandles.contains(device) ? hid(device) : nullptr);
    return text ? QString::fromWCharArray(text) : QString();
}
