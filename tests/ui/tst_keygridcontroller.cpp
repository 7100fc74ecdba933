#include "buttonlayoutconfig.h"
#include "ka_folder.h"
#include "ka_paststring.h"
#include "keygridcontroller.h"
#include "keyitemmodel.h"
#include "keymodelfixture.h"
#include "logcapture.h"
#include "objectregistry.h"
#include "settings.h"
#include "testmain.h"
#include "userquestion.h"

#include <QSignalSpy>
#include <QTranslator>

namespace {

QString textOf(const KeyItem* item)
{
    auto* text = item ? qobject_cast<KA_PastString*>(item->action[0]) : nullptr;
    return text ? text->strText : QString();
}

// A favourite folder made for a layout, holding count text keys.
std::unique_ptr<KeyItem> favoriteFolder(int layout, int count)
{
    auto item = std::make_unique<KeyItem>(KAT_FOLDER, 0, layout);
    QList<KeyItem*>& children = KeyModelFixture::folderOf(item.get())->childList;
    for (int i = 0; i < count; ++i) {
        auto* child = new KeyItem(KAT_PASTE_STRING, i, layout);
        child->parent = item.get();
        child->ownerList = &children;
        children.insert(children.size() - 1, child);
    }
    return item;
}

// Every text in another language, "Cancel" included.
class EveryTextTranslated : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* sourceText, const char*, int) const override
    {
        return QStringLiteral("~") + QString::fromUtf8(sourceText) + QStringLiteral("~");
    }
};

constexpr int Cancel = UserQuestion::Cancel;
constexpr int Closed = UserQuestion::NoButton;
constexpr int NoHandler = -1;

} // namespace

class KeyGridControllerTest : public QObject, KeyModelFixture
{
    Q_OBJECT

    std::unique_ptr<KeyGridController> controller;
    QStringList asked;
    QList<UserAnswer> answers;
    int favorites = 0;

    // NoHandler: nobody installed to answer; otherwise the button answered.
    void answerWith(int answer, bool checked = false)
    {
        if (answer == NoHandler)
            UserQuestions::setHandler(nullptr);
        else
            answers << UserAnswer{UserQuestion::Button(answer), checked};
    }

    void runOperation(const QString& operation, int idx, const KeyItem* item)
    {
        if (operation == "palette folder")
            controller->controller_dropKeyItemFromActionList(KAT_FOLDER, idx);
        else if (operation == "palette text")
            controller->controller_dropKeyItemFromActionList(KAT_PASTE_STRING, idx);
        else if (operation == "moved key")
            controller->controller_dropKeyItemFromKeyItemGridView(const_cast<KeyItem*>(item), idx);
        else if (operation == "favorite")
            controller->controller_dropKeyItemFromFavoriteGridView(item, idx);
        else if (operation == "paste")
            controller->controller_pasteEvent(idx);
        else if (operation == "new folder")
            controller->createNewAction(KAT_FOLDER, idx);
        else if (operation == "new hotkey")
            controller->createNewAction(KAT_HOTKEY, idx);
        else if (operation == "copy")
            controller->controller_copyEvent(idx);
        else if (operation == "cut")
            controller->cut(idx);
        else if (operation == "delete")
            controller->controller_delEvent(idx, false);
        else if (operation == "reset")
            controller->resetKey(idx);
        else if (operation == "save as favorite")
            controller->saveAsFavorite(idx);
        else if (operation == "make folder")
            controller->moveToFolder(idx);
        else
            QFAIL(qPrintable("unknown operation " + operation));
    }

private slots:
    void init()
    {
        setUp();
        controller = std::make_unique<KeyGridController>();
        controller->setKeyCount(ButtonLayoutConfig::keyCount(V_Key_15));
        controller->setFavoriteInserter([this](const KeyItem*) { return ++favorites > 0; });
        asked.clear();
        answers.clear();
        favorites = 0;
        UserQuestions::setHandler([this](const UserQuestion& question) {
            asked << question.subject;
            return answers.isEmpty() ? UserAnswer{UserQuestion::Cancel, false} : answers.takeFirst();
        });
    }

