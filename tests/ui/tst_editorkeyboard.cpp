#include "actionlist.h"
#include "clicklabel.h"
#include "keygridcontextmenu.h"
#include "keyitemgridview.h"
#include "keymodelfixture.h"
#include "testmain.h"

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

namespace {

// layout, selected key before, Qt key, selected key after
using Move = std::tuple<int, int, int, int>;

QAccessibleInterface* accessible(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

QString nameOf(QWidget* widget)
{
    return accessible(widget)->text(QAccessible::Name);
}

} // namespace

Q_DECLARE_METATYPE(Move)

// The key grid and the palette from the keyboard, and as assistive
// technology sees them.
class EditorKeyboardTest : public QObject, KeyModelFixture
{
    Q_OBJECT

    std::unique_ptr<QWidget> window;
    KeyItemGridView* grid = nullptr;

private slots:
    void init()
    {
        setUp();
        window = std::make_unique<QWidget>();
        grid = new KeyItemGridView(window.get());
        connect(model.get(), &KeyItemModel::updateContent, grid, &KeyItemGridView::onUpdateContent);
        window->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }

    void cleanup()
    {
        window.reset();
        tearDown();
    }

    // Every move and edge once; row lengths of 2, 3 and 5 keys (the grid shapes come from one table).
    void shouldMoveTheSelectionByRowsAndColumns_data()
    {
        QTest::addColumn<Move>("row");
        QTest::newRow("6: none selected starts at the first") << Move{H_Key_6, -1, Qt::Key_Down, 0};
        QTest::newRow("6: right") << Move{H_Key_6, 1, Qt::Key_Right, 2};
        QTest::newRow("6: no wrap at the row's end") << Move{H_Key_6, 2, Qt::Key_Right, 2};
        QTest::newRow("6: down a row") << Move{H_Key_6, 1, Qt::Key_Down, 4};
        QTest::newRow("6: not below the last row") << Move{H_Key_6, 4, Qt::Key_Down, 4};
        QTest::newRow("6 upright: down a row") << Move{V_Key_6, 1, Qt::Key_Down, 3};
        QTest::newRow("6 upright: left") << Move{V_Key_6, 5, Qt::Key_Left, 4};
        QTest::newRow("6 upright: no wrap at the row's start") << Move{V_Key_6, 4, Qt::Key_Left, 4};
        QTest::newRow("15: up a row") << Move{H_Key_15, 12, Qt::Key_Up, 7};
        QTest::newRow("15: last key") << Move{H_Key_15, 3, Qt::Key_End, 14};
        QTest::newRow("15 upright: not above the first row") << Move{V_Key_15, 2, Qt::Key_Up, 2};
        QTest::newRow("32: first key") << Move{H_Key_32, 30, Qt::Key_Home, 0};
    }

    void shouldMoveTheSelectionByRowsAndColumns()
    {
        QFETCH(Move, row);
        const auto& [layout, before, qtKey, after] = row;
        layouts.changeLayout(KeyLayout(layout));
        grid->changeLayoutButtonView(KeyLayout(layout));
        if (before >= 0)
            grid->cancelPreviousAndThenSelectKeyButton(before);
        QSignalSpy selected(grid, &KeyItemGridView::buttonIdxChanged);
        QTest::keyClick(grid, Qt::Key(qtKey));
        QCOMPARE(grid->selectedKeyIdx(), after);
        QCOMPARE(selected.size(), after == before ? 0 : 1);
    }

