#include "keyitemmodel.h"

#include "buttonlayoutconfig.h"
#include "ka_folder.h"
#include "ka_hotkey.h"
#include "keyitem.h"
#include "keyitemserialization.h"
#include "logging.h"
#include "objectregistry.h"
#include "settings.h"
#include "settingskeys.h"

#include <QThread>
#include <QTimer>
#include <QVector>

namespace {

KeyItem* hotkey(int keyIdx, int layout, const QString& title, int qtKey, int virtualKey, bool ctrl)
{
    auto* item = new KeyItem(KAT_HOTKEY, keyIdx, layout);
    auto* keys = static_cast<KA_HotKey*>(item->action[0]);
    keys->keyCtrl = ctrl;
    keys->qtKeyCode = qtKey;
    keys->nativeCode = virtualKey;
    item->setTitle(0, title);
    return item;
}

void addToFolder(KeyItem* folderItem, KeyItem* child)
{
    auto* folder = static_cast<KA_Folder*>(folderItem->action[0]);
    child->parent = folderItem;
    child->ownerList = &folder->childList;
    folder->childList.insert(folder->childList.size() - 1, child); // the back key stays last
}

// Keeps a folder's page within its layout: plain keys at free positions
// before the back key, exactly one back key in the last position. Returns how
// many keys did not fit.
int fitFolderPage(KeyItem* folderItem, int layout, bool renumber)
{
    auto* folder = static_cast<KA_Folder*>(folderItem->action[0]);
    const int backKey = ButtonLayoutConfig::keyCount(layout) - 1;
    QList<KeyItem*> kept;
    QVector<bool> taken(backKey > 0 ? backKey : 0, false);
    int dropped = 0;
    for (KeyItem* child : qAsConst(folder->childList)) {
        const bool plain = child->actionType >= KAT_HOTKEY && child->actionType <= KAT_PASTE_STRING;
        if (renumber && plain && kept.size() < backKey)
            child->keyIdx = kept.size();
        const bool fits = plain && child->keyIdx >= 0 && child->keyIdx < backKey && !taken.at(child->keyIdx);
        if (!fits) {
            if (child->actionType != KAT_LINK_BUTTON)
                ++dropped;
            delete child;
            continue;
        }
        taken[child->keyIdx] = true;
        child->layout = layout;
        kept.append(child);
    }
    folder->childList = kept;
    folder->appendLinkKey();
    return dropped;
}

} // namespace

KeyItemModel::KeyItemModel(QObject* parent) : QObject(parent)
{
    m_saveTimer = new QTimer(this);
    m_saveTimer->setSingleShot(true);
    m_saveTimer->setInterval(SaveDelayMs);
    connect(m_saveTimer, &QTimer::timeout, this, &KeyItemModel::saveCurrentKeyItemsToSettings);

    m_deleteTimer = new QTimer(this);
    m_deleteTimer->setSingleShot(true);
    m_deleteTimer->setInterval(DeleteDelayMs);
    connect(m_deleteTimer, &QTimer::timeout, this, &KeyItemModel::onDeleteTimerTimeout);

    m_listHead = &m_rootLists[m_layout];
}

KeyItemModel::~KeyItemModel()
{
    onDeleteTimerTimeout();
    for (QList<KeyItem*>& list : m_rootLists)
        qDeleteAll(list);
}

// ---- update bracket ----

void KeyItemModel::beginUpdate(const KeyItem* item)
{
    m_updateMutex.lock();
    emit updateContentBefore(item);
}

void KeyItemModel::endUpdate(bool changed, const KeyItem* item)
{
    rebuildKeyIndexTable();
    m_updateMutex.unlock();
    if (changed)
        emit updateContent(item);
    emit updateContentAfter(item);
    // Queued, because the bracket may run on the key action thread while the
    // timer lives on the GUI thread; a burst of edits saves once.
    if (changed)
        QMetaObject::invokeMethod(m_saveTimer, "start", Qt::QueuedConnection);
}

