#include "keyitemserialization.h"

#include "ka_execute.h"
#include "ka_folder.h"
#include "ka_hotkey.h"
#include "ka_linkbutton.h"
#include "ka_marcokey.h"
#include "ka_paststring.h"
#include "keyactionabstr.h"
#include "keyitem.h"
#include "logging.h"
#include "settings.h"
#include "valuesanity.h"

namespace {

// Folders hold one level of keys; a file may claim more. Deeper folders are
// read without their pages, so a hostile file cannot recurse without bound.
constexpr int MaxFolderDepth = 2;
thread_local int folderDepth = 0;

struct FolderDepthGuard
{
    FolderDepthGuard() { ++folderDepth; }
    ~FolderDepthGuard() { --folderDepth; }
};

bool isNumber(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Char:
    case QMetaType::UChar:
    case QMetaType::Double:
    case QMetaType::QString:
        return true;
    default:
        return false;
    }
}

int readInt(const QVariantMap& map, const QString& key, int fallback)
{
    const QVariant value = map.value(key);
    if (!isNumber(value))
        return fallback;
    bool ok = false;
    const int number = value.toInt(&ok);
    return ok ? number : fallback;
}

bool readBool(const QVariantMap& map, const QString& key, bool fallback)
{
    const QVariant value = map.value(key);
    if (value.userType() == QMetaType::Bool)
        return value.toBool();
    if (value.userType() == QMetaType::QString) {
        const QString text = value.toString();
        if (text == QLatin1String("true"))
            return true;
        if (text == QLatin1String("false"))
            return false;
        return fallback;
    }
    return isNumber(value) ? value.toInt() != 0 : fallback;
}

QString readString(const QVariantMap& map, const QString& key)
{
    const QVariant value = map.value(key);
    return value.userType() == QMetaType::QString ? value.toString() : QString();
}

QVariantMap readMap(const QVariantMap& map, const QString& key)
{
    const QVariant value = map.value(key);
    return value.userType() == QMetaType::QVariantMap ? value.toMap() : QVariantMap();
}

// A stored count, trusted no further than the entries the map can hold.
int readCount(const QVariantMap& map, const QString& key)
{
    return Settings::boundedCount(map, key, map.size());
}

void writeAction(QVariantMap& map, const KeyItem& item, int slot)
{
    const KeyActionAbstr* action = item.action[slot];
    if (!action)
        return;
    switch (item.actionType) {
    case KAT_FOLDER:
        map << static_cast<const KA_Folder&>(*action);
        break;
    case KAT_HOTKEY:
        map << static_cast<const KA_HotKey&>(*action);
        break;
    case KAT_MACROKEY:
        map << static_cast<const KA_MarcoKey&>(*action);
        break;
    case KAT_EXE_APP_FILE:
    case KAT_OPEN_WEBSITE:
        map << static_cast<const KA_Execute&>(*action);
        break;
    case KAT_PASTE_STRING:
        map << static_cast<const KA_PastString&>(*action);
        break;
    case KAT_LINK_BUTTON:
        map << static_cast<const KA_LinkButton&>(*action);
        break;
    default:
        break;
    }
}

void readAction(const QVariantMap& map, KeyItem& item, int slot)
{
    KeyActionAbstr* action = item.action[slot];
    if (!action)
        return;
    switch (item.actionType) {
    case KAT_FOLDER:
        map >> static_cast<KA_Folder&>(*action);
        break;
    case KAT_HOTKEY:
        map >> static_cast<KA_HotKey&>(*action);
        break;
    case KAT_MACROKEY:
        map >> static_cast<KA_MarcoKey&>(*action);
        break;
    case KAT_EXE_APP_FILE:
    case KAT_OPEN_WEBSITE:
        map >> static_cast<KA_Execute&>(*action);
        break;
    case KAT_PASTE_STRING:
        map >> static_cast<KA_PastString&>(*action);
        break;
    case KAT_LINK_BUTTON:
        map >> static_cast<KA_LinkButton&>(*action);
        break;
    default:
        break;
    }
}

} // namespace

QVariantMap& operator<<(QVariantMap& map, const KeyItem& item)
{
    map.insert(QStringLiteral("actionTypeString"), keyActionTypeToString(item.actionType));
    map.insert(QStringLiteral("multiFeatureFlag"), item.multiFeatureFlag);
    map.insert(QStringLiteral("keyIdx"), item.keyIdx);
    map.insert(QStringLiteral("cfIdx"), item.cfIdx);
    map.insert(QStringLiteral("layout"), item.layout);
    for (int slot = 0; slot < KeyItem::SlotCount; ++slot) {
        QVariantMap actionMap;
        writeAction(actionMap, item, slot);
        map.insert(QStringLiteral("keyActionMap_%1").arg(slot), actionMap);
        QVariantMap faceMap;
        faceMap << item.render[slot];
        map.insert(QStringLiteral("keyRenderMap_%1").arg(slot), faceMap);
    }
    return map;
}

