#include "chooserdialog.h"

#include "choosersearchfield.h"
#include "dialogbuttons.h"
#include "querycache.h"

#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QVBoxLayout>

ChooserDialog::ChooserDialog(QueryCache* cache, QWidget* parent)
    : QDialog(parent), m_cache(cache ? cache : QueryCache::instance()), m_layout(new QVBoxLayout(this))
{
}

ChooserDialog::~ChooserDialog() = default;

void ChooserDialog::addSearchableView(QAbstractItemView* view, const QString& label)
{
    auto* searchLabel = new QLabel(tr("&Search:"), this);
    m_search = new ChooserSearchField(this);
    searchLabel->setBuddy(m_search);
    nameAfterLabel(m_search, searchLabel->text());
    auto* searchRow = new QHBoxLayout;
    searchRow->addWidget(searchLabel);
    searchRow->addWidget(m_search, 1);
    m_layout->addLayout(searchRow);

    auto* viewLabel = new QLabel(label, this);
    viewLabel->setBuddy(view);
    nameAfterLabel(view, label);
    m_model = new QStandardItemModel(this);
    m_filter = new QSortFilterProxyModel(this);
    m_filter->setSourceModel(m_model);
    m_filter->setFilterRole(SearchRole);
    view->setModel(m_filter);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_search->setView(view);
    m_layout->addWidget(viewLabel);
    m_layout->addWidget(view, 1);
    connect(m_search, &QLineEdit::textChanged, this, [this] { applyFilter(); });
}

void ChooserDialog::addStatusRow()
{
    m_status = new QLabel(this);
    m_status->setWordWrap(true);
    m_busy = new QProgressBar(this);
    m_busy->setRange(0, 0);
    m_busy->setTextVisible(false);
    auto* statusRow = new QHBoxLayout;
    statusRow->addWidget(m_status, 1);
    statusRow->addWidget(m_busy);
    m_layout->addLayout(statusRow);
}

void ChooserDialog::addButtons()
{
    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    DialogButtons::useOwnTexts(m_buttons);
    m_refresh = m_buttons->addButton(tr("Re&fresh"), QDialogButtonBox::ActionRole);
    m_refresh->setAutoDefault(false);
    for (QAbstractButton* button : m_buttons->buttons())
        nameAfterLabel(button, button->text());
    m_layout->addWidget(m_buttons);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_refresh, &QPushButton::clicked, this, [this] { refresh(); });
}

void ChooserDialog::showBusy(const QString& text)
{
    m_busy->setVisible(true);
    m_status->setText(text);
    nameAfterLabel(m_busy, text);
    m_refresh->setEnabled(false);
}

void ChooserDialog::showIdle(const QString& text)
{
    m_busy->setVisible(false);
    m_refresh->setEnabled(true);
    m_status->setText(text);
}

void ChooserDialog::setAcceptable(bool acceptable)
{
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(acceptable);
}

void ChooserDialog::applySearch()
{
    m_filter->setFilterRegularExpression(ChooserSearchField::pattern(m_search->text()));
}

void ChooserDialog::nameAfterLabel(QWidget* widget, const QString& label)
{
    QString plain = label;
    plain.remove(QLatin1Char('&'));
    widget->setAccessibleName(plain);
}

void ChooserDialog::showEvent(QShowEvent* event)
{
    if (!m_pause)
        m_pause = std::make_unique<KeypadPause>();
    QDialog::showEvent(event);
}

void ChooserDialog::hideEvent(QHideEvent* event)
{
    m_pause.reset();
    QDialog::hideEvent(event);
}