void KeyItemModel::rebuildKeyIndexTable()
{
    m_keyIndexTable.fill(KeyIndexEntry());
    if (!m_listHead)
        return;
    for (int i = 0; i < m_listHead->size(); ++i) {
        const KeyItem* item = m_listHead->at(i);
        if (item->keyIdx >= 0 && item->keyIdx < MaxKeys)
            m_keyIndexTable[item->keyIdx] = {item->actionType, i};
    }
}

// ---- queries ----

int KeyItemModel::currentLayout() const
{
    QMutexLocker locker(&m_updateMutex);
    return m_layout;
}

QList<KeyItem*>* KeyItemModel::getCurrentLayoutListHead() const
{
    QMutexLocker locker(&m_updateMutex);
    return m_listHead;
}

QList<KeyItem*>* KeyItemModel::rootList(int layout)
{
    return ButtonLayoutConfig::isValidLayout(layout) ? &m_rootLists[layout] : nullptr;
}

KA_Folder* KeyItemModel::currentFolder() const
{
    QMutexLocker locker(&m_updateMutex);
    return m_currentFolder;
}

bool KeyItemModel::isRootList() const
{
    QMutexLocker locker(&m_updateMutex);
    return m_listHead == &m_rootLists[m_layout];
}

bool KeyItemModel::isKeyIdxInRange(int keyIdx) const
{
    return keyIdx >= 0 && keyIdx < MaxKeys;
}

KeyItem* KeyItemModel::keyItemAt(int keyIdx) const
{
    if (!isKeyIdxInRange(keyIdx))
        return nullptr;
    QMutexLocker locker(&m_updateMutex);
    if (!m_listHead)
        return nullptr;
    for (KeyItem* item : *m_listHead) {
        if (item->keyIdx == keyIdx)
            return item;
    }
    return nullptr;
}

int KeyItemModel::actionTypeAt(int keyIdx) const
{
    QMutexLocker locker(&m_updateMutex);
    const KeyItem* item = keyItemAt(keyIdx);
    return item ? item->actionType : KAT_INVALID;
}

KeyItemModel::KeyIndexEntry KeyItemModel::keyIndexEntry(int keyIdx) const
{
    if (!isKeyIdxInRange(keyIdx))
        return KeyIndexEntry();
    QMutexLocker locker(&m_updateMutex);
    return m_keyIndexTable[keyIdx];
}

KeyItem* KeyItemModel::parentItemForCurrentList() const
{
    return !isRootList() && m_currentFolder ? m_currentFolder->owner : nullptr;
}

// ---- edits ----

bool KeyItemModel::createKeyAction(int keyIdx, KeyActionType type)
{
    if (!isKeyIdxInRange(keyIdx)) {
        LOG_MSG(QStringLiteral("key idx out of idx: %1").arg(keyIdx));
        return false;
    }
    if (!logMsgWhenRetFail(m_listHead != nullptr, QStringLiteral("Err: listHead is nullptr!!")))
        return false;
    if (keyItemAt(keyIdx)) {
        LOG_MSG(QStringLiteral("Incorrect type!"));
        return false;
    }
    auto* item = new KeyItem(type, keyIdx, m_layout);
    m_keyIndexTable[keyIdx] = {type, int(m_listHead->size())};
    adopt(item, keyIdx);
    return true;
}

void KeyItemModel::adopt(KeyItem* item, int keyIdx)
{
    item->keyIdx = keyIdx;
    item->parent = parentItemForCurrentList();
    item->ownerList = m_listHead;
    m_listHead->append(item);
}

