#pragma once

#include "autostartentry.h"
#include "preferencepage.h"

class QCheckBox;
class QLabel;

// Whether the program starts, in the tray, when the user logs in. The
// switch shows what the autostart files say, read again whenever the page
// is shown.
class StartAtLoginPage : public PreferencePage
{
    Q_OBJECT
public:
    explicit StartAtLoginPage(const AutostartEntry& entry = AutostartEntry(), QWidget* parent = nullptr);

    QString title() const override;
    QCheckBox* startSwitch() const;

public slots:
    void showState();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void setStartAtLogin(bool on);

    AutostartEntry m_entry;
    QCheckBox* m_switch = nullptr;
    QLabel* m_status = nullptr;
};
