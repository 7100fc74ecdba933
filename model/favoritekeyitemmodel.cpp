#include "favoritekeyitemmodel.h"

#include "keyitem.h"
#include "keyitemserialization.h"
#include "logging.h"
#include "objectregistry.h"
#include "settings.h"
#include "settingskeys.h"
#include "userquestion.h"

#include <QFileInfo>

namespace {

// A copy through the stored form keeps the item's own layout, which
// assignment would replace by the one in force. A favourite sits on no page
// and no key.
KeyItem* copyKeepingLayout(const QVariantMap& map)
{
    auto* item = new KeyItem;
    map >> *item;
    item->keyIdx = -1;
    item->parent = nullptr;
    item->ownerList = nullptr;
    return item;
}

bool isInteger(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return false;
    }
}

// The item maps "keyMap_0" to "keyMap_<KeyCnt - 1>" that the map holds, in
// order, each missing one logged. The walk ends with the map's entries,
// whatever count it states.
QList<QVariantMap> itemMaps(const QVariantMap& keyItemMaps)
{
    const int stated = Settings::boundedCount(keyItemMaps, SettingsKeys::KeyCnt, keyItemMaps.size());
    QList<QVariantMap> maps;
    for (int i = 0; i < stated; ++i) {
        const QVariant value = keyItemMaps.value(QString(SettingsKeys::KeyMapPattern).arg(i));
        if (value.userType() != QMetaType::QVariantMap || value.toMap().isEmpty()) {
            LOG_MSG(QStringLiteral("Err: Can't find keyMap_%1").arg(i));
            continue;
        }
        maps.append(value.toMap());
    }
    return maps;
}

} // namespace

FavoriteKeyItemModel::FavoriteKeyItemModel(QObject* parent) : QObject(parent) {}

FavoriteKeyItemModel::~FavoriteKeyItemModel()
{
    clearItems();
}

void FavoriteKeyItemModel::clearItems()
{
    qDeleteAll(m_items);
    m_items.clear();
}

const QList<KeyItem*>& FavoriteKeyItemModel::keyItems() const
{
    return m_items;
}

int FavoriteKeyItemModel::count() const
{
    return m_items.size();
}

bool FavoriteKeyItemModel::appendKeyItem(const KeyItem* item)
{
    if (!logMsgWhenRetFail(item != nullptr, QStringLiteral("keyItem is nullptr!!")))
        return false;
    if (m_items.size() >= MaxItems)
        return false;
    QVariantMap map;
    map << *item;
    m_items.append(copyKeepingLayout(map));
    emit updateContent();
    saveKeyItemsToSettings();
    return true;
}

void FavoriteKeyItemModel::removeKeyItem(int index)
{
    if (index < 0 || index >= m_items.size())
        return;
    delete m_items.takeAt(index);
    emit updateContent();
    saveKeyItemsToSettings();
}

void FavoriteKeyItemModel::removeAll()
{
    clearItems();
    emit updateContent();
    saveKeyItemsToSettings();
}

QVariantMap FavoriteKeyItemModel::toMap() const
{
    return pageToMap(m_items);
}

Settings* FavoriteKeyItemModel::settings() const
{
    return COMPONENT(Settings, ComponentId::Settings);
}

void FavoriteKeyItemModel::saveKeyItemsToSettings()
{
    if (Settings* store = settings()) {
        store->setValue(SettingsKeys::MyFavoriteItems, toMap());
        syncFile();
    }
}

void FavoriteKeyItemModel::syncFile()
{
    if (Settings* store = settings())
        store->save();
}

void FavoriteKeyItemModel::reloadKeyItemsFromSettings()
{
    clearItems();
    Settings* store = settings();
    const QVariant stored = store ? store->value(SettingsKeys::MyFavoriteItems) : QVariant();
    const QVariantMap map = stored.userType() == QMetaType::QVariantMap ? stored.toMap() : QVariantMap();
    for (const QVariantMap& item : itemMaps(map)) {
        if (m_items.size() >= MaxItems)
            break;
        m_items.append(copyKeepingLayout(item));
    }
    emit updateContent();
}

void FavoriteKeyItemModel::appendKeyItemFromImportedFile(const QVariantMap& keyItemMaps)
{
    if (keyItemMaps.isEmpty())
        return;
    if (!isInteger(keyItemMaps.value(SettingsKeys::KeyCnt)) || keyItemMaps.value(SettingsKeys::KeyCnt).toInt() == -1) {
        LOG_MSG(QStringLiteral("Err: Can't find saved key!"));
        return;
    }
    // The count a file states is trusted no further than the item maps it
    // holds: those are what the questions below speak of and what is added.
    const QList<QVariantMap> imported = itemMaps(keyItemMaps);
    const int current = m_items.size();
    const QString source = m_importFileName.isEmpty() ? QString::number(imported.size()) : m_importFileName;
    if (current >= MaxItems) {
        UserQuestion full;
        full.subject = tr("You have reached the limit of \"My Favorite\".");
        full.text = tr("Import %1 fails.").arg(source);
        full.buttons[UserQuestion::MidSlot] = UserQuestion::Cancel;
        UserQuestions::ask(full);
        return;
    }
    if (imported.size() > MaxItems - current) {
        UserQuestion over;
        over.subject = tr("The limit of \"My Favorite\" is %1 items.").arg(MaxItems);
        over.text = tr("You already have %1 item in \"My Favorite.\" If continues, %2 item will be lost. Are you sure "
                       "you want to proceed?")
                        .arg(current)
                        .arg(current + imported.size() - MaxItems);
        over.buttons[UserQuestion::MidSlot] = UserQuestion::Cancel;
        over.buttons[UserQuestion::RightSlot] = UserQuestion::Continue;
        if (UserQuestions::ask(over).button != UserQuestion::Continue)
            return;
    }
    // The first keys of the file are kept.
    for (const QVariantMap& map : imported) {
        if (m_items.size() >= MaxItems)
            break;
        m_items.append(copyKeepingLayout(map));
    }
    emit updateContent();
    saveKeyItemsToSettings();
}

void FavoriteKeyItemModel::importFile(const QString& fileName)
{
    const Settings::ExportFile file = Settings::readExportFile(fileName);
    if (file.kind != Settings::ExportKind::Favorite) {
        LOG_MSG(QStringLiteral("Err: %1 is no favourites file: %2").arg(fileName, file.detail));
        return;
    }
    m_importFileName = QFileInfo(fileName).fileName();
    appendKeyItemFromImportedFile(file.content);
    m_importFileName.clear();
}
