#pragma once

#include "firmwarecatalog.h"
#include "userquestion.h"
#include "vthiddev.h"

#include <QString>

class Hid_Comm;

// Firmware update of the connected keypad: what the preference dialog offers
// and runs. They reach the keypad through the registered Hid_Comm and the
// layout through ButtonLayoutConfig.
namespace Preference {

// Model, firmware id, serial number and current version of the keypad, and
// the version of the image the program has for it. False when the keypad
// does not answer, is of an unknown kind, or no image fits it.
bool getDeviceInfo(QString& modelName, QString& firmwareId, QString& serialNumber, QString& currentVersion,
                   QString& packagedVersion);

// Offers the update (whatever the two versions are) and runs it on "Yes".
// Returns whether an update ran and succeeded.
bool onFwUpdateClicked();

bool updateFW(const QString& path);

// ---- the same in steps, for a caller that runs the update on a worker thread

// What getDeviceInfo found, and why it fell short.
enum class DeviceInfoResult
{
    Ready,         // the keypad answered and an image fits it
    NoKeypad,      // no connection, or no keypad open
    NoAnswer,      // the keypad did not answer the version or serial request
    UnknownDevice, // the layout names no keypad model
    NoImage,       // the program has no image for this keypad
};

struct DeviceInfo
{
    QString modelName;
    QString firmwareId;
    QString serialNumber;
    QString currentVersion;
    QString packagedVersion;
    FirmwareCatalog::Entry image;
};

// Reads the keypad's answers (blocking device calls: any thread but the
// device's own) and looks up the image for the given layout.
DeviceInfoResult readDeviceInfo(Hid_Comm* hid, int layout, DeviceInfo& info);

// The offer: "Do you want to update firmware?" with both versions, "No" and "Yes".
UserQuestion updateQuestion(const DeviceInfo& info);

// Where the image for the keypad lies.
QString imagePath(const DeviceInfo& info);

// updateFW, telling progress how far the device got (see FirmwareProgress).
bool updateFW(Hid_Comm* hid, const QString& path, const FirmwareProgress& progress);

} // namespace Preference
