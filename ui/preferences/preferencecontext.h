#pragma once

#include "backgroundtask.h"

#include <QString>

#include <functional>

class ButtonLayoutConfig;
class Hid_Comm;
class KeypadDimmer;
class KeyItemModel;
class QSettings;
class ScreenLockMonitor;
class Settings;

// What the preference pages work on, handed in by whoever opens the dialog:
// the core's objects and the main window's hooks. A member left empty turns
// off what needs it (tests pass only what they look at).
struct PreferenceContext
{
    // The settings tree (brightness, layouts and favourites to export).
    Settings* store = nullptr;
    // The settings file's own values, read at start-up before the tree ("lang_idx").
    QSettings* startupSettings = nullptr;
    ButtonLayoutConfig* layouts = nullptr;
    KeyItemModel* keyModel = nullptr;
    // The keypad connection; null without one.
    Hid_Comm* hid = nullptr;
    // The backlight's rules (dimming, dark while locked) and the lock they follow.
    KeypadDimmer* dimmer = nullptr;
    ScreenLockMonitor* screenLock = nullptr;
    // Where device calls run; empty: on the GUI thread.
    BackgroundRunner runInBackground;
    // Puts the current page's images back on the keypad.
    std::function<void()> redrawKeypad;
    // Imports a .kslayout or .ksfavorites file as "--openFile" does.
    std::function<void(const QString& path)> importFile;
    // Ends the program and starts it again, as it is now (window or tray).
    std::function<void()> restart;
};