    void cleanup()
    {
        controller.reset();
        UserQuestions::setHandler({});
        tearDown();
    }

    void shouldNeverPutAFolderInsideAFolder_data()
    {
        QTest::addColumn<QString>("operation");
        for (const char* operation : {"palette folder", "moved key", "favorite", "paste", "new folder"})
            QTest::newRow(operation) << QString::fromLatin1(operation);
    }

    void shouldNeverPutAFolderInsideAFolder()
    {
        QFETCH(QString, operation);
        KeyItem* other = put(3, KAT_FOLDER);
        put(2, KAT_FOLDER);
        controller->controller_copyEvent(3);
        const auto favorite = favoriteFolder(V_Key_15, 2);
        open(2);
        LogCapture log;
        QSignalSpy changed(model.get(), &KeyItemModel::updateContent);
        runOperation(operation, 0, operation == "favorite" ? favorite.get() : other);
        QCOMPARE(log.matching(QStringLiteral("Not allow multi-layer folder!")).size(), 1);
        QCOMPARE(model->actionTypeAt(0), int(KAT_INVALID));
        QVERIFY(changed.isEmpty() && asked.isEmpty());
        model->changeListToRoot();
        QCOMPARE(model->keyItemAt(3), other);
    }

    void shouldLeaveTheBackKeyAlone_data()
    {
        QTest::addColumn<QString>("operation");
        for (const char* operation : {"palette text", "paste", "new hotkey", "copy", "cut", "delete", "reset",
                                      "save as favorite", "make folder", "moved key", "favorite"})
            QTest::newRow(operation) << QString::fromLatin1(operation);
    }

    void shouldLeaveTheBackKeyAlone()
    {
        QFETCH(QString, operation);
        put(2, KAT_FOLDER);
        open(2);
        put(0, KAT_PASTE_STRING, QStringLiteral("clipboard"));
        controller->controller_copyEvent(0);
        KeyItem* back = model->keyItemAt(14);
        QVERIFY(back && back->actionType == KAT_LINK_BUTTON);
        // The back key as the target, or as what is moved and saved.
        const bool moving = operation == "moved key" || operation == "favorite";
        runOperation(operation, moving ? 5 : 14, back);
        QCOMPARE(model->keyItemAt(14), back);
        QCOMPARE(model->actionTypeAt(14), int(KAT_LINK_BUTTON));
        QCOMPARE(model->actionTypeAt(5), int(KAT_INVALID));
        QCOMPARE(textOf(controller->clipboardItem()), QStringLiteral("clipboard"));
        QVERIFY(asked.isEmpty());
        QCOMPARE(favorites, 0);
        QVERIFY(!controller->canDrag(14) && !controller->contextOf(14).valid);
    }