const QVariantMap& operator>>(const QVariantMap& map, KeyItem& item)
{
    item.actionType = keyActionTypeFromString(readString(map, QStringLiteral("actionTypeString")));
    item.multiFeatureFlag = readBool(map, QStringLiteral("multiFeatureFlag"), false);
    item.keyIdx = readInt(map, QStringLiteral("keyIdx"), 0);
    // Only 0 and 1 name a feature slot.
    item.cfIdx = readInt(map, QStringLiteral("cfIdx"), 0) == 1 ? 1 : 0;
    item.layout = readInt(map, QStringLiteral("layout"), 0);

    item.recreateActions();
    for (int slot = 0; slot < KeyItem::SlotCount; ++slot) {
        const QVariantMap actionMap = readMap(map, QStringLiteral("keyActionMap_%1").arg(slot));
        if (!actionMap.isEmpty())
            readAction(actionMap, item, slot);
        else
            LOG_MSG(QStringLiteral("Err: Can't find keyActionMap_%1").arg(slot));
        const QVariantMap faceMap = readMap(map, QStringLiteral("keyRenderMap_%1").arg(slot));
        if (!faceMap.isEmpty())
            faceMap >> item.render[slot];
        else
            LOG_MSG(QStringLiteral("Err: Can't find keyRenderMap_%1").arg(slot));
    }
    if (item.actionType != KAT_HOTKEY) {
        item.multiFeatureFlag = false;
        item.cfIdx = 0;
    }
    // The images follow the program's image set, not what was stored.
    for (int slot = 0; slot < KeyItem::SlotCount; ++slot)
        item.render[slot].defImgPath = defaultImageName(item.actionType, slot);
    return map;
}

QVariantMap& operator<<(QVariantMap& map, const KeyRenderInfo& face)
{
    map.insert(QStringLiteral("hintFlags"), face.hintFlags);
    map.insert(QStringLiteral("text"), face.text);
    map.insert(QStringLiteral("textAlign"), face.textAlign);
    map.insert(QStringLiteral("textFont"), face.textFont);
    map.insert(QStringLiteral("textColor"), face.textColor);
    map.insert(QStringLiteral("userImg"), face.userImg);
    map.insert(QStringLiteral("defImgPath"), face.defImgPath);
    return map;
}

const QVariantMap& operator>>(const QVariantMap& map, KeyRenderInfo& face)
{
    face.hintFlags = readInt(map, QStringLiteral("hintFlags"), KeyRenderInfo::DefaultHintFlags);
    face.text = readString(map, QStringLiteral("text"));
    face.textAlign = readInt(map, QStringLiteral("textAlign"), KeyRenderInfo::DefaultTextAlign);
    // Settings files reach here without BoundedMapReader: the values are
    // looked at before they are copied out.
    const QVariant font = ValueSanity::usable(map.value(QStringLiteral("textFont")), QStringLiteral("textFont"));
    face.textFont = font.userType() == QMetaType::QFont ? font.value<QFont>() : QFont();
    const QVariant color = ValueSanity::usable(map.value(QStringLiteral("textColor")), QStringLiteral("textColor"));
    face.textColor = color.userType() == QMetaType::QColor ? color.value<QColor>() : QColor();
    if (!face.textColor.isValid())
        face.textColor = QColor(255, 255, 255, 255);
    const QVariant image = ValueSanity::usable(map.value(QStringLiteral("userImg")), QStringLiteral("userImg"));
    face.userImg = image.userType() == QMetaType::QPixmap ? image.value<QPixmap>() : QPixmap();
    face.defImgPath = readString(map, QStringLiteral("defImgPath"));
    return map;
}

QVariantMap& operator<<(QVariantMap& map, const MarcoKeyItem& step)
{
    map.insert(QStringLiteral("qtKeyCode"), step.qtKeyCode);
    map.insert(QStringLiteral("nativeKeyCode"), int(step.nativeKeyCode));
    map.insert(QStringLiteral("isPress"), step.isPress);
    return map;
}

const QVariantMap& operator>>(const QVariantMap& map, MarcoKeyItem& step)
{
    step.qtKeyCode = readInt(map, QStringLiteral("qtKeyCode"), -1);
    step.nativeKeyCode = quint16(readInt(map, QStringLiteral("nativeKeyCode"), 0));
    step.isPress = readBool(map, QStringLiteral("isPress"), false);
    return map;
}

QVariantMap& operator<<(QVariantMap& map, const KA_Folder& folder)
{
    map.insert(QStringLiteral("childListCnt"), folder.childList.size());
    map.insert(QStringLiteral("isExpend"), folder.isExpend);
    map.insert(QStringLiteral("appName"), folder.appName);
    for (int i = 0; i < folder.childList.size(); ++i) {
        QVariantMap child;
        child << *folder.childList.at(i);
        map.insert(QStringLiteral("childMap_%1").arg(i), child);
    }
    return map;
}

