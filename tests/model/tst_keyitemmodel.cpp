#include "buttonlayoutconfig.h"
#include "ka_folder.h"
#include "ka_paststring.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "keyitemserialization.h"
#include "keymodelfixture.h"
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

} // namespace

class KeyItemModelTest : public QObject, KeyModelFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        setUp();
        model->changeLayoutButtonView(V_Key_15);
    }

    void cleanup() { tearDown(); }

    void shouldRefuseToCreateOnATakenOrMissingKey()
    {
        QVERIFY(model->createKeyAction(4, KAT_PASTE_STRING));
        setText(model->keyItemAt(4), QStringLiteral("first"));
        LogCapture capture;
        QVERIFY(!model->createKeyAction(4, KAT_HOTKEY));
        QCOMPARE(capture.matching(QStringLiteral("Incorrect type!")).size(), 1);
        QCOMPARE(textOf(model->keyItemAt(4)), QStringLiteral("first"));
        QCOMPARE(model->keyIndexEntry(4).actionType, int(KAT_PASTE_STRING));
        QVERIFY(!model->createKeyAction(32, KAT_HOTKEY));
        QVERIFY(!model->createKeyAction(-1, KAT_HOTKEY));
        QCOMPARE(capture.matching(QStringLiteral("key idx out of idx: 32")).size(), 1);
    }

    void shouldNotifyInOrderAndSaveOncePerBurst()
    {
        QStringList order;
        connect(model.get(), &KeyItemModel::updateContentBefore, this, [&order] { order << "before"; });
        connect(model.get(), &KeyItemModel::updateContent, this, [&order] { order << "changed"; });
        connect(model.get(), &KeyItemModel::updateContentAfter, this, [&order] { order << "after"; });
        model->beginUpdate();
        model->endUpdate(false);
        QCOMPARE(order, (QStringList{"before", "after"}));

        LogCapture capture;
        for (int i = 0; i < 10; ++i) {
            model->beginUpdate();
            model->createKeyAction(i, KAT_PASTE_STRING);
            model->endUpdate(true);
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
        QVERIFY(model->createKeyAction(2, KAT_PASTE_STRING));
        QPointer<KeyActionAbstr> action = model->keyItemAt(2)->action[0];
        QVERIFY(model->deleteKeyItem(2));
        QCOMPARE(model->keyItemAt(2), nullptr);
        QCoreApplication::processEvents();
        QVERIFY(action); // still valid for a key event that holds it
        QTRY_VERIFY_WITH_TIMEOUT(action.isNull(), 30000);
    }

    void shouldEnterFoldersAndAlwaysLeaveToTheRootOfTheLayout()
    {
        QVERIFY(model->createKeyAction(1, KAT_FOLDER));
        KA_Folder* folder = folderOf(model->keyItemAt(1));
        model->changeListHead(folder, &folder->childList);
        QVERIFY(!model->isRootList());
        QVERIFY(folder->isOpened);
        QCOMPARE(model->actionTypeAt(14), int(KAT_LINK_BUTTON));
        QVERIFY(model->createKeyAction(0, KAT_PASTE_STRING));
        QCOMPARE(model->keyItemAt(0)->parent, folder->owner);
        QCOMPARE(model->keyItemAt(0)->ownerList, &folder->childList);

        QSignalSpy toRoot(model.get(), &KeyItemModel::changeListHeadToRoot);
        model->changeListToRoot();
        QCOMPARE(toRoot.count(), 1);
        QVERIFY(!folder->isOpened);
        QCOMPARE(model->getCurrentLayoutListHead(), model->rootList(V_Key_15));
    }

    void shouldAllowFoldersOneLevelDeepOnly()
    {
        QVERIFY(model->createKeyAction(3, KAT_PASTE_STRING));
        setText(model->keyItemAt(3), QStringLiteral("moved in"));
        QVERIFY(model->keyItemBecomeFolder(3));
        KeyItem* folderItem = model->keyItemAt(3);
        const QList<KeyItem*>& page = folderOf(folderItem)->childList;
        QCOMPARE(page.size(), 2);
        QCOMPARE(textOf(page.at(0)), QStringLiteral("moved in"));
        QCOMPARE(page.at(0)->keyIdx, 0);
        QCOMPARE(page.at(0)->parent, folderItem);
        QCOMPARE(page.at(1)->keyIdx, 14);

        model->changeListHead(folderOf(folderItem), &folderOf(folderItem)->childList);
        LogCapture capture;
        QVERIFY(!model->keyItemBecomeFolder(0));
        KeyItem outsideFolder(KAT_FOLDER, 5, V_Key_15);
        QVERIFY(!model->copyKeyItem(&outsideFolder, 5));
        QVERIFY(!model->replaceKeyItem(&outsideFolder, 5));
        QCOMPARE(capture.matching(QStringLiteral("Not allow multi-layer folder!")).size(), 3);
        QCOMPARE(model->keyItemAt(5), nullptr);
    }

    void shouldPasteCopiesAndMoveItems()
    {
        KeyItem clip(KAT_PASTE_STRING, 9, V_Key_15);
        setText(&clip, QStringLiteral("clip"));
        QVERIFY(model->createKeyAction(6, KAT_HOTKEY));
        for (const int key : {2, 6}) { // empty, taken
            QVERIFY(model->copyKeyItem(&clip, key));
            QCOMPARE(textOf(model->keyItemAt(key)), QStringLiteral("clip"));
            QCOMPARE(model->keyItemAt(key)->keyIdx, key);
        }
        QVERIFY(model->keyItemAt(2) != model->keyItemAt(6));

        KeyItem* item = model->keyItemAt(2);
        QVERIFY(model->replaceKeyItem(item, 7));
        QCOMPARE(model->keyItemAt(2), nullptr);
        QCOMPARE(model->keyItemAt(7), item);
        QCOMPARE(model->getCurrentLayoutListHead()->count(item), 1);
        QCOMPARE(model->keyIndexEntry(7).actionType, int(KAT_PASTE_STRING));
    }

    void shouldSaveAndReloadEveryLayout()
    {
        QVERIFY(model->createKeyAction(8, KAT_PASTE_STRING));
        setText(model->keyItemAt(8), QStringLiteral("saved"));
        model->changeLayoutButtonView(H_Key_6);
        QVERIFY(model->createKeyAction(5, KAT_FOLDER));
        model->saveCurrentKeyItemsToSettings();

        Settings reopened;
        QVERIFY(!reopened.loadedDefaults());
        ObjectRegistry::registerObject(ComponentId::Settings, &reopened);
        KeyItemModel reloaded;
        reloaded.reloadKeyItemsFromSettings();
        reloaded.changeLayoutButtonView(V_Key_15);
        QCOMPARE(textOf(reloaded.keyItemAt(8)), QStringLiteral("saved"));
        reloaded.changeLayoutButtonView(H_Key_6);
        QCOMPARE(reloaded.actionTypeAt(5), int(KAT_FOLDER));
        ObjectRegistry::registerObject(ComponentId::Settings, settings.get());
    }

    void shouldStartWithDefaultPagesWhenNothingIsStored()
    {
        model->reloadKeyItemsFromSettings();
        for (int layout = 0; layout < KeyItemModel::LayoutCount; ++layout) {
            model->changeLayoutButtonView(KeyLayout(layout));
            QCOMPARE(model->actionTypeAt(0), int(KAT_HOTKEY));
            QCOMPARE(model->actionTypeAt(2), int(KAT_FOLDER));
            const KA_Folder* folder = folderOf(model->keyItemAt(2));
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
        layouts.changeLayout(V_Key_32);
        auto* folder = new KeyItem(KAT_FOLDER, 2, V_Key_32);
        for (int i = 0; i < 9; ++i) {
            auto* child = new KeyItem(KAT_PASTE_STRING, 10 + i, V_Key_32);
            child->parent = folder;
            folderOf(folder)->childList.prepend(child);
        }
        QList<KeyItem*> page{new KeyItem(KAT_PASTE_STRING, 1, V_Key_32), folder, new KeyItem(KAT_HOTKEY, 30, V_Key_32)};
        const QVariantMap map = pageToMap(page);
        qDeleteAll(page);

        layouts.changeLayout(H_Key_6);
        model->changeLayoutButtonView(H_Key_6);
        // The key at 30 and four of the folder's nine keys do not fit six keys.
        QCOMPARE(model->replaceCurrentLayoutPages(map), 5);
        QCOMPARE(model->getCurrentLayoutListHead()->size(), 2);
        QCOMPARE(model->actionTypeAt(1), int(KAT_PASTE_STRING));
        const QList<KeyItem*>& fitted = folderOf(model->keyItemAt(2))->childList;
        QCOMPARE(fitted.size(), 6);
        for (int i = 0; i < 6; ++i)
            QCOMPARE(fitted.at(i)->keyIdx, i);
        QCOMPARE(fitted.at(5)->actionType, KAT_LINK_BUTTON);
    }
};

KEYSTAGE_TEST_MAIN(KeyItemModelTest)
#include "tst_keyitemmodel.moc"
