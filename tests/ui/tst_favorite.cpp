#include "dialog.h"
#include "dragpayload.h"
#include "favorite.h"
#include "favoritekeyitemmodel.h"
#include "ka_folder.h"
#include "keygridcontextmenu.h"
#include "keyitemgridview.h"
#include "keyitemserialization.h"
#include "keymodelfixture.h"
#include "settingskeys.h"
#include "testmain.h"
#include "userquestion.h"

#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>

class FavoriteTest : public QObject, KeyModelFixture
{
    Q_OBJECT

    std::unique_ptr<FavoriteKeyItemModel> favorites;
    std::unique_ptr<QWidget> mainWindow;
    Favorite* window = nullptr; // owned by mainWindow

    // count text-string favourites titled "fav 0", "fav 1", ... in one import.
    void fill(int count)
    {
        QList<KeyItem*> items;
        for (int i = 0; i < count; ++i) {
            auto* item = new KeyItem(KAT_PASTE_STRING, i % 15, V_Key_15);
            item->setTitle(0, QStringLiteral("fav %1").arg(i));
            items.append(item);
        }
        favorites->appendKeyItemFromImportedFile(pageToMap(items));
        qDeleteAll(items);
        QCOMPARE(favorites->count(), count);
    }

    QString titleAt(int idx) const { return favorites->keyItems().at(idx)->render[0].text; }

    QPoint slotCentre(int idx) const
    {
        QToolButton* slot = window->slotButton(idx);
        return slot->mapTo(window, slot->rect().center());
    }

    // Enters the window with the data; drops it when asked. Returns whether the enter was accepted.
    bool dragIn(QMimeData* mime, bool drop, bool* dropAccepted = nullptr)
    {
        std::unique_ptr<QMimeData> owned(mime);
        const QPoint at = slotCentre(0);
        QDragEnterEvent enter(at, Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &enter);
        if (drop) {
            QDropEvent dropped(at, Qt::MoveAction, mime, Qt::LeftButton, Qt::NoModifier);
            dropped.ignore();
            QCoreApplication::sendEvent(window, &dropped);
            if (dropAccepted)
                *dropAccepted = dropped.isAccepted();
        }
        return enter.isAccepted();
    }

    static QMimeData* gridPayload(const KeyItem* item)
    {
        return DragPayload::itemMimeData(DragPayload::GridItemFormat, item);
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
        QTest::newRow("empty") << 0 << 5 << 236;
        QTest::newRow("14: one free slot in 5 rows") << 14 << 5 << 236;
        QTest::newRow("15: a sixth row and the scroll bar") << 15 << 6 << 248;
        QTest::newRow("17") << 17 << 6 << 248;
        QTest::newRow("18") << 18 << 7 << 248;
        QTest::newRow("60: capped") << 60 << 20 << 248;
    }

    void shouldSizeThePadByItsItems()
    {
        QFETCH(int, items);
        QFETCH(int, rows);
        QFETCH(int, width);
        fill(items);
        QCOMPARE(Favorite::rowCount(items), rows);
        QCOMPARE(window->slotCount(), rows * Favorite::Columns);
        QCOMPARE(window->pad()->width(), width);
        QCOMPARE(window->usageLabel()->text(), QStringLiteral("Usage: %1 / 60").arg(items));
        // Occupied slots are buttons named after their items; free ones take no focus.
        for (int idx = 0; idx < window->slotCount(); ++idx) {
            QToolButton* slot = window->slotButton(idx);
            QCOMPARE(slot->focusPolicy() == Qt::StrongFocus, idx < items);
            QCOMPARE(slot->icon().isNull(), idx >= items);
        }
    }

    void shouldRefuseEveryInsertionWhenFull_data()
    {
        QTest::addColumn<int>("items");
        QTest::addColumn<bool>("full");
        QTest::newRow("59") << 59 << false;
        QTest::newRow("60") << 60 << true;
    }

    void shouldRefuseEveryInsertionWhenFull()
    {
        QFETCH(int, items);
        QFETCH(bool, full);
        fill(items);
        KeyItem* key = put(2, KAT_PASTE_STRING, QStringLiteral("kept?"));
        KeyItemGridView grid;
        grid.setFavoriteInserter([this](const KeyItem* item) {
            const bool kept = window->insertKeyItem(item);
            window->moveScrollbarToBottom();
            return kept;
        });

        QCOMPARE(dragIn(gridPayload(key), false), !full);
        QVERIFY(grid.updateContextMenuActions(2));
        grid.contextMenu()->action(KeyGridContextMenu::SaveAsFavorite)->trigger();
        // 59 took the key and is full now.
        QCOMPARE(favorites->count(), 60);
        QCOMPARE(window->insertKeyItem(key), false);
        bool dropAccepted = true;
        dragIn(gridPayload(key), true, &dropAccepted);
        QVERIFY(!dropAccepted);
        QCOMPARE(favorites->count(), 60);
        QCOMPARE(window->usageLabel()->styleSheet(), QStringLiteral("color: rgb(255,0,0);"));
        QCOMPARE(window->usageLabel()->text(), QStringLiteral("Usage: 60 / 60"));
    }