bool KeyItemModel::copyKeyItem(const KeyItem* src, int keyIdx)
{
    if (!src || !isKeyIdxInRange(keyIdx) || !m_listHead) {
        LOG_MSG(QStringLiteral("Param incorrect!"));
        return false;
    }
    if (src->isFolder() && !isRootList()) {
        LOG_MSG(QStringLiteral("Not allow multi-layer folder!"));
        return false;
    }
    KeyItem* target = keyItemAt(keyIdx);
    if (target && target->actionType == KAT_LINK_BUTTON) {
        LOG_MSG(QStringLiteral("Param incorrect!"));
        return false;
    }
    if (!target) {
        target = new KeyItem(src->actionType, keyIdx, m_layout);
        adopt(target, keyIdx);
    } else if (target->actionType != src->actionType) {
        target->actionType = src->actionType;
        target->recreateActions();
    }
    KeyItem* parent = target->parent;
    *target = *src;
    target->keyIdx = keyIdx;
    target->parent = parent;
    target->ownerList = m_listHead;
    rebuildKeyIndexTable();
    return true;
}

bool KeyItemModel::replaceKeyItem(KeyItem* item, int keyIdx)
{
    if (!item || !isKeyIdxInRange(keyIdx) || !m_listHead) {
        LOG_MSG(QStringLiteral("Param incorrect!"));
        return false;
    }
    if (item->isFolder() && !isRootList()) {
        LOG_MSG(QStringLiteral("Not allow multi-layer folder!"));
        return false;
    }
    KeyItem* occupant = keyItemAt(keyIdx);
    if (occupant == item)
        return true;
    if (occupant) {
        m_listHead->removeOne(occupant);
        deleteKeyItemLater(occupant);
    }
    if (item->ownerList)
        item->ownerList->removeOne(item);
    item->layout = m_layout;
    adopt(item, keyIdx);
    rebuildKeyIndexTable();
    return true;
}

bool KeyItemModel::keyItemBecomeFolder(int keyIdx)
{
    if (!isRootList()) {
        LOG_MSG(QStringLiteral("Not allow multi-layer folder!"));
        return false;
    }
    KeyItem* item = keyItemAt(keyIdx);
    if (!item || item->actionType == KAT_LINK_BUTTON || item->actionType < KAT_FOLDER || item->actionType >= KAT_NUM) {
        LOG_MSG(QStringLiteral("Param incorrect!"));
        return false;
    }
    if (item->isFolder())
        return true;
    auto* folder = new KeyItem(KAT_FOLDER, keyIdx, m_layout);
    folder->parent = nullptr;
    folder->ownerList = m_listHead;
    m_listHead->replace(m_listHead->indexOf(item), folder);
    item->keyIdx = 0;
    item->layout = m_layout;
    addToFolder(folder, item);
    rebuildKeyIndexTable();
    return true;
}

bool KeyItemModel::deleteKeyItem(int keyIdx)
{
    KeyItem* item = keyItemAt(keyIdx);
    if (!item || item->actionType == KAT_LINK_BUTTON) {
        LOG_MSG(QStringLiteral("Param incorrect!"));
        return false;
    }
    m_listHead->removeOne(item);
    deleteKeyItemLater(item);
    rebuildKeyIndexTable();
    return true;
}

bool KeyItemModel::resetKeyItemToDefault(int keyIdx)
{
    KeyItem* item = keyItemAt(keyIdx);
    if (!item || item->actionType == KAT_LINK_BUTTON) {
        LOG_MSG(QStringLiteral("Param incorrect!"));
        return false;
    }
    item->resetItem();
    return true;
}

void KeyItemModel::flushPendingSave()
{
    // After a save that failed the edits live in memory only: this is the
    // last chance to write them.
    const Settings* store = settings();
    if (!m_saveTimer->isActive() && !(store && store->lastSaveFailed()))
        return;
    m_saveTimer->stop();
    saveCurrentKeyItemsToSettings();
}

void KeyItemModel::updateKeyitemState(const KeyItem* item)
{
    beginUpdate(item);
    endUpdate(true, item);
}

// ---- late deletion ----

void KeyItemModel::deleteKeyItemLater(KeyItem* item)
{
    if (!item)
        return;
    {
        QMutexLocker locker(&m_deleteMutex);
        item->ownerList = nullptr;
        m_pendingDelete.append(item);
    }
    // A key event or an image update may still hold the item: it stays valid
    // for a while.
    QMetaObject::invokeMethod(m_deleteTimer, "start", Qt::AutoConnection);
}

