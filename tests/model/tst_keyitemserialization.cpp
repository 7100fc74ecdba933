#include "buttonlayoutconfig.h"
#include "ka_execute.h"
#include "ka_folder.h"
#include "ka_hotkey.h"
#include "ka_marcokey.h"
#include "ka_paststring.h"
#include "keyitem.h"
#include "keyitemserialization.h"
#include "logcapture.h"
#include "objectregistry.h"
#include "testmain.h"

#include <QPainter>

namespace {

QVariantMap toMap(const KeyItem& item)
{
    QVariantMap map;
    map << item;
    return map;
}

std::unique_ptr<KeyItem> fromMap(const QVariantMap& map)
{
    auto item = std::make_unique<KeyItem>();
    map >> *item;
    return item;
}

QPixmap sampleImage()
{
    QImage image(72, 72, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.fillRect(10, 10, 40, 30, QColor(200, 40, 90));
    painter.end();
    return QPixmap::fromImage(image);
}

KA_Folder& folderOf(const KeyItem& item)
{
    return static_cast<KA_Folder&>(*item.action[0]);
}

} // namespace

class KeyItemSerializationTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, &m_layouts);
        m_layouts.changeLayout(V_Key_15);
    }
    void cleanup() { ObjectRegistry::clear(); }

    void shouldWriteTheItemKeys()
    {
        KeyItem item(KAT_PASTE_STRING, 4, V_Key_15);
        const QVariantMap map = toMap(item);
        QCOMPARE(map.keys(), (QStringList{"actionTypeString", "cfIdx", "keyActionMap_0", "keyActionMap_1", "keyIdx",
                                          "keyRenderMap_0", "keyRenderMap_1", "layout", "multiFeatureFlag"}));
        QCOMPARE(map.value("actionTypeString").toString(), QStringLiteral("KAT_PASTE_STRING"));
        QCOMPARE(map.value("keyRenderMap_0").toMap().keys(),
                 (QStringList{"defImgPath", "hintFlags", "text", "textAlign", "textColor", "textFont", "userImg"}));
        KeyItem link(KAT_LINK_BUTTON, 14, V_Key_15);
        QCOMPARE(toMap(link).value("keyActionMap_0").toMap(),
                 (QVariantMap{{"comment", QStringLiteral("link button")}}));
    }

    void shouldRoundTripAHotkeyWithStyledFaces()
    {
        KeyItem item(KAT_HOTKEY, 9, V_Key_15);
        item.multiFeatureFlag = true;
        item.cfIdx = 1;
        auto* keys = static_cast<KA_HotKey*>(item.action[0]);
        keys->keyCtrl = keys->keyOption = true;
        keys->qtKeyCode = Qt::Key_F5;
        keys->nativeCode = 0x74;
        item.render[0].text = QStringLiteral("Mute\nall");
        item.render[0].textFont = QFont(QStringLiteral("Liberation Serif"), 14, QFont::Bold, true);
        item.render[0].textColor = QColor(10, 200, 30, 128);
        item.render[0].textAlign = Qt::AlignLeft | Qt::AlignTop;
        item.render[0].hintFlags = 3;
        item.render[1].userImg = sampleImage();

        const auto copy = fromMap(toMap(item));
        QCOMPARE(copy->actionType, KAT_HOTKEY);
        QCOMPARE(copy->keyIdx, 9);
        QCOMPARE(copy->layout, int(V_Key_15));
        QVERIFY(copy->multiFeatureFlag);
        QCOMPARE(copy->cfIdx, 1);
        const auto* copiedKeys = static_cast<KA_HotKey*>(copy->action[0]);
        QVERIFY(copiedKeys->keyCtrl && copiedKeys->keyOption && !copiedKeys->keyCmd && !copiedKeys->keyShift);
        QCOMPARE(copiedKeys->qtKeyCode, int(Qt::Key_F5));
        QCOMPARE(copiedKeys->nativeCode, 0x74);
        QCOMPARE(copy->render[0].text, QStringLiteral("Mute\nall"));
        QCOMPARE(copy->render[0].textFont, item.render[0].textFont);
        QCOMPARE(copy->render[0].textColor, QColor(10, 200, 30, 128));
        QCOMPARE(copy->render[0].textAlign, int(Qt::AlignLeft | Qt::AlignTop));
        QCOMPARE(copy->render[0].hintFlags, 3);
        QCOMPARE(copy->render[1].userImg.toImage(), item.render[1].userImg.toImage());
        QVERIFY(copy->render[0].userImg.isNull());
    }

    void shouldRoundTripMacrosLaunchesWebsitesAndTexts()
    {
        KeyItem macro(KAT_MACROKEY, 0, V_Key_15);
        static_cast<KA_MarcoKey*>(macro.action[0])->marcoKeyItemList = {
            {Qt::Key_Shift, 0xA0, true}, {Qt::Key_A, 0x41, true}, {Qt::Key_A, 0x41, false}, {-1, 0xFFFF, false}};
        QCOMPARE(static_cast<KA_MarcoKey*>(fromMap(toMap(macro))->action[0])->marcoKeyItemList,
                 static_cast<KA_MarcoKey*>(macro.action[0])->marcoKeyItemList);

        for (KeyActionType type : {KAT_EXE_APP_FILE, KAT_OPEN_WEBSITE}) {
            KeyItem launch(type, 1, V_Key_15);
            static_cast<KA_Execute*>(launch.action[0])->path = QStringLiteral("/usr/bin/gimp --new-instance");
            const auto copy = fromMap(toMap(launch));
            QCOMPARE(copy->actionType, type);
            QCOMPARE(static_cast<KA_Execute*>(copy->action[0])->path, QStringLiteral("/usr/bin/gimp --new-instance"));
        }

        KeyItem text(KAT_PASTE_STRING, 2, V_Key_15);
        static_cast<KA_PastString*>(text.action[0])->strText = QStringLiteral("Grüße, 世界 🎹");
        QCOMPARE(static_cast<KA_PastString*>(fromMap(toMap(text))->action[0])->strText,
                 QStringLiteral("Grüße, 世界 🎹"));
    }

    void shouldRoundTripAFolderWithItsPage()
    {
        KeyItem folder(KAT_FOLDER, 5, V_Key_15);
        folderOf(folder).appName = QStringLiteral("/usr/bin/inkscape");
        folderOf(folder).isExpend = true;
        auto* child = new KeyItem(KAT_PASTE_STRING, 0, V_Key_15);
        static_cast<KA_PastString*>(child->action[0])->strText = QStringLiteral("inside");
        folderOf(folder).childList.prepend(child);

        const auto copy = fromMap(toMap(folder));
        const KA_Folder& page = folderOf(*copy);
        QCOMPARE(page.appName, QStringLiteral("/usr/bin/inkscape"));
        QVERIFY(page.isExpend);
        QCOMPARE(page.childList.size(), 2);
        QCOMPARE(page.childList.at(0)->actionType, KAT_PASTE_STRING);
        QCOMPARE(static_cast<KA_PastString*>(page.childList.at(0)->action[0])->strText, QStringLiteral("inside"));
        QCOMPARE(page.childList.at(1)->actionType, KAT_LINK_BUTTON);
        QCOMPARE(page.childList.at(1)->keyIdx, 14);
        for (const KeyItem* item : page.childList) {
            QCOMPARE(item->parent, copy.get());
            QCOMPARE(item->ownerList, &page.childList);
        }
    }

    void shouldKeepTheToggleFlagForHotkeysOnly()
    {
        QVariantMap map = toMap(KeyItem(KAT_HOTKEY, 0, V_Key_15));
        map.insert("multiFeatureFlag", true);
        QVERIFY(fromMap(map)->multiFeatureFlag);
        map.insert("actionTypeString", QStringLiteral("KAT_MACROKEY"));
        QVERIFY(!fromMap(map)->multiFeatureFlag);
    }

    void shouldTakeDefaultImagesFromTheProgramNotTheFile()
    {
        QVariantMap map = toMap(KeyItem(KAT_OPEN_WEBSITE, 0, V_Key_15));
        QVariantMap face = map.value("keyRenderMap_0").toMap();
        face.insert("defImgPath", QStringLiteral("btn_something_old"));
        map.insert("keyRenderMap_0", face);
        QCOMPARE(fromMap(map)->render[0].defImgPath, QStringLiteral("btn_website"));
    }

    void shouldLogMissingNestedMapsAndGoOn()
    {
        KeyItem item(KAT_PASTE_STRING, 0, V_Key_15);
        static_cast<KA_PastString*>(item.action[0])->strText = QStringLiteral("kept");
        QVariantMap map = toMap(item);
        map.insert("keyActionMap_1", QVariantMap());
        map.remove("keyRenderMap_0");
        LogCapture capture;
        const auto copy = fromMap(map);
        QCOMPARE(capture.matching(QStringLiteral("Err: Can't find keyActionMap_1")).size(), 1);
        QCOMPARE(capture.matching(QStringLiteral("Err: Can't find keyRenderMap_0")).size(), 1);
        QCOMPARE(static_cast<KA_PastString*>(copy->action[0])->strText, QStringLiteral("kept"));
        QVERIFY(copy->action[1]);
        QCOMPARE(static_cast<KA_PastString*>(copy->action[1])->strText, QString());
    }

    void shouldSkipMissingChildrenAndSteps()
    {
        KeyItem folder(KAT_FOLDER, 0, V_Key_15);
        folderOf(folder).childList.prepend(new KeyItem(KAT_PASTE_STRING, 0, V_Key_15));
        folderOf(folder).childList.prepend(new KeyItem(KAT_HOTKEY, 1, V_Key_15));
        QVariantMap map = toMap(folder);
        QVariantMap action = map.value("keyActionMap_0").toMap();
        QCOMPARE(action.value("childListCnt").toInt(), 3);
        action.remove("childMap_2");
        map.insert("keyActionMap_0", action);
        LogCapture capture;
        QCOMPARE(folderOf(*fromMap(map)).childList.size(), 2);
        QCOMPARE(capture.matching(QStringLiteral("Err: KA_Folder Can't find childMap_2")).size(), 1);

        KeyItem macro(KAT_MACROKEY, 0, V_Key_15);
        static_cast<KA_MarcoKey*>(macro.action[0])->marcoKeyItemList = {{1, 1, true}, {2, 2, true}, {3, 3, true}};
        QVariantMap macroMap = toMap(macro);
        QVariantMap steps = macroMap.value("keyActionMap_0").toMap();
        steps.remove("MarcoKeyItem_1");
        macroMap.insert("keyActionMap_0", steps);
        const auto read = fromMap(macroMap);
        QCOMPARE(static_cast<KA_MarcoKey*>(read->action[0])->marcoKeyItemList,
                 (QList<MarcoKeyItem>{{1, 1, true}, {3, 3, true}}));
        QCOMPARE(capture.matching(QStringLiteral("Error: Can't find MarcoKeyItem_1")).size(), 1);
    }

    void shouldReadAnInvalidColourAsWhite()
    {
        QVariantMap map = toMap(KeyItem(KAT_PASTE_STRING, 0, V_Key_15));
        QVariantMap face = map.value("keyRenderMap_0").toMap();
        face.insert("textColor", QColor());
        map.insert("keyRenderMap_0", face);
        QVariantMap otherFace = map.value("keyRenderMap_1").toMap();
        otherFace.insert("textColor", QStringLiteral("not a colour"));
        map.insert("keyRenderMap_1", otherFace);
        const auto item = fromMap(map);
        QCOMPARE(item->render[0].textColor, QColor(255, 255, 255, 255));
        QCOMPARE(item->render[1].textColor, QColor(255, 255, 255, 255));
    }

    void shouldReadHostileValuesAsDefaults()
    {
        QVariantMap map;
        map.insert("actionTypeString", 12345);
        map.insert("keyIdx", QVariantMap{{"x", 1}});
        map.insert("cfIdx", 7);
        map.insert("keyRenderMap_0", QVariantMap{{"text", QVariantList{1, 2}}, {"textFont", 5}, {"userImg", "x"}});
        const auto item = fromMap(map);
        QCOMPARE(item->actionType, KAT_INVALID);
        QCOMPARE(item->keyIdx, 0);
        QCOMPARE(item->cfIdx, 0);
        QCOMPARE(item->render[0].text, QString());
        QVERIFY(item->render[0].userImg.isNull());
    }

    void shouldNotTrustHugeCountsOrDeepNesting()
    {
        QVariantMap folder = toMap(KeyItem(KAT_FOLDER, 0, V_Key_15));
        QVariantMap action = folder.value("keyActionMap_0").toMap();
        action.insert("childListCnt", std::numeric_limits<int>::max());
        folder.insert("keyActionMap_0", action);
        QCOMPARE(folderOf(*fromMap(folder)).childList.size(), 1);

        // Folders in folders in folders ...: read without recursing deeper.
        QVariantMap nested = toMap(KeyItem(KAT_FOLDER, 0, V_Key_15));
        for (int depth = 0; depth < 200; ++depth) {
            QVariantMap outer = toMap(KeyItem(KAT_FOLDER, 0, V_Key_15));
            QVariantMap outerAction = outer.value("keyActionMap_0").toMap();
            outerAction.insert("childListCnt", 1);
            outerAction.insert("childMap_0", nested);
            outer.insert("keyActionMap_0", outerAction);
            outer.insert("keyActionMap_1", outerAction);
            nested = outer;
        }
        const auto item = fromMap(nested);
        QCOMPARE(item->actionType, KAT_FOLDER);
    }

    void shouldWriteAPageInKeyCountForm()
    {
        QList<KeyItem*> page{new KeyItem(KAT_HOTKEY, 0, V_Key_15), new KeyItem(KAT_FOLDER, 3, V_Key_15)};
        const QVariantMap map = pageToMap(page);
        QCOMPARE(map.value("KeyCnt").toInt(), 2);
        QCOMPARE(map.value("keyMap_1").toMap().value("actionTypeString").toString(), QStringLiteral("KAT_FOLDER"));
        qDeleteAll(page);
    }

private:
    ButtonLayoutConfig m_layouts;
};

KEYSTAGE_TEST_MAIN(KeyItemSerializationTest)
#include "tst_keyitemserialization.moc"
