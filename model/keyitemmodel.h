#pragma once

#include "keyactiontype.h"
#include "keylayout.h"
#include "keypadtable.h"

#include <QList>
#include <QMutex>
#include <QObject>
#include <QRecursiveMutex>
#include <QVariantMap>
#include <array>

class KA_Folder;
class KeyItem;
class QTimer;
class Settings;

// Every key item of every layout, and the page shown now. Editors and the
// runtime change it inside the update bracket (beginUpdate / endUpdate); the
// end of a bracket tells the views and starts the late save.
class KeyItemModel : public QObject
{
    Q_OBJECT
public:
    static constexpr int SaveDelayMs = 1000;
    static constexpr int DeleteDelayMs = 5000;
    static constexpr int MaxKeys = KeypadTable::MaxKeys;
    static constexpr int LayoutCount = 6;

    struct KeyIndexEntry
    {
        int actionType = KAT_INVALID; // -1: no item at this key
        int position = -1;            // index of the item in the current list
    };

    explicit KeyItemModel(QObject* parent = nullptr);
    ~KeyItemModel() override;

    // The bracket: one lock, one notification per change, one save per burst.
    void beginUpdate(const KeyItem* item = nullptr);
    void endUpdate(bool changed, const KeyItem* item = nullptr);

    int currentLayout() const;
    QList<KeyItem*>* getCurrentLayoutListHead() const;
    QList<KeyItem*>* rootList(int layout);
    KA_Folder* currentFolder() const;
    bool isRootList() const;
    KeyItem* keyItemAt(int keyIdx) const;
    int actionTypeAt(int keyIdx) const;
    KeyIndexEntry keyIndexEntry(int keyIdx) const;
    // The bracket's lock without its notifications, for a thread that reads
    // an item of the current page while the editor may change it.
    QRecursiveMutex* updateLock() const { return &m_updateMutex; }

    // A new item of a type at an empty key of the current page.
    bool createKeyAction(int keyIdx, KeyActionType type);
    // Copies src into the key (pasting); the key keeps its place.
    bool copyKeyItem(const KeyItem* src, int keyIdx);
    // Puts an item (new, or moved from another key) at a key of the current
    // page; an item already there is deleted.
    bool replaceKeyItem(KeyItem* item, int keyIdx);
    // Turns the item at a root key into a folder that holds it.
    bool keyItemBecomeFolder(int keyIdx);
    // Takes the item at a key off the current page and frees it late.
    bool deleteKeyItem(int keyIdx);
    void deleteKeyItemLater(KeyItem* item);
    // Writes an edit burst whose late save is still pending (quitting).
    void flushPendingSave();
    // Tells the views and the keypad that one item was edited.
    void updateKeyitemState(const KeyItem* item);

    // The pages a layout starts with (see keyitemmodel.cpp).
    static QList<KeyItem*> defaultKeyItems(int layout);
    // Items of a page map ("KeyCnt" / "keyMap_%1"), fitted to a layout:
    // keys outside it or taken twice are dropped and counted.
    static QList<KeyItem*> keyItemsFromMap(const QVariantMap& page, int layout, int* dropped = nullptr);
    // Replaces the current layout's pages by imported ones.
    int replaceCurrentLayoutPages(const QVariantMap& page);
    // The same with items already read by keyItemsFromMap; takes them over.
    void replaceCurrentLayoutItems(const QList<KeyItem*>& items);

signals:
    void updateContentBefore(const KeyItem* keyItem);
    void updateContentAfter(const KeyItem* keyItem);
    void updateContent(const KeyItem* keyItem);
    void changeListHeadToRoot();

public slots:
    void resetCurrentKeyItemsToDefault();
    void resetKeyItemsToDefault();
    void reloadKeyItemsFromSettings();
    void saveCurrentKeyItemsToSettings();
    void saveKeyItemsToSettings(Settings* settings, QList<KeyItem*>* keyItems, bool syncToDisk);
    bool resetKeyItemToDefault(int keyIdx);
    void changeListHead(KA_Folder* folderKey, QList<KeyItem*>* listHead);
    void changeListToRoot();
    void onDeleteTimerTimeout();
    void changeLayoutButtonView(KeyLayout layout);

private:
    void rebuildKeyIndexTable();
    bool isKeyIdxInRange(int keyIdx) const;
    void replaceRootList(int layout, QList<KeyItem*> items);
    Settings* settings() const;
    KeyItem* parentItemForCurrentList() const;
    void adopt(KeyItem* item, int keyIdx);

    int m_layout = V_Key_15;
    KA_Folder* m_currentFolder = nullptr;
    QList<KeyItem*>* m_listHead = nullptr;
    std::array<KeyIndexEntry, MaxKeys> m_keyIndexTable;
    std::array<QList<KeyItem*>, LayoutCount> m_rootLists;
    QTimer* m_saveTimer = nullptr;
    // The bracket's lock. The queries take it too: the key action thread
    // changes the page inside a bracket while the GUI thread reads, and the
    // other way round.
    mutable QRecursiveMutex m_updateMutex;
    QTimer* m_deleteTimer = nullptr;
    QMutex m_deleteMutex;
    QList<KeyItem*> m_pendingDelete;
};