    void shouldOpenFoldersWithEnterAndOtherwiseAskForTheForm()
    {
        put(2, KAT_FOLDER);
        put(3, KAT_HOTKEY);
        grid->refreshAllKeys();
        QSignalSpy formWanted(grid, &KeyItemGridView::formFocusWanted);
        QTest::keyClick(grid, Qt::Key_Home);
        QTest::keyClick(grid, Qt::Key_Return); // an empty key: its form is the palette
        QCOMPARE(formWanted.size(), 1);
        QTest::keyClick(grid, Qt::Key_Right);
        QTest::keyClick(grid, Qt::Key_Right);
        QTest::keyClick(grid, Qt::Key_Enter, Qt::KeypadModifier);
        QVERIFY(!model->isRootList());
        QCOMPARE(grid->selectedKeyIdx(), -1);
        QTest::keyClick(grid, Qt::Key_End); // the back key
        QCOMPARE(model->actionTypeAt(14), int(KAT_LINK_BUTTON));
        QTest::keyClick(grid, Qt::Key_Return);
        QVERIFY(model->isRootList());
        grid->cancelPreviousAndThenSelectKeyButton(3);
        QTest::keyClick(grid, Qt::Key_Return);
        QVERIFY(model->isRootList());
        QCOMPARE(formWanted.size(), 2);
    }

    void shouldOpenTheContextMenuFromTheKeyboard_data()
    {
        QTest::addColumn<int>("qtKey");
        QTest::addColumn<int>("modifiers");
        QTest::newRow("Menu") << int(Qt::Key_Menu) << int(Qt::NoModifier);
        QTest::newRow("Shift+F10") << int(Qt::Key_F10) << int(Qt::ShiftModifier);
    }

    void shouldOpenTheContextMenuFromTheKeyboard()
    {
        QFETCH(int, qtKey);
        QFETCH(int, modifiers);
        put(4, KAT_HOTKEY);
        grid->cancelPreviousAndThenSelectKeyButton(4);
        QTest::keyClick(grid, Qt::Key(qtKey), Qt::KeyboardModifiers(modifiers));
        KeyGridContextMenu* menu = grid->contextMenu();
        QTRY_VERIFY_WITH_TIMEOUT(menu->isVisible(), 30000);
        QCOMPARE(menu->keyIdx(), 4);
        QVERIFY(menu->geometry().contains(grid->keyButton(4)->mapToGlobal(grid->keyButton(4)->rect().center())));
        QVERIFY(menu->isShown(KeyGridContextMenu::Copy));
        menu->close();
    }

    void shouldFrameTheKeyboardsKeyOnlyAfterKeyboardUse()
    {
        const auto frame = [](QWidget* widget) { return widget->property("keyboardFocus").toBool(); };
        QVERIFY(!frame(grid)); // the window's first focus is no keyboard use
        grid->clearFocus();
        grid->setFocus(Qt::TabFocusReason);
        QVERIFY(frame(grid)); // no key yet: the whole grid
        QTest::keyClick(grid, Qt::Key_Right);
        QVERIFY(!frame(grid) && frame(grid->keyButton(0)));
        QTest::keyClick(grid, Qt::Key_Right);
        QVERIFY(!frame(grid->keyButton(0)) && frame(grid->keyButton(1)));
        QTest::mouseClick(grid->keyButton(5), Qt::LeftButton);
        QCOMPARE(grid->selectedKeyIdx(), 5);
        QVERIFY(!frame(grid->keyButton(5)) && !frame(grid->keyButton(1)));
    }

    void shouldNameEachKeyByNumberTitleAndType()
    {
        put(2, KAT_FOLDER)->setTitle(0, QStringLiteral("Media\nkeys"));
        put(3, KAT_HOTKEY);
        model->beginUpdate();
        model->endUpdate(true);
        grid->refreshAllKeys();
        QCOMPARE(nameOf(grid->keyButton(2)), QStringLiteral("Key 3: Media keys, Folder"));
        QCOMPARE(nameOf(grid->keyButton(3)), QStringLiteral("Key 4: Hotkey"));
        QCOMPARE(nameOf(grid->keyButton(6)), QStringLiteral("Key 7: empty"));
        QCOMPARE(accessible(grid->keyButton(3))->role(), QAccessible::Button);

        // A changed title is a changed name.
        model->beginUpdate();
        model->keyItemAt(3)->setTitle(0, QStringLiteral("Copy"));
        model->endUpdate(true);
        QCOMPARE(nameOf(grid->keyButton(3)), QStringLiteral("Key 4: Copy, Hotkey"));
        open(2);
        QCOMPARE(nameOf(grid->keyButton(14)), QStringLiteral("Key 15: Back"));
    }

