#include "actionlist.h"
#include "formarea.h"
#include "keyitem.h"
#include "keyitemform.h"
#include "keyitemgridview.h"
#include "keyitemmodel.h"
#include "mainwindow.h"
#include "testmain.h"
#include "treeview.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QSettings>
#include <QTreeWidget>

// The editor with the keyboard alone: every key goes to the window as the
// window system would send it, to whatever has the focus.
class MainWindowKeyboardTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QSettings> settings;
    std::unique_ptr<MainWindow> window;

    void press(int qtKey, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window->windowHandle(), Qt::Key(qtKey), modifiers);
    }

    static QWidget* focused() { return QApplication::focusWidget(); }

    // The editor's part holding the focus: 0 grid, 1 palette, 2 form, 3 tree, 4 title bar.
    int partOfFocus() const
    {
        const QVector<QWidget*> parts = {window->keyGrid(), window->actionList(), window->formArea(),
                                         window->treeView()};
        for (int idx = 0; idx < parts.size(); ++idx) {
            if (focused() == parts.at(idx) || parts.at(idx)->isAncestorOf(focused()))
                return idx;
        }
        return focused() && focused()->objectName().startsWith(QStringLiteral("SystemBtn_")) ? 4 : -1;
    }

private slots:
    void init()
    {
        settings = std::make_unique<QSettings>();
        window = std::make_unique<MainWindow>(settings.get(), false);
        window->keyItemModel()->resetKeyItemsToDefault();
        window->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QTRY_COMPARE_WITH_TIMEOUT(focused(), window->keyGrid(), 30000);
    }

    void cleanup()
    {
        window.reset();
        settings.reset();
    }

    void shouldCreateAndEditAKeyWithTheKeyboardAlone()
    {
        KeyItemModel* model = window->keyItemModel();
        const int key = window->keyGrid()->keyButtonCount() - 2; // the defaults leave it empty
        press(Qt::Key_End);
        press(Qt::Key_Left);
        QCOMPARE(window->keyGrid()->selectedKeyIdx(), key);
        QVERIFY(!model->keyItemAt(key));

        press(Qt::Key_Return); // an empty key has no form: on to the palette
        QCOMPARE(focused(), window->actionList());
        press(Qt::Key_Right);
        press(Qt::Key_Return);
        QCOMPARE(model->actionTypeAt(key), int(KAT_HOTKEY));
        QCOMPARE(focused(), window->keyGrid());
        QCOMPARE(window->keyGrid()->selectedKeyIdx(), key);

        press(Qt::Key_Return);
        KeyItemForm* form = window->formArea()->keyForm();
        QVERIFY(form && form->isAncestorOf(focused()));
        for (int tabs = 0; focused() != form->titleField() && tabs < 20; ++tabs)
            press(Qt::Key_Tab);
        QCOMPARE(focused(), form->titleField());
        for (char typed : {'M', 'u', 't', 'e'})
            QTest::keyClick(window->windowHandle(), typed);
        QCOMPARE(model->keyItemAt(key)->render[0].text, QStringLiteral("Mute"));

        // The palette's Enter drops as a drag does: never onto a taken key.
        for (int tabs = 0; focused() != window->actionList() && tabs < 20; ++tabs)
            press(Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(focused(), window->actionList());
        press(Qt::Key_Home);
        press(Qt::Key_Space);
        QCOMPARE(model->actionTypeAt(key), int(KAT_HOTKEY));
        QCOMPARE(model->keyItemAt(key)->render[0].text, QStringLiteral("Mute"));
    }

    void shouldTabRoundTheEditorsPartsInOrder()
    {
        press(Qt::Key_Home); // "Copy": a key with a form
        QVector<int> visited = {partOfFocus()};
        for (int tabs = 0; tabs < 40 && (tabs == 0 || focused() != window->keyGrid()); ++tabs) {
            press(Qt::Key_Tab);
            if (partOfFocus() != visited.constLast())
                visited << partOfFocus();
        }
        QCOMPARE(visited, QVector<int>({0, 1, 2, 3, 4, 0}));
        press(Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(focused(), static_cast<QWidget*>(window->findChild<QWidget*>(QStringLiteral("SystemBtn_Close"))));
    }

    void shouldOpenAFolderFromTheTreeWithEnter()
    {
        KeyItemModel* model = window->keyItemModel();
        QTreeWidget* tree = window->treeView()->treeWidget();
        QTRY_COMPARE_WITH_TIMEOUT(tree->topLevelItemCount(), 3, 30000); // Copy, Paste, Media
        for (int tabs = 0; focused() != tree && tabs < 40; ++tabs)
            press(Qt::Key_Tab);
        QCOMPARE(focused(), tree);
        press(Qt::Key_Home);
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        QCOMPARE(tree->currentItem()->text(0), QStringLiteral("Media"));
        press(Qt::Key_Return);
        QVERIFY(!model->isRootList());
    }
};

KEYSTAGE_TEST_MAIN(MainWindowKeyboardTest)
#include "tst_mainwindowkeyboard.moc"
