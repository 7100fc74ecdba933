#include "bookmarkchooser.h"

#include "choosersearchfield.h"
#include "querycache.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QMap>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int BookmarkRole = Qt::UserRole + 1;

QStandardItem* groupItem(const QString& browser)
{
    auto* item = new QStandardItem(browser);
    QFont bold = item->font();
    bold.setBold(true);
    item->setFont(bold);
    item->setSelectable(false);
    return item;
}

} // namespace

BookmarkChooser::BookmarkChooser(QWidget* parent, QueryCache* cache) : ChooserDialog(cache, parent)
{
    setWindowTitle(tr("Choose Bookmark"));

    m_tree = new QTreeView(this);
    addSearchableView(m_tree, tr("&Bookmarks:"));
    m_filter->setRecursiveFilteringEnabled(true);
    m_tree->setUniformRowHeights(true);
    addStatusRow();

    m_useTitle = new QCheckBox(tr("&Use the page title as the key title"), this);
    m_useTitle->setChecked(true);
    nameAfterLabel(m_useTitle, m_useTitle->text());
    m_layout->addWidget(m_useTitle);

    addButtons();
    resize(640, 560);

    connect(m_tree, &QTreeView::activated, this, [this] {
        if (currentBookmark() >= 0)
            accept();
    });
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this, &BookmarkChooser::updateAcceptance);
    connect(m_cache, &QueryCache::started, this, [this](QueryCache::Query query) {
        if (query == QueryCache::Bookmarks)
            showBusy();
    });
    connect(m_cache, &QueryCache::finished, this, [this](QueryCache::Query query) {
        if (query == QueryCache::Bookmarks)
            showResult();
    });
    showResult();
    m_search->setFocus();
}

BookmarkChooser::~BookmarkChooser() = default;

int BookmarkChooser::currentBookmark() const
{
    const QVariant index = m_tree->currentIndex().siblingAtColumn(0).data(BookmarkRole);
    return index.isValid() && index.toInt() < m_bookmarks.size() ? index.toInt() : -1;
}

Bookmark BookmarkChooser::selectedBookmark() const
{
    const int index = currentBookmark();
    return result() == Accepted && index >= 0 ? m_bookmarks[index] : Bookmark();
}

bool BookmarkChooser::usePageTitle() const
{
    return m_useTitle->isChecked();
}

void BookmarkChooser::showBusy()
{
    ChooserDialog::showBusy(tr("Reading the browsers' bookmarks…"));
}

void BookmarkChooser::refresh()
{
    m_cache->refresh(QueryCache::Bookmarks);
}

void BookmarkChooser::showResult()
{
    m_cache->request(QueryCache::Bookmarks);
    const bool busy = m_cache->isRunning(QueryCache::Bookmarks);
    if (busy)
        showBusy();
    m_bookmarks = m_cache->bookmarks();
    m_model->clear();
    //: Column header: the name of a browser bookmark.
    m_model->setHorizontalHeaderLabels({tr("Title"), tr("Address")});
    QMap<QString, QStandardItem*> groups;
    for (int i = 0; i < m_bookmarks.size(); ++i) {
        const Bookmark& bookmark = m_bookmarks[i];
        QStandardItem*& group = groups[bookmark.browser];
        if (!group) {
            group = groupItem(bookmark.browser);
            m_model->appendRow({group, new QStandardItem});
        }
        auto* title = new QStandardItem(bookmark.title);
        title->setData(i, BookmarkRole);
        title->setData(QStringList{bookmark.title, bookmark.url, bookmark.folder}.join(QLatin1Char('\n')), SearchRole);
        title->setToolTip(bookmark.folder);
        auto* url = new QStandardItem(bookmark.url);
        url->setToolTip(bookmark.url);
        group->appendRow({title, url});
    }
    if (!busy)
        showIdle(m_bookmarks.isEmpty() ? tr("No bookmarks of Firefox, Chromium, Google Chrome, Brave, "
                                            "Vivaldi or Microsoft Edge found.")
                                       : QString());
    m_tree->header()->resizeSection(0, 280);
    applyFilter();
}

void BookmarkChooser::applyFilter()
{
    applySearch();
    m_tree->expandAll();
    if (currentBookmark() < 0 && m_filter->rowCount() > 0) {
        const QModelIndex firstGroup = m_filter->index(0, 0);
        if (m_filter->rowCount(firstGroup) > 0)
            m_tree->setCurrentIndex(m_filter->index(0, 0, firstGroup));
    }
    updateAcceptance();
}

void BookmarkChooser::updateAcceptance()
{
    setAcceptable(currentBookmark() >= 0);
}
