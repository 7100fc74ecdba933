#pragma once

#include <QLatin1String>
#include <QString>

// Every key name of the settings file and of the settings tree, in one place,
// so that the writer and the reader of a value can never spell it differently.
// The names are part of the stored format: renaming one loses the users' data.
namespace SettingsKeys {

// QLatin1String(const char*) is not constexpr with every compiler (it calls strlen).
template <int N>
constexpr QLatin1String literal(const char (&text)[N])
{
    return QLatin1String(text, N - 1);
}

// The value of Keystage.conf that holds the whole settings tree.
constexpr QLatin1String Inst = literal("inst");
// The MD5 of the map it sits in: "inst" on disk and export files; never in the tree in memory.
constexpr QLatin1String ChecksumTag = literal("CHKSUM_TAG");
constexpr QLatin1String SettingsVersion = literal("SettingsVersion");

// Preferences and remembered choices.
constexpr QLatin1String LastKbLayout = literal("last_kb_layout");
constexpr QLatin1String LangIdx = literal("lang_idx");
constexpr QLatin1String DeleteItemDontShowAgain = literal("msg_box_delete_item_dont_show_again");
constexpr QLatin1String FavoriteWindowPos = literal("FAVORITE_WINDOW_POS");
// The favourite items, as a key list map ("KeyCnt" and "keyMap_%1").
constexpr QLatin1String MyFavoriteItems = literal("MyFavoriteItems");

// The single content entry of a layout export file and of a favourites export file.
constexpr QLatin1String MyLayout = literal("MYLAYOUT");
constexpr QLatin1String MyFavorite = literal("MYFAVORITE");

// A key list map: the number of keys and one item map per key.
constexpr QLatin1String KeyCnt = literal("KeyCnt");
constexpr QLatin1String KeyMapPattern = literal("keyMap_%1");

// Followed by a layout name ("KeyItems_V_Key_15"): the key list map of that layout.
constexpr QLatin1String KeyItemsPrefix = literal("KeyItems_");

inline QString keyItemsKey(const QString& layoutName)
{
    return QString(KeyItemsPrefix) + layoutName;
}

inline QString keyMapKey(int index)
{
    return QString(KeyMapPattern).arg(index);
}

// Preference dialog.
// The keypad's brightness, 0..100, set on every keypad as it connects.
constexpr QLatin1String Brightness = literal("brightness");
constexpr int BrightnessMin = 0;
constexpr int BrightnessMax = 100;
constexpr int BrightnessDefault = 100;

// Software update: whether the program may ask the release feed (bool, default false).
constexpr QLatin1String CheckForUpdates = literal("check_for_updates");

// Keypad dimming; the level it dims from is Brightness above.
// Minutes without a key press before the keypad dims; 0: never.
constexpr QLatin1String DimAfterMinutes = literal("dim_after_minutes");
// The dimmed level, 0..100.
constexpr QLatin1String DimLevel = literal("dim_level");
// Backlight off while the screen is locked (bool).
constexpr QLatin1String OffWhileLocked = literal("off_while_locked");

} // namespace SettingsKeys
