#include "vendordevicelibrary.h"

#include "logging.h"

namespace {
QString& libraryName()
{
    static QString name = QStringLiteral("vT_BD_x64");
    return name;
}

constexpr int SerialBufferSize = 17;
constexpr int FirmwareRecordSize = 64;
constexpr int FirmwareVersionOffset = 4;
} // namespace

VendorDeviceLibrary& VendorDeviceLibrary::instance()
{
    static VendorDeviceLibrary library;
    return library;
}

void VendorDeviceLibrary::setLibraryName(const QString& name)
{
    VendorDeviceLibrary& self = instance();
    QMutexLocker locker(&self.mutex);
    libraryName() = name;
    if (self.loaded)
        self.library.unload();
    self.attempted = false;
    self.loaded = false;
}

bool VendorDeviceLibrary::isAvailable()
{
    QMutexLocker locker(&mutex);
    return load();
}

bool VendorDeviceLibrary::load()
{
    if (attempted)
        return loaded;
    attempted = true;
    library.setFileName(libraryName());
    if (!library.load()) {
        LOG_MSG(QStringLiteral("The keypad with product id 0x110E needs its maker's library \"%1\", which is not "
                               "installed: this model is not supported on this system. (%2)")
                    .arg(libraryName(), library.errorString()));
        return false;
    }
    open = reinterpret_cast<OpenFn>(library.resolve("vT_USB_open_device"));
    close = reinterpret_cast<VoidFn>(library.resolve("vT_USB_close_device"));
    brightness = reinterpret_cast<BrightnessFn>(library.resolve("vT_USB_set_screen_brightness"));
    serial = reinterpret_cast<BufferFn>(library.resolve("vT_USB_get_device_serial_number"));
    fwInfos = reinterpret_cast<BufferFn>(library.resolve("vT_USB_get_FW_infos"));
    image = reinterpret_cast<ImageFn>(library.resolve("vT_USB_show_image_on_button"));
    logo = reinterpret_cast<VoidFn>(library.resolve("vT_USB_show_logo"));
    wait = reinterpret_cast<BufferFn>(library.resolve("vT_USB_wait_event"));
    update = reinterpret_cast<FirmwareFn>(library.resolve("vT_USB_update_FW"));
    loaded = open && close && brightness && serial && fwInfos && image && logo && wait && update;
    if (!loaded) {
        LOG_MSG(QStringLiteral("\"%1\" lacks some vT_USB_ functions: the keypad with product id 0x110E is not "
                               "supported on this system.")
                    .arg(library.fileName()));
        library.unload();
    }
    return loaded;
}

int VendorDeviceLibrary::openDevice(uint16_t vid, uint16_t pid)
{
    return isAvailable() ? open(vid, pid, 0) : -1;
}

int VendorDeviceLibrary::closeDevice()
{
    return isAvailable() ? close() : -1;
}

int VendorDeviceLibrary::setBrightness(int level)
{
    return isAvailable() ? brightness(level, 0) : -1;
}

int VendorDeviceLibrary::serialNumber(QString& text)
{
    if (!isAvailable())
        return -1;
    uint8_t buffer[SerialBufferSize + 1] = {};
    const int result = serial(buffer, SerialBufferSize);
    if (result == 0)
        text = QString::fromLatin1(reinterpret_cast<const char*>(buffer));
    return result;
}

int VendorDeviceLibrary::firmwareVersion(QString& version)
{
    if (!isAvailable())
        return -1;
    uint8_t record[FirmwareRecordSize + 1] = {};
    const int result = fwInfos(record, 2);
    if (result == 0)
        version = QString::fromLatin1(reinterpret_cast<const char*>(record + FirmwareVersionOffset));
    return result;
}

int VendorDeviceLibrary::showImage(int key, const QByteArray& encoded)
{
    if (!isAvailable())
        return -1;
    return image(key, reinterpret_cast<const uint8_t*>(encoded.constData()), encoded.size());
}

int VendorDeviceLibrary::showLogo()
{
    return isAvailable() ? logo() : -1;
}

int VendorDeviceLibrary::waitEvent(uint8_t* buffer, int timeoutMs)
{
    return isAvailable() ? wait(buffer, timeoutMs) : EventReadFailure;
}

int VendorDeviceLibrary::updateFirmware(const QByteArray& firmware)
{
    if (!isAvailable())
        return -1;
    return update(reinterpret_cast<const uint8_t*>(firmware.constData()), firmware.size(), 2);
}

int VendorDeviceLibrary::eventKeyCount(const uint8_t* buffer)
{
    return qBound(0, int(buffer[0]), KeyCount);
}

bool VendorDeviceLibrary::eventKeyDown(const uint8_t* buffer, int key)
{
    const unsigned bits = unsigned(buffer[1]) | (unsigned(buffer[2]) << 8);
    return key >= 0 && key < KeyCount && (bits >> key) & 1u;
}
