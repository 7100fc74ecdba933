#include "dialog.h"
#include "dragpayload.h"
#include "favorite.h"
#include "favoritekeyitemmodel.h"
#include "keygridcontextmenu.h"
#include "keyitemgridview.h"
#include "keyitemserialization.h"
#include "keymodelfixture.h"
#include "settingskeys.h"
#include "testmain.h"

#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>

class FavoriteTest : public QObject, KeyModelFixture
{
    Q_OBJECT

    std::unique_ptr<FavoriteKeyItemModel> favorites;
    std::unique_ptr<QWidget> mainWindow;
    Favorite* window = nullptr; // owned by mainWindow

    // Text-string favourites titled "fav 0", "fav 1", ..., in one import.
    void fill(int count)
    {
        QList<KeyItem*> items;
        for (int i = 0; i < count; ++i) {
            items.append(new KeyItem(KAT_PASTE_STRING, 0, V_Key_15));
            items.last()->setTitle(0, QStringLiteral("fav %1").arg(i));
        }
        favorites->appendKeyItemFromImportedFile(pageToMap(items));
        qDeleteAll(items);
    }

    QPoint slotCentre(int idx) const
    {
        return window->slotButton(idx)->mapTo(window, window->slotButton(idx)->rect().center());
    }

    void showWindow()
    {
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
    }

    // Drags a grid key in (format "grid") or a favourite; whether the enter and the drop were taken.
    std::pair<bool, bool> dragIn(const char* format, const KeyItem* item)
    {
        std::unique_ptr<QMimeData> mime(DragPayload::itemMimeData(format, item));
        QDragEnterEvent enter(slotCentre(0), Qt::MoveAction, mime.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &enter);
        QDropEvent drop(slotCentre(0), Qt::MoveAction, mime.get(), Qt::LeftButton, Qt::NoModifier);
        drop.ignore();
        QCoreApplication::sendEvent(window, &drop);
        return {enter.isAccepted(), drop.isAccepted()};
    }

private slots:
    void init()
    {
        setUp();
        UserQuestions::setHandler(&Dialog::ask);
        favorites = std::make_unique<FavoriteKeyItemModel>();
        mainWindow = std::make_unique<QWidget>();
        window = new Favorite(favorites.get(), mainWindow.get());
    }

    void cleanup()
    {
        mainWindow.reset();
        favorites.reset();
        Dialog::clearNextAnswers();
        UserQuestions::setHandler(nullptr);
        tearDown();
    }

    void shouldSizeThePadByItsItems_data()
    {
        QTest::addColumn<int>("items");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("width");
        QTest::newRow("14: one free slot in 5 rows") << 14 << 5 << 236;
        QTest::newRow("15: a sixth row and the scroll bar") << 15 << 6 << 248;
        QTest::newRow("18") << 18 << 7 << 248;
        QTest::newRow("60: capped") << 60 << 20 << 248;
    }

    void shouldSizeThePadByItsItems()
    {
        QFETCH(int, items);
        QFETCH(int, rows);
        QFETCH(int, width);
        fill(items);
        QCOMPARE(window->slotCount(), rows * Favorite::Columns);
        QCOMPARE(window->pad()->width(), width);
        QCOMPARE(window->usageLabel()->text(), QStringLiteral("Usage: %1 / 60").arg(items));
        // Occupied slots are buttons that take focus; free ones show nothing.
        QCOMPARE(window->slotButton(items - 1)->focusPolicy(), Qt::StrongFocus);
        QVERIFY(!window->slotButton(items - 1)->icon().isNull());
        if (items < 60)
            QCOMPARE(window->slotButton(items)->focusPolicy(), Qt::NoFocus);
    }

    // 59 still takes a drag and one "&Save as favorite"; then nothing more.
    void shouldRefuseEveryInsertionWhenFull_data()
    {
        QTest::addColumn<int>("items");
        QTest::newRow("59") << 59;
        QTest::newRow("60") << 60;
    }

