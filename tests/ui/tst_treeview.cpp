#include "buttonlayoutconfig.h"
#include "ka_folder.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "keymodelfixture.h"
#include "metatypes.h"
#include "objectregistry.h"
#include "settings.h"
#include "testmain.h"
#include "treeview.h"
#include "treeviewitemdelegate.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTreeWidget>

// Root page: a hotkey titled "Copy" at key 0 and an untitled folder at key 3
// holding its back key and a macro at key 0.
class TreeViewTest : public QObject, KeyModelFixture
{
    Q_OBJECT

private slots:
    void initTestCase() { registerModelMetaTypes(); }

    void init()
    {
        setUp();
        model->changeLayoutButtonView(V_Key_15);
        QVERIFY(model->createKeyAction(0, KAT_HOTKEY));
        model->keyItemAt(0)->setTitle(0, QStringLiteral("Copy"));
        QVERIFY(model->createKeyAction(3, KAT_FOLDER));
        enterFolder();
        QVERIFY(model->createKeyAction(0, KAT_MACROKEY));
        model->changeListToRoot();

        view = std::make_unique<TreeView>();
        connect(model.get(), &KeyItemModel::updateContent, view.get(), &TreeView::onUpdateContent);
        view->show();
        QVERIFY(QTest::qWaitForWindowExposed(view.get()));
        view->onUpdateContent(nullptr);
    }

    void cleanup()
    {
        view.reset();
        tearDown();
    }

    void shouldListTheRootPageWithFolderChildren()
    {
        QCOMPARE(view->treeWidget()->topLevelItemCount(), 2);
        QCOMPARE(textOf(view->treeWidget()->topLevelItem(0)), QStringLiteral("Copy"));
        QCOMPARE(textOf(folderRow()), QStringLiteral("Folder"));
        QCOMPARE(folderRow()->childCount(), 2);
        for (int i = 0; i < 2; ++i)
            QCOMPARE(TreeView::keyItemOf(folderRow()->child(i)), folder()->childList.at(i));
    }

    void shouldKeepTheFolderStateAcrossRebuilds()
    {
        view->treeWidget()->expandItem(folderRow());
        view->onUpdateContent(nullptr);
        QVERIFY(folderRow()->isExpanded());
        view->treeWidget()->collapseItem(folderRow());
        view->onUpdateContent(nullptr);
        QVERIFY(!folderRow()->isExpanded());
        QVERIFY(!folder()->isExpend);
    }

    void shouldFollowTheGridSelectionOnEveryPage()
    {
        view->onButtonIdxChanged(3);
        QCOMPARE(view->treeWidget()->currentItem(), folderRow());
        enterFolder();
        view->onButtonIdxChanged(0);
        QCOMPARE(view->treeWidget()->currentItem(), view->rowOf(model->keyItemAt(0)));
        QCOMPARE(view->treeWidget()->currentItem()->parent(), folderRow());
        view->onButtonIdxChanged(5);
        QVERIFY(!view->treeWidget()->currentItem());
        QVERIFY(!view->currentKeyItem());
    }

    void shouldSignalOnlyARowOtherThanTheCurrent()
    {
        QSignalSpy changed(view.get(), &TreeView::treeItemChanged);
        view->onButtonIdxChanged(0);
        pressRow(view->treeWidget()->topLevelItem(0), 100);
        QCOMPARE(changed.count(), 0);
        pressRow(folderRow(), 100);
        pressRow(folderRow(), 100);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).value<const KeyItem*>(), model->keyItemAt(3));

        pressRow(folderRow(), TreeViewItemDelegate::ArrowX + 4); // the arrow opens, nothing else
        QVERIFY(folder()->isExpend);
        QCOMPARE(changed.count(), 1);
    }

    void shouldPaintTheCurrentRowLighterFromTheLeftEdge()
    {
        view->onButtonIdxChanged(0);
        const QImage image = view->treeWidget()->viewport()->grab().toImage();
        const QRect first = view->treeWidget()->visualItemRect(view->treeWidget()->topLevelItem(0));
        QCOMPARE(image.pixelColor(0, first.center().y()), QColor(89, 96, 110));
        QCOMPARE(image.pixelColor(0, first.center().y() + first.height()), QColor(47, 58, 76));
    }

    void shouldGoHomeFromAFolder()
    {
        enterFolder();
        QSignalSpy updated(model.get(), &KeyItemModel::updateContent);
        view->homeButton()->click();
        QVERIFY(model->isRootList());
        QCOMPARE(updated.count(), 1);
    }

private:
    KA_Folder* folder() const { return static_cast<KA_Folder*>(model->rootList(V_Key_15)->at(1)->action[0]); }
    QTreeWidgetItem* folderRow() const { return view->treeWidget()->topLevelItem(1); }
    void enterFolder() { model->changeListHead(folder(), &folder()->childList); }
    static QString textOf(QTreeWidgetItem* row) { return TreeViewItemDelegate::displayText(TreeView::keyItemOf(row)); }

    void pressRow(QTreeWidgetItem* row, int x)
    {
        const QPoint pos(x, view->treeWidget()->visualItemRect(row).center().y());
        QTest::mouseClick(view->treeWidget()->viewport(), Qt::LeftButton, {}, pos);
    }

    std::unique_ptr<TreeView> view;
};

KEYSTAGE_TEST_MAIN(TreeViewTest)
#include "tst_treeview.moc"
