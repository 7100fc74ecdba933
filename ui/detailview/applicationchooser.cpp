#include "applicationchooser.h"

#include "choosersearchfield.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTabBar>
#include <QVBoxLayout>

namespace {

constexpr int EntryRole = Qt::UserRole + 1;
constexpr int SearchRole = Qt::UserRole + 2;

void nameAfterLabel(QWidget* widget, const QString& label)
{
    QString plain = label;
    plain.remove(QLatin1Char('&'));
    widget->setAccessibleName(plain);
}

} // namespace

ApplicationChooser::ApplicationChooser(Sources sources, QWidget* parent, QueryCache* cache)
    : QDialog(parent), m_cache(cache ? cache : QueryCache::instance()), m_sources(sources ? sources : Installed)
{
    setWindowTitle(tr("Choose Application"));
    auto* layout = new QVBoxLayout(this);

    m_tabs = new QTabBar(this);
    m_tabs->addTab(tr("&Installed"));
    m_tabs->addTab(tr("&Running"));
    m_tabs->setToolTip(tr("Where the applications come from"));
    nameAfterLabel(m_tabs, m_tabs->toolTip());
    m_tabs->setTabEnabled(0, m_sources.testFlag(Installed));
    m_tabs->setTabEnabled(1, m_sources.testFlag(Running));
    m_tabs->setCurrentIndex(m_sources.testFlag(Installed) ? 0 : 1);
    m_tabs->setVisible(m_sources == (Installed | Running));
    layout->addWidget(m_tabs);

    auto* searchLabel = new QLabel(tr("&Search:"), this);
    m_search = new ChooserSearchField(this);
    searchLabel->setBuddy(m_search);
    nameAfterLabel(m_search, searchLabel->text());
    auto* searchRow = new QHBoxLayout;
    searchRow->addWidget(searchLabel);
    searchRow->addWidget(m_search, 1);
    layout->addLayout(searchRow);

    auto* listLabel = new QLabel(tr("&Applications:"), this);
    m_list = new QListView(this);
    listLabel->setBuddy(m_list);
    nameAfterLabel(m_list, listLabel->text());
    m_model = new QStandardItemModel(this);
    m_filter = new QSortFilterProxyModel(this);
    m_filter->setSourceModel(m_model);
    m_filter->setFilterRole(SearchRole);
    m_list->setModel(m_filter);
    m_list->setIconSize(QSize(24, 24));
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_search->setView(m_list);
    layout->addWidget(listLabel);
    layout->addWidget(m_list, 1);

    m_status = new QLabel(this);
    m_status->setWordWrap(true);
    m_busy = new QProgressBar(this);
    m_busy->setRange(0, 0);
    m_busy->setTextVisible(false);
    auto* statusRow = new QHBoxLayout;
    statusRow->addWidget(m_status, 1);
    statusRow->addWidget(m_busy);
    layout->addLayout(statusRow);

    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_refresh = m_buttons->addButton(tr("Re&fresh"), QDialogButtonBox::ActionRole);
    m_refresh->setAutoDefault(false);
    nameAfterLabel(m_refresh, m_refresh->text());
    for (QAbstractButton* button : m_buttons->buttons())
        nameAfterLabel(button, button->text());
    layout->addWidget(m_buttons);
    resize(480, 520);

    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_refresh, &QPushButton::clicked, this, [this] { m_cache->refresh(currentQuery()); });
    connect(m_tabs, &QTabBar::currentChanged, this, [this] { showResult(); });
    connect(m_search, &QLineEdit::textChanged, this, &ApplicationChooser::applyFilter);
    connect(m_list, &QListView::activated, this, [this] { accept(); });
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ApplicationChooser::updateAcceptance);
    connect(m_cache, &QueryCache::started, this, [this](QueryCache::Query query) {
        if (query == currentQuery())
            showBusy();
    });
    connect(m_cache, &QueryCache::finished, this, [this](QueryCache::Query query) {
        if (query == currentQuery())
            showResult();
    });
    showResult();
    m_search->setFocus();
}

ApplicationChooser::~ApplicationChooser() = default;

ApplicationChooser::Source ApplicationChooser::currentSource() const
{
    return m_tabs->currentIndex() == 1 ? Running : Installed;
}

void ApplicationChooser::setCurrentSource(Source source)
{
    if (m_sources.testFlag(source))
        m_tabs->setCurrentIndex(source == Running ? 1 : 0);
}

QueryCache::Query ApplicationChooser::currentQuery() const
{
    return currentSource() == Running ? QueryCache::RunningApplications : QueryCache::InstalledApplications;
}

ApplicationEntry ApplicationChooser::selectedApplication() const
{
    if (result() != Accepted)
        return ApplicationEntry();
    const int index = m_list->currentIndex().data(EntryRole).toInt();
    if (!m_list->currentIndex().isValid() || index < 0 || index >= m_entries.size())
        return ApplicationEntry();
    return m_entries[index];
}

void ApplicationChooser::showEvent(QShowEvent* event)
{
    if (!m_pause)
        m_pause = std::make_unique<KeypadPause>();
    QDialog::showEvent(event);
}

void ApplicationChooser::hideEvent(QHideEvent* event)
{
    m_pause.reset();
    QDialog::hideEvent(event);
}

void ApplicationChooser::showBusy()
{
    m_busy->setVisible(true);
    m_status->setText(currentSource() == Running ? tr("Looking for running applications…")
                                                 : tr("Looking for installed applications…"));
    nameAfterLabel(m_busy, m_status->text());
    m_refresh->setEnabled(false);
}

void ApplicationChooser::showResult()
{
    const QueryCache::Query query = currentQuery();
    // Windows come and go: the running list is asked anew once per chooser,
    // showing the kept one meanwhile.
    if (query == QueryCache::RunningApplications && !m_runningAsked) {
        m_runningAsked = true;
        m_cache->refresh(query);
    }
    m_cache->request(query);
    if (m_cache->isRunning(query) && !m_cache->hasResult(query)) {
        m_entries.clear();
        m_model->clear();
        showBusy();
        updateAcceptance();
        return;
    }
    if (m_cache->isRunning(query))
        showBusy();
    m_entries =
        query == QueryCache::RunningApplications ? m_cache->runningApplications() : m_cache->installedApplications();
    m_model->clear();
    for (int i = 0; i < m_entries.size(); ++i) {
        const ApplicationEntry& entry = m_entries[i];
        auto* item = new QStandardItem(entry.icon(), entry.name);
        item->setData(i, EntryRole);
        item->setData(
            QStringList{entry.name, entry.description, entry.executable, entry.desktopId}.join(QLatin1Char('\n')),
            SearchRole);
        item->setToolTip(entry.description.isEmpty() ? entry.commandLine
                                                     : entry.description + QLatin1Char('\n') + entry.commandLine);
        m_model->appendRow(item);
    }
    if (!m_cache->isRunning(query)) {
        m_busy->setVisible(false);
        m_refresh->setEnabled(true);
        if (query == QueryCache::RunningApplications && !m_cache->canListRunning())
            m_status->setText(tr("This desktop does not tell which applications are running."));
        else
            m_status->setText(m_entries.isEmpty() ? tr("No applications found.") : QString());
    }
    applyFilter();
}

void ApplicationChooser::applyFilter()
{
    m_filter->setFilterRegularExpression(ChooserSearchField::pattern(m_search->text()));
    if (!m_list->currentIndex().isValid() && m_filter->rowCount() > 0)
        m_list->setCurrentIndex(m_filter->index(0, 0));
    updateAcceptance();
}

void ApplicationChooser::updateAcceptance()
{
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(m_list->currentIndex().isValid());
}
