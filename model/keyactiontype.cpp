#include "keyactiontype.h"

namespace {

struct TypeInfo
{
    KeyActionType type;
    const char* name;
    const char* image0;
    const char* image1;
};

// In the order names are matched when read back.
const TypeInfo Types[] = {
    {KAT_FOLDER, "KAT_FOLDER", "btn_folder", "btn_folder"},
    {KAT_LINK_BUTTON, "KAT_LINK_BUTTON", "btn_home", "btn_home"},
    {KAT_HOTKEY, "KAT_HOTKEY", "btn_hotkey", "btn_toggle"},
    {KAT_MACROKEY, "KAT_MACROKEY", "btn_macro", "btn_macro"},
    {KAT_EXE_APP_FILE, "KAT_EXE_APP_FILE", "btn_launch", "btn_launch"},
    {KAT_OPEN_WEBSITE, "KAT_OPEN_WEBSITE", "btn_website", "btn_website"},
    {KAT_PASTE_STRING, "KAT_PASTE_STRING", "btn_textstring", "btn_textstring"},
};

const TypeInfo* findType(int type)
{
    for (const TypeInfo& info : Types) {
        if (info.type == type)
            return &info;
    }
    return nullptr;
}

} // namespace

QString keyActionTypeToString(int type)
{
    if (type == KAT_INVALID)
        return QStringLiteral("KAT_INVALID");
    if (type == KAT_NUM)
        return QStringLiteral("KAT_NUM");
    const TypeInfo* info = findType(type);
    return info ? QLatin1String(info->name) : QStringLiteral("ACTION_TYPE_OUT_OF_RANGE");
}

KeyActionType keyActionTypeFromString(const QString& name)
{
    for (const TypeInfo& info : Types) {
        if (name == QLatin1String(info.name))
            return info.type;
    }
    return KAT_INVALID;
}

QString defaultImageName(int type, int slot)
{
    const TypeInfo* info = findType(type);
    if (!info)
        return QString();
    return QLatin1String(slot == 1 ? info->image1 : info->image0);
}
