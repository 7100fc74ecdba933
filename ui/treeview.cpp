#include "treeview.h"

#include "ka_folder.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "logging.h"
#include "objectregistry.h"
#include "treeviewitemdelegate.h"
#include "widgetlook.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int HomeIconSide = 16;

const char* const RowIcons[] = {"icn_folder", "icn_hotkey", "icn_macro", "icn_launch", "icn_website", "icn_textstring"};

} // namespace

TreeView::TreeView(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("TreeView"));
    setAttribute(Qt::WA_StyledBackground);
    buildWidgets();
}

TreeView::~TreeView() = default;

void TreeView::buildWidgets()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    //: The top page of the keypad, above every folder.
    m_home = new QPushButton(tr("Home"), this);
    m_home->setObjectName(QStringLiteral("pb_home"));
    m_home->setIcon(QIcon(WidgetLook::imagePath(QStringLiteral("icn_home"))));
    m_home->setIconSize(QSize(HomeIconSide, HomeIconSide));
    // Reached with Tab, not taken by a click; Enter presses it as Space does.
    m_home->setFocusPolicy(Qt::TabFocus);
    m_home->setAutoDefault(true);
    layout->addWidget(m_home);

    m_tree = new QTreeWidget(this);
    m_tree->setObjectName(QStringLiteral("treeWidget"));
    m_tree->setColumnCount(1);
    m_tree->header()->hide();
    // The delegate draws arrows and indents itself.
    m_tree->setIndentation(0);
    m_tree->setRootIsDecorated(false);
    m_tree->setUniformRowHeights(true);
    m_tree->setSelectionMode(QAbstractItemView::SingleSelection);
    m_tree->setFocusPolicy(Qt::TabFocus);
    m_tree->setAccessibleName(tr("Folder tree"));
    m_delegate = new TreeViewItemDelegate(m_tree);
    m_tree->setItemDelegate(m_delegate);
    m_tree->viewport()->installEventFilter(this);
    layout->addWidget(m_tree, 1);

    connect(m_home, &QPushButton::clicked, this, &TreeView::on_pb_home_clicked);
    connect(m_tree, &QTreeWidget::pressed, this, &TreeView::on_treeWidget_pressed);
    // Enter on the keyboard's row does what a press does.
    connect(m_tree, &QTreeWidget::activated, this, &TreeView::on_treeWidget_pressed);
    connect(m_tree, &QTreeWidget::itemExpanded, this, &TreeView::on_treeWidget_itemExpanded);
    connect(m_tree, &QTreeWidget::itemCollapsed, this, &TreeView::on_treeWidget_itemCollapsed);
}

// ---- look-ups ----

const KeyItem* TreeView::keyItemOf(const QModelIndex& index)
{
    return index.data(KeyItemRole).value<KeyItem*>();
}

const KeyItem* TreeView::keyItemOf(const QTreeWidgetItem* row)
{
    return row ? row->data(0, KeyItemRole).value<KeyItem*>() : nullptr;
}

KA_Folder* TreeView::folderOf(const QModelIndex& index)
{
    return index.data(FolderRole).value<KA_Folder*>();
}

QIcon TreeView::iconForType(int actionType)
{
    if (actionType < KAT_FOLDER || actionType > KAT_PASTE_STRING) {
        LOG_MSG(QStringLiteral("ERR: unsupport type in tree view: %1").arg(actionType));
        return QIcon();
    }
    return QIcon(WidgetLook::imagePath(QLatin1String(RowIcons[actionType])));
}

QTreeWidget* TreeView::treeWidget() const
{
    return m_tree;
}

QPushButton* TreeView::homeButton() const
{
    return m_home;
}

TreeViewItemDelegate* TreeView::delegate() const
{
    return m_delegate;
}

const KeyItem* TreeView::currentKeyItem() const
{
    return m_current;
}

QTreeWidgetItem* TreeView::rowOf(const KeyItem* item) const
{
    return item ? m_rows.key(item, nullptr) : nullptr;
}

KeyItemModel* TreeView::model() const
{
    return COMPONENT(KeyItemModel, ComponentId::KeyItemModel);
}

void TreeView::setCurrent(const KeyItem* item)
{
    m_current = item;
    m_delegate->setCurrentKeyItem(item);
    m_tree->viewport()->update();
}

// ---- building ----