    void shouldShowTheUsageInLightGreyBelowTheLimit()
    {
        fill(3);
        QCOMPARE(window->usageLabel()->styleSheet(), QStringLiteral("color: rgb(242,242,242);"));
    }

    // A drop copies the key into the pad: the key keeps its item, the copy
    // belongs to no page or key, and the slot it fills is marked meanwhile.
    void shouldCopyAKeyDroppedFromTheGrid()
    {
        fill(2);
        KeyItem* key = put(4, KAT_PASTE_STRING, QStringLiteral("hello"));
        key->setTitle(0, QStringLiteral("Greeting"));

        std::unique_ptr<QMimeData> mime(gridPayload(key));
        QDragEnterEvent enter(slotCentre(0), Qt::MoveAction, mime.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &enter);
        QVERIFY(enter.isAccepted());
        QCOMPARE(window->slotButton(2)->property("state").toString(), QStringLiteral("true"));
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(window, &leave);
        QCOMPARE(window->slotButton(2)->property("state").toString(), QStringLiteral("false"));

        bool dropAccepted = false;
        dragIn(mime.release(), true, &dropAccepted);
        QVERIFY(dropAccepted);
        QCOMPARE(favorites->count(), 3);
        const KeyItem* copy = favorites->keyItems().at(2);
        QVERIFY(copy != key);
        QCOMPARE(copy->render[0].text, QStringLiteral("Greeting"));
        QCOMPARE(copy->keyIdx, -1);
        QCOMPARE(copy->parent, nullptr);
        QCOMPARE(copy->ownerList, nullptr);
        QCOMPARE(model->keyItemAt(4), key);
        QCOMPARE(window->slotButton(2)->toolTip(), QStringLiteral("Greeting\nText String: \u201chello\u201d"));
        QCOMPARE(window->slotButton(2)->accessibleName(), QStringLiteral("Greeting, Text String"));
    }

    void shouldRefuseBackKeysEmptyKeysAndItsOwnItems_data()
    {
        QTest::addColumn<QString>("what");
        QTest::newRow("back key") << "back key";
        QTest::newRow("empty key") << "empty key";
        QTest::newRow("a favourite") << "favourite";
    }

    void shouldRefuseBackKeysEmptyKeysAndItsOwnItems()
    {
        QFETCH(QString, what);
        fill(1);
        put(0, KAT_FOLDER);
        open(0);
        KeyItem* backKey = model->keyItemAt(14);
        QVERIFY(backKey && backKey->actionType == KAT_LINK_BUTTON);
        QList<KeyItem*> page;
        KeyItem empty(KAT_INVALID, 3, V_Key_15);
        empty.ownerList = &page;

        QMimeData* mime = nullptr;
        if (what == "back key")
            mime = gridPayload(backKey);
        else if (what == "empty key")
            mime = gridPayload(&empty);
        else
            mime = DragPayload::itemMimeData(DragPayload::FavoriteItemFormat, favorites->keyItems().at(0));
        bool dropAccepted = true;
        dragIn(mime, true, &dropAccepted);
        QVERIFY(!dropAccepted);
        QCOMPARE(favorites->count(), 1);
        QVERIFY(!window->insertKeyItem(what == "back key" ? backKey : &empty));
        QCOMPARE(favorites->count(), 1);
    }

    void shouldDockBesideTheMainWindowOnFirstShowThenRememberItsPlace()
    {
        mainWindow->setGeometry(100, 80, 400, 300);
        mainWindow->show();
        QVERIFY(QTest::qWaitForWindowExposed(mainWindow.get()));
        // Moves before the first show are no place of the user's.
        window->move(5, 5);
        QVERIFY(!settings->contains(SettingsKeys::FavoriteWindowPos));

        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        const QRect editor = mainWindow->frameGeometry();
        QCOMPARE(window->pos(), QPoint(editor.x() + editor.width() + 1, editor.y()));

        window->move(640, 120);
        QTRY_VERIFY_WITH_TIMEOUT(settings->contains(SettingsKeys::FavoriteWindowPos), 30000);
        window->bringWindowToFront();
        QVERIFY(window->isVisible());
        QVERIFY(!window->isMinimized());

        // The next run shows it where the user left it.
        delete window;
        window = new Favorite(favorites.get(), mainWindow.get());
        window->show();
        QTRY_COMPARE_WITH_TIMEOUT(window->pos(), QPoint(640, 120), 30000);
    }

