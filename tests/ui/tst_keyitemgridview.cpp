#include "buttonlayoutconfig.h"
#include "dragpayload.h"
#include "ka_folder.h"
#include "ka_paststring.h"
#include "keygridcontextmenu.h"
#include "keyitemgridview.h"
#include "keyitemmodel.h"
#include "keymodelfixture.h"
#include "logcapture.h"
#include "objectregistry.h"
#include "settings.h"
#include "testmain.h"
#include "userquestion.h"

#include <QLabel>
#include <QMimeData>
#include <QSignalSpy>

namespace {

// Rows of the data-driven tests; -1 stands for no item or no key.
// layout, buttons, columns
using Shape = std::tuple<int, int, int>;
// occupant's type, payload, type after, "Not allow multi-layer folder!" lines
using Drop = std::tuple<int, QString, int, int>;
// in a folder, payload, target key, on the root page after, root key 0's type after
using Hover = std::tuple<bool, QString, int, bool, int>;
// in a folder, key type, clipboard full, entries shown
using MenuCase = std::tuple<bool, int, bool, QString>;
// selected key, Qt key, modifiers, its type after, clipboard full, "question", "favorite" or nothing else
using Shortcut = std::tuple<int, int, int, int, bool, QString>;

} // namespace

Q_DECLARE_METATYPE(Shape)
Q_DECLARE_METATYPE(Drop)
Q_DECLARE_METATYPE(Hover)
Q_DECLARE_METATYPE(MenuCase)
Q_DECLARE_METATYPE(Shortcut)

class KeyItemGridViewTest : public QObject, KeyModelFixture
{
    Q_OBJECT

    std::unique_ptr<QWidget> window; // the main window's stand-in
    KeyItemGridView* grid = nullptr;
    QStringList asked;
    int favorites = 0;

    QPoint centre(int idx) const { return grid->keyButton(idx)->mapTo(grid, grid->keyButton(idx)->rect().center()); }

    // "palette N": action type N from the palette; "key", "folder": a grid key; "favorite": from My Favorite.
    static QMimeData* payload(const QString& kind, const KeyItem* item)
    {
        if (kind.startsWith("palette"))
            return DragPayload::actionTypeMimeData(kind.section(' ', 1).toInt());
        return DragPayload::itemMimeData(
            kind == "favorite" ? DragPayload::FavoriteItemFormat : DragPayload::GridItemFormat, item);
    }