    void shouldRefuseKeysOffTheGridAndUnknownTypes_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<int>("idx");
        QTest::addColumn<QString>("logged");
        const QString beyond = QStringLiteral("key idx >= current layout max key!");
        for (const char* operation : {"palette text", "moved key", "favorite", "paste", "new hotkey"}) {
            QTest::addRow("%s at -1", operation) << QString::fromLatin1(operation) << -1 << QString();
            QTest::addRow("%s at 15", operation) << QString::fromLatin1(operation) << 15 << beyond;
        }
    }

    void shouldRefuseKeysOffTheGridAndUnknownTypes()
    {
        QFETCH(QString, operation);
        QFETCH(int, idx);
        QFETCH(QString, logged);
        KeyItem* moved = put(0, KAT_PASTE_STRING);
        controller->controller_copyEvent(0);
        const auto favorite = favoriteFolder(V_Key_15, 1);
        QSignalSpy selected(controller.get(), &KeyGridController::keySelected);
        QSignalSpy changed(model.get(), &KeyItemModel::updateContent);
        LogCapture log;
        runOperation(operation, idx, operation == "favorite" ? favorite.get() : moved);
        QVERIFY(selected.isEmpty() && changed.isEmpty());
        QCOMPARE(model->keyItemAt(0), moved);
        if (!logged.isEmpty())
            QCOMPARE(log.matching(logged).size(), 1);

        for (int type : {int(KAT_INVALID), int(KAT_LINK_BUTTON), int(KAT_NUM)}) {
            controller->controller_dropKeyItemFromActionList(type, 1);
            controller->createNewAction(type, 1);
        }
        QCOMPARE(log.matching(QStringLiteral("illegal action!")).size(), 6);
        QCOMPARE(model->actionTypeAt(1), int(KAT_INVALID));
    }

    void shouldDropOntoEmptyKeysOnly_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<bool>("occupied");
        QTest::addColumn<int>("typeAfter");
        for (bool occupied : {false, true}) {
            const int type = occupied ? int(KAT_HOTKEY) : -2; // -2: what was dropped
            QTest::addRow("palette, %s", occupied ? "taken" : "empty") << "palette text" << occupied << type;
            QTest::addRow("moved, %s", occupied ? "taken" : "empty") << "moved key" << occupied << type;
            QTest::addRow("favorite, %s", occupied ? "taken" : "empty") << "favorite" << occupied << type;
        }
    }

    void shouldDropOntoEmptyKeysOnly()
    {
        QFETCH(QString, operation);
        QFETCH(bool, occupied);
        QFETCH(int, typeAfter);
        KeyItem* moved = put(0, KAT_PASTE_STRING, QStringLiteral("moved"));
        if (occupied)
            put(4, KAT_HOTKEY);
        QSignalSpy selected(controller.get(), &KeyGridController::keySelected);
        runOperation(operation, 4, moved);
        QCOMPARE(model->actionTypeAt(4), typeAfter == -2 ? int(KAT_PASTE_STRING) : typeAfter);
        if (!occupied && operation != "palette text")
            QCOMPARE(textOf(model->keyItemAt(4)), QStringLiteral("moved"));
        // Moving takes the key away; a favourite and the palette add a new one.
        QCOMPARE(model->keyItemAt(0) == moved, operation != "moved key" || occupied);
        // Even a refused drop selects its target.
        QCOMPARE(selected.size(), 1);
        QCOMPARE(selected.first().at(0).toInt(), 4);
    }

    void shouldCutCopyAndPasteKeys()
    {
        KeyItem* source = put(0, KAT_PASTE_STRING, QStringLiteral("kept"));
        put(5, KAT_FOLDER);
        QSignalSpy keyChanged(controller.get(), &KeyGridController::keyChanged);
        controller->cut(0);
        QVERIFY(asked.isEmpty() && !model->keyItemAt(0));
        QVERIFY(controller->clipboardItem() != source);
        LogCapture log;
        for (int idx : {2, 3, 5}) // the clipboard stays; a folder takes no paste
            controller->controller_pasteEvent(idx);
        QCOMPARE(textOf(model->keyItemAt(2)), QStringLiteral("kept"));
        QCOMPARE(textOf(model->keyItemAt(3)), QStringLiteral("kept"));
        QVERIFY(model->keyItemAt(2) != model->keyItemAt(3));
        QCOMPARE(model->actionTypeAt(5), int(KAT_FOLDER));
        QCOMPARE(log.matching(QStringLiteral("can't paste onto this key!")).size(), 1);
        controller->resetKey(3);
        QCOMPARE(model->actionTypeAt(3), int(KAT_PASTE_STRING));
        QCOMPARE(textOf(model->keyItemAt(3)), QString());
        QCOMPARE(textOf(controller->clipboardItem()), QStringLiteral("kept"));
        // A folder pastes at the top level, as a copy of its own.
        controller->controller_copyEvent(5);
        controller->controller_pasteEvent(6);
        QVERIFY(model->actionTypeAt(6) == KAT_FOLDER && model->keyItemAt(6) != model->keyItemAt(5));
        QCOMPARE(keyChanged.size(), 5); // cut, two pastes, reset, folder paste
    }

    void shouldMakeFoldersAndCreateKeys()
    {
        put(0, KAT_PASTE_STRING);
        put(1, KAT_FOLDER);
        controller->moveToFolder(0);
        QCOMPARE(model->actionTypeAt(0), int(KAT_FOLDER));
        QCOMPARE(folderOf(model->keyItemAt(0))->childList.first()->actionType, KAT_PASTE_STRING);
        const KeyItem* folder = model->keyItemAt(1);
        LogCapture log;
        controller->moveToFolder(1); // already one
        controller->controller_dropKeyItemFromActionList(KAT_FOLDER, 1);
        QCOMPARE(model->keyItemAt(1), folder);
        QCOMPARE(log.matching(QStringLiteral("Not allow multi-layer folder!")).size(), 1);
        QSignalSpy selected(controller.get(), &KeyGridController::keySelected);
        controller->createNewAction(KAT_OPEN_WEBSITE, 2);
        controller->createNewAction(KAT_HOTKEY, 2); // taken
        QCOMPARE(model->actionTypeAt(2), int(KAT_OPEN_WEBSITE));
        QCOMPARE(selected.size(), 1);
    }

    void shouldDeleteOnlyWhenTheUserAgrees_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<bool>("deleted");
        QTest::addColumn<bool>("dontAskAgain");
        QTest::newRow("cancelled") << Cancel << true << false << false;
        QTest::newRow("deleted") << int(UserQuestion::Delete) << false << true << false;
        QTest::newRow("deleted, don't ask again") << int(UserQuestion::Delete) << true << true << true;
        QTest::newRow("closed by the title bar") << Closed << false << true << false;
        QTest::newRow("nobody to ask") << NoHandler << false << false << false;
    }

    void shouldDeleteOnlyWhenTheUserAgrees()
    {
        QFETCH(int, answer);
        QFETCH(bool, checked);
        QFETCH(bool, deleted);
        QFETCH(bool, dontAskAgain);
        put(0, KAT_PASTE_STRING);
        put(1, KAT_PASTE_STRING);
        // Under a translation "Cancel" reads otherwise; the answer must not.
        EveryTextTranslated translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QSignalSpy closes(controller.get(), &KeyGridController::closeFunctionDescription);
        answerWith(answer, checked);
        controller->controller_delEvent(0, false);
        QCoreApplication::removeTranslator(&translator);
        QCOMPARE(!model->keyItemAt(0), deleted);
        QCOMPARE(closes.size(), deleted ? 1 : 0);
        QCOMPARE(settings->value("msg_box_delete_item_dont_show_again").toBool(), dontAskAgain);
        QCOMPARE(asked.size(), answer == NoHandler ? 0 : 1);
        if (answer != NoHandler)
            QCOMPARE(asked.first(), QStringLiteral("~Are you sure you want to delete this item?~"));
        // Once told not to ask, the next delete goes at once.
        asked.clear();
        controller->controller_delEvent(1, false);
        QCOMPARE(!model->keyItemAt(1), dontAskAgain);
        QCOMPARE(asked.isEmpty(), dontAskAgain || answer == NoHandler);
    }

    void shouldAskBeforeDroppingAFavoriteFolderThatLosesKeys_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("asks");
        QTest::addColumn<int>("children");
        QTest::newRow("from a smaller layout") << int(V_Key_6) << Cancel << false << 4;
        QTest::newRow("from a larger layout, cancelled") << int(V_Key_32) << Cancel << true << -1;
        QTest::newRow("from a larger layout, continued") << int(V_Key_32) << int(UserQuestion::Continue) << true << 15;
        QTest::newRow("from a larger layout, closed") << int(V_Key_32) << Closed << true << 15;
        QTest::newRow("from a larger layout, nobody to ask") << int(V_Key_32) << NoHandler << false << -1;
    }

    void shouldAskBeforeDroppingAFavoriteFolderThatLosesKeys()
    {
        QFETCH(int, layout);
        QFETCH(int, answer);
        QFETCH(bool, asks);
        QFETCH(int, children);
        const int count = layout == V_Key_6 ? 3 : 20;
        const auto favorite = favoriteFolder(layout, count);
        EveryTextTranslated translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        answerWith(answer);
        controller->controller_dropKeyItemFromFavoriteGridView(favorite.get(), 2);
        QCoreApplication::removeTranslator(&translator);
        QCOMPARE(asked, asks ? QStringList{"~The limit of folder is different.~"} : QStringList());
        if (children < 0) {
            QCOMPARE(model->actionTypeAt(2), int(KAT_INVALID));
            return;
        }
        // Only what the page has room for before its back key is kept.
        const QList<KeyItem*>& kept = folderOf(model->keyItemAt(2))->childList;
        QCOMPARE(kept.size(), children);
        QVERIFY(kept.last()->actionType == KAT_LINK_BUTTON && kept.last()->keyIdx == 14);
        QCOMPARE(folderOf(favorite.get())->childList.size(), count + 1); // the favourite keeps all
    }

    void shouldOpenFoldersOnlyAsADragRestsOnThem_data()
    {
        QTest::addColumn<bool>("inFolder");
        QTest::addColumn<int>("target");
        QTest::addColumn<bool>("draggingFolder");
        QTest::addColumn<bool>("opens");
        QTest::addColumn<int>("typeAfter");
        QTest::newRow("plain key becomes a folder") << false << 0 << false << true << int(KAT_FOLDER);
        QTest::newRow("folder opens") << false << 1 << false << true << int(KAT_FOLDER);
        QTest::newRow("dragging a folder") << false << 0 << true << false << int(KAT_PASTE_STRING);
        QTest::newRow("empty key") << false << 2 << false << false << int(KAT_INVALID);
        QTest::newRow("no key") << false << -1 << false << false << int(KAT_INVALID);
        QTest::newRow("in a folder, plain key") << true << 0 << false << false << int(KAT_PASTE_STRING);
        QTest::newRow("in a folder, back key") << true << 14 << true << true << int(KAT_LINK_BUTTON);
    }

    void shouldOpenFoldersOnlyAsADragRestsOnThem()
    {
        QFETCH(bool, inFolder);
        QFETCH(int, target);
        QFETCH(bool, draggingFolder);
        QFETCH(bool, opens);
        QFETCH(int, typeAfter);
        put(0, KAT_PASTE_STRING);
        put(1, KAT_FOLDER);
        if (inFolder) {
            open(1);
            put(0, KAT_PASTE_STRING);
        }
        const int typeBefore = target >= 0 ? model->actionTypeAt(target) : int(KAT_INVALID);
        QSignalSpy leaving(controller.get(), &KeyGridController::pageLeaving);
        QCOMPARE(controller->openOnDragHover(target, draggingFolder), opens);
        QCOMPARE(leaving.size(), opens ? 1 : 0);
        QCOMPARE(model->isRootList(), inFolder == opens);
        if (!opens && target >= 0)
            QCOMPARE(model->actionTypeAt(target), typeBefore);
        if (!inFolder && !model->isRootList())
            model->changeListToRoot();
        if (target >= 0 && model->isRootList() != inFolder)
            QCOMPARE(model->actionTypeAt(target), typeAfter);
    }
};

KEYSTAGE_TEST_MAIN(KeyGridControllerTest)
#include "tst_keygridcontroller.moc"