    void shouldRefuseEveryInsertionWhenFull()
    {
        QFETCH(int, items);
        fill(items);
        const char* usageStyle = items < 60 ? "color: rgb(242,242,242);" : "color: rgb(255,0,0);";
        QCOMPARE(window->usageLabel()->styleSheet(), QLatin1String(usageStyle));
        KeyItem* key = put(2, KAT_PASTE_STRING);
        QCOMPARE(dragIn(DragPayload::GridItemFormat, key).first, items < 60);
        KeyItemGridView grid;
        grid.setFavoriteInserter([this](const KeyItem* item) { return window->insertKeyItem(item); });
        QVERIFY(grid.updateContextMenuActions(2));
        grid.contextMenu()->action(KeyGridContextMenu::SaveAsFavorite)->trigger();
        QCOMPARE(favorites->count(), 60);
        QVERIFY(!window->insertKeyItem(key));
        QCOMPARE(dragIn(DragPayload::GridItemFormat, key), std::make_pair(false, false));
        QCOMPARE(favorites->count(), 60);
        QCOMPARE(window->usageLabel()->styleSheet(), QStringLiteral("color: rgb(255,0,0);"));
    }

    void shouldTakeOnlyConfiguredKeysFromTheGrid_data()
    {
        QTest::addColumn<QString>("what");
        QTest::addColumn<bool>("kept");
        QTest::newRow("a text key") << "text" << true;
        QTest::newRow("the back key") << "back" << false;
        QTest::newRow("an empty key") << "empty" << false;
        QTest::newRow("a favourite") << "favourite" << false;
    }

    void shouldTakeOnlyConfiguredKeysFromTheGrid()
    {
        QFETCH(QString, what);
        QFETCH(bool, kept);
        fill(1);
        KeyItem* text = put(4, KAT_PASTE_STRING, QStringLiteral("hello"));
        text->setTitle(0, QStringLiteral("Greeting"));
        put(0, KAT_FOLDER);
        open(0);
        QList<KeyItem*> page;
        KeyItem empty(KAT_INVALID, 3, V_Key_15);
        empty.ownerList = &page;
        const KeyItem* dragged = what == "text" ? text : what == "back" ? model->keyItemAt(14) : &empty;
        if (what == "back")
            QCOMPARE(dragged->actionType, KAT_LINK_BUTTON);
        if (what == "favourite")
            QCOMPARE(dragIn(DragPayload::FavoriteItemFormat, favorites->keyItems().at(0)).second, false);
        else
            QCOMPARE(dragIn(DragPayload::GridItemFormat, dragged).second, kept);
        QCOMPARE(favorites->count(), kept ? 2 : 1);
        if (!kept)
            return;
        // A copy that belongs to no page or key; the key keeps its item.
        const KeyItem* copy = favorites->keyItems().at(1);
        QVERIFY(copy != text && copy->keyIdx == -1 && !copy->parent && !copy->ownerList);
        QCOMPARE(text->ownerList, model->rootList(V_Key_15));
        QCOMPARE(window->slotButton(1)->toolTip(), QStringLiteral("Greeting\nText String: \u201chello\u201d"));
        QCOMPARE(window->slotButton(1)->accessibleName(), QStringLiteral("Greeting, Text String"));
    }

    void shouldDockBesideTheMainWindowOnFirstShowThenRememberItsPlace()
    {
        mainWindow->setGeometry(100, 80, 400, 300);
        mainWindow->show();
        QVERIFY(QTest::qWaitForWindowExposed(mainWindow.get()));
        window->move(5, 5); // before the first show: no place of the user's
        showWindow();
        const QRect editor = mainWindow->frameGeometry();
        QCOMPARE(window->pos(), QPoint(editor.x() + editor.width() + 1, editor.y()));
        QVERIFY(!settings->contains(SettingsKeys::FavoriteWindowPos));

        window->move(640, 120);
        QTRY_VERIFY_WITH_TIMEOUT(settings->contains(SettingsKeys::FavoriteWindowPos), 30000);
        window->bringWindowToFront();
        QVERIFY(window->isVisible() && !window->isMinimized());
        delete window; // the next run
        window = new Favorite(favorites.get(), mainWindow.get());
        window->show();
        QTRY_COMPARE_WITH_TIMEOUT(window->pos(), QPoint(640, 120), 30000);
    }

