#include "applicationchooser.h"

#include "choosersearchfield.h"

#include <QListView>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTabBar>
#include <QVBoxLayout>

namespace {

constexpr int EntryRole = Qt::UserRole + 1;

} // namespace

ApplicationChooser::ApplicationChooser(Sources sources, QWidget* parent, QueryCache* cache)
    : ChooserDialog(cache, parent), m_sources(sources ? sources : Installed)
{
    setWindowTitle(tr("Choose Application"));

    m_tabs = new QTabBar(this);
    m_tabs->addTab(tr("&Installed"));
    m_tabs->addTab(tr("&Running"));
    m_tabs->setToolTip(tr("Where the applications come from"));
    nameAfterLabel(m_tabs, m_tabs->toolTip());
    m_tabs->setTabEnabled(0, m_sources.testFlag(Installed));
    m_tabs->setTabEnabled(1, m_sources.testFlag(Running));
    m_tabs->setCurrentIndex(m_sources.testFlag(Installed) ? 0 : 1);
    m_tabs->setVisible(m_sources == (Installed | Running));
    m_layout->addWidget(m_tabs);

    m_list = new QListView(this);
    addSearchableView(m_list, tr("&Applications:"));
    m_list->setIconSize(QSize(24, 24));
    m_list->setUniformItemSizes(true);

    addStatusRow();
    addButtons();
    resize(480, 520);

    connect(m_tabs, &QTabBar::currentChanged, this, [this] { showResult(); });
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

void ApplicationChooser::showBusy()
{
    ChooserDialog::showBusy(currentSource() == Running ? tr("Looking for running applications…")
                                                       : tr("Looking for installed applications…"));
}

void ApplicationChooser::refresh()
{
    m_cache->refresh(currentQuery());
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
        if (query == QueryCache::RunningApplications && !m_cache->canListRunning())
            showIdle(tr("This desktop does not tell which applications are running."));
        else
            showIdle(m_entries.isEmpty() ? tr("No applications found.") : QString());
    }
    applyFilter();
}

void ApplicationChooser::applyFilter()
{
    applySearch();
    if (!m_list->currentIndex().isValid() && m_filter->rowCount() > 0)
        m_list->setCurrentIndex(m_filter->index(0, 0));
    updateAcceptance();
}

void ApplicationChooser::updateAcceptance()
{
    setAcceptable(m_list->currentIndex().isValid());
}
