#include "buttonlayoutconfig.h"
#include "ka_folder.h"
#include "ka_paststring.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "keyitemserialization.h"
#include "logcapture.h"
#include "objectregistry.h"
#include "settings.h"
#include "settingskeys.h"
#include "testmain.h"

#include <QPointer>
#include <QSignalSpy>

namespace {

QString textOf(const KeyItem* item)
{
    return item ? static_cast<KA_PastString*>(item->action[0])->strText : QStringLiteral("<none>");
}

void setText(KeyItem* item, const QString& text)
{
    static_cast<KA_PastString*>(item->action[0])->strText = text;
}

KA_Folder* folderOf(const KeyItem* item)
{
    return static_cast<KA_Folder*>(item->action[0]);
}

} // namespace

class KeyItemModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QFile::remove(Settings().fileName());
        m_settings = std::make_unique<Settings>();
        m_layouts.changeLayout(V_Key_15);
        ObjectRegistry::registerObject(ComponentId::Settings, m_settings.get());
        ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, &m_layouts);
        m_model = std::make_unique<KeyItemModel>();
        m_model->changeLayoutButtonView(V_Key_15);
    }

    void cleanup()
    {
        m_model.reset();
        ObjectRegistry::clear();
        m_settings.reset();
    }

    void shouldRefuseToCreateOnATakenOrMissingKey()
    {
        QVERIFY(m_model->createKeyAction(4, KAT_PASTE_STRING));
        setText(m_model->keyItemAt(4), QStringLiteral("first"));
        LogCapture capture;
        QVERIFY(!m_model->createKeyAction(4, KAT_HOTKEY));
        QCOMPARE(capture.matching(QStringLiteral("Incorrect type!")).size(), 1);
        QCOMPARE(textOf(m_model->keyItemAt(4)), QStringLiteral("first"));
        QCOMPARE(m_model->keyIndexEntry(4).actionType, int(KAT_PASTE_STRING));
        QVERIFY(!m_model->createKeyAction(32, KAT_HOTKEY));
        QVERIFY(!m_model->createKeyAction(-1, KAT_HOTKEY));
        QCOMPARE(capture.matching(QStringLiteral("key idx out of idx: 32")).size(), 1);
    }

    void shouldNotifyInOrderAndSaveOncePerBurst()
    {
        QStringList order;
        connect(m_model.get(), &KeyItemModel::updateContentBefore, this, [&order] { order << "before"; });
        connect(m_model.get(), &KeyItemModel::updateContent, this, [&order] { order << "changed"; });
        connect(m_model.get(), &KeyItemModel::updateContentAfter, this, [&order] { order << "after"; });
        m_model->beginUpdate();
        m_model->endUpdate(false);
        QCOMPARE(order, (QStringList{"before", "after"}));

        LogCapture capture;
        for (int i = 0; i < 10; ++i) {
            m_model->beginUpdate();
            m_model->createKeyAction(i, KAT_PASTE_STRING);
            m_model->endUpdate(true);
        }
        QCOMPARE(order.count("changed"), 10);
        QCoreApplication::processEvents();
        // The save waits a second after the last edit of the burst.
        const QString saved = QStringLiteral("store setting into disk.");
        QCOMPARE(capture.matching(saved).size(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(capture.matching(saved).size(), 1, 30000);
        QTest::qWait(2 * KeyItemModel::SaveDelayMs);
        QCOMPARE(capture.matching(saved).size(), 1);
    }

    void shouldFreeDeletedItemsLate()
    {
        QVERIFY(m_model->createKeyAction(2, KAT_PASTE_STRING));
        QPointer<KeyActionAbstr> action = m_model->keyItemAt(2)->action[0];
        QVERIFY(m_model->deleteKeyItem(2));
        QCOMPARE(m_model->keyItemAt(2), nullptr);
        QCoreApplication::processEvents();
        QVERIFY(action); // still valid for a key event that holds it
        QTRY_VERIFY_WITH_TIMEOUT(action.isNull(), 30000);
    }

    void shouldEnterFoldersAndAlwaysLeaveToTheRootOfTheLayout()
    {
        QVERIFY(m_model->createKeyAction(1, KAT_FOLDER));
        KA_Folder* folder = folderOf(m_model->keyItemAt(1));
        m_model->changeListHead(folder, &folder->childList);
        QVERIFY(!m_model->isRootList());
        QVERIFY(folder->isOpened);
        QCOMPARE(m_model->actionTypeAt(14), int(KAT_LINK_BUTTON));
        QVERIFY(m_model->createKeyAction(0, KAT_PASTE_STRING));
        QCOMPARE(m_model->keyItemAt(0)->parent, folder->owner);
        QCOMPARE(m_model->keyItemAt(0)->ownerList, &folder->childList);

        QSignalSpy toRoot(m_model.get(), &KeyItemModel::changeListHeadToRoot);
        m_model->changeListToRoot();
        QCOMPARE(toRoot.count(), 1);
        QVERIFY(!folder->isOpened);
        QCOMPARE(m_model->getCurrentLayoutListHead(), m_model->rootList(V_Key_15));
    }

    void shouldAllowFoldersOneLevelDeepOnly()
    {
        QVERIFY(m_model->createKeyAction(3, KAT_PASTE_STRING));
        setText(m_model->keyItemAt(3), QStringLiteral("moved in"));
        QVERIFY(m_model->keyItemBecomeFolder(3));
        KeyItem* folderItem = m_model->keyItemAt(3);
        const QList<KeyItem*>& page = folderOf(folderItem)->childList;
        QCOMPARE(page.size(), 2);
        QCOMPARE(textOf(page.at(0)), QStringLiteral("moved in"));
        QCOMPARE(page.at(0)->keyIdx, 0);
        QCOMPARE(page.at(0)->parent, folderItem);
        QCOMPARE(page.at(1)->keyIdx, 14);

        m_model->changeListHead(folderOf(folderItem), &folderOf(folderItem)->childList);
        LogCapture capture;
        QVERIFY(!m_model->keyItemBecomeFolder(0));
        KeyItem outsideFolder(KAT_FOLDER, 5, V_Key_15);
        QVERIFY(!m_model->copyKeyItem(&outsideFolder, 5));
        QVERIFY(!m_model->replaceKeyItem(&outsideFolder, 5));
        QCOMPARE(capture.matching(QStringLiteral("Not allow multi-layer folder!")).size(), 3);
        QCOMPARE(m_model->keyItemAt(5), nullptr);
    }

    void shouldPasteCopiesAndMoveItems()
    {
        KeyItem clip(KAT_PASTE_STRING, 9, V_Key_15);
        setText(&clip, QStringLiteral("clip"));
        QVERIFY(m_model->createKeyAction(6, KAT_HOTKEY));
        for (const int key : {2, 6}) { // empty, taken
            QVERIFY(m_model->copyKeyItem(&clip, key));
            QCOMPARE(textOf(m_model->keyItemAt(key)), QStringLiteral("clip"));
            QCOMPARE(m_model->keyItemAt(key)->keyIdx, key);
        }
        QVERIFY(m_model->keyItemAt(2) != m_model->keyItemAt(6));

        KeyItem* item = m_model->keyItemAt(2);
        QVERIFY(m_model->replaceKeyItem(item, 7));
        QCOMPARE(m_model->keyItemAt(2), nullptr);
        QCOMPARE(m_model->keyItemAt(7), item);
        QCOMPARE(m_model->getCurrentLayoutListHead()->count(item), 1);
        QCOMPARE(m_model->keyIndexEntry(7).actionType, int(KAT_PASTE_STRING));
    }

    void shouldSaveAndReloadEveryLayout()
    {
        QVERIFY(m_model->createKeyAction(8, KAT_PASTE_STRING));
        setText(m_model->keyItemAt(8), QStringLiteral("saved"));
        m_model->changeLayoutButtonView(H_Key_6);
        QVERIFY(m_model->createKeyAction(5, KAT_FOLDER));
        m_model->saveCurrentKeyItemsToSettings();

        Settings reopened;
        QVERIFY(!reopened.loadedDefaults());
        ObjectRegistry::registerObject(ComponentId::Settings, &reopened);
        KeyItemModel model;
        model.reloadKeyItemsFromSettings();
        model.changeLayoutButtonView(V_Key_15);
        QCOMPARE(textOf(model.keyItemAt(8)), QStringLiteral("saved"));
        model.changeLayoutButtonView(H_Key_6);
        QCOMPARE(model.actionTypeAt(5), int(KAT_FOLDER));
        ObjectRegistry::registerObject(ComponentId::Settings, m_settings.get());
    }

    void shouldStartWithDefaultPagesWhenNothingIsStored()
    {
        m_model->reloadKeyItemsFromSettings();
        for (int layout = 0; layout < KeyItemModel::LayoutCount; ++layout) {
            m_model->changeLayoutButtonView(KeyLayout(layout));
            QCOMPARE(m_model->actionTypeAt(0), int(KAT_HOTKEY));
            QCOMPARE(m_model->actionTypeAt(2), int(KAT_FOLDER));
            const KA_Folder* folder = folderOf(m_model->keyItemAt(2));
            QCOMPARE(folder->childList.last()->keyIdx, ButtonLayoutConfig::keyCount(layout) - 1);
            QCOMPARE(folder->linkCount(), 1);
        }
    }

    void shouldDropStoredKeysThatDoNotFit()
    {
        QList<KeyItem*> page{new KeyItem(KAT_PASTE_STRING, 3, V_Key_15), new KeyItem(KAT_HOTKEY, 3, V_Key_15),
                             new KeyItem(KAT_PASTE_STRING, 20, V_Key_15), new KeyItem(KAT_LINK_BUTTON, 4, V_Key_15)};
        setText(page.at(0), QStringLiteral("kept"));
        QVariantMap map = pageToMap(page);
        map.insert(SettingsKeys::KeyCnt, 1000000);
        qDeleteAll(page);
        int dropped = 0;
        const QList<KeyItem*> items = KeyItemModel::keyItemsFromMap(map, V_Key_15, &dropped);
        QCOMPARE(items.size(), 1);
        QCOMPARE(textOf(items.first()), QStringLiteral("kept"));
        QCOMPARE(dropped, 3);
        qDeleteAll(items);
    }

    void shouldFitImportedPagesOfALargerLayout()
    {
        m_layouts.changeLayout(V_Key_32);
        auto* folder = new KeyItem(KAT_FOLDER, 2, V_Key_32);
        for (int i = 0; i < 9; ++i) {
            auto* child = new KeyItem(KAT_PASTE_STRING, 10 + i, V_Key_32);
            child->parent = folder;
            folderOf(folder)->childList.prepend(child);
        }
        QList<KeyItem*> page{new KeyItem(KAT_PASTE_STRING, 1, V_Key_32), folder, new KeyItem(KAT_HOTKEY, 30, V_Key_32)};
        const QVariantMap map = pageToMap(page);
        qDeleteAll(page);

        m_layouts.changeLayout(H_Key_6);
        m_model->changeLayoutButtonView(H_Key_6);
        // The key at 30 and four of the folder's nine keys do not fit six keys.
        QCOMPARE(m_model->replaceCurrentLayoutPages(map), 5);
        QCOMPARE(m_model->getCurrentLayoutListHead()->size(), 2);
        QCOMPARE(m_model->actionTypeAt(1), int(KAT_PASTE_STRING));
        const QList<KeyItem*>& fitted = folderOf(m_model->keyItemAt(2))->childList;
        QCOMPARE(fitted.size(), 6);
        for (int i = 0; i < 6; ++i)
            QCOMPARE(fitted.at(i)->keyIdx, i);
        QCOMPARE(fitted.at(5)->actionType, KAT_LINK_BUTTON);
    }

private:
    std::unique_ptr<Settings> m_settings;
    ButtonLayoutConfig m_layouts;
    std::unique_ptr<KeyItemModel> m_model;
};

KEYSTAGE_TEST_MAIN(KeyItemModelTest)
#include "tst_keyitemmodel.moc"
