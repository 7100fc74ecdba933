#pragma once

#include <QHash>
#include <QIcon>
#include <QModelIndex>
#include <QWidget>

class KA_Folder;
class KeyItem;
class KeyItemModel;
class QMouseEvent;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class TreeViewItemDelegate;

// The outline beside the key grid: a row per item of the current layout's
// root page, a child row per key of each folder, and a Home button. It
// follows the grid's selection; pressing a row takes the grid to that item.
class TreeView : public QWidget
{
    Q_OBJECT
public:
    static constexpr int KeyItemRole = Qt::UserRole;    // KeyItem* of the row
    static constexpr int FolderRole = Qt::UserRole + 1; // KA_Folder* of a folder row

    explicit TreeView(QWidget* parent = nullptr);
    ~TreeView() override;

    static const KeyItem* keyItemOf(const QModelIndex& index);
    static const KeyItem* keyItemOf(const QTreeWidgetItem* row);
    static KA_Folder* folderOf(const QModelIndex& index);
    // The row icon of an action type; empty, with a log line, for others.
    static QIcon iconForType(int actionType);

    QTreeWidget* treeWidget() const;
    QPushButton* homeButton() const;
    TreeViewItemDelegate* delegate() const;
    const KeyItem* currentKeyItem() const;
    QTreeWidgetItem* rowOf(const KeyItem* item) const;

    void setFolderKeyItemExpendFlag(QTreeWidgetItem* row, bool expanded);

signals:
    void treeItemChanged(const KeyItem* keyItem);

public slots:
    void onButtonIdxChanged(int keyIdx);
    void onUpdateContent(const KeyItem* item);
    void onPressedHomeItem(QWidget* widget = nullptr, QMouseEvent* event = nullptr);
    void on_treeWidget_pressed(const QModelIndex& index);
    void on_treeWidget_itemExpanded(QTreeWidgetItem* item);
    void on_treeWidget_itemCollapsed(QTreeWidgetItem* item);
    void on_pb_home_clicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildWidgets();
    QTreeWidgetItem* newRow(KeyItem* item);
    void addFolderChildren(QTreeWidgetItem* row, KA_Folder* folder);
    void setCurrent(const KeyItem* item);
    bool toggleFolderAt(const QPoint& pos);
    KeyItemModel* model() const;

    QTreeWidget* m_tree = nullptr;
    QPushButton* m_home = nullptr;
    TreeViewItemDelegate* m_delegate = nullptr;
    QHash<QTreeWidgetItem*, const KeyItem*> m_rows;
    const KeyItem* m_current = nullptr;
    bool m_rebuilding = false;
};
