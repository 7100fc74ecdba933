#pragma once

class Settings;

// The keypad's brightness and when it dims or goes dark, as stored in the
// settings tree.
struct DimmingSettings
{
    static constexpr int MaxLevel = 100;
    static constexpr int MaxDimAfterMinutes = 240;
    static constexpr int DefaultDimLevel = 10;

    // The user's brightness, 0..100.
    int brightness = MaxLevel;
    // Minutes without a key press before dimming; 0: never.
    int dimAfterMinutes = 0;
    // The dimmed brightness, 0..100; a dimmed keypad never gets brighter than brightness.
    int dimLevel = DefaultDimLevel;
    bool offWhileLocked = false;

    // Missing or damaged values give the defaults; numbers are kept in range.
    static DimmingSettings load(const Settings* store);
    // Into the tree only; the caller decides when the store saves.
    void store(Settings* store) const;
    DimmingSettings bounded() const;

    bool operator==(const DimmingSettings& other) const;
    bool operator!=(const DimmingSettings& other) const { return !(*this == other); }
};
