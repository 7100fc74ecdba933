#include "icongridpage.h"

#include "choosersearchfield.h"

#include <QLabel>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

namespace {
constexpr int GridSpacing = 6;
} // namespace

IconGridPage::IconGridPage(const QString& gridLabel, IconListModel::Painter painter, QWidget* parent) : QWidget(parent)
{
    m_model = new IconListModel(std::move(painter), TileSize, this);
    m_filter = new QSortFilterProxyModel(this);
    m_filter->setSourceModel(m_model);
    m_filter->setFilterRole(IconListModel::SearchRole);

    auto* layout = new QVBoxLayout(this);
    auto* searchLabel = new QLabel(tr("&Search:"), this);
    m_search = new ChooserSearchField(this);
    m_search->setPlaceholderText(tr("Type words of the name"));
    m_search->setAccessibleName(searchLabel->text().remove(QLatin1Char('&')));
    searchLabel->setBuddy(m_search);
    auto* searchRow = new QHBoxLayout;
    searchRow->addWidget(searchLabel);
    searchRow->addWidget(m_search, 1);
    layout->addLayout(searchRow);

    auto* caption = new QLabel(gridLabel, this);
    m_view = new QListView(this);
    m_view->setViewMode(QListView::IconMode);
    m_view->setMovement(QListView::Static);
    m_view->setResizeMode(QListView::Adjust);
    m_view->setUniformItemSizes(true);
    m_view->setLayoutMode(QListView::Batched);
    m_view->setIconSize(QSize(TileSize, TileSize));
    m_view->setGridSize(QSize(TileSize + GridSpacing, TileSize + GridSpacing));
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setModel(m_filter);
    m_view->setAccessibleName(QString(gridLabel).remove(QLatin1Char('&')));
    caption->setBuddy(m_view);
    m_search->setView(m_view);
    layout->addWidget(caption);
    layout->addWidget(m_view, 1);

    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("FormNote"));
    m_status->setWordWrap(true);
    layout->addWidget(m_status);

    connect(m_search, &QLineEdit::textChanged, this, &IconGridPage::applySearch);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, &IconGridPage::currentChanged);
    connect(m_view, &QListView::activated, this, &IconGridPage::activated);
}

void IconGridPage::setEntries(const QVector<IconListModel::Entry>& entries)
{
    m_model->setEntries(entries);
    ensureCurrent();
    m_status->setText(countText());
    emit currentChanged();
}

void IconGridPage::showStatus(const QString& text)
{
    m_statusText = text;
    m_status->setText(text);
}

int IconGridPage::shownCount() const
{
    return m_filter->rowCount();
}

QImage IconGridPage::currentImage() const
{
    const QModelIndex current = m_view->currentIndex();
    return current.isValid() ? m_model->image(m_filter->mapToSource(current).row()) : QImage();
}

QString IconGridPage::currentLabel() const
{
    return m_view->currentIndex().data(Qt::ToolTipRole).toString();
}

void IconGridPage::applySearch()
{
    m_model->dropPendingTiles();
    m_filter->setFilterRegularExpression(ChooserSearchField::pattern(m_search->text()));
    ensureCurrent();
    m_status->setText(countText());
    emit currentChanged();
}

// Enter takes the first match without a trip into the grid.
void IconGridPage::ensureCurrent()
{
    if (!m_view->currentIndex().isValid() && m_filter->rowCount() > 0)
        m_view->setCurrentIndex(m_filter->index(0, 0));
}

QString IconGridPage::countText() const
{
    if (m_model->rowCount() == 0)
        return m_statusText;
    if (m_filter->rowCount() == 0)
        return tr("Nothing matches the search.");
    return tr("%n shown", nullptr, m_filter->rowCount());
}