    void shouldExposeAndPressTheSelectedKey()
    {
        QSignalSpy selected(grid, &KeyItemGridView::buttonIdxChanged);
        QAccessibleInterface* key = accessible(grid->keyButton(5));
        QVERIFY(!key->state().selected && key->state().selectable && key->state().focusable);
        key->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(grid->selectedKeyIdx(), 5);
        QCOMPARE(selected.size(), 1);
        QVERIFY(key->state().selected);
        grid->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY_WITH_TIMEOUT(key->state().focused, 30000);
        QCOMPARE(accessible(grid)->focusChild(), key);
        QVERIFY(!accessible(grid->keyButton(4))->state().focused);
    }

    void shouldMoveAndActivateInThePalette()
    {
        ActionList palette;
        QSignalSpy activated(&palette, &ActionList::entryActivated);
        QSignalSpy selected(&palette, &ActionList::actionItemSelected);
        QTest::keyClick(&palette, Qt::Key_Left); // stays on the first entry
        QTest::keyClick(&palette, Qt::Key_Right);
        QTest::keyClick(&palette, Qt::Key_Return);
        QTest::keyClick(&palette, Qt::Key_End);
        QTest::keyClick(&palette, Qt::Key_Right); // stays on the last
        QTest::keyClick(&palette, Qt::Key_Space);
        palette.setEntryEnabled(5, false);
        QTest::keyClick(&palette, Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(activated.size(), 2);
        QCOMPARE(activated.at(0).at(0).toInt(), int(KAT_HOTKEY));
        QCOMPARE(activated.at(1).at(0).toInt(), int(KAT_PASTE_STRING));
        QVERIFY(selected.isEmpty()); // moving and activating select nothing by themselves
    }

    void shouldNameThePalettesButtonsByTheirToolTips()
    {
        ActionList palette;
        QStringList names;
        for (int idx = 0; idx < ActionList::EntryCount; ++idx) {
            QCOMPARE(accessible(palette.entryLabel(idx))->role(), QAccessible::Button);
            names << nameOf(palette.entryLabel(idx));
        }
        names << nameOf(palette.settingsButton()) << nameOf(palette.favoriteButton());
        QCOMPARE(names, QStringList({"Folder", "Hotkey", "Macro", "Launch", "Website", "Text String", "Settings",
                                     "My Favorite"}));
        QSignalSpy selected(&palette, &ActionList::actionItemSelected);
        accessible(palette.entryLabel(4))->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(selected.size(), 1);
        QVERIFY(accessible(palette.entryLabel(4))->state().selected);
    }

    void shouldNameAndPressPictureButtons()
    {
        ClickLabel label;
        label.setToolTip(QStringLiteral("Close"));
        QSignalSpy clicked(&label, &ClickLabel::mouseClicked);
        QCOMPARE(nameOf(&label), QStringLiteral("Close"));
        QCOMPARE(accessible(&label)->role(), QAccessible::Button);
        QTest::keyClick(&label, Qt::Key_Space);
        QTest::keyClick(&label, Qt::Key_Return);
        accessible(&label)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QTRY_COMPARE_WITH_TIMEOUT(clicked.size(), 3, 30000);

        QLineEdit field(QStringLiteral("text"));
        field.setClearButtonEnabled(true);
        auto* clear = field.findChild<QToolButton*>();
        QVERIFY(clear);
        QCOMPARE(nameOf(clear), QStringLiteral("Clear"));
        accessible(clear)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QTRY_VERIFY_WITH_TIMEOUT(field.text().isEmpty(), 30000);
    }
};

KEYSTAGE_TEST_MAIN(EditorKeyboardTest)
#include "tst_editorkeyboard.moc"
