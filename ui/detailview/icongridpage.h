#pragma once

#include "iconlistmodel.h"

#include <QWidget>

class ChooserSearchField;
class QLabel;
class QListView;
class QSortFilterProxyModel;

// One source of the icon chooser that offers a grid: a search field that
// filters the grid as you type (Up, Down, Page Up and Page Down move through
// the grid from the field), the grid of pictures and a status line.
class IconGridPage : public QWidget
{
    Q_OBJECT
public:
    static constexpr int TileSize = 48;

    IconGridPage(const QString& gridLabel, IconListModel::Painter painter, QWidget* parent = nullptr);

    void setEntries(const QVector<IconListModel::Entry>& entries);
    void showStatus(const QString& text);

    // The picture for userImg of the current entry; null when there is none.
    QImage currentImage() const;
    QString currentLabel() const;

    ChooserSearchField* searchField() const { return m_search; }
    QListView* view() const { return m_view; }
    QLabel* statusLabel() const { return m_status; }
    int shownCount() const;

signals:
    void currentChanged();
    // Enter or a double click on an entry.
    void activated();

private:
    void applySearch();
    void ensureCurrent();
    QString countText() const;

    IconListModel* m_model = nullptr;
    QSortFilterProxyModel* m_filter = nullptr;
    ChooserSearchField* m_search = nullptr;
    QListView* m_view = nullptr;
    QLabel* m_status = nullptr;
    QString m_statusText;
};