const QVariantMap& operator>>(const QVariantMap& map, KA_Folder& folder)
{
    const int count = readCount(map, QStringLiteral("childListCnt"));
    folder.isExpend = readBool(map, QStringLiteral("isExpend"), false);
    folder.appName = readString(map, QStringLiteral("appName"));
    // The stored page replaces the back key the new folder made for itself.
    folder.clearChildren();

    FolderDepthGuard depth;
    if (folderDepth > MaxFolderDepth) {
        LOG_MSG(QStringLiteral("Err: KA_Folder nested too deep, its keys are skipped!!"));
        return map;
    }
    for (int i = 0; i < count; ++i) {
        const QVariantMap childMap = readMap(map, QStringLiteral("childMap_%1").arg(i));
        if (childMap.isEmpty()) {
            LOG_MSG(QStringLiteral("Err: KA_Folder Can't find childMap_%1").arg(i));
            continue;
        }
        auto* child = new KeyItem;
        childMap >> *child;
        child->parent = folder.owner;
        child->ownerList = &folder.childList;
        folder.childList.append(child);
    }
    return map;
}

QVariantMap& operator<<(QVariantMap& map, const KA_HotKey& hotKey)
{
    map.insert(QStringLiteral("keyCmd"), hotKey.keyCmd);
    map.insert(QStringLiteral("keyOption"), hotKey.keyOption);
    map.insert(QStringLiteral("keyCtrl"), hotKey.keyCtrl);
    map.insert(QStringLiteral("keyShift"), hotKey.keyShift);
    map.insert(QStringLiteral("qtKeyCode"), hotKey.qtKeyCode);
    map.insert(QStringLiteral("nativeCode"), hotKey.nativeCode);
    return map;
}

const QVariantMap& operator>>(const QVariantMap& map, KA_HotKey& hotKey)
{
    hotKey.keyCmd = readBool(map, QStringLiteral("keyCmd"), false);
    hotKey.keyOption = readBool(map, QStringLiteral("keyOption"), false);
    hotKey.keyCtrl = readBool(map, QStringLiteral("keyCtrl"), false);
    hotKey.keyShift = readBool(map, QStringLiteral("keyShift"), false);
    hotKey.qtKeyCode = readInt(map, QStringLiteral("qtKeyCode"), -1);
    hotKey.nativeCode = readInt(map, QStringLiteral("nativeCode"), -1);
    return map;
}

QVariantMap& operator<<(QVariantMap& map, const KA_MarcoKey& macro)
{
    map.insert(QStringLiteral("MarcoKeyItemCnt"), macro.marcoKeyItemList.size());
    for (int i = 0; i < macro.marcoKeyItemList.size(); ++i) {
        QVariantMap step;
        step << macro.marcoKeyItemList.at(i);
        map.insert(QStringLiteral("MarcoKeyItem_%1").arg(i), step);
    }
    return map;
}

const QVariantMap& operator>>(const QVariantMap& map, KA_MarcoKey& macro)
{
    macro.marcoKeyItemList.clear();
    const int count = readCount(map, QStringLiteral("MarcoKeyItemCnt"));
    for (int i = 0; i < count; ++i) {
        const QString key = QStringLiteral("MarcoKeyItem_%1").arg(i);
        if (!map.contains(key)) {
            LOG_MSG(QStringLiteral("Error: Can't find MarcoKeyItem_%1").arg(i));
            continue;
        }
        MarcoKeyItem step;
        readMap(map, key) >> step;
        macro.marcoKeyItemList.append(step);
    }
    return map;
}

QVariantMap& operator<<(QVariantMap& map, const KA_Execute& execute)
{
    map.insert(QStringLiteral("path"), execute.path);
    return map;
}

const QVariantMap& operator>>(const QVariantMap& map, KA_Execute& execute)
{
    execute.path = readString(map, QStringLiteral("path"));
    return map;
}

QVariantMap& operator<<(QVariantMap& map, const KA_PastString& paste)
{
    map.insert(QStringLiteral("strText"), paste.strText);
    return map;
}

const QVariantMap& operator>>(const QVariantMap& map, KA_PastString& paste)
{
    paste.strText = readString(map, QStringLiteral("strText"));
    return map;
}

QVariantMap& operator<<(QVariantMap& map, const KA_LinkButton&)
{
    map.insert(QStringLiteral("comment"), QStringLiteral("link button"));
    return map;
}

const QVariantMap& operator>>(const QVariantMap& map, KA_LinkButton&)
{
    return map;
}

QVariantMap pageToMap(const QList<KeyItem*>& page)
{
    QVariantMap map;
    map.insert(QStringLiteral("KeyCnt"), page.size());
    for (int i = 0; i < page.size(); ++i) {
        QVariantMap item;
        item << *page.at(i);
        map.insert(QStringLiteral("keyMap_%1").arg(i), item);
    }
    return map;
}
