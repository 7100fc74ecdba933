#pragma once

#include <QVariantMap>

class KA_Execute;
class KA_Folder;
class KA_HotKey;
class KA_LinkButton;
class KA_MarcoKey;
class KA_PastString;
class KeyItem;
struct KeyRenderInfo;
struct MarcoKeyItem;

// Key items as nested QVariantMaps: the form kept in the settings tree, in
// export files and in the favourites. Writing appends to the map; reading
// takes what is there and falls back to defaults for anything missing or of
// the wrong type, so no map is ever rejected.

QVariantMap& operator<<(QVariantMap& map, const KeyItem& item);
const QVariantMap& operator>>(const QVariantMap& map, KeyItem& item);

QVariantMap& operator<<(QVariantMap& map, const KeyRenderInfo& face);
const QVariantMap& operator>>(const QVariantMap& map, KeyRenderInfo& face);

QVariantMap& operator<<(QVariantMap& map, const MarcoKeyItem& step);
const QVariantMap& operator>>(const QVariantMap& map, MarcoKeyItem& step);

QVariantMap& operator<<(QVariantMap& map, const KA_Folder& folder);
const QVariantMap& operator>>(const QVariantMap& map, KA_Folder& folder);
QVariantMap& operator<<(QVariantMap& map, const KA_HotKey& hotKey);
const QVariantMap& operator>>(const QVariantMap& map, KA_HotKey& hotKey);
QVariantMap& operator<<(QVariantMap& map, const KA_MarcoKey& macro);
const QVariantMap& operator>>(const QVariantMap& map, KA_MarcoKey& macro);
QVariantMap& operator<<(QVariantMap& map, const KA_Execute& execute);
const QVariantMap& operator>>(const QVariantMap& map, KA_Execute& execute);
QVariantMap& operator<<(QVariantMap& map, const KA_PastString& paste);
const QVariantMap& operator>>(const QVariantMap& map, KA_PastString& paste);
QVariantMap& operator<<(QVariantMap& map, const KA_LinkButton& link);
const QVariantMap& operator>>(const QVariantMap& map, KA_LinkButton& link);

// A whole page in the "KeyCnt" / "keyMap_%1" form.
QVariantMap pageToMap(const QList<KeyItem*>& page);
