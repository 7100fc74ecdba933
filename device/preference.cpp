#include "preference.h"

#include "buttonlayoutconfig.h"
#include "firmwarecatalog.h"
#include "hid_comm.h"
#include "keypadtable.h"
#include "logging.h"
#include "objectregistry.h"
#include "userquestion.h"

#include <QFile>

namespace {
bool lookUpPackagedVersion(const QString& firmwareId, FirmwareCatalog::Entry& entry)
{
    return FirmwareCatalog::packagedVersion(firmwareId, Hid_Comm::usesVendorLibrary(), entry);
}

int currentLayout()
{
    auto* layouts = COMPONENT(ButtonLayoutConfig, ComponentId::ButtonLayoutConfig);
    return layouts ? layouts->currentLayout() : -1;
}
} // namespace

namespace Preference {

bool getDeviceInfo(QString& modelName, QString& firmwareId, QString& serialNumber, QString& currentVersion,
                   QString& packagedVersion)
{
    auto* hid = COMPONENT(Hid_Comm, ComponentId::HidComm);
    if (!hid)
        return false;
    currentVersion = QStringLiteral("read error");
    if (!hid->readFWVersion(currentVersion) || !hid->readSerialNumber(serialNumber))
        return false;
    const int layout = currentLayout();
    modelName = KeypadTable::modelName(layout);
    firmwareId = KeypadTable::firmwareId(layout, Hid_Comm::usesVendorLibrary());
    if (!FirmwareCatalog::isKnownDevice(firmwareId))
        return false;
    FirmwareCatalog::Entry entry;
    if (!lookUpPackagedVersion(firmwareId, entry))
        return false;
    packagedVersion = entry.version;
    return true;
}

bool onFwUpdateClicked()
{
    LOG_MSG(QStringLiteral("show firmware updates dialog."));
    QString model, firmwareId, serial, current, packaged;
    if (!getDeviceInfo(model, firmwareId, serial, current, packaged)) {
        LOG_MSG(QStringLiteral("ERROR: getDeviceInfo()"));
        return false;
    }
    UserQuestion question;
    question.title = QObject::tr("Do you want to update firmware?");
    question.text = QObject::tr("Firmware version") + QLatin1Char(' ') + packaged +
                    QObject::tr(" is now available - current version ") + current +
                    QObject::tr(" Would you like to update now?");
    question.buttons[UserQuestion::MidSlot] = UserQuestion::No;
    question.buttons[UserQuestion::RightSlot] = UserQuestion::Yes;
    question.icon = UserQuestion::LogoIcon;
    question.defaultButton = UserQuestion::Yes;
    if (UserQuestions::ask(question).button != UserQuestion::Yes)
        return false;
    FirmwareCatalog::Entry entry;
    if (!lookUpPackagedVersion(firmwareId, entry))
        return false;
    return updateFW(FirmwareCatalog::imagePath(firmwareId, entry, Hid_Comm::usesVendorLibrary()));
}

bool updateFW(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        LOG_MSG(QStringLiteral("Open firmware file failure."));
        return false;
    }
    const QByteArray image = file.readAll();
    auto* hid = COMPONENT(Hid_Comm, ComponentId::HidComm);
    if (!hid)
        return false;
    // The maker's library answers non-zero here when it flashed the image;
    // the sense is kept as it is, and callers read it so.
    if (Hid_Comm::usesVendorLibrary())
        return hid->updateVendorFirmware(image) != 0;
    return hid->updateFW(FirmwareCatalog::hostHeader(image) + image);
}

} // namespace Preference