QTreeWidgetItem* TreeView::newRow(KeyItem* item)
{
    auto* row = new QTreeWidgetItem;
    row->setData(0, KeyItemRole, QVariant::fromValue(item));
    row->setIcon(0, iconForType(item->actionType));
    row->setText(0, TreeViewItemDelegate::displayText(item)); // for keyboard search and accessibility
    m_rows.insert(row, item);
    return row;
}

void TreeView::addFolderChildren(QTreeWidgetItem* row, KA_Folder* folder)
{
    row->setData(0, FolderRole, QVariant::fromValue(folder));
    for (KeyItem* child : qAsConst(folder->childList))
        row->addChild(newRow(child));
}

void TreeView::onUpdateContent(const KeyItem* item)
{
    Q_UNUSED(item) // any change may move rows: the outline is rebuilt whole
    m_rebuilding = true;
    m_tree->clear();
    m_rows.clear();
    setCurrent(nullptr);
    KeyItemModel* keys = model();
    QList<KeyItem*>* list = keys ? keys->rootList(keys->currentLayout()) : nullptr;
    if (logMsgWhenRetFail(list != nullptr, QStringLiteral("got null key item list!!"))) {
        for (KeyItem* key : qAsConst(*list)) {
            QTreeWidgetItem* row = newRow(key);
            auto* folder = key->actionType == KAT_FOLDER ? qobject_cast<KA_Folder*>(key->action[0]) : nullptr;
            if (folder)
                addFolderChildren(row, folder);
            m_tree->addTopLevelItem(row);
            // The folder remembers how the user left it.
            if (folder)
                row->setExpanded(folder->isExpend);
        }
    }
    m_rebuilding = false;
}

// ---- selection ----

void TreeView::onButtonIdxChanged(int keyIdx)
{
    KeyItemModel* keys = model();
    const KeyItem* item = keys ? keys->keyItemAt(keyIdx) : nullptr;
    QTreeWidgetItem* row = rowOf(item);
    if (!row) {
        m_tree->setCurrentItem(nullptr);
        m_tree->clearSelection();
        setCurrent(nullptr);
        return;
    }
    m_tree->setCurrentItem(row);
    row->setSelected(true);
    setCurrent(item);
}

void TreeView::on_treeWidget_pressed(const QModelIndex& index)
{
    const KeyItem* item = keyItemOf(index);
    if (!item || item == m_current)
        return;
    setCurrent(item);
    emit treeItemChanged(item);
}

// ---- folders ----

void TreeView::setFolderKeyItemExpendFlag(QTreeWidgetItem* row, bool expanded)
{
    const KeyItem* item = m_rows.value(row, nullptr);
    auto* folder = item && item->actionType == KAT_FOLDER ? qobject_cast<KA_Folder*>(item->action[0]) : nullptr;
    if (!logMsgWhenRetFail(folder != nullptr, QStringLiteral("should be KAT_FOLDER but not!")))
        return;
    folder->isExpend = expanded;
}

void TreeView::on_treeWidget_itemExpanded(QTreeWidgetItem* item)
{
    // Rows are opened during a rebuild to match the flags; that is no user
    // choice to store.
    if (!m_rebuilding)
        setFolderKeyItemExpendFlag(item, true);
}

void TreeView::on_treeWidget_itemCollapsed(QTreeWidgetItem* item)
{
    if (!m_rebuilding)
        setFolderKeyItemExpendFlag(item, false);
}

// A press on a folder's arrow opens or closes it and goes no further.
bool TreeView::toggleFolderAt(const QPoint& pos)
{
    QTreeWidgetItem* row = m_tree->itemAt(pos);
    if (!row || !row->data(0, FolderRole).value<KA_Folder*>())
        return false;
    if (!TreeViewItemDelegate::arrowRect(m_tree->visualItemRect(row)).contains(pos))
        return false;
    row->setExpanded(!row->isExpanded());
    return true;
}

bool TreeView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_tree->viewport() && event->type() == QEvent::MouseButtonPress) {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() == Qt::LeftButton && toggleFolderAt(mouse->pos()))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

// ---- home ----

void TreeView::on_pb_home_clicked()
{
    KeyItemModel* keys = model();
    if (!keys)
        return;
    keys->beginUpdate();
    keys->changeListToRoot();
    keys->endUpdate(true);
}

void TreeView::onPressedHomeItem(QWidget* widget, QMouseEvent* event)
{
    Q_UNUSED(widget)
    if (event && event->button() != Qt::LeftButton)
        return;
    on_pb_home_clicked();
}
