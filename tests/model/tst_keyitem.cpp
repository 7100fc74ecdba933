#include "buttonlayoutconfig.h"
#include "ka_execute.h"
#include "ka_folder.h"
#include "ka_hotkey.h"
#include "ka_marcokey.h"
#include "ka_paststring.h"
#include "keyitem.h"
#include "logcapture.h"
#include "objectregistry.h"
#include "testmain.h"

namespace {

KA_Folder& folderOf(KeyItem& item)
{
    return static_cast<KA_Folder&>(*item.action[0]);
}

KeyItem* addChild(KeyItem& folder, KeyActionType type, int keyIdx, const QString& title)
{
    auto* child = new KeyItem(type, keyIdx, folder.layout);
    child->setTitle(0, title);
    child->parent = &folder;
    child->ownerList = &folderOf(folder).childList;
    child->ownerList->insert(child->ownerList->size() - 1, child); // before the back key
    return child;
}

} // namespace

class KeyItemTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, &m_layouts);
        m_layouts.changeLayout(V_Key_15);
    }
    void cleanup() { ObjectRegistry::clear(); }

    void shouldConvertTypeNamesBothWays_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("type");
        const QStringList names{"KAT_FOLDER",       "KAT_HOTKEY",       "KAT_MACROKEY",   "KAT_EXE_APP_FILE",
                                "KAT_OPEN_WEBSITE", "KAT_PASTE_STRING", "KAT_LINK_BUTTON"};
        for (int type = 0; type < names.size(); ++type)
            QTest::newRow(qPrintable(names.at(type))) << names.at(type) << type;
        QTest::newRow("invalid") << "KAT_INVALID" << -1;
    }

    void shouldConvertTypeNamesBothWays()
    {
        QFETCH(QString, name);
        QFETCH(int, type);
        QCOMPARE(int(keyActionTypeFromString(name)), type);
        QCOMPARE(keyActionTypeToString(type), name);
    }

    void shouldRefuseUnknownTypes()
    {
        for (const char* name : {"", "kat_folder", "KAT_NUM", "KAT_FOLDER "})
            QCOMPARE(keyActionTypeFromString(QLatin1String(name)), KAT_INVALID);
        QCOMPARE(keyActionTypeToString(7), QStringLiteral("KAT_NUM"));
        QCOMPARE(keyActionTypeToString(8), QStringLiteral("ACTION_TYPE_OUT_OF_RANGE"));
        QCOMPARE(keyActionTypeToString(-2), QStringLiteral("ACTION_TYPE_OUT_OF_RANGE"));
        LogCapture capture;
        QCOMPARE(KeyActionAbstr::newActionObject(nullptr, KAT_NUM), nullptr);
        QCOMPARE(KeyActionAbstr::newActionObject(nullptr, KAT_INVALID), nullptr);
        QCOMPARE(capture.matching(QStringLiteral("ERR: unknow key action type!!! -> 7")).size(), 1);
        QCOMPARE(capture.matching(QStringLiteral("ERR: unknow key action type!!! -> -1")).size(), 1);
    }

    void shouldGiveEachTypeItsDefaultImagesAndActionClass_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("images");
        QTest::addColumn<QString>("className");
        const auto row = [](int type, const char* images, const char* className) {
            QTest::newRow(className) << type << QString(images) << QString(className);
        };
        row(KAT_FOLDER, "btn_folder btn_folder", "KA_Folder");
        row(KAT_HOTKEY, "btn_hotkey btn_toggle", "KA_HotKey");
        row(KAT_MACROKEY, "btn_macro btn_macro", "KA_MarcoKey");
        row(KAT_EXE_APP_FILE, "btn_launch btn_launch", "KA_Execute launch");
        row(KAT_OPEN_WEBSITE, "btn_website btn_website", "KA_Execute website");
        row(KAT_PASTE_STRING, "btn_textstring btn_textstring", "KA_PastString");
        row(KAT_LINK_BUTTON, "btn_home btn_home", "KA_LinkButton");
    }

    void shouldGiveEachTypeItsDefaultImagesAndActionClass()
    {
        QFETCH(int, type);
        QFETCH(QString, images);
        QFETCH(QString, className);
        const KeyItem item(KeyActionType(type), 3, V_Key_15);
        QCOMPARE(item.render[0].defImgPath + ' ' + item.render[1].defImgPath, images);
        for (const KeyActionAbstr* action : item.action) {
            QVERIFY(action);
            QVERIFY(className.startsWith(QLatin1String(action->metaObject()->className())));
            QCOMPARE(int(action->getActionType()), type);
        }
        QCOMPARE(item.render[1].owner, &item);
    }

    void shouldTitleHotkeySlotsApartAndOthersTogether()
    {
        KeyItem hotkey(KAT_HOTKEY, 0, V_Key_15);
        hotkey.setTitle(1, QStringLiteral("Off"));
        QCOMPARE(hotkey.render[0].text, QString());
        QCOMPARE(hotkey.render[1].text, QStringLiteral("Off"));
        KeyItem launch(KAT_EXE_APP_FILE, 0, V_Key_15);
        launch.setTitle(1, QStringLiteral("Editor"));
        QCOMPARE(launch.render[0].text, QStringLiteral("Editor"));
        QCOMPARE(launch.render[1].text, QStringLiteral("Editor"));
    }

    void shouldGiveANewFolderItsBackKeyInTheLastPosition_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<int>("backKey");
        QTest::newRow("6 keys") << int(H_Key_6) << 5;
        QTest::newRow("15 keys") << int(V_Key_15) << 14;
        QTest::newRow("32 keys") << int(V_Key_32) << 31;
    }

    void shouldGiveANewFolderItsBackKeyInTheLastPosition()
    {
        QFETCH(int, layout);
        QFETCH(int, backKey);
        KeyItem folder(KAT_FOLDER, 0, layout);
        QCOMPARE(folderOf(folder).childList.size(), 1);
        const KeyItem* link = folderOf(folder).childList.first();
        QCOMPARE(link->actionType, KAT_LINK_BUTTON);
        QCOMPARE(link->keyIdx, backKey);
        QCOMPARE(link->layout, layout);
        QCOMPARE(link->parent, &folder);
        QCOMPARE(link->ownerList, &folderOf(folder).childList);
    }

    void shouldResetWhatTheKeyDoesAndShowsButNotAFoldersPage()
    {
        KeyItem hotkey(KAT_HOTKEY, 2, V_Key_15);
        auto* action = static_cast<KA_HotKey*>(hotkey.action[0]);
        action->keyCtrl = true;
        action->nativeCode = 0x43;
        hotkey.cfIdx = 1;
        hotkey.render[0].text = QStringLiteral("Copy");
        hotkey.render[1].userImg = QPixmap(8, 8);
        hotkey.resetItem();
        QVERIFY(!action->keyCtrl);
        QCOMPARE(action->nativeCode, -1);
        QCOMPARE(hotkey.cfIdx, 0);
        QCOMPARE(hotkey.render[0].text, QString());
        QVERIFY(hotkey.render[1].userImg.isNull());
        QCOMPARE(hotkey.render[1].defImgPath, QStringLiteral("btn_toggle"));

        KeyItem folder(KAT_FOLDER, 0, V_Key_15);
        folderOf(folder).isExpend = true;
        folderOf(folder).appName = QStringLiteral("/usr/bin/gimp");
        addChild(folder, KAT_PASTE_STRING, 0, QStringLiteral("x"));
        folder.resetItem();
        QVERIFY(!folderOf(folder).isExpend);
        QCOMPARE(folderOf(folder).appName, QStringLiteral("/usr/bin/gimp"));
        QCOMPARE(folderOf(folder).childList.size(), 2);
    }

    void shouldCopyEveryKindOfActionAndBothFaces()
    {
        KeyItem hotkey(KAT_HOTKEY, 4, V_Key_15);
        hotkey.multiFeatureFlag = true;
        hotkey.cfIdx = 1;
        auto* keys = static_cast<KA_HotKey*>(hotkey.action[1]);
        keys->keyCmd = keys->keyShift = true;
        keys->nativeCode = 0x53;
        hotkey.render[1].text = QStringLiteral("Save");
        hotkey.render[1].userImg = QPixmap(8, 8);
        KeyItem copy(KAT_HOTKEY, 0, V_Key_15);
        copy = hotkey;
        QCOMPARE(copy.keyIdx, 4);
        QVERIFY(copy.multiFeatureFlag);
        QCOMPARE(copy.cfIdx, 1);
        const auto* copied = static_cast<KA_HotKey*>(copy.action[1]);
        QVERIFY(copied != keys);
        QVERIFY(copied->keyCmd && copied->keyShift && !copied->keyCtrl);
        QCOMPARE(copied->nativeCode, 0x53);
        QCOMPARE(copy.render[1].text, QStringLiteral("Save"));
        QCOMPARE(copy.render[1].userImg.size(), QSize(8, 8));
        QCOMPARE(copy.render[1].owner, &copy);

        KeyItem macro(KAT_MACROKEY, 1, V_Key_15);
        static_cast<KA_MarcoKey*>(macro.action[0])->marcoKeyItemList = {{Qt::Key_A, 0x41, true}};
        QCOMPARE(static_cast<KA_MarcoKey*>(KeyItem(macro).action[0])->marcoKeyItemList.size(), 1);
        KeyItem site(KAT_OPEN_WEBSITE, 1, V_Key_15);
        static_cast<KA_Execute*>(site.action[0])->path = QStringLiteral("example.org");
        QCOMPARE(static_cast<KA_Execute*>(KeyItem(site).action[0])->path, QStringLiteral("example.org"));
    }

    void shouldCopyAFolderWithinItsLayoutCompletely()
    {
        KeyItem folder(KAT_FOLDER, 0, V_Key_15);
        addChild(folder, KAT_PASTE_STRING, 3, QStringLiteral("a"));
        addChild(folder, KAT_HOTKEY, 7, QStringLiteral("b"));
        folderOf(folder).appendLinkKey(); // a second back key: one is kept
        KeyItem copy(KAT_FOLDER, 0, V_Key_15);
        copy = folder;
        const QList<KeyItem*>& children = folderOf(copy).childList;
        QCOMPARE(children.size(), 3);
        QCOMPARE(children.at(0)->keyIdx, 3);
        QCOMPARE(children.at(1)->keyIdx, 7);
        QCOMPARE(children.at(2)->keyIdx, 14);
        QCOMPARE(folderOf(copy).linkCount(), 1);
        for (KeyItem* child : children) {
            QCOMPARE(child->parent, &copy);
            QCOMPARE(child->ownerList, &children);
            QVERIFY(!folderOf(folder).childList.contains(child));
        }
    }

    void shouldFitAFolderOfThirtyTwoKeysIntoSix()
    {
        m_layouts.changeLayout(V_Key_32);
        KeyItem folder(KAT_FOLDER, 0, V_Key_32);
        addChild(folder, KAT_FOLDER, 0, QStringLiteral("nested")); // never copied across
        for (int i = 1; i <= 8; ++i)
            addChild(folder, KAT_PASTE_STRING, 2 * i, QStringLiteral("t%1").arg(i));

        m_layouts.changeLayout(H_Key_6);
        KeyItem copy(KAT_FOLDER, 0, V_Key_32);
        copy = folder;
        QCOMPARE(copy.layout, int(H_Key_6)); // an assignment takes the layout in force
        const QList<KeyItem*>& children = folderOf(copy).childList;
        QCOMPARE(children.size(), 6);
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(children.at(i)->actionType, KAT_PASTE_STRING);
            QCOMPARE(children.at(i)->keyIdx, i);
            QCOMPARE(children.at(i)->render[0].text, QStringLiteral("t%1").arg(i + 1));
            QCOMPARE(children.at(i)->layout, int(H_Key_6));
        }
        QCOMPARE(children.at(5)->actionType, KAT_LINK_BUTTON);
        QCOMPARE(children.at(5)->keyIdx, 5);
        QCOMPARE(folderOf(copy).linkCount(), 1);
        // The source's copied children took their new numbers too.
        QCOMPARE(folderOf(folder).childList.at(1)->keyIdx, 0);
    }

private:
    ButtonLayoutConfig m_layouts;
};

KEYSTAGE_TEST_MAIN(KeyItemTest)
#include "tst_keyitem.moc"
