#pragma once

#include "preferencepage.h"
#include "softwareupdate.h"

class QCheckBox;
class QLabel;
class QProgressBar;
class QPushButton;

// The preference dialog's "Software update" page. Without a release feed in
// the build it only says that updates come from the package manager.
// Otherwise: the "Check for updates" switch, "Check now", what was found
// with its notes, the download's progress, "Install" and, once the package
// installer has the package, a restart.
class SoftwareUpdatePage : public PreferencePage
{
    Q_OBJECT
public:
    // Without an update object the page makes one for this build's feed.
    explicit SoftwareUpdatePage(SoftwareUpdate* update = nullptr, QWidget* parent = nullptr);

    QString title() const override;
    // Not while the package downloads.
    bool canClose(QString& why) const override;

    SoftwareUpdate* update() const { return m_update; }
    QLabel* introLabel() const { return m_intro; }
    QCheckBox* checkSwitch() const { return m_switch; }
    QPushButton* checkButton() const { return m_check; }
    QPushButton* installButton() const { return m_install; }
    QPushButton* cancelButton() const { return m_cancel; }
    QPushButton* restartButton() const { return m_restart; }
    QLabel* statusLabel() const { return m_status; }
    QProgressBar* progressBar() const { return m_progress; }

signals:
    // The user wants the new version now; the main window restarts.
    void restartRequested();

private:
    void buildControls();
    QPushButton* addButton(const QString& text);
    void onSwitchToggled(bool on);
    void showState();
    void showProgress(qint64 received, qint64 total);

    SoftwareUpdate* m_update;
    QLabel* m_intro = nullptr;
    QCheckBox* m_switch = nullptr;
    QPushButton* m_check = nullptr;
    QPushButton* m_install = nullptr;
    QPushButton* m_cancel = nullptr;
    QPushButton* m_restart = nullptr;
    QLabel* m_status = nullptr;
    QLabel* m_notes = nullptr;
    QProgressBar* m_progress = nullptr;
};
