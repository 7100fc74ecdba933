#pragma once

#include "firmwareupdater.h"
#include "preferencepage.h"

class QFormLayout;
class QLabel;
class QProgressBar;
class QPushButton;

// The preference dialog's "Firmware" page: what the keypad runs, what the
// program carries for it, the update offer with its progress and result.
// The rules are FirmwareUpdater's; the page only shows them.
class FirmwarePage : public PreferencePage
{
    Q_OBJECT
public:
    explicit FirmwarePage(QWidget* parent = nullptr);

    QString title() const override;
    // Not while an update runs.
    bool canClose(QString& why) const override;

    FirmwareUpdater* updater() const { return m_updater; }
    QPushButton* updateButton() const { return m_update; }
    QProgressBar* progressBar() const { return m_progress; }
    QLabel* statusLabel() const { return m_status; }
    QLabel* resultLabel() const { return m_result; }

private:
    QLabel* addValueRow(QFormLayout* form, const QString& caption);
    void showStatus();
    void showUpdate();

    FirmwareUpdater* m_updater;
    QLabel* m_model = nullptr;
    QLabel* m_serial = nullptr;
    QLabel* m_installed = nullptr;
    QLabel* m_packaged = nullptr;
    QLabel* m_status = nullptr;
    QPushButton* m_update = nullptr;
    QProgressBar* m_progress = nullptr;
    QLabel* m_result = nullptr;
};
