#include "bookmarkchooser.h"

#include "choosersearchfield.h"
#include "querycache.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMap>
#include <QProgressBar>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int BookmarkRole = Qt::UserRole + 1;
constexpr int SearchRole = Qt::UserRole + 2;

void nameAfterLabel(QWidget* widget, const QString& label)
{
    QString plain = label;
    plain.remove(QLatin1Char('&'));
    widget->setAccessibleName(plain);
}

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

BookmarkChooser::BookmarkChooser(QWidget* parent, QueryCache* cache)
    : QDialog(parent), m_cache(cache ? cache : QueryCache::instance())
{
    setWindowTitle(tr("Choose Bookmark"));
    auto* layout = new QVBoxLayout(this);

    auto* searchLabel = new QLabel(tr("&Search:"), this);
    m_search = new ChooserSearchField(this);
    searchLabel->setBuddy(m_search);
    nameAfterLabel(m_search, searchLabel->text());
    auto* searchRow = new QHBoxLayout;
    searchRow->addWidget(searchLabel);
    searchRow->addWidget(m_search, 1);
    layout->addLayout(searchRow);

    auto* listLabel = new QLabel(tr("&Bookmarks:"), this);
    m_tree = new QTreeView(this);
    listLabel->setBuddy(m_tree);
    nameAfterLabel(m_tree, listLabel->text());
    m_model = new QStandardItemModel(this);
    m_filter = new QSortFilterProxyModel(this);
    m_filter->setSourceModel(m_model);
    m_filter->setFilterRole(SearchRole);
    m_filter->setRecursiveFilteringEnabled(true);
    m_tree->setModel(m_filter);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree->setUniformRowHeights(true);
    m_search->setView(m_tree);
    layout->addWidget(listLabel);
    layout->addWidget(m_tree, 1);

    m_status = new QLabel(this);
    m_status->setWordWrap(true);
    m_busy = new QProgressBar(this);
    m_busy->setRange(0, 0);
    m_busy->setTextVisible(false);
    auto* statusRow = new QHBoxLayout;
    statusRow->addWidget(m_status, 1);
    statusRow->addWidget(m_busy);
    layout->addLayout(statusRow);

    m_useTitle = new QCheckBox(tr("&Use the page title as the key title"), this);
    m_useTitle->setChecked(true);
    nameAfterLabel(m_useTitle, m_useTitle->text());
    layout->addWidget(m_useTitle);

    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_refresh = m_buttons->addButton(tr("Re&fresh"), QDialogButtonBox::ActionRole);
    m_refresh->setAutoDefault(false);
    for (QAbstractButton* button : m_buttons->buttons())
        nameAfterLabel(button, button->text());
    layout->addWidget(m_buttons);
    resize(640, 560);

    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_refresh, &QPushButton::clicked, this, [this] { m_cache->refresh(QueryCache::Bookmarks); });
    connect(m_search, &QLineEdit::textChanged, this, &BookmarkChooser::applyFilter);
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

void BookmarkChooser::showEvent(QShowEvent* event)
{
    if (!m_pause)
        m_pause = std::make_unique<KeypadPause>();
    QDialog::showEvent(event);
}

void BookmarkChooser::hideEvent(QHideEvent* event)
{
    m_pause.reset();
    QDialog::hideEvent(event);
}

void BookmarkChooser::showBusy()
{
    m_busy->setVisible(true);
    m_status->setText(tr("Reading the browsers' bookmarks…"));
    nameAfterLabel(m_busy, m_status->text());
    m_refresh->setEnabled(false);
}

void BookmarkChooser::showResult()
{
    m_cache->request(QueryCache::Bookmarks);
    const bool busy = m_cache->isRunning(QueryCache::Bookmarks);
    if (busy)
        showBusy();
    m_bookmarks = m_cache->bookmarks();
    m_model->clear();
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
    if (!busy) {
        m_busy->setVisible(false);
        m_refresh->setEnabled(true);
        m_status->setText(m_bookmarks.isEmpty() ? tr("No bookmarks of Firefox, Chromium, Google Chrome, Brave, "
                                                     "Vivaldi or Microsoft Edge found.")
                                                : QString());
    }
    m_tree->header()->resizeSection(0, 280);
    applyFilter();
}

void BookmarkChooser::applyFilter()
{
    m_filter->setFilterRegularExpression(ChooserSearchField::pattern(m_search->text()));
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
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(currentBookmark() >= 0);
}
