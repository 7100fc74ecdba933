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
#include "settings.h"
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

// The map with `value` at the path of keys (none when invalid), nested maps created as needed.
QVariantMap with(QVariantMap map, const QStringList& path, const QVariant& value)
{
    if (path.size() > 1)
        map.insert(path.first(), with(map.value(path.first()).toMap(), path.mid(1), value));
    else if (value.isValid())
        map.insert(path.first(), value);
    else
        map.remove(path.first());
    return map;
}

KA_Folder& folderOf(const KeyItem& item)
{
    return static_cast<KA_Folder&>(*item.action[0]);
}

template <typename Action>
Action* actionOf(const KeyItem& item)
{
    return static_cast<Action*>(item.action[0]);
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

    // The names are the stored format: renamed, the users' keys are lost.
    void shouldWriteTheStoredKeyNames()
    {
        const QVariantMap map = toMap(KeyItem(KAT_LINK_BUTTON, 14, V_Key_15));
        QCOMPARE(map.keys(), (QStringList{"actionTypeString", "cfIdx", "keyActionMap_0", "keyActionMap_1", "keyIdx",
                                          "keyRenderMap_0", "keyRenderMap_1", "layout", "multiFeatureFlag"}));
        QCOMPARE(map.value("actionTypeString").toString(), QStringLiteral("KAT_LINK_BUTTON"));
        QCOMPARE(map.value("keyRenderMap_0").toMap().keys(),
                 (QStringList{"defImgPath", "hintFlags", "text", "textAlign", "textColor", "textFont", "userImg"}));
        QCOMPARE(map.value("keyActionMap_0").toMap(), (QVariantMap{{"comment", QStringLiteral("link button")}}));
    }

    void shouldRoundTripEveryType_data()
    {
        QTest::addColumn<int>("type");
        for (int type = KAT_FOLDER; type <= KAT_LINK_BUTTON; ++type)
            QTest::newRow(qPrintable(keyActionTypeToString(type))) << type;
    }

    void shouldRoundTripEveryType()
    {
        QFETCH(int, type);
        KeyItem item(KeyActionType(type), 9, V_Key_15);
        item.multiFeatureFlag = true;
        item.cfIdx = 1;
        item.render[0].text = QStringLiteral("Mute\nall");
        item.render[0].textFont = QFont(QStringLiteral("Liberation Serif"), 14, QFont::Bold, true);
        item.render[0].textColor = QColor(10, 200, 30, 128);
        item.render[0].textAlign = Qt::AlignLeft | Qt::AlignTop;
        item.render[0].hintFlags = 0x17; // title, a network face, its graph
        QImage image(72, 72, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter(&image).fillRect(10, 10, 40, 30, QColor(200, 40, 90));
        item.render[1].userImg = QPixmap::fromImage(image);
        const QList<MarcoKeyItem> steps{
            {Qt::Key_Shift, 0xA0, true}, {Qt::Key_A, 0x41, true}, {Qt::Key_A, 0x41, false}, {-1, 0xFFFF, false}};
        if (type == KAT_HOTKEY) {
            auto* keys = actionOf<KA_HotKey>(item);
            keys->keyCtrl = keys->keyOption = true;
            keys->qtKeyCode = Qt::Key_F5;
            keys->nativeCode = 0x74;
        } else if (type == KAT_MACROKEY) {
            actionOf<KA_MarcoKey>(item)->marcoKeyItemList = steps;
        } else if (type == KAT_EXE_APP_FILE || type == KAT_OPEN_WEBSITE) {
            actionOf<KA_Execute>(item)->path = QStringLiteral("/usr/bin/gimp --new-instance");
        } else if (type == KAT_PASTE_STRING) {
            actionOf<KA_PastString>(item)->strText = QStringLiteral("Grüße, 世界 🎹");
        } else if (type == KAT_FOLDER) {
            folderOf(item).appName = QStringLiteral("/usr/bin/inkscape");
            folderOf(item).isExpend = true;
            auto* child = new KeyItem(KAT_PASTE_STRING, 0, V_Key_15);
            actionOf<KA_PastString>(*child)->strText = QStringLiteral("inside");
            folderOf(item).childList.prepend(child);
        }

        const auto copy = fromMap(toMap(item));
        QCOMPARE(int(copy->actionType), type);
        QCOMPARE(copy->keyIdx, 9);
        QCOMPARE(copy->layout, int(V_Key_15));
        QCOMPARE(copy->cfIdx, type == KAT_HOTKEY ? 1 : 0); // kept for hotkeys only
        QCOMPARE(copy->multiFeatureFlag, type == KAT_HOTKEY);
        QCOMPARE(copy->render[0].text, item.render[0].text);
        QCOMPARE(copy->render[0].textFont, item.render[0].textFont);
        QCOMPARE(copy->render[0].textColor, item.render[0].textColor);
        QCOMPARE(copy->render[0].textAlign, item.render[0].textAlign);
        QCOMPARE(copy->render[0].hintFlags, 0x17);
        QVERIFY(copy->render[0].userImg.isNull());
        QCOMPARE(copy->render[1].userImg.toImage(), item.render[1].userImg.toImage());
        if (type == KAT_HOTKEY) {
            const auto* keys = actionOf<KA_HotKey>(*copy);
            QVERIFY(keys->keyCtrl && keys->keyOption && !keys->keyCmd && !keys->keyShift);
            QCOMPARE(keys->qtKeyCode, int(Qt::Key_F5));
            QCOMPARE(keys->nativeCode, 0x74);
        } else if (type == KAT_MACROKEY) {
            QCOMPARE(actionOf<KA_MarcoKey>(*copy)->marcoKeyItemList, steps);
        } else if (type == KAT_EXE_APP_FILE || type == KAT_OPEN_WEBSITE) {
            QCOMPARE(actionOf<KA_Execute>(*copy)->path, QStringLiteral("/usr/bin/gimp --new-instance"));
        } else if (type == KAT_PASTE_STRING) {
            QCOMPARE(actionOf<KA_PastString>(*copy)->strText, QStringLiteral("Grüße, 世界 🎹"));
        } else if (type == KAT_FOLDER) {
            const KA_Folder& page = folderOf(*copy);
            QCOMPARE(page.appName, QStringLiteral("/usr/bin/inkscape"));
            QVERIFY(page.isExpend);
            QCOMPARE(page.childList.size(), 2);
            QCOMPARE(actionOf<KA_PastString>(*page.childList.at(0))->strText, QStringLiteral("inside"));
            QCOMPARE(page.childList.at(1)->actionType, KAT_LINK_BUTTON);
            QCOMPARE(page.childList.at(1)->keyIdx, 14);
            for (const KeyItem* child : page.childList) {
                QCOMPARE(child->parent, copy.get());
                QCOMPARE(child->ownerList, &page.childList);
            }
        }
        // Nothing else lost either, in either slot.
        for (const char* key : {"keyActionMap_0", "keyActionMap_1", "keyRenderMap_0", "keyRenderMap_1"}) {
            QCOMPARE(Settings::checksum(toMap(*copy).value(key).toMap()),
                     Settings::checksum(toMap(item).value(key).toMap()));
        }
    }

    void shouldReadBadValuesAsDefaults()
    {
        QVariantMap map = toMap(KeyItem(KAT_OPEN_WEBSITE, 0, V_Key_15));
        map = with(map, {"keyRenderMap_0", "defImgPath"}, QStringLiteral("btn_something_old")); // the program's own
        map = with(map, {"keyRenderMap_0", "textColor"}, QColor());
        map = with(map, {"keyRenderMap_1", "textColor"}, QStringLiteral("not a colour"));
        auto item = fromMap(map);
        QCOMPARE(item->render[0].defImgPath, QStringLiteral("btn_website"));
        QCOMPARE(item->render[0].textColor, QColor(255, 255, 255, 255));
        QCOMPARE(item->render[1].textColor, QColor(255, 255, 255, 255));

        item =
            fromMap({{"actionTypeString", 12345},
                     {"keyIdx", QVariantMap{{"x", 1}}},
                     {"cfIdx", 7},
                     {"keyRenderMap_0", QVariantMap{{"text", QVariantList{1, 2}}, {"textFont", 5}, {"userImg", "x"}}}});
        QCOMPARE(item->actionType, KAT_INVALID);
        QCOMPARE(item->keyIdx, 0);
        QCOMPARE(item->cfIdx, 0);
        QCOMPARE(item->render[0].text, QString());
        QVERIFY(item->render[0].userImg.isNull());
    }

    void shouldLogWhatIsMissingAndReadTheRest()
    {
        KeyItem text(KAT_PASTE_STRING, 0, V_Key_15);
        actionOf<KA_PastString>(text)->strText = QStringLiteral("kept");
        QVariantMap map = toMap(text);
        map.insert("keyActionMap_1", QVariantMap());
        map.remove("keyRenderMap_0");
        KeyItem folder(KAT_FOLDER, 0, V_Key_15);
        folderOf(folder).childList.prepend(new KeyItem(KAT_PASTE_STRING, 0, V_Key_15));
        folderOf(folder).childList.prepend(new KeyItem(KAT_HOTKEY, 1, V_Key_15));
        QVariantMap folderMap = toMap(folder);
        QCOMPARE(folderMap.value("keyActionMap_0").toMap().value("childListCnt").toInt(), 3);
        folderMap = with(folderMap, {"keyActionMap_0", "childMap_2"}, QVariant());
        KeyItem macro(KAT_MACROKEY, 0, V_Key_15);
        actionOf<KA_MarcoKey>(macro)->marcoKeyItemList = {{1, 1, true}, {2, 2, true}, {3, 3, true}};
        const QVariantMap macroMap = with(toMap(macro), {"keyActionMap_0", "MarcoKeyItem_1"}, QVariant());

        LogCapture capture;
        const auto read = fromMap(map);
        QCOMPARE(capture.matching(QStringLiteral("Err: Can't find keyActionMap_1")).size(), 1);
        QCOMPARE(capture.matching(QStringLiteral("Err: Can't find keyRenderMap_0")).size(), 1);
        QCOMPARE(actionOf<KA_PastString>(*read)->strText, QStringLiteral("kept"));
        QCOMPARE(static_cast<KA_PastString*>(read->action[1])->strText, QString());
        QCOMPARE(folderOf(*fromMap(folderMap)).childList.size(), 2);
        QCOMPARE(capture.matching(QStringLiteral("Err: KA_Folder Can't find childMap_2")).size(), 1);
        QCOMPARE(actionOf<KA_MarcoKey>(*fromMap(macroMap))->marcoKeyItemList,
                 (QList<MarcoKeyItem>{{1, 1, true}, {3, 3, true}}));
        QCOMPARE(capture.matching(QStringLiteral("Error: Can't find MarcoKeyItem_1")).size(), 1);
    }

    void shouldNotTrustHugeCountsOrDeepNesting()
    {
        const QVariantMap folder = toMap(KeyItem(KAT_FOLDER, 0, V_Key_15));
        QCOMPARE(folderOf(*fromMap(with(folder, {"keyActionMap_0", "childListCnt"}, std::numeric_limits<int>::max())))
                     .childList.size(),
                 1);
        // Folders in folders in folders ...: read without recursing deeper.
        QVariantMap nested = folder;
        for (int depth = 0; depth < 200; ++depth) {
            QVariantMap page = folder.value("keyActionMap_0").toMap();
            page.insert("childListCnt", 1);
            page.insert("childMap_0", nested);
            nested = with(with(folder, {"keyActionMap_0"}, page), {"keyActionMap_1"}, page);
        }
        QCOMPARE(fromMap(nested)->actionType, KAT_FOLDER);
    }

private:
    ButtonLayoutConfig m_layouts;
};

KEYSTAGE_TEST_MAIN(KeyItemSerializationTest)
#include "tst_keyitemserialization.moc"
