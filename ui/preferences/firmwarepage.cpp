#include "firmwarepage.h"

#include "preferencelook.h"

#include <QFormLayout>
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

QString orUnknown(const QString& value)
{
    return value.isEmpty() ? QStringLiteral("–") : value;
}

} // namespace

FirmwarePage::FirmwarePage(QWidget* parent) : PreferencePage(parent), m_updater(new FirmwareUpdater(this))
{
    auto* intro = new QLabel(tr("The keypad runs firmware of its own. This program carries the newest firmware it "
                                "knows for each keypad model and can install it."),
                             this);
    intro->setWordWrap(true);

    auto* form = new QFormLayout;
    m_model = addValueRow(form, tr("Keypad:"));
    m_serial = addValueRow(form, tr("Serial number:"));
    m_installed = addValueRow(form, tr("Installed firmware:"));
    m_packaged = addValueRow(form, tr("Firmware in this program:"));

    m_status = new QLabel(this);
    m_status->setWordWrap(true);
    m_status->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);

    m_update = new QPushButton(tr("&Update firmware…"), this);
    nameAfter(m_update, m_update->text());
    m_update->setAutoDefault(false);
    auto* buttonRow = new QHBoxLayout;
    buttonRow->addWidget(m_update);
    buttonRow->addStretch(1);

    m_progress = new QProgressBar(this);
    m_progress->setRange(0, 100);
    nameAfter(m_progress, tr("Update progress"));
    m_result = new QLabel(this);
    m_result->setWordWrap(true);

    QVBoxLayout* layout = PreferenceLook::pageLayout(this, title());
    layout->addWidget(intro);
    layout->addLayout(form);
    layout->addWidget(m_status);
    layout->addLayout(buttonRow);
    layout->addWidget(m_progress);
    layout->addWidget(m_result);
    layout->addStretch(1);

    connect(m_update, &QPushButton::clicked, m_updater, &FirmwareUpdater::offerUpdate);
    connect(m_updater, &FirmwareUpdater::statusChanged, this, &FirmwarePage::showStatus);
    connect(m_updater, &FirmwareUpdater::updateStarted, this, &FirmwarePage::showUpdate);
    connect(m_updater, &FirmwareUpdater::progressChanged, m_progress, &QProgressBar::setValue);
    connect(m_updater, &FirmwareUpdater::updateFinished, this, &FirmwarePage::showUpdate);
    showStatus();
    showUpdate();
    m_updater->refresh();
}

QString FirmwarePage::title() const
{
    return tr("Firmware");
}

bool FirmwarePage::canClose(QString& why) const
{
    if (!m_updater->isUpdating())
        return true;
    why = tr("The firmware update is still running. Closing now could leave the keypad unusable.");
    return false;
}

QLabel* FirmwarePage::addValueRow(QFormLayout* form, const QString& caption)
{
    auto* value = new QLabel(this);
    value->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    nameAfter(value, caption);
    form->addRow(caption, value);
    return value;
}

void FirmwarePage::showStatus()
{
    using Status = FirmwareUpdater::Status;
    const Status status = m_updater->status();
    const Preference::DeviceInfo& info = m_updater->deviceInfo();
    const bool known = status == Status::Ready || status == Status::NoImage;
    m_model->setText(orUnknown(known ? info.modelName : QString()));
    m_serial->setText(orUnknown(known ? info.serialNumber : QString()));
    m_installed->setText(orUnknown(known ? info.currentVersion : QString()));
    m_packaged->setText(orUnknown(status == Status::Ready ? info.packagedVersion : QString()));

    QString text;
    switch (status) {
    case Status::Reading:
        text = tr("Reading the keypad…");
        break;
    case Status::NoKeypad:
        text = tr("No keypad connected");
        break;
    case Status::NoAnswer:
        text = tr("The keypad does not tell its firmware version. Unplug it, plug it in again and try once more.");
        break;
    case Status::NoImage:
        text = tr("This program has no firmware for this keypad (%1), so there is no update to offer.")
                   .arg(info.modelName);
        break;
    case Status::Ready:
        break;
    }
    m_status->setText(text);
    m_status->setVisible(!text.isEmpty());
    nameAfter(m_status, text);
    m_update->setEnabled(status == Status::Ready && !m_updater->isUpdating());
}

void FirmwarePage::showUpdate()
{
    using Outcome = FirmwareUpdater::Outcome;
    const bool updating = m_updater->isUpdating();
    QString text;
    if (updating)
        text = tr("Updating the firmware. Keep the keypad plugged in; its keys do nothing until the update ends.");
    else if (m_updater->outcome() == Outcome::Flashed)
        text = tr("The firmware was updated.");
    else if (m_updater->outcome() == Outcome::Failed)
        text = tr("The firmware update failed. Keep the keypad plugged in and try again. If it stays dark, unplug "
                  "it and plug it in again.");
    m_progress->setValue(m_updater->progressPercent());
    m_progress->setVisible(updating || m_updater->outcome() != Outcome::None);
    m_result->setText(text);
    m_result->setVisible(!text.isEmpty());
    nameAfter(m_result, text);
    m_update->setEnabled(m_updater->status() == FirmwareUpdater::Status::Ready && !updating);
}