    void shouldDeleteFromTheContextMenuAndTheKeyboard_data()
    {
        QTest::addColumn<QString>("how");
        QTest::newRow("right click") << "mouse";
        QTest::newRow("Menu key") << "menu";
        QTest::newRow("Shift+F10") << "shift f10";
        QTest::newRow("Delete key") << "delete";
    }

    void shouldDeleteFromTheContextMenuAndTheKeyboard()
    {
        QFETCH(QString, how);
        fill(3);
        showWindow();
        // Over a free slot no menu shows.
        QContextMenuEvent overFree(QContextMenuEvent::Mouse, slotCentre(3), window->mapToGlobal(slotCentre(3)));
        QCoreApplication::sendEvent(window, &overFree);
        QVERIFY(!window->contextMenu());

        QToolButton* slot = window->slotButton(1);
        window->activateWindow();
        slot->setFocus();
        QTRY_VERIFY_WITH_TIMEOUT(slot->hasFocus(), 30000);
        QContextMenuEvent overSlot(QContextMenuEvent::Mouse, slotCentre(1), window->mapToGlobal(slotCentre(1)));
        if (how == "mouse")
            QCoreApplication::sendEvent(window, &overSlot);
        else if (how == "delete")
            QTest::keyClick(slot, Qt::Key_Delete);
        else
            QTest::keyClick(slot, how == "menu" ? Qt::Key_Menu : Qt::Key_F10,
                            how == "menu" ? Qt::NoModifier : Qt::ShiftModifier);
        if (how != "delete") {
            QMenu* menu = window->contextMenu();
            QTRY_VERIFY_WITH_TIMEOUT(menu && menu->isVisible(), 30000);
            QCOMPARE(menu->actions().size(), 1);
            QCOMPARE(menu->actions().at(0)->text(), QStringLiteral("&Delete"));
            menu->actions().at(0)->trigger();
            menu->hide();
        }
        QCOMPARE(favorites->count(), 2);
        QCOMPARE(favorites->keyItems().at(1)->render[0].text, QStringLiteral("fav 2"));
        QTRY_VERIFY_WITH_TIMEOUT(window->slotButton(1)->hasFocus(), 30000); // the focus stays in the pad
    }

    void shouldResetOnlyWhenTheAnswerIsReset_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("left");
        QTest::newRow("Cancel") << int(UserQuestion::Cancel) << 4;
        QTest::newRow("closed") << int(UserQuestion::NoButton) << 4;
        QTest::newRow("Reset") << int(UserQuestion::Reset) << 0;
    }

    void shouldResetOnlyWhenTheAnswerIsReset()
    {
        QFETCH(int, answer);
        QFETCH(int, left);
        fill(4);
        Dialog::setNextAnswer(UserQuestion::Button(answer));
        QTest::mouseClick(window->resetButton(), Qt::LeftButton);
        QCOMPARE(favorites->count(), left);
        QCOMPARE(window->resetButton()->isEnabled(), left > 0);
    }

    // Arrows move between favourites; Enter hands one to the selected key.
    void shouldWorkFromTheKeyboard()
    {
        fill(5);
        QList<const KeyItem*> activated;
        connect(window, &Favorite::favoriteActivated, this, [&](const KeyItem* item) { activated.append(item); });
        showWindow();
        window->activateWindow();
        window->slotButton(0)->setFocus();
        QTRY_VERIFY_WITH_TIMEOUT(window->slotButton(0)->hasFocus(), 30000);
        for (int key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Right}) // the last one finds no favourite
            QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
        QTest::keyClick(window->slotButton(4), Qt::Key_Return);
        QCOMPARE(activated, QList<const KeyItem*>{favorites->keyItems().at(4)});
    }
};

KEYSTAGE_TEST_MAIN(FavoriteTest)
#include "tst_favorite.moc"
