#pragma once

#include <QPixmap>
#include <QStyledItemDelegate>

class KeyItem;

// Paints the folder tree's rows: a dark band (lighter for the current item),
// the folder arrow, the action icon and the title.
class TreeViewItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    static constexpr int IconSide = 16;
    static constexpr int ArrowX = 20;
    static constexpr int RowHeight = 28;
    static constexpr int TextGap = 6;

    explicit TreeViewItemDelegate(QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    void setCurrentKeyItem(const KeyItem* item);
    const KeyItem* currentKeyItem() const;

    // The title of the item's shown face, or the palette name of its type.
    static QString displayText(const KeyItem* item);
    // Where the parts of a row go, from the row's rectangle.
    static QRect arrowRect(const QRect& row);
    static QRect iconRect(const QRect& row, bool childRow);
    static QRect textRect(const QRect& row, bool childRow);

private:
    static int iconTop(const QRect& row);

    const KeyItem* m_current = nullptr;
    QPixmap m_arrowDown;
    QPixmap m_arrowRight;
};