    void shouldDeleteFromTheContextMenuAndTheKeyboard_data()
    {
        QTest::addColumn<QString>("how");
        QTest::newRow("right click") << "mouse";
        QTest::newRow("Menu key") << "menu key";
        QTest::newRow("Shift+F10") << "shift f10";
        QTest::newRow("Delete key") << "delete";
    }

    void shouldDeleteFromTheContextMenuAndTheKeyboard()
    {
        QFETCH(QString, how);
        fill(3);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        window->activateWindow();
        QToolButton* slot = window->slotButton(1);
        slot->setFocus();
        QTRY_VERIFY_WITH_TIMEOUT(slot->hasFocus(), 30000);

        if (how == "mouse") {
            const QPoint at = slotCentre(1);
            QContextMenuEvent event(QContextMenuEvent::Mouse, at, window->mapToGlobal(at));
            QCoreApplication::sendEvent(window, &event);
        } else if (how == "menu key") {
            QTest::keyClick(slot, Qt::Key_Menu);
        } else if (how == "shift f10") {
            QTest::keyClick(slot, Qt::Key_F10, Qt::ShiftModifier);
        } else {
            QTest::keyClick(slot, Qt::Key_Delete);
        }
        if (how != "delete") {
            QMenu* menu = window->contextMenu();
            QVERIFY(menu);
            QTRY_VERIFY_WITH_TIMEOUT(menu->isVisible(), 30000);
            QCOMPARE(menu->actions().size(), 1);
            QCOMPARE(menu->actions().at(0)->text(), QStringLiteral("&Delete"));
            QCOMPARE(menu->property("keyIdx").toInt(), 1);
            menu->actions().at(0)->trigger();
            menu->hide();
        }
        QCOMPARE(favorites->count(), 2);
        QCOMPARE(titleAt(0), QStringLiteral("fav 0"));
        QCOMPARE(titleAt(1), QStringLiteral("fav 2"));
        QCOMPARE(window->usageLabel()->text(), QStringLiteral("Usage: 2 / 60"));
    }

    void shouldOfferNoMenuOverAFreeSlot()
    {
        fill(1);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        const QPoint at = slotCentre(1);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, window->mapToGlobal(at));
        QCoreApplication::sendEvent(window, &event);
        QVERIFY(!window->contextMenu() || !window->contextMenu()->isVisible());
        QCOMPARE(window->isPosInButtonPad(at), -1);
        QCOMPARE(window->isPosInButtonPad(slotCentre(0)), 0);
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

    // Enter puts the focused favourite on the selected key; arrows move between favourites.
    void shouldWorkFromTheKeyboard()
    {
        fill(5);
        QList<const KeyItem*> activated;
        connect(window, &Favorite::favoriteActivated, this, [&](const KeyItem* item) { activated.append(item); });
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        window->activateWindow();
        window->slotButton(0)->setFocus();
        QTRY_VERIFY_WITH_TIMEOUT(window->slotButton(0)->hasFocus(), 30000);
        QTest::keyClick(window->slotButton(0), Qt::Key_Down);
        QVERIFY(window->slotButton(3)->hasFocus());
        QTest::keyClick(window->slotButton(3), Qt::Key_Right);
        QVERIFY(window->slotButton(4)->hasFocus());
        QTest::keyClick(window->slotButton(4), Qt::Key_Right);
        QVERIFY(window->slotButton(4)->hasFocus());
        QTest::keyClick(window->slotButton(4), Qt::Key_Return);
        QCOMPARE(activated, QList<const KeyItem*>{favorites->keyItems().at(4)});

        // Deleting the focused favourite leaves the focus in the pad.
        QTest::keyClick(window->slotButton(4), Qt::Key_Delete);
        QTRY_VERIFY_WITH_TIMEOUT(window->slotButton(3)->hasFocus(), 30000);
        QTest::keyClick(window->slotButton(3), Qt::Key_Escape);
        QVERIFY(!window->isVisible());
    }

    void shouldScrollToTheEndForANewFavorite()
    {
        fill(40);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        QScrollBar* bar = window->pad()->verticalScrollBar();
        bar->setValue(0);
        QVERIFY(window->insertKeyItem(put(1, KAT_PASTE_STRING)));
        window->moveScrollbarToBottom();
        QVERIFY(bar->maximum() > 0);
        QTRY_COMPARE_WITH_TIMEOUT(bar->value(), bar->maximum(), 30000);
        // The last favourite is in sight, the first is not.
        const QRect viewport(window->pad()->viewport()->mapTo(window, QPoint()), window->pad()->viewport()->size());
        QVERIFY(viewport.contains(slotCentre(40)));
        QCOMPARE(window->isPosInButtonPad(slotCentre(0)), -1);
        QCOMPARE(window->isPosInButtonPad(slotCentre(40)), 40);
    }
};

KEYSTAGE_TEST_MAIN(FavoriteTest)
#include "tst_favorite.moc"