void KeyItemModel::onDeleteTimerTimeout()
{
    QList<KeyItem*> doomed;
    {
        QMutexLocker locker(&m_deleteMutex);
        doomed.swap(m_pendingDelete);
    }
    qDeleteAll(doomed);
}

// ---- pages ----

void KeyItemModel::changeListHead(KA_Folder* folderKey, QList<KeyItem*>* listHead)
{
    if (!logMsgWhenRetFail(listHead != nullptr, QStringLiteral("Err: listHead is nullptr!!")))
        return;
    if (m_currentFolder && m_currentFolder != folderKey)
        m_currentFolder->isOpened = false;
    m_currentFolder = folderKey;
    if (folderKey)
        folderKey->isOpened = true;
    m_listHead = listHead;
    rebuildKeyIndexTable();
}

void KeyItemModel::changeListToRoot()
{
    if (m_currentFolder)
        m_currentFolder->isOpened = false;
    m_currentFolder = nullptr;
    m_listHead = &m_rootLists[m_layout];
    rebuildKeyIndexTable();
    emit changeListHeadToRoot();
}

void KeyItemModel::changeLayoutButtonView(KeyLayout layout)
{
    if (!ButtonLayoutConfig::isValidLayout(layout)) {
        LOG_MSG(QStringLiteral("Param incorrect!"));
        return;
    }
    beginUpdate();
    m_layout = layout;
    changeListToRoot();
    endUpdate(true);
}

// ---- defaults, reading and saving ----

// First start and reset: a small page that shows what keys can do and is
// quickly deleted: Copy and Paste hotkeys, and a "Media" folder with the
// volume keys, titled in the language in use. The key indices fit every layout, the 6-key ones included.
QList<KeyItem*> KeyItemModel::defaultKeyItems(int layout)
{
    QList<KeyItem*> items;
    if (!ButtonLayoutConfig::isValidLayout(layout))
        return items;
    //: Title of a default key (the Copy hotkey); a key face is 72 pixels wide.
    items << hotkey(0, layout, tr("Copy"), Qt::Key_C, 0x43, true);
    //: Title of a default key (the Paste hotkey).
    items << hotkey(1, layout, tr("Paste"), Qt::Key_V, 0x56, true);
    auto* media = new KeyItem(KAT_FOLDER, 2, layout);
    //: Title of a default folder key holding the volume keys.
    media->setTitle(0, tr("Media"));
    //: Title of a default key: mutes the sound.
    addToFolder(media, hotkey(0, layout, tr("Mute"), Qt::Key_VolumeMute, 0xAD, false));
    //: Title of a default key: turns the volume down.
    addToFolder(media, hotkey(1, layout, tr("Vol -"), Qt::Key_VolumeDown, 0xAE, false));
    //: Title of a default key: turns the volume up.
    addToFolder(media, hotkey(2, layout, tr("Vol +"), Qt::Key_VolumeUp, 0xAF, false));
    items << media;
    return items;
}

QList<KeyItem*> KeyItemModel::keyItemsFromMap(const QVariantMap& page, int layout, int* dropped)
{
    QList<KeyItem*> items;
    int lost = 0;
    const int keyCount = ButtonLayoutConfig::keyCount(layout);
    QVector<bool> taken(keyCount, false);
    const int count = Settings::boundedCount(page, SettingsKeys::KeyCnt, page.size());
    for (int i = 0; i < count; ++i) {
        const QVariant value = page.value(QString(SettingsKeys::KeyMapPattern).arg(i));
        if (value.userType() != QMetaType::QVariantMap || value.toMap().isEmpty()) {
            LOG_MSG(QStringLiteral("Err: Can't find keyMap_%1").arg(i));
            continue;
        }
        auto* item = new KeyItem;
        value.toMap() >> *item;
        const bool usable = item->actionType >= KAT_FOLDER && item->actionType < KAT_LINK_BUTTON && item->keyIdx >= 0 &&
                            item->keyIdx < keyCount && !taken.at(item->keyIdx);
        if (!usable) {
            ++lost;
            delete item;
            continue;
        }
        taken[item->keyIdx] = true;
        const bool madeForAnotherLayout = item->layout != layout;
        item->layout = layout;
        if (item->isFolder())
            lost += fitFolderPage(item, layout, madeForAnotherLayout);
        item->parent = nullptr;
        items.append(item);
    }
    if (dropped)
        *dropped = lost;
    return items;
}

