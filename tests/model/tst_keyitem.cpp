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

KeyItem* makeChild(KA_Folder& folder, KeyActionType type, int keyIdx, const QString& title)
{
    auto* child = new KeyItem(type, keyIdx, folder.owner->layout);
    child->setTitle(0, title);
    child->parent = folder.owner;
    child->ownerList = &folder.childList;
    folder.childList.insert(folder.childList.size() - 1, child); // before the back key
    return child;
}

KA_Folder& folderOf(KeyItem& item)
{
    return static_cast<KA_Folder&>(*item.action[0]);
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
        QTest::newRow("folder") << "KAT_FOLDER" << 0;
        QTest::newRow("hotkey") << "KAT_HOTKEY" << 1;
        QTest::newRow("macro") << "KAT_MACROKEY" << 2;
        QTest::newRow("launch") << "KAT_EXE_APP_FILE" << 3;
        QTest::newRow("website") << "KAT_OPEN_WEBSITE" << 4;
        QTest::newRow("text") << "KAT_PASTE_STRING" << 5;
        QTest::newRow("link") << "KAT_LINK_BUTTON" << 6;
    }

    void shouldConvertTypeNamesBothWays()
    {
        QFETCH(QString, name);
        QFETCH(int, type);
        QCOMPARE(int(keyActionTypeFromString(name)), type);
        QCOMPARE(keyActionTypeToString(type), name);
    }

    void shouldReadUnknownNamesAsInvalid()
    {
        for (const char* name : {"KAT_INVALID", "", "kat_folder", "KAT_NUM", "KAT_FOLDER "})
            QCOMPARE(keyActionTypeFromString(QLatin1String(name)), KAT_INVALID);
        QCOMPARE(keyActionTypeToString(-1), QStringLiteral("KAT_INVALID"));
        QCOMPARE(keyActionTypeToString(7), QStringLiteral("KAT_NUM"));
        QCOMPARE(keyActionTypeToString(8), QStringLiteral("ACTION_TYPE_OUT_OF_RANGE"));
        QCOMPARE(keyActionTypeToString(-2), QStringLiteral("ACTION_TYPE_OUT_OF_RANGE"));
    }

    void shouldGiveEachTypeItsDefaultImagesAndActionClass_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("image0");
        QTest::addColumn<QString>("image1");
        QTest::addColumn<QString>("className");
        QTest::newRow("folder") << 0 << "btn_folder"
                                << "btn_folder"
                                << "KA_Folder";
        QTest::newRow("hotkey") << 1 << "btn_hotkey"
                                << "btn_toggle"
                                << "KA_HotKey";
        QTest::newRow("macro") << 2 << "btn_macro"
                               << "btn_macro"
                               << "KA_MarcoKey";
        QTest::newRow("launch") << 3 << "btn_launch"
                                << "btn_launch"
                                << "KA_Execute";
        QTest::newRow("website") << 4 << "btn_website"
                                 << "btn_website"
                                 << "KA_Execute";
        QTest::newRow("text") << 5 << "btn_textstring"
                              << "btn_textstring"
                              << "KA_PastString";
        QTest::newRow("link") << 6 << "btn_home"
                              << "btn_home"
                              << "KA_LinkButton";
    }

    void shouldGiveEachTypeItsDefaultImagesAndActionClass()
    {
        QFETCH(int, type);
        QFETCH(QString, image0);
        QFETCH(QString, image1);
        QFETCH(QString, className);
        KeyItem item(KeyActionType(type), 3, V_Key_15);
        QCOMPARE(item.render[0].defImgPath, image0);
        QCOMPARE(item.render[1].defImgPath, image1);
        for (KeyActionAbstr* action : item.action) {
            QVERIFY(action);
            QCOMPARE(QString::fromLatin1(action->metaObject()->className()), className);
            QCOMPARE(int(action->getActionType()), type);
        }
        QCOMPARE(item.render[0].owner, &item);
        QCOMPARE(item.render[1].owner, &item);
    }

    void shouldRefuseUnknownTypesInTheFactory()
    {
        LogCapture capture;
        QCOMPARE(KeyActionAbstr::newActionObject(nullptr, KAT_NUM), nullptr);
        QCOMPARE(KeyActionAbstr::newActionObject(nullptr, KAT_INVALID), nullptr);
        QCOMPARE(capture.matching(QStringLiteral("ERR: unknow key action type!!! -> 7")).size(), 1);
        QCOMPARE(capture.matching(QStringLiteral("ERR: unknow key action type!!! -> -1")).size(), 1);
    }

    void shouldJudgeValidityPerAction()
    {
        KeyItem hotkey(KAT_HOTKEY, 0, V_Key_15);
        QVERIFY(!hotkey.isValid());
        static_cast<KA_HotKey*>(hotkey.action[0])->nativeCode = 0x41;
        QVERIFY(hotkey.isValid());
        KeyItem macro(KAT_MACROKEY, 0, V_Key_15);
        QVERIFY(!macro.isValid());
        static_cast<KA_MarcoKey*>(macro.action[0])->marcoKeyItemList.append({Qt::Key_A, 0x41, true});
        QVERIFY(macro.isValid());
        KeyItem text(KAT_PASTE_STRING, 0, V_Key_15);
        QVERIFY(!text.isValid());
        KeyItem folder(KAT_FOLDER, 0, V_Key_15);
        QVERIFY(folder.isValid());
        QVERIFY(folder.action[0]->isFolder());
        QVERIFY(!text.action[0]->isFolder());
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
        const KA_Folder& page = folderOf(folder);
        QCOMPARE(page.childList.size(), 1);
        const KeyItem* link = page.childList.first();
        QCOMPARE(link->actionType, KAT_LINK_BUTTON);
        QCOMPARE(link->keyIdx, backKey);
        QCOMPARE(link->layout, layout);
        QCOMPARE(link->parent, &folder);
        QCOMPARE(link->ownerList, &page.childList);
        QCOMPARE(page.linkCount(), 1);
    }

    void shouldResetToUnconfiguredKeepingDefaultImages()
    {
        KeyItem hotkey(KAT_HOTKEY, 2, V_Key_15);
        auto* action = static_cast<KA_HotKey*>(hotkey.action[0]);
        action->keyCtrl = true;
        action->nativeCode = 0x43;
        hotkey.cfIdx = 1;
        hotkey.render[0].text = QStringLiteral("Copy");
        hotkey.render[0].textColor = Qt::red;
        hotkey.render[0].textAlign = Qt::AlignTop;
        hotkey.resetItem();
        QCOMPARE(hotkey.cfIdx, 0);
        QVERIFY(!action->keyCtrl);
        QCOMPARE(action->nativeCode, -1);
        QCOMPARE(hotkey.render[0].text, QString());
        QCOMPARE(hotkey.render[0].textColor, QColor(255, 255, 255, 255));
        QCOMPARE(hotkey.render[0].textAlign, 68);
        QCOMPARE(hotkey.render[0].textFont.family(), QStringLiteral("Arial"));
        QCOMPARE(hotkey.render[0].textFont.pointSize(), 9);
        QCOMPARE(hotkey.render[1].defImgPath, QStringLiteral("btn_toggle"));

        KeyItem folder(KAT_FOLDER, 0, V_Key_15);
        folderOf(folder).isExpend = true;
        folderOf(folder).appName = QStringLiteral("/usr/bin/gimp");
        makeChild(folderOf(folder), KAT_PASTE_STRING, 0, QStringLiteral("x"));
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
        keys->qtKeyCode = Qt::Key_S;
        keys->nativeCode = 0x53;
        hotkey.render[1].text = QStringLiteral("Save");
        hotkey.render[1].userImg = QPixmap(8, 8);

        KeyItem copy(KAT_HOTKEY, 0, V_Key_15);
        copy = hotkey;
        QCOMPARE(copy.keyIdx, 4);
        QVERIFY(copy.multiFeatureFlag);
        QCOMPARE(copy.cfIdx, 1);
        auto* copied = static_cast<KA_HotKey*>(copy.action[1]);
        QVERIFY(copied != keys);
        QVERIFY(copied->keyCmd && copied->keyShift && !copied->keyCtrl);
        QCOMPARE(copied->nativeCode, 0x53);
        QCOMPARE(copy.render[1].text, QStringLiteral("Save"));
        QCOMPARE(copy.render[1].userImg.size(), QSize(8, 8));
        QCOMPARE(copy.render[1].owner, &copy);

        KeyItem macro(KAT_MACROKEY, 1, V_Key_15);
        static_cast<KA_MarcoKey*>(macro.action[0])->marcoKeyItemList = {{Qt::Key_A, 0x41, true},
                                                                        {Qt::Key_A, 0x41, false}};
        KeyItem macroCopy(macro);
        QCOMPARE(static_cast<KA_MarcoKey*>(macroCopy.action[0])->marcoKeyItemList.size(), 2);

        KeyItem site(KAT_OPEN_WEBSITE, 1, V_Key_15);
        static_cast<KA_Execute*>(site.action[0])->path = QStringLiteral("example.org");
        KeyItem siteCopy(site);
        QCOMPARE(static_cast<KA_Execute*>(siteCopy.action[0])->path, QStringLiteral("example.org"));
        QCOMPARE(siteCopy.action[0]->getActionType(), KAT_OPEN_WEBSITE);
    }

    void shouldGiveACopyTheLayoutInForce()
    {
        KeyItem item(KAT_PASTE_STRING, 2, H_Key_32);
        m_layouts.changeLayout(V_Key_6);
        KeyItem copy(KAT_PASTE_STRING, 0, H_Key_32);
        copy = item;
        QCOMPARE(copy.layout, int(V_Key_6));
    }

    void shouldCopyAFolderWithinItsLayoutCompletely()
    {
        KeyItem folder(KAT_FOLDER, 0, V_Key_15);
        makeChild(folderOf(folder), KAT_PASTE_STRING, 3, QStringLiteral("a"));
        makeChild(folderOf(folder), KAT_HOTKEY, 7, QStringLiteral("b"));
        KeyItem copy(KAT_FOLDER, 0, V_Key_15);
        copy = folder;
        const QList<KeyItem*>& children = folderOf(copy).childList;
        QCOMPARE(children.size(), 3);
        QCOMPARE(children.at(0)->keyIdx, 3);
        QCOMPARE(children.at(1)->keyIdx, 7);
        QCOMPARE(children.at(2)->keyIdx, 14);
        QCOMPARE(children.at(2)->actionType, KAT_LINK_BUTTON);
        for (const KeyItem* child : children) {
            QCOMPARE(child->parent, &copy);
            QCOMPARE(child->ownerList, &folderOf(copy).childList);
            QVERIFY(!folderOf(folder).childList.contains(const_cast<KeyItem*>(child)));
        }
    }

    void shouldFitAFolderOfThirtyTwoKeysIntoSix()
    {
        m_layouts.changeLayout(V_Key_32);
        KeyItem folder(KAT_FOLDER, 0, V_Key_32);
        makeChild(folderOf(folder), KAT_FOLDER, 0, QStringLiteral("nested")); // never copied across
        for (int i = 1; i <= 8; ++i)
            makeChild(folderOf(folder), KAT_PASTE_STRING, 2 * i, QStringLiteral("t%1").arg(i));

        m_layouts.changeLayout(H_Key_6);
        KeyItem copy(KAT_FOLDER, 0, V_Key_32);
        copy = folder;
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

    void shouldKeepOneBackKeyWhenTheSourceHasSeveral()
    {
        KeyItem folder(KAT_FOLDER, 0, V_Key_15);
        folderOf(folder).appendLinkKey();
        QCOMPARE(folderOf(folder).linkCount(), 2);
        KeyItem copy(KAT_FOLDER, 0, V_Key_15);
        copy = folder;
        QCOMPARE(folderOf(copy).linkCount(), 1);
    }

private:
    ButtonLayoutConfig m_layouts;
};

KEYSTAGE_TEST_MAIN(KeyItemTest)
#include "tst_keyitem.moc"
