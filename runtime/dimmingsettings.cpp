#include "dimmingsettings.h"

#include "settings.h"
#include "settingskeys.h"

#include <QtGlobal>

namespace {

int readInt(const Settings* store, const QString& key, int fallback)
{
    bool ok = false;
    const int value = store->value(key).toInt(&ok);
    return ok ? value : fallback;
}

} // namespace

DimmingSettings DimmingSettings::load(const Settings* store)
{
    DimmingSettings settings;
    if (!store)
        return settings;
    settings.brightness = readInt(store, SettingsKeys::Brightness, settings.brightness);
    settings.dimAfterMinutes = readInt(store, SettingsKeys::DimAfterMinutes, settings.dimAfterMinutes);
    settings.dimLevel = readInt(store, SettingsKeys::DimLevel, settings.dimLevel);
    settings.offWhileLocked = store->value(SettingsKeys::OffWhileLocked, settings.offWhileLocked).toBool();
    return settings.bounded();
}

void DimmingSettings::store(Settings* store) const
{
    if (!store)
        return;
    const DimmingSettings values = bounded();
    store->setValue(SettingsKeys::Brightness, values.brightness);
    store->setValue(SettingsKeys::DimAfterMinutes, values.dimAfterMinutes);
    store->setValue(SettingsKeys::DimLevel, values.dimLevel);
    store->setValue(SettingsKeys::OffWhileLocked, values.offWhileLocked);
}

DimmingSettings DimmingSettings::bounded() const
{
    DimmingSettings values = *this;
    values.brightness = qBound(0, brightness, MaxLevel);
    values.dimAfterMinutes = qBound(0, dimAfterMinutes, MaxDimAfterMinutes);
    values.dimLevel = qBound(0, dimLevel, MaxLevel);
    return values;
}

bool DimmingSettings::operator==(const DimmingSettings& other) const
{
    return brightness == other.brightness && dimAfterMinutes == other.dimAfterMinutes && dimLevel == other.dimLevel &&
           offWhileLocked == other.offWhileLocked;
}