    // Enters the grid with the data and moves onto the key; drops there if asked.
    void dragOnto(QMimeData* mime, int idx, bool drop)
    {
        std::unique_ptr<QMimeData> owned(mime);
        QDragEnterEvent enter(centre(idx), Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
        QDragMoveEvent move(centre(idx), Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
        QDropEvent dropped(centre(idx), Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(grid, &enter);
        QCoreApplication::sendEvent(grid, &move);
        if (drop)
            QCoreApplication::sendEvent(grid, &dropped);
    }

    void pressAndMove(int idx, int distance)
    {
        QLabel* button = grid->keyButton(idx);
        QTest::mousePress(button, Qt::LeftButton);
        QMouseEvent move(QEvent::MouseMove, button->rect().center() + QPoint(distance, 0), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(button, &move);
    }

    bool framed(int idx) const
    {
        return grid->keyButton(idx)->pixmap(Qt::ReturnByValue).toImage().pixelColor(1, 1) != QColor(Qt::black);
    }

    QString state(int idx) const { return grid->keyButton(idx)->property("state").toString(); }

private slots:
    void init()
    {
        setUp();
        window = std::make_unique<QWidget>();
        grid = new KeyItemGridView(window.get());
        connect(model.get(), &KeyItemModel::updateContent, grid, &KeyItemGridView::onUpdateContent);
        grid->setFavoriteInserter([this](const KeyItem*) { return ++favorites > 0; });
        asked.clear();
        favorites = 0;
        UserQuestions::setHandler([this](const UserQuestion& question) {
            asked << question.subject;
            return UserAnswer{UserQuestion::Cancel, false};
        });
    }

    void cleanup()
    {
        window.reset();
        UserQuestions::setHandler({});
        tearDown();
    }

    void shouldBuildTheLayoutsButtonsRowByRow_data()
    {
        QTest::addColumn<Shape>("row");
        // Both orientations, both icon sizes, every key count.
        QTest::newRow("6 keys") << Shape{H_Key_6, 6, 3};
        QTest::newRow("15 keys upright") << Shape{V_Key_15, 15, 3};
        QTest::newRow("32 keys") << Shape{H_Key_32, 32, 8};
    }

    void shouldBuildTheLayoutsButtonsRowByRow()
    {
        QFETCH(Shape, row);
        const auto& [layout, count, columns] = row;
        grid->changeLayoutButtonView(KeyLayout(layout));
        QCOMPARE(grid->keyButtonCount(), count);
        QCOMPARE(window->maximumWidth(), grid->width() + KeyItemGridView::MainWindowExtraWidth);
        for (int idx = 0; idx < count; ++idx) {
            QCOMPARE(grid->keyIdxAt(centre(idx)), idx);
            QVERIFY(grid->rect().contains(grid->keyButton(idx)->geometry()));
            QCOMPARE(grid->keyButton(idx)->pixmap(Qt::ReturnByValue).size(), ButtonLayoutConfig::iconSize(layout));
        }
        QVERIFY(centre(1).y() == centre(0).y() && centre(1).x() > centre(0).x());
        QVERIFY(centre(columns).x() == centre(0).x() && centre(columns).y() > centre(0).y());
    }

    void shouldSelectHoverAndOpenWithTheMouse()
    {
        put(0, KAT_PASTE_STRING);
        put(1, KAT_FOLDER);
        grid->refreshAllKeys();
        QSignalSpy selected(grid, &KeyItemGridView::buttonIdxChanged);
        QTest::mouseClick(grid->keyButton(0), Qt::LeftButton);
        QCOMPARE(selected.takeFirst().at(0).toInt(), 0);
        QVERIFY(state(0) == "true" && framed(0) && !framed(1));
        QHoverEvent hover(QEvent::HoverMove, centre(1), centre(0));
        QCoreApplication::sendEvent(grid, &hover);
        QVERIFY(state(1) == "hover" && framed(1));
        QTest::mouseClick(grid->keyButton(1), Qt::LeftButton);
        QCOMPARE(selected.takeFirst().at(0).toInt(), 1);
        QVERIFY(state(0) == "false" && model->isRootList());
        QTest::mouseClick(grid->keyButton(1), Qt::LeftButton); // a selected folder opens
        QCOMPARE(model->actionTypeAt(14), int(KAT_LINK_BUTTON));
        QVERIFY(selected.isEmpty());
        QTest::mouseClick(grid->keyButton(1), Qt::RightButton); // selects the key and offers its menu
        QVERIFY(grid->selectedKeyIdx() == 1 && grid->contextMenu()->isVisible());
    }

    void shouldDropOntoKeys_data()
    {
        QTest::addColumn<Drop>("row");
        QTest::newRow("hotkey onto an empty key") << Drop{-1, "palette 1", 1, 0};
        QTest::newRow("folder onto a folder") << Drop{0, "palette 0", 0, 1};
        QTest::newRow("favorite onto an empty key") << Drop{-1, "favorite", 5, 0};
        QTest::newRow("key moved onto an empty key") << Drop{-1, "key", 5, 0};
        QTest::newRow("key moved onto a taken key") << Drop{1, "key", 1, 0};
    }

    void shouldDropOntoKeys()
    {
        QFETCH(Drop, row);
        const auto& [occupant, kind, typeAfter, refusals] = row;
        KeyItem* moved = put(0, KAT_PASTE_STRING);
        if (occupant >= 0)
            put(4, KeyActionType(occupant));
        LogCapture log;
        QSignalSpy selected(grid, &KeyItemGridView::buttonIdxChanged);
        QSignalSpy drags(grid, &KeyItemGridView::dragItem);
        if (kind == "key") {
            pressAndMove(0, 4);
            pressAndMove(0, 5); // a drag starts at 5 pixels
        }
        QCOMPARE(drags.size(), kind == "key" ? 1 : 0);
        dragOnto(payload(kind, moved), 4, true);
        QCOMPARE(model->actionTypeAt(4), typeAfter);
        QCOMPARE(model->keyItemAt(0) == moved, kind != "key" || typeAfter != KAT_PASTE_STRING);
        QCOMPARE(log.matching(QStringLiteral("Not allow multi-layer folder!")).size(), refusals);
        QCOMPARE(selected.size(), 1);
        QCOMPARE(grid->selectedKeyIdx(), 4);
    }

    void shouldTakeOnlyTheAgreedPayloads()
    {
        // The palette's payload is a bare big-endian qint32.
        QCOMPARE(DragPayload::encodeActionType(3), QByteArray("\0\0\0\3", 4));
        QByteArray forged; // an address another program might offer
        QDataStream stream(&forged, QIODevice::WriteOnly);
        stream << QVariant(qlonglong(0x1234));
        auto* mime = new QMimeData;
        mime->setData(DragPayload::GridItemFormat, forged);
        LogCapture log;
        dragOnto(mime, 0, true);
        QVERIFY(!log.matching(QStringLiteral("address from outside this program")).isEmpty());
        QCOMPARE(model->actionTypeAt(0), int(KAT_INVALID));
    }

    void shouldOpenFoldersWhileHoveringADrag_data()
    {
        QTest::addColumn<Hover>("row");
        QTest::newRow("palette key over a plain key") << Hover{false, "palette 1", 0, false, 0};
        QTest::newRow("palette key over a folder") << Hover{false, "palette 1", 1, false, 5};
        QTest::newRow("palette folder over a plain key") << Hover{false, "palette 0", 0, true, 5};
        QTest::newRow("dragged folder over a plain key") << Hover{false, "folder", 0, true, 5};
        QTest::newRow("a key over itself") << Hover{false, "key", 0, true, 5};
        QTest::newRow("in a folder over a plain key") << Hover{true, "palette 1", 0, false, 5};
        QTest::newRow("in a folder over the back key") << Hover{true, "palette 1", 14, true, 5};
    }

    void shouldOpenFoldersWhileHoveringADrag()
    {
        QFETCH(Hover, row);
        const auto& [inFolder, kind, target, rootAfter, rootKey0After] = row;
        KeyItem* plain = put(0, KAT_PASTE_STRING);
        KeyItem* folder = put(1, KAT_FOLDER);
        if (inFolder) {
            open(1);
            put(0, KAT_PASTE_STRING);
        }
        dragOnto(payload(kind, kind == "folder" ? folder : plain), target, false);
        QCOMPARE(grid->dragHoverKeyIdx(), target);
        grid->onTimerTimeout();
        QCOMPARE(model->isRootList(), rootAfter);
        QCOMPARE(grid->dragHoverKeyIdx(), rootAfter == inFolder ? -1 : target); // cleared once it acted
        model->changeListToRoot();
        QCOMPARE(model->actionTypeAt(0), rootKey0After);
    }

    void shouldShowTheMenuEntriesThatApply_data()
    {
        QTest::addColumn<MenuCase>("row");
        const QString plain = QStringLiteral("Cut|Copy|Delete|-|Save as favorite");
        QTest::newRow("empty key") << MenuCase{false, -1, false, "New Folder|-|Create Actions"};
        QTest::newRow("empty key, clipboard") << MenuCase{false, -1, true, "New Folder|-|Create Actions|Paste"};
        QTest::newRow("empty key in a folder") << MenuCase{true, -1, false, "Create Actions"};
        QTest::newRow("plain key") << MenuCase{false, 3, false, plain};
        QTest::newRow("plain key, clipboard") << MenuCase{false, 3, true, "Cut|Copy|Delete|Paste|-|Save as favorite"};
        QTest::newRow("folder, clipboard") << MenuCase{false, 0, true, plain};
    }

    void shouldShowTheMenuEntriesThatApply()
    {
        QFETCH(MenuCase, row);
        const auto& [inFolder, type, clipboard, entries] = row;
        put(9, KAT_PASTE_STRING);
        put(10, KAT_FOLDER);
        if (clipboard)
            grid->controller_copyEvent(9);
        if (inFolder)
            open(10);
        if (type >= 0)
            put(0, KeyActionType(type));
        QVERIFY(grid->updateContextMenuActions(0));
        QStringList shown;
        for (QAction* action : grid->contextMenu()->actions()) {
            if (action->isVisible())
                shown << (action->isSeparator() ? QStringLiteral("-") : action->text().remove('&'));
        }
        QCOMPARE(shown.join('|'), entries);
        QCOMPARE(grid->contextMenu()->property("keyIdx").toInt(), 0);
    }

    void shouldActOnShortcutsOnlyAsTheMenuWould_data()
    {
        QTest::addColumn<Shortcut>("row");
        const int ctrl = Qt::ControlModifier;
        QTest::newRow("Ctrl+K on an empty key") << Shortcut{1, Qt::Key_K, ctrl, 1, false, ""};
        QTest::newRow("Ctrl+N on an empty key") << Shortcut{1, Qt::Key_N, ctrl, 0, false, ""};
        QTest::newRow("Ctrl+K on a taken key") << Shortcut{0, Qt::Key_K, ctrl, 5, false, ""};
        QTest::newRow("Ctrl+Shift+K") << Shortcut{1, Qt::Key_K, int(ctrl | Qt::ShiftModifier), -1, false, ""};
        QTest::newRow("Ctrl+K with no key selected") << Shortcut{-1, Qt::Key_K, ctrl, -1, false, ""};
        QTest::newRow("Ctrl+C") << Shortcut{0, Qt::Key_C, ctrl, 5, true, ""};
        QTest::newRow("Ctrl+X does not ask") << Shortcut{0, Qt::Key_X, ctrl, -1, true, ""};
        QTest::newRow("Ctrl+D") << Shortcut{0, Qt::Key_D, ctrl, 5, false, "favorite"};
        QTest::newRow("Delete asks") << Shortcut{0, Qt::Key_Delete, 0, 5, false, "question"};
        QTest::newRow("Backspace asks") << Shortcut{0, Qt::Key_Backspace, 0, 5, false, "question"};
        QTest::newRow("Shift+Delete") << Shortcut{0, Qt::Key_Delete, Qt::ShiftModifier, 5, false, ""};
    }

    void shouldActOnShortcutsOnlyAsTheMenuWould()
    {
        QFETCH(Shortcut, row);
        const auto& [key, qtKey, modifiers, typeAfter, clipboard, effect] = row;
        put(0, KAT_PASTE_STRING);
        grid->cancelPreviousAndThenSelectKeyButton(key);
        QTest::keyClick(grid, Qt::Key(qtKey), Qt::KeyboardModifiers(modifiers));
        QCOMPARE(model->actionTypeAt(key < 0 ? 1 : key), typeAfter);
        QCOMPARE(grid->clipboardItem() != nullptr, clipboard);
        QCOMPARE(favorites, effect == "favorite" ? 1 : 0);
        QCOMPARE(asked.size(), effect == "question" ? 1 : 0);
    }

    // The edits refuse it too (the controller's test); here: no menu, no drag.
    void shouldLeaveTheBackKeyAlone()
    {
        put(2, KAT_FOLDER);
        open(2);
        QSignalSpy drags(grid, &KeyItemGridView::dragItem);
        QVERIFY(!grid->updateContextMenuActions(14));
        for (int entry = 0; entry < KeyGridContextMenu::EntryCount; ++entry)
            grid->contextMenu()->action(KeyGridContextMenu::Entry(entry))->trigger();
        QTest::mouseClick(grid->keyButton(14), Qt::RightButton);
        QVERIFY(!grid->contextMenu()->isVisible());
        dragOnto(payload("palette 1", nullptr), 14, true);
        pressAndMove(14, 20);
        QCOMPARE(model->actionTypeAt(14), int(KAT_LINK_BUTTON));
        QVERIFY(asked.isEmpty());
        QCOMPARE(favorites + drags.size(), 0);
    }

    void shouldFollowTheTreeToTheKeysPage()
    {
        const KeyItem* onRoot = put(0, KAT_PASTE_STRING);
        KeyItem* folder = put(4, KAT_FOLDER);
        open(4);
        const KeyItem* inside = put(2, KAT_PASTE_STRING);
        model->changeListToRoot();
        QSignalSpy selected(grid, &KeyItemGridView::buttonIdxChanged);
        grid->onTreeItemChanged(inside);
        QCOMPARE(model->getCurrentLayoutListHead(), &folderOf(folder)->childList);
        QCOMPARE(grid->selectedKeyIdx(), 2);
        QCOMPARE(selected.takeFirst().at(0).toInt(), 2);
        grid->onTreeItemChanged(onRoot);
        QVERIFY(model->isRootList());
        grid->onTreeItemChanged(folder);
        QCOMPARE(model->getCurrentLayoutListHead(), &folderOf(folder)->childList);
    }
};

KEYSTAGE_TEST_MAIN(KeyItemGridViewTest)
#include "tst_keyitemgridview.moc"
