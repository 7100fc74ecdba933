#include "softwareupdatepage.h"

#include "preferencelook.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// Screen readers read a control by its label, without the mnemonic mark.
void nameAfter(QWidget* widget, QString label)
{
    widget->setAccessibleName(label.remove(QLatin1Char('&')));
}

QLabel* wrappingLabel(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    return label;
}

} // namespace

SoftwareUpdatePage::SoftwareUpdatePage(SoftwareUpdate* update, QWidget* parent)
    : PreferencePage(parent), m_update(update ? update : new SoftwareUpdate(SoftwareUpdate::buildFeedUrl(), this))
{
    QVBoxLayout* layout = PreferenceLook::pageLayout(this, title());
    m_intro = wrappingLabel(this);
    layout->addWidget(m_intro);
    if (!m_update->hasFeed()) {
        m_intro->setText(tr("Keystage is updated by your distribution's package manager, together with the rest of "
                            "the system. Use your software centre or package manager to get new versions."));
        nameAfter(m_intro, m_intro->text());
        layout->addStretch(1);
        return;
    }
    m_intro->setText(tr("Updates normally come from your distribution's package manager. Keystage can also look for "
                        "a newer release itself; it connects to the network only while this is turned on."));
    nameAfter(m_intro, m_intro->text());
    buildControls();
    showState();
    // Someone who turned checking on expects to hear about new releases.
    if (m_update->isEnabled() && m_update->state() == SoftwareUpdate::State::Idle)
        m_update->checkNow();
}

void SoftwareUpdatePage::buildControls()
{
    m_switch = new QCheckBox(tr("Check for &updates"), this);
    nameAfter(m_switch, m_switch->text());
    m_switch->setChecked(m_update->isEnabled());

    m_check = addButton(tr("Check &now"));
    m_install = addButton(tr("&Install"));
    m_cancel = addButton(tr("&Cancel download"));
    m_restart = addButton(tr("&Restart Keystage"));
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {m_check, m_install, m_cancel, m_restart})
        buttons->addWidget(button);
    buttons->addStretch(1);

    m_status = wrappingLabel(this);
    m_notes = wrappingLabel(this);
    m_progress = new QProgressBar(this);
    nameAfter(m_progress, tr("Download progress"));

    auto* layout = static_cast<QVBoxLayout*>(this->layout());
    layout->addWidget(m_switch);
    layout->addLayout(buttons);
    layout->addWidget(m_status);
    layout->addWidget(m_progress);
    layout->addWidget(m_notes);
    layout->addStretch(1);

    connect(m_switch, &QCheckBox::toggled, this, &SoftwareUpdatePage::onSwitchToggled);
    connect(m_check, &QPushButton::clicked, m_update, &SoftwareUpdate::checkNow);
    connect(m_install, &QPushButton::clicked, m_update, &SoftwareUpdate::install);
    connect(m_cancel, &QPushButton::clicked, m_update, &SoftwareUpdate::cancel);
    connect(m_restart, &QPushButton::clicked, this, &SoftwareUpdatePage::restartRequested);
    connect(m_update, &SoftwareUpdate::stateChanged, this, &SoftwareUpdatePage::showState);
    connect(m_update, &SoftwareUpdate::downloadProgress, this, &SoftwareUpdatePage::showProgress);
}

QPushButton* SoftwareUpdatePage::addButton(const QString& text)
{
    auto* button = new QPushButton(text, this);
    button->setAutoDefault(false);
    nameAfter(button, text);
    return button;
}

QString SoftwareUpdatePage::title() const
{
    return tr("Software update");
}

bool SoftwareUpdatePage::canClose(QString& why) const
{
    if (!m_update->isDownloading())
        return true;
    why = tr("Keystage is still downloading the update. Wait until it has finished, or cancel the download.");
    return false;
}

void SoftwareUpdatePage::onSwitchToggled(bool on)
{
    m_update->setEnabled(on);
    if (on)
        m_update->checkNow();
    showState();
}

void SoftwareUpdatePage::showState()
{
    using State = SoftwareUpdate::State;
    const State state = m_update->state();
    const bool enabled = m_update->isEnabled();
    const bool busy = state == State::Checking || state == State::Downloading;
    m_check->setEnabled(enabled && !busy);
    m_install->setVisible(enabled && state == State::Available);
    m_cancel->setVisible(state == State::Downloading);
    m_restart->setVisible(state == State::Handed);
    m_progress->setVisible(state == State::Downloading);

    m_status->setText(m_update->message());
    m_status->setVisible(!m_update->message().isEmpty());
    nameAfter(m_status, m_update->message());
    const QString notes = m_update->offer().notes;
    const bool showNotes = (state == State::Available || state == State::Downloading) && !notes.isEmpty();
    m_notes->setText(showNotes ? tr("What is new:") + QLatin1Char('\n') + notes : QString());
    m_notes->setVisible(showNotes);
    nameAfter(m_notes, m_notes->text());
}

void SoftwareUpdatePage::showProgress(qint64 received, qint64 total)
{
    if (total <= 0) {
        m_progress->setRange(0, 0); // size unknown: a busy bar
        return;
    }
    m_progress->setRange(0, 100);
    m_progress->setValue(int(qBound<qint64>(0, received * 100 / total, 100)));
}
