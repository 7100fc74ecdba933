#include "startatloginpage.h"

#include "preferencelook.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

StartAtLoginPage::StartAtLoginPage(const AutostartEntry& entry, QWidget* parent)
    : PreferencePage(parent), m_entry(entry)
{
    setObjectName(QStringLiteral("StartAtLoginPage"));
    QVBoxLayout* layout = PreferenceLook::pageLayout(this, title());
    m_switch = new QCheckBox(tr("Start %1 when I log in").arg(QCoreApplication::applicationName()), this);
    m_switch->setObjectName(QStringLiteral("StartAtLoginSwitch"));
    m_switch->setAccessibleName(m_switch->text());
    layout->addWidget(m_switch);
    layout->addWidget(PreferenceLook::note(
        tr("%1 starts in the tray, so the keypad works from the start without a window in the way. The desktop "
           "reads this from %2.")
            .arg(QCoreApplication::applicationName(), QDir::toNativeSeparators(m_entry.filePath())),
        this));
    m_status = PreferenceLook::status(this);
    layout->addWidget(m_status);
    layout->addStretch(1);

    connect(m_switch, &QCheckBox::toggled, this, &StartAtLoginPage::setStartAtLogin);
    showState();
}

QString StartAtLoginPage::title() const
{
    return tr("Start at login");
}

QCheckBox* StartAtLoginPage::startSwitch() const
{
    return m_switch;
}

void StartAtLoginPage::showState()
{
    const QSignalBlocker blocker(m_switch);
    m_switch->setChecked(m_entry.isEnabled());
}

void StartAtLoginPage::showEvent(QShowEvent* event)
{
    PreferencePage::showEvent(event);
    // Another program (the desktop's own settings) may have changed it.
    showState();
}

void StartAtLoginPage::setStartAtLogin(bool on)
{
    QString error;
    if (m_entry.setEnabled(on, &error))
        PreferenceLook::setStatus(m_status, QString());
    else
        PreferenceLook::setStatus(m_status, tr("This could not be changed: %1").arg(error), true);
    showState();
}
