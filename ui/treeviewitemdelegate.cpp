#include "treeviewitemdelegate.h"

#include "actionlist.h"
#include "ka_folder.h"
#include "keyitem.h"
#include "treeview.h"
#include "widgetlook.h"

#include <QPainter>

namespace {

const QColor RowFill(47, 58, 76);
const QColor CurrentRowFill(89, 96, 110);
// Used when the style gives no colour that reads on the dark rows.
const QColor FallbackText(226, 230, 236);
// The keyboard's row, in the colour of every keyboard focus frame.
const QColor KeyboardFocusFrame(255, 196, 61);
constexpr int KeyboardFocusWidth = 2;

QColor textColor(const QStyleOptionViewItem& option)
{
    const QColor fromStyle = option.palette.color(QPalette::Text);
    return fromStyle.lightness() >= 128 ? fromStyle : FallbackText;
}

} // namespace

TreeViewItemDelegate::TreeViewItemDelegate(QObject* parent)
    : QStyledItemDelegate(parent), m_arrowDown(WidgetLook::imagePath(QStringLiteral("icn_arrow_down"))),
      m_arrowRight(WidgetLook::imagePath(QStringLiteral("icn_arrow_right")))
{
}

void TreeViewItemDelegate::setCurrentKeyItem(const KeyItem* item)
{
    m_current = item;
}

const KeyItem* TreeViewItemDelegate::currentKeyItem() const
{
    return m_current;
}

QString TreeViewItemDelegate::displayText(const KeyItem* item)
{
    if (!item)
        return QString();
    // A title of two lines is one line here.
    const QString title = item->currentRender().text.simplified();
    return title.isEmpty() ? ActionList::actionName(item->actionType) : title;
}

int TreeViewItemDelegate::iconTop(const QRect& row)
{
    return row.top() + (row.height() - IconSide) / 2;
}

QRect TreeViewItemDelegate::arrowRect(const QRect& row)
{
    return QRect(ArrowX, iconTop(row), IconSide, IconSide);
}

QRect TreeViewItemDelegate::iconRect(const QRect& row, bool childRow)
{
    const int indent = childRow ? IconSide - IconSide / 3 : 0;
    return QRect(IconSide + 26 + indent, iconTop(row), IconSide, IconSide);
}

QRect TreeViewItemDelegate::textRect(const QRect& row, bool childRow)
{
    const int left = iconRect(row, childRow).right() + 1 + TextGap;
    return QRect(left, row.top(), qMax(0, row.right() + 1 - left), row.height());
}

void TreeViewItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const KeyItem* item = TreeView::keyItemOf(index);
    const KA_Folder* folder = TreeView::folderOf(index);
    const bool childRow = index.parent().isValid();
    // Rows start at the left edge: the tree has no indentation of its own.
    const QRect row(0, option.rect.top(), option.rect.right() + 1, option.rect.height());

    painter->save();
    painter->fillRect(row, item && item == m_current ? CurrentRowFill : RowFill);
    if (folder) {
        const QPixmap& arrow = folder->isExpend ? m_arrowDown : m_arrowRight;
        if (!arrow.isNull())
            painter->drawPixmap(arrowRect(row), arrow);
    }
    const QIcon icon = index.data(Qt::DecorationRole).value<QIcon>();
    if (!icon.isNull())
        icon.paint(painter, iconRect(row, childRow));

    const QRect textArea = textRect(row, childRow);
    painter->setFont(option.font);
    painter->setPen(textColor(option));
    const QString text = option.fontMetrics.elidedText(displayText(item), Qt::ElideRight, textArea.width());
    painter->drawText(textArea, Qt::AlignLeft | Qt::AlignVCenter, text);
    if (option.state & QStyle::State_HasFocus) {
        painter->setPen(QPen(KeyboardFocusFrame, KeyboardFocusWidth));
        painter->setBrush(Qt::NoBrush);
        const int inset = KeyboardFocusWidth / 2;
        painter->drawRect(row.adjusted(inset, inset, -inset - 1, -inset - 1));
    }
    painter->restore();
}

QSize TreeViewItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    Q_UNUSED(index)
    return QSize(option.rect.width(), RowHeight);
}
