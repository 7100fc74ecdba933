#pragma once

#include <QString>

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

} // namespace Preference
