#pragma once

#include <QMetaType>
#include <QString>

// What a key does. Stored by name ("actionTypeString"), never by number.
enum KeyActionType : qint32
{
    KAT_INVALID = -1,
    KAT_FOLDER = 0,
    KAT_HOTKEY = 1,
    KAT_MACROKEY = 2,
    KAT_EXE_APP_FILE = 3,
    KAT_OPEN_WEBSITE = 4,
    KAT_PASTE_STRING = 5,
    KAT_LINK_BUTTON = 6, // the back key of a folder page
    KAT_NUM = 7,
};

// "KAT_FOLDER" ... ; "ACTION_TYPE_OUT_OF_RANGE" outside -1..7.
QString keyActionTypeToString(int type);
// Exact, case-sensitive; anything unknown (also "KAT_INVALID") is KAT_INVALID.
KeyActionType keyActionTypeFromString(const QString& name);
// Base name of the type's default key image for a feature slot (0 or 1),
// resolved in the ":/image" resource folder; empty for no action.
QString defaultImageName(int type, int slot);

Q_DECLARE_METATYPE(KeyActionType)