void KeyItemModel::replaceRootList(int layout, QList<KeyItem*> items)
{
    QList<KeyItem*>& root = m_rootLists[layout];
    for (KeyItem* old : qAsConst(root))
        deleteKeyItemLater(old);
    root = items;
    for (KeyItem* item : qAsConst(root))
        item->ownerList = &root;
}

int KeyItemModel::replaceCurrentLayoutPages(const QVariantMap& page)
{
    int dropped = 0;
    replaceCurrentLayoutItems(keyItemsFromMap(page, m_layout, &dropped));
    return dropped;
}

void KeyItemModel::replaceCurrentLayoutItems(const QList<KeyItem*>& items)
{
    beginUpdate();
    replaceRootList(m_layout, items);
    changeListToRoot();
    endUpdate(true);
}

Settings* KeyItemModel::settings() const
{
    return COMPONENT(Settings, ComponentId::Settings);
}

void KeyItemModel::reloadKeyItemsFromSettings()
{
    Settings* store = settings();
    beginUpdate();
    for (int layout = 0; layout < LayoutCount; ++layout) {
        const QString key = SettingsKeys::KeyItemsPrefix + ButtonLayoutConfig::layoutName(layout);
        const QVariant stored = store ? store->value(key) : QVariant();
        if (stored.userType() == QMetaType::QVariantMap) {
            int dropped = 0;
            replaceRootList(layout, keyItemsFromMap(stored.toMap(), layout, &dropped));
            if (dropped > 0)
                LOG_MSG(
                    QStringLiteral("Err: %1 saved keys of %2 did not fit and were dropped!!").arg(dropped).arg(key));
        } else {
            LOG_MSG(QStringLiteral("Err: Can't find %1").arg(key));
            replaceRootList(layout, defaultKeyItems(layout));
        }
    }
    changeListToRoot();
    endUpdate(false);
}

void KeyItemModel::resetCurrentKeyItemsToDefault()
{
    beginUpdate();
    replaceRootList(m_layout, defaultKeyItems(m_layout));
    changeListToRoot();
    endUpdate(true);
}

void KeyItemModel::resetKeyItemsToDefault()
{
    beginUpdate();
    for (int layout = 0; layout < LayoutCount; ++layout)
        replaceRootList(layout, defaultKeyItems(layout));
    changeListToRoot();
    endUpdate(true);
}

void KeyItemModel::saveKeyItemsToSettings(Settings* store, QList<KeyItem*>* keyItems, bool syncToDisk)
{
    int layout = -1;
    for (int i = 0; i < LayoutCount; ++i) {
        if (keyItems == &m_rootLists[i])
            layout = i;
    }
    if (!store || layout < 0) {
        LOG_MSG(QStringLiteral("Param incorrect!"));
        return;
    }
    store->setValue(SettingsKeys::KeyItemsPrefix + ButtonLayoutConfig::layoutName(layout), pageToMap(*keyItems));
    if (syncToDisk)
        store->save();
}

void KeyItemModel::saveCurrentKeyItemsToSettings()
{
    Settings* store = settings();
    if (!store)
        return;
    QMutexLocker locker(&m_updateMutex);
    for (int layout = 0; layout < LayoutCount; ++layout)
        saveKeyItemsToSettings(store, &m_rootLists[layout], false);
    store->save();
}
