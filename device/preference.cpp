#include "preference.h"

#include "buttonlayoutconfig.h"
#include "hid_comm.h"
#include "keypadtable.h"
#include "logging.h"
#include "objectregistry.h"

#include <QFile>

namespace {
int currentLayout()
{
    auto* layouts = COMPONENT(ButtonLayoutConfig, ComponentId::ButtonLayoutConfig);
    return layouts ? layouts->currentLayout() : -1;
}

// The image with what the device path needs in front of it: the maker's
// library takes it raw, our own protocol behind the host header.
bool flash(Hid_Comm* hid, const QByteArray& image, const FirmwareProgress& progress)
{
    if (!Hid_Comm::usesVendorLibrary())
        return hid->updateFW(FirmwareCatalog::hostHeader(image) + image, progress);
    // The maker's library answers non-zero here when it flashed the image;
    // the sense is kept as it is, and callers read it so. It tells nothing
    // on the way.
    if (progress)
        progress(0, 1);
    const bool flashed = hid->updateVendorFirmware(image) != 0;
    if (flashed && progress)
        progress(1, 1);
    return flashed;
}
} // namespace

namespace Preference {

DeviceInfoResult readDeviceInfo(Hid_Comm* hid, int layout, DeviceInfo& info)
{
    if (!hid || !hid->isOpened())
        return DeviceInfoResult::NoKeypad;
    info.currentVersion = QStringLiteral("read error");
    if (!hid->readFWVersion(info.currentVersion) || !hid->readSerialNumber(info.serialNumber))
        return DeviceInfoResult::NoAnswer;
    const bool vendorLibrary = Hid_Comm::usesVendorLibrary();
    info.modelName = KeypadTable::modelName(layout);
    info.firmwareId = KeypadTable::firmwareId(layout, vendorLibrary);
    if (!FirmwareCatalog::isKnownDevice(info.firmwareId))
        return DeviceInfoResult::UnknownDevice;
    if (!FirmwareCatalog::packagedVersion(info.firmwareId, vendorLibrary, info.image))
        return DeviceInfoResult::NoImage;
    info.packagedVersion = info.image.version;
    return DeviceInfoResult::Ready;
}

bool getDeviceInfo(QString& modelName, QString& firmwareId, QString& serialNumber, QString& currentVersion,
                   QString& packagedVersion)
{
    auto* hid = COMPONENT(Hid_Comm, ComponentId::HidComm);
    DeviceInfo info;
    const DeviceInfoResult result = readDeviceInfo(hid, currentLayout(), info);
    modelName = info.modelName;
    firmwareId = info.firmwareId;
    serialNumber = info.serialNumber;
    currentVersion = info.currentVersion;
    packagedVersion = info.packagedVersion;
    return result == DeviceInfoResult::Ready;
}

UserQuestion updateQuestion(const DeviceInfo& info)
{
    UserQuestion question;
    question.title = QObject::tr("Do you want to update firmware?");
    //: %1 is the firmware this program carries, %2 the firmware on the keypad.
    question.text =
        QObject::tr("Firmware version %1 is now available - current version %2 Would you like to update now?")
            .arg(info.packagedVersion, info.currentVersion);
    question.buttons[UserQuestion::MidSlot] = UserQuestion::No;
    question.buttons[UserQuestion::RightSlot] = UserQuestion::Yes;
    question.icon = UserQuestion::LogoIcon;
    question.defaultButton = UserQuestion::Yes;
    return question;
}

QString imagePath(const DeviceInfo& info)
{
    return FirmwareCatalog::imagePath(info.firmwareId, info.image, Hid_Comm::usesVendorLibrary());
}

bool onFwUpdateClicked()
{
    LOG_MSG(QStringLiteral("show firmware updates dialog."));
    DeviceInfo info;
    if (readDeviceInfo(COMPONENT(Hid_Comm, ComponentId::HidComm), currentLayout(), info) != DeviceInfoResult::Ready) {
        LOG_MSG(QStringLiteral("ERROR: getDeviceInfo()"));
        return false;
    }
    if (UserQuestions::ask(updateQuestion(info)).button != UserQuestion::Yes)
        return false;
    return updateFW(imagePath(info));
}

bool updateFW(const QString& path)
{
    return updateFW(COMPONENT(Hid_Comm, ComponentId::HidComm), path, FirmwareProgress());
}

bool updateFW(Hid_Comm* hid, const QString& path, const FirmwareProgress& progress)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        LOG_MSG(QStringLiteral("Open firmware file failure."));
        return false;
    }
    const QByteArray image = file.readAll();
    if (!hid)
        return false;
    return flash(hid, image, progress);
}

} // namespace Preference
