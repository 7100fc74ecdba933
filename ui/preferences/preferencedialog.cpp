#include "preferencedialog.h"

#include "logging.h"
#include "preferencepage.h"
#include "userquestion.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {
constexpr int PageListWidth = 190;
// The page list's padding (6 px a side) and right border in the style sheet.
constexpr int PageListChrome = 2 * 6 + 1;
} // namespace

PreferenceDialog::PreferenceDialog(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("PreferenceDialog"));
    setWindowTitle(tr("%1 Settings").arg(QCoreApplication::applicationName()));
    setAccessibleName(windowTitle());

    m_list = new QListWidget(this);
    m_list->setObjectName(QStringLiteral("PreferencePageList"));
    m_list->setAccessibleName(tr("Settings pages"));
    m_list->setFixedWidth(PageListWidth);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setFrameShape(QFrame::NoFrame);
    m_stack = new QStackedWidget(this);
    m_stack->setObjectName(QStringLiteral("PreferencePages"));
    connect(m_list, &QListWidget::currentRowChanged, m_stack, &QStackedWidget::setCurrentIndex);

    m_close = new QPushButton(tr("Close"), this);
    m_close->setObjectName(QStringLiteral("PreferenceClose"));
    m_close->setAccessibleName(m_close->text());
    m_close->setAutoDefault(false);
    connect(m_close, &QPushButton::clicked, this, &QDialog::reject);

    auto* pages = new QHBoxLayout;
    pages->setContentsMargins(0, 0, 0, 0);
    pages->setSpacing(0);
    pages->addWidget(m_list);
    pages->addWidget(m_stack, 1);

    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(12, 8, 12, 12);
    buttons->addStretch(1);
    buttons->addWidget(m_close);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(pages, 1);
    layout->addLayout(buttons);

    resize(780, 560);
    m_list->setFocus();
    if (parent)
        parent->installEventFilter(this);
}

// The main window hides and shows itself again to change its size (a new
// layout, chosen here), and some window managers then stack it above its
// own dialog: the dialog comes back on top, after the window's map request.
bool PreferenceDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent() && isVisible()) {
        if (event->type() == QEvent::Hide) {
            m_activeWhenParentHid = isActiveWindow();
        } else if (event->type() == QEvent::Show) {
            QTimer::singleShot(0, this, [this] {
                raise();
                if (m_activeWhenParentHid)
                    activateWindow();
            });
        }
    }
    return QDialog::eventFilter(watched, event);
}

void PreferenceDialog::addPage(PreferencePage* page)
{
    if (!logMsgWhenRetFail(page != nullptr, QStringLiteral("page is nullptr!!")))
        return;
    // A page longer than the dialog in some language scrolls rather than
    // squeezing its wrapped texts.
    auto* scroll = new QScrollArea(m_stack);
    scroll->setObjectName(QStringLiteral("PreferencePageScroll"));
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(page);
    // Sideways the page never scrolls: the dialog is as wide as its widest page.
    scroll->setMinimumWidth(page->minimumSizeHint().width() + scroll->verticalScrollBar()->sizeHint().width());
    m_stack->addWidget(scroll);
    auto* item = new QListWidgetItem(page->title(), m_list);
    item->setData(Qt::AccessibleTextRole, page->title());
    // Some languages name a page at more length than fits the usual width:
    // the list grows until the longest title shows whole.
    m_list->ensurePolished();
    const int needed = m_list->sizeHintForColumn(0) + 2 * m_list->frameWidth() + PageListChrome;
    m_list->setFixedWidth(qMax(PageListWidth, needed));
    if (m_list->currentRow() < 0)
        m_list->setCurrentRow(0);
}

int PreferenceDialog::pageCount() const
{
    return m_stack->count();
}

PreferencePage* PreferenceDialog::page(int index) const
{
    auto* scroll = qobject_cast<QScrollArea*>(m_stack->widget(index));
    return scroll ? qobject_cast<PreferencePage*>(scroll->widget()) : nullptr;
}

PreferencePage* PreferenceDialog::currentPage() const
{
    return page(m_stack->currentIndex());
}

void PreferenceDialog::setCurrentPage(int index)
{
    m_list->setCurrentRow(index);
}

bool PreferenceDialog::canClose(QString& why) const
{
    for (int i = 0; i < pageCount(); ++i) {
        if (!page(i)->canClose(why))
            return false;
    }
    return true;
}

QListWidget* PreferenceDialog::pageList() const
{
    return m_list;
}

QPushButton* PreferenceDialog::closeButton() const
{
    return m_close;
}

void PreferenceDialog::done(int result)
{
    QString why;
    if (canClose(why)) {
        QDialog::done(result);
        return;
    }
    LOG_MSG(QStringLiteral("settings kept open: %1").arg(why));
    UserQuestion message;
    message.subject = tr("The settings cannot be closed now.");
    message.text = why;
    message.buttons[UserQuestion::RightSlot] = UserQuestion::Ok;
    message.defaultButton = UserQuestion::Ok;
    UserQuestions::ask(message);
}
