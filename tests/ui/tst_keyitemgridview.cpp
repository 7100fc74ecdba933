#include "buttonlayoutconfig.h"
#include "dragpayload.h"
#include "ka_folder.h"
#include "ka_paststring.h"
#include "keygridcontextmenu.h"
#include "keyitem.h"
#include "keyitemgridview.h"
#include "keyitemmodel.h"
#include "logcapture.h"
#include "objectregistry.h"
#include "settings.h"
#include "testmain.h"
#include "userquestion.h"

#include <QLabel>
#include <QMimeData>
#include <QSignalSpy>

namespace {

KA_Folder* folderOf(const KeyItem* item)
{
    return item ? qobject_cast<KA_Folder*>(item->action[0]) : nullptr;
}

QString textOf(const KeyItem* item)
{
    return item && item->actionType == KAT_PASTE_STRING ? static_cast<KA_PastString*>(item->action[0])->strText
                                                        : QString();
}

// A favourite folder holding count text keys, made for a layout.
std::unique_ptr<KeyItem> favoriteFolder(int layout, int count)
{
    auto item = std::make_unique<KeyItem>(KAT_FOLDER, 0, layout);
    KA_Folder* folder = folderOf(item.get());
    for (int i = 0; i < count; ++i) {
        auto* child = new KeyItem(KAT_PASTE_STRING, i, layout);
        child->parent = item.get();
        child->ownerList = &folder->childList;
        folder->childList.insert(folder->childList.size() - 1, child);
    }
    return item;
}

QStringList shownEntries(const QMenu* menu)
{
    QStringList shown;
    for (QAction* action : menu->actions()) {
        if (action->isVisible())
            shown << (action->isSeparator() ? QStringLiteral("-") : action->text().remove('&'));
    }
    return shown;
}

} // namespace

class KeyItemGridViewTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Settings> settings;
    ButtonLayoutConfig layouts;
    std::unique_ptr<KeyItemModel> model;
    std::unique_ptr<QWidget> window; // the main window's stand-in
    KeyItemGridView* grid = nullptr;
    QStringList asked;
    QList<UserAnswer> answers;
    int favorites = 0;

    KeyItem* put(int idx, KeyActionType type, const QString& text = QStringLiteral("text"))
    {
        model->createKeyAction(idx, type);
        KeyItem* item = model->keyItemAt(idx);
        if (type == KAT_PASTE_STRING)
            static_cast<KA_PastString*>(item->action[0])->strText = text;
        return item;
    }

    void open(int idx)
    {
        KA_Folder* folder = folderOf(model->keyItemAt(idx));
        model->beginUpdate();
        model->changeListHead(folder, &folder->childList);
        model->endUpdate(true);
    }

    QPoint centre(int idx) const
    {
        QLabel* button = grid->keyButton(idx);
        return button->mapTo(grid, button->rect().center());
    }

    // Enters the grid with the data and moves onto the key; drops there if asked.
    void dragOnto(QMimeData* mime, int idx, bool drop)
    {
        std::unique_ptr<QMimeData> owned(mime);
        QDragEnterEvent enter(centre(idx), Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(grid, &enter);
        QDragMoveEvent move(centre(idx), Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(grid, &move);
        if (!drop)
            return;
        QDropEvent dropped(centre(idx), Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(grid, &dropped);
    }

    void pressAndMove(int idx, int distance)
    {
        QTest::mousePress(grid->keyButton(idx), Qt::LeftButton);
        QLabel* button = grid->keyButton(idx);
        QMouseEvent move(QEvent::MouseMove, button->rect().center() + QPoint(distance, 0), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(button, &move);
    }

    bool frameShown(int idx) const
    {
        return grid->keyButton(idx)->pixmap(Qt::ReturnByValue).toImage().pixelColor(1, 1) != QColor(Qt::black);
    }

private slots:
    void init()
    {
        QFile::remove(Settings().fileName());
        settings = std::make_unique<Settings>();
        layouts.changeLayout(V_Key_15);
        model = std::make_unique<KeyItemModel>();
        ObjectRegistry::registerObject(ComponentId::Settings, settings.get());
        ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, &layouts);
        ObjectRegistry::registerObject(ComponentId::KeyItemModel, model.get());
        model->changeLayoutButtonView(V_Key_15);
        window = std::make_unique<QWidget>();
        grid = new KeyItemGridView(window.get());
        connect(model.get(), &KeyItemModel::updateContent, grid, &KeyItemGridView::onUpdateContent);
        grid->setFavoriteInserter([this](const KeyItem*) { return ++favorites > 0; });
        UserQuestions::setHandler([this](const UserQuestion& question) {
            asked << question.subject;
            return answers.isEmpty() ? UserAnswer{QStringLiteral("Cancel"), false} : answers.takeFirst();
        });
    }

    void cleanup()
    {
        window.reset();
        model.reset();
        UserQuestions::setHandler({});
        ObjectRegistry::clear();
        settings.reset();
        asked.clear();
        answers.clear();
        favorites = 0;
    }

    void shouldBuildTheLayoutsButtonsRowByRow_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("columns");
        QTest::newRow("6 keys") << int(H_Key_6) << 6 << 3;
        QTest::newRow("6 keys upright") << int(V_Key_6) << 6 << 2;
        QTest::newRow("15 keys") << int(H_Key_15) << 15 << 5;
        QTest::newRow("15 keys upright") << int(V_Key_15) << 15 << 3;
        QTest::newRow("32 keys") << int(H_Key_32) << 32 << 8;
        QTest::newRow("32 keys upright") << int(V_Key_32) << 32 << 4;
    }

    void shouldBuildTheLayoutsButtonsRowByRow()
    {
        QFETCH(int, layout);
        QFETCH(int, count);
        QFETCH(int, columns);
        grid->changeLayoutButtonView(KeyLayout(layout));
        QCOMPARE(grid->keyButtonCount(), count);
        QCOMPARE(window->maximumWidth(), grid->width() + KeyItemGridView::MainWindowExtraWidth);
        for (int idx = 0; idx < count; ++idx) {
            QCOMPARE(grid->keyIdxAt(centre(idx)), idx);
            QVERIFY(grid->rect().contains(grid->keyButton(idx)->geometry()));
            QCOMPARE(grid->keyButton(idx)->pixmap(Qt::ReturnByValue).size(), ButtonLayoutConfig::iconSize(layout));
        }
        QCOMPARE(centre(1).y(), centre(0).y());
        QVERIFY(centre(1).x() > centre(0).x());
        QCOMPARE(centre(columns).x(), centre(0).x());
        QVERIFY(centre(columns).y() > centre(0).y());
    }

    void shouldSelectHoverAndOpenWithTheMouse()
    {
        put(0, KAT_PASTE_STRING);
        put(1, KAT_FOLDER);
        grid->refreshAllKeys();
        QSignalSpy selected(grid, &KeyItemGridView::buttonIdxChanged);
        QTest::mouseClick(grid->keyButton(0), Qt::LeftButton);
        QCOMPARE(selected.takeFirst().at(0).toInt(), 0);
        QCOMPARE(grid->keyButton(0)->property("state").toString(), QStringLiteral("true"));
        QVERIFY(frameShown(0));
        QVERIFY(!frameShown(1));

        QHoverEvent hover(QEvent::HoverMove, centre(1), centre(0));
        QCoreApplication::sendEvent(grid, &hover);
        QCOMPARE(grid->keyButton(1)->property("state").toString(), QStringLiteral("hover"));
        QVERIFY(frameShown(1));

        QTest::mouseClick(grid->keyButton(1), Qt::LeftButton);
        QCOMPARE(selected.takeFirst().at(0).toInt(), 1);
        QCOMPARE(grid->keyButton(0)->property("state").toString(), QStringLiteral("false"));
        QVERIFY(model->isRootList());
        QTest::mouseClick(grid->keyButton(1), Qt::LeftButton); // a selected folder opens
        QVERIFY(!model->isRootList());
        QCOMPARE(model->actionTypeAt(14), int(KAT_LINK_BUTTON));
        QVERIFY(selected.isEmpty());
    }

    void shouldStartADragAfterFivePixels_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("distance");
        QTest::addColumn<bool>("dragged");
        QTest::newRow("4 pixels") << 0 << 4 << false;
        QTest::newRow("5 pixels") << 0 << 5 << true;
        QTest::newRow("empty key") << 3 << 20 << false;
        QTest::newRow("back key") << 14 << 20 << false;
    }

    void shouldStartADragAfterFivePixels()
    {
        QFETCH(int, key);
        QFETCH(int, distance);
        QFETCH(bool, dragged);
        put(1, KAT_FOLDER);
        open(1);
        put(0, KAT_PASTE_STRING);
        QSignalSpy drags(grid, &KeyItemGridView::dragItem);
        pressAndMove(key, distance);
        QCOMPARE(drags.size(), dragged ? 1 : 0);
    }

    void shouldDropOntoKeys_data()
    {
        QTest::addColumn<bool>("inFolder");
        QTest::addColumn<int>("occupant");
        QTest::addColumn<QString>("payload"); // "palette N" or "key"
        QTest::addColumn<int>("expected");
        QTest::addColumn<int>("refusals"); // "Not allow multi-layer folder!" lines
        QTest::newRow("hotkey onto an empty key") << false << -1 << "palette 1" << 1 << 0;
        QTest::newRow("hotkey onto a taken key") << false << 5 << "palette 1" << 5 << 0;
        QTest::newRow("folder onto a folder") << false << 0 << "palette 0" << 0 << 1;
        QTest::newRow("folder inside a folder") << true << -1 << "palette 0" << -1 << 1;
        QTest::newRow("key moved onto an empty key") << false << -1 << "key" << 5 << 0;
        QTest::newRow("key moved onto a taken key") << false << 1 << "key" << 1 << 0;
    }

    void shouldDropOntoKeys()
    {
        QFETCH(bool, inFolder);
        QFETCH(int, occupant);
        QFETCH(QString, payload);
        QFETCH(int, expected);
        QFETCH(int, refusals);
        put(9, KAT_FOLDER);
        if (inFolder)
            open(9);
        KeyItem* moved = put(0, KAT_PASTE_STRING, QStringLiteral("moved"));
        if (occupant >= 0)
            put(4, KeyActionType(occupant));
        LogCapture log;
        QSignalSpy selected(grid, &KeyItemGridView::buttonIdxChanged);
        QMimeData* mime = payload == "key" ? DragPayload::itemMimeData(DragPayload::GridItemFormat, moved)
                                           : DragPayload::actionTypeMimeData(payload.section(' ', 1).toInt());
        dragOnto(mime, 4, true);
        QCOMPARE(model->actionTypeAt(4), expected);
        QCOMPARE(model->keyItemAt(0) == moved, payload != "key" || expected != KAT_PASTE_STRING);
        QCOMPARE(log.matching(QStringLiteral("Not allow multi-layer folder!")).size(), refusals);
        QCOMPARE(selected.size(), 1);
        QCOMPARE(grid->selectedKeyIdx(), 4);
    }

    void shouldOpenFoldersWhileHoveringADrag_data()
    {
        QTest::addColumn<bool>("inFolder");
        QTest::addColumn<QString>("payload"); // "palette N", "folder" or "self"
        QTest::addColumn<int>("target");
        QTest::addColumn<bool>("rootAfter");
        QTest::addColumn<int>("rootKey0");
        QTest::newRow("palette key over a plain key") << false << "palette 1" << 0 << false << 0;
        QTest::newRow("palette key over a folder") << false << "palette 1" << 1 << false << 5;
        QTest::newRow("palette folder over a plain key") << false << "palette 0" << 0 << true << 5;
        QTest::newRow("dragged folder over a plain key") << false << "folder" << 0 << true << 5;
        QTest::newRow("a key over itself") << false << "self" << 0 << true << 5;
        QTest::newRow("in a folder over a plain key") << true << "palette 1" << 0 << false << 5;
        QTest::newRow("in a folder over the back key") << true << "palette 1" << 14 << true << 5;
    }

    void shouldOpenFoldersWhileHoveringADrag()
    {
        QFETCH(bool, inFolder);
        QFETCH(QString, payload);
        QFETCH(int, target);
        QFETCH(bool, rootAfter);
        QFETCH(int, rootKey0);
        KeyItem* plain = put(0, KAT_PASTE_STRING);
        KeyItem* folder = put(1, KAT_FOLDER);
        if (inFolder) {
            open(1);
            put(0, KAT_PASTE_STRING);
        }
        QMimeData* mime = payload == "self"     ? DragPayload::itemMimeData(DragPayload::GridItemFormat, plain)
                          : payload == "folder" ? DragPayload::itemMimeData(DragPayload::GridItemFormat, folder)
                                                : DragPayload::actionTypeMimeData(payload.section(' ', 1).toInt());
        dragOnto(mime, target, false);
        QCOMPARE(grid->dragHoverKeyIdx(), target);
        grid->onTimerTimeout();
        QCOMPARE(model->isRootList(), rootAfter);
        QCOMPARE(grid->dragHoverKeyIdx(), rootAfter == inFolder ? -1 : target);
        model->changeListToRoot();
        QCOMPARE(model->actionTypeAt(0), rootKey0);
    }

    void shouldNeverPutAFolderInsideAFolder_data()
    {
        QTest::addColumn<QString>("path");
        for (const char* path : {"drop", "move", "paste", "favorite", "menu", "shortcut"})
            QTest::newRow(path) << QString(path);
    }

    void shouldNeverPutAFolderInsideAFolder()
    {
        QFETCH(QString, path);
        KeyItem* other = put(3, KAT_FOLDER);
        put(2, KAT_FOLDER);
        grid->controller_copyEvent(3);
        const auto favorite = favoriteFolder(V_Key_15, 2);
        open(2);
        grid->cancelPreviousAndThenSelectKeyButton(0);
        if (path == "drop")
            dragOnto(DragPayload::actionTypeMimeData(KAT_FOLDER), 0, true);
        else if (path == "move")
            dragOnto(DragPayload::itemMimeData(DragPayload::GridItemFormat, other), 0, true);
        else if (path == "paste")
            grid->controller_pasteEvent(0);
        else if (path == "favorite")
            dragOnto(DragPayload::itemMimeData(DragPayload::FavoriteItemFormat, favorite.get()), 0, true);
        else if (path == "menu")
            grid->createNewAction(KAT_FOLDER, 0);
        else
            QTest::keyClick(grid, Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(model->actionTypeAt(0), int(KAT_INVALID));
        QVERIFY(asked.isEmpty());
        model->changeListToRoot();
        QCOMPARE(model->keyItemAt(3), other);
    }

    void shouldShowTheMenuEntriesThatApply_data()
    {
        QTest::addColumn<bool>("inFolder");
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("clipboard");
        QTest::addColumn<QString>("entries");
        const QString plain = QStringLiteral("Cut|Copy|Delete|-|Save as favorite");
        QTest::newRow("empty key") << false << -1 << false << "New Folder|-|Create Actions";
        QTest::newRow("empty key, clipboard") << false << -1 << true << "New Folder|-|Create Actions|Paste";
        QTest::newRow("empty key in a folder") << true << -1 << false << "Create Actions";
        QTest::newRow("plain key") << false << 3 << false << plain;
        QTest::newRow("plain key, clipboard") << false << 3 << true << "Cut|Copy|Delete|Paste|-|Save as favorite";
        QTest::newRow("folder, clipboard") << false << 0 << true << plain;
        QTest::newRow("back key") << true << 6 << true << "no menu";
    }

    void shouldShowTheMenuEntriesThatApply()
    {
        QFETCH(bool, inFolder);
        QFETCH(int, type);
        QFETCH(bool, clipboard);
        QFETCH(QString, entries);
        put(9, KAT_PASTE_STRING);
        put(10, KAT_FOLDER);
        if (clipboard)
            grid->controller_copyEvent(9);
        if (inFolder)
            open(10);
        const int idx = type == KAT_LINK_BUTTON ? 14 : 0;
        if (type >= 0 && type != KAT_LINK_BUTTON)
            put(idx, KeyActionType(type));
        const bool menu = grid->updateContextMenuActions(idx);
        QCOMPARE(menu ? shownEntries(grid->contextMenu()).join('|') : QStringLiteral("no menu"), entries);
        QCOMPARE(grid->contextMenu()->property("keyIdx").toInt(), idx);
        QVERIFY(!grid->updateContextMenuActions(-1));
    }

    void shouldActOnShortcutsOnlyAsTheMenuWould_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("qtKey");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("typeAfter");
        QTest::addColumn<bool>("clipboard");
        QTest::addColumn<QString>("effects"); // questions and favourites
        const int ctrl = Qt::ControlModifier;
        QTest::newRow("Ctrl+K on an empty key") << 1 << int(Qt::Key_K) << ctrl << 1 << false << "";
        QTest::newRow("Ctrl+N on an empty key") << 1 << int(Qt::Key_N) << ctrl << 0 << false << "";
        QTest::newRow("Ctrl+T on an empty key") << 1 << int(Qt::Key_T) << ctrl << 5 << false << "";
        QTest::newRow("Ctrl+K on a taken key") << 0 << int(Qt::Key_K) << ctrl << 5 << false << "";
        QTest::newRow("Ctrl+Shift+K") << 1 << int(Qt::Key_K) << int(ctrl | Qt::ShiftModifier) << -1 << false << "";
        QTest::newRow("Ctrl+K with no key selected") << -1 << int(Qt::Key_K) << ctrl << -1 << false << "";
        QTest::newRow("Ctrl+C") << 0 << int(Qt::Key_C) << ctrl << 5 << true << "";
        QTest::newRow("Ctrl+X does not ask") << 0 << int(Qt::Key_X) << ctrl << -1 << true << "";
        QTest::newRow("Ctrl+V with an empty clipboard") << 1 << int(Qt::Key_V) << ctrl << -1 << false << "";
        QTest::newRow("Ctrl+D") << 0 << int(Qt::Key_D) << ctrl << 5 << false << "favorite";
        QTest::newRow("Ctrl+Q") << 1 << int(Qt::Key_Q) << ctrl << -1 << false << "";
        QTest::newRow("Delete asks") << 0 << int(Qt::Key_Delete) << 0 << 5 << false << "question";
        QTest::newRow("Backspace asks") << 0 << int(Qt::Key_Backspace) << 0 << 5 << false << "question";
        QTest::newRow("Shift+Delete") << 0 << int(Qt::Key_Delete) << int(Qt::ShiftModifier) << 5 << false << "";
    }

    void shouldActOnShortcutsOnlyAsTheMenuWould()
    {
        QFETCH(int, key);
        QFETCH(int, qtKey);
        QFETCH(int, modifiers);
        QFETCH(int, typeAfter);
        QFETCH(bool, clipboard);
        QFETCH(QString, effects);
        put(0, KAT_PASTE_STRING);
        grid->cancelPreviousAndThenSelectKeyButton(key);
        QTest::keyClick(grid, Qt::Key(qtKey), Qt::KeyboardModifiers(modifiers));
        QCOMPARE(model->actionTypeAt(key < 0 ? 1 : key), typeAfter);
        QCOMPARE(grid->clipboardItem() != nullptr, clipboard);
        QCOMPARE(favorites, effects == "favorite" ? 1 : 0);
        QCOMPARE(asked.size(), effects == "question" ? 1 : 0);
    }

    void shouldDeleteOnlyWhenTheUserAgrees_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("ticked");
        QTest::addColumn<bool>("deleted");
        QTest::addColumn<int>("laterQuestions"); // when deleting a second key
        QTest::newRow("Cancel") << "Cancel" << false << false << 1;
        QTest::newRow("Cancel, ticked") << "Cancel" << true << false << 1;
        QTest::newRow("Delete") << "Delete" << false << true << 1;
        QTest::newRow("Delete, ticked") << "Delete" << true << true << 0;
    }

    void shouldDeleteOnlyWhenTheUserAgrees()
    {
        QFETCH(QString, button);
        QFETCH(bool, ticked);
        QFETCH(bool, deleted);
        QFETCH(int, laterQuestions);
        put(0, KAT_PASTE_STRING);
        put(1, KAT_PASTE_STRING);
        QSignalSpy closes(grid, &KeyItemGridView::closeFunctionDescription);
        answers << UserAnswer{button, ticked};
        grid->controller_delEvent(0, false);
        QCOMPARE(asked, QStringList{"Are you sure you want to delete this item?"});
        QCOMPARE(model->keyItemAt(0) == nullptr, deleted);
        QCOMPARE(closes.size(), deleted ? 1 : 0);
        QCOMPARE(settings->value(QStringLiteral("msg_box_delete_item_dont_show_again"), false).toBool(),
                 deleted && ticked);
        asked.clear();
        answers << UserAnswer{QStringLiteral("Delete"), false};
        grid->controller_delEvent(1, false);
        QCOMPARE(asked.size(), laterQuestions);
        QVERIFY(!model->keyItemAt(1));
    }

    void shouldCutCopyPasteAndResetKeys()
    {
        put(0, KAT_PASTE_STRING, QStringLiteral("kept"));
        put(5, KAT_FOLDER);
        grid->updateContextMenuActions(0);
        grid->contextMenu()->action(KeyGridContextMenu::Cut)->trigger();
        QVERIFY(asked.isEmpty());
        QVERIFY(!model->keyItemAt(0));
        for (int idx : {2, 3, 5}) { // the clipboard stays; a folder takes no paste
            grid->updateContextMenuActions(idx);
            grid->onContextMenuTrigger_Paste(false);
        }
        QCOMPARE(textOf(model->keyItemAt(2)), QStringLiteral("kept"));
        QCOMPARE(textOf(model->keyItemAt(3)), QStringLiteral("kept"));
        QCOMPARE(model->actionTypeAt(5), int(KAT_FOLDER));
        grid->updateContextMenuActions(3);
        grid->onContextMenuTrigger_Rest(false);
        QCOMPARE(model->actionTypeAt(3), int(KAT_PASTE_STRING));
        QCOMPARE(textOf(model->keyItemAt(3)), QString());
        QCOMPARE(textOf(grid->clipboardItem()), QStringLiteral("kept"));
    }

    void shouldLeaveTheBackKeyAlone_data()
    {
        QTest::addColumn<QString>("operation");
        for (const char* operation : {"copy", "cut", "delete", "reset", "paste", "favorite", "drop", "drag"})
            QTest::newRow(operation) << QString(operation);
    }

    void shouldLeaveTheBackKeyAlone()
    {
        QFETCH(QString, operation);
        put(2, KAT_FOLDER);
        open(2);
        put(0, KAT_PASTE_STRING);
        if (operation == "paste")
            grid->controller_copyEvent(0);
        QSignalSpy drags(grid, &KeyItemGridView::dragItem);
        grid->updateContextMenuActions(14);
        const QMap<QString, KeyGridContextMenu::Entry> entries{{"copy", KeyGridContextMenu::Copy},
                                                               {"cut", KeyGridContextMenu::Cut},
                                                               {"delete", KeyGridContextMenu::Delete},
                                                               {"paste", KeyGridContextMenu::Paste},
                                                               {"favorite", KeyGridContextMenu::SaveAsFavorite}};
        if (entries.contains(operation))
            grid->contextMenu()->action(entries.value(operation))->trigger();
        else if (operation == "reset")
            grid->onContextMenuTrigger_Rest(false);
        else if (operation == "drop")
            dragOnto(DragPayload::actionTypeMimeData(KAT_HOTKEY), 14, true);
        else
            pressAndMove(14, 20);
        QCOMPARE(model->actionTypeAt(14), int(KAT_LINK_BUTTON));
        QCOMPARE(grid->clipboardItem() != nullptr, operation == "paste");
        QVERIFY(asked.isEmpty());
        QCOMPARE(favorites + drags.size(), 0);
    }

    void shouldDropFavoritesAfterAskingAboutLostKeys_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<int>("children");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("keysAfter"); // -1: nothing dropped
        QTest::newRow("from a smaller layout") << int(V_Key_6) << 3 << "" << 4;
        QTest::newRow("from a larger layout, Cancel") << int(V_Key_32) << 20 << "Cancel" << -1;
        QTest::newRow("from a larger layout, Continue") << int(V_Key_32) << 20 << "Continue" << 15;
    }

    void shouldDropFavoritesAfterAskingAboutLostKeys()
    {
        QFETCH(int, layout);
        QFETCH(int, children);
        QFETCH(QString, answer);
        QFETCH(int, keysAfter);
        const auto favorite = favoriteFolder(layout, children);
        if (!answer.isEmpty())
            answers << UserAnswer{answer, false};
        dragOnto(DragPayload::itemMimeData(DragPayload::FavoriteItemFormat, favorite.get()), 3, true);
        QCOMPARE(asked.size(), answer.isEmpty() ? 0 : 1);
        const KA_Folder* dropped = folderOf(model->keyItemAt(3));
        QCOMPARE(dropped ? dropped->childList.size() : -1, keysAfter);
        if (dropped)
            QCOMPARE(dropped->childList.last()->keyIdx, 14);
        QCOMPARE(folderOf(favorite.get())->childList.size(), children + 1);
    }

    void shouldFollowTheTreeToTheKeysPage()
    {
        put(0, KAT_PASTE_STRING);
        KeyItem* folder = put(4, KAT_FOLDER);
        open(4);
        const KeyItem* inside = put(2, KAT_PASTE_STRING);
        model->changeListToRoot();
        QSignalSpy selected(grid, &KeyItemGridView::buttonIdxChanged);
        grid->onTreeItemChanged(inside);
        QCOMPARE(model->getCurrentLayoutListHead(), &folderOf(folder)->childList);
        QCOMPARE(grid->selectedKeyIdx(), 2);
        QCOMPARE(selected.takeFirst().at(0).toInt(), 2);
        grid->onTreeItemChanged(model->rootList(V_Key_15)->first());
        QVERIFY(model->isRootList());
        grid->onTreeItemChanged(folder);
        QCOMPARE(model->getCurrentLayoutListHead(), &folderOf(folder)->childList);
    }
};

KEYSTAGE_TEST_MAIN(KeyItemGridViewTest)
#include "tst_keyitemgridview.moc"
