#include "dimmingpage.h"

#include "dimmingsettings.h"
#include "keypaddimmer.h"
#include "logging.h"
#include "preferencelook.h"
#include "screenlockmonitor.h"
#include "settings.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>

DimmingPage::DimmingPage(KeypadDimmer* dimmer, ScreenLockMonitor* lockMonitor, Settings* store, QWidget* parent)
    : PreferencePage(parent), m_dimmer(dimmer), m_lockMonitor(lockMonitor), m_store(store)
{
    setObjectName(QStringLiteral("DimmingPage"));
    m_saveTimer = new QTimer(this);
    m_saveTimer->setSingleShot(true);
    m_saveTimer->setInterval(SaveDelayMs);
    connect(m_saveTimer, &QTimer::timeout, this, &DimmingPage::saveNow);
    buildPage();
    showSettings();
    showAvailability();
    if (m_lockMonitor)
        connect(m_lockMonitor, &ScreenLockMonitor::availableChanged, this, &DimmingPage::showAvailability);
}

// Nothing the user chose is lost when the dialog closes within the delay.
DimmingPage::~DimmingPage()
{
    if (m_saveTimer->isActive())
        saveNow();
}

QString DimmingPage::title() const
{
    return tr("Dimming");
}

QCheckBox* DimmingPage::dimCheck() const
{
    return m_dimCheck;
}

QSpinBox* DimmingPage::minutesBox() const
{
    return m_minutes;
}

QSpinBox* DimmingPage::levelBox() const
{
    return m_level;
}

QCheckBox* DimmingPage::lockCheck() const
{
    return m_lockCheck;
}

QLabel* DimmingPage::dimNote() const
{
    return m_dimNote;
}

QLabel* DimmingPage::lockNote() const
{
    return m_lockNote;
}

void DimmingPage::buildPage()
{
    QVBoxLayout* page = PreferenceLook::pageLayout(this, title());
    page->setSpacing(10);

    // "Dim the keypad after [5] minutes without a key press", one sentence.
    auto* dimRow = new QHBoxLayout;
    m_dimCheck = new QCheckBox(tr("Dim the keypad after"), this);
    m_minutes = new QSpinBox(this);
    m_minutes->setRange(1, DimmingSettings::MaxDimAfterMinutes);
    m_minutes->setValue(DefaultMinutes);
    m_minutesLabel = new QLabel(tr("minutes without a key press"), this);
    m_minutesLabel->setBuddy(m_minutes);
    m_minutes->setToolTip(tr("Minutes without a key press"));
    m_minutes->setAccessibleName(m_minutes->toolTip());
    dimRow->addWidget(m_dimCheck);
    dimRow->addWidget(m_minutes);
    dimRow->addWidget(m_minutesLabel);
    dimRow->addStretch(1);
    page->addLayout(dimRow);

    auto* levelRow = new QHBoxLayout;
    levelRow->setContentsMargins(24, 0, 0, 0);
    m_levelLabel = new QLabel(tr("Dimmed brightness:"), this);
    m_level = new QSpinBox(this);
    m_level->setRange(0, DimmingSettings::MaxLevel);
    m_level->setSuffix(QStringLiteral(" %"));
    m_level->setAccessibleName(tr("Dimmed brightness"));
    m_level->setToolTip(m_level->accessibleName());
    m_levelLabel->setBuddy(m_level);
    levelRow->addWidget(m_levelLabel);
    levelRow->addWidget(m_level);
    levelRow->addStretch(1);
    page->addLayout(levelRow);

    m_dimNote = new QLabel(this);
    m_dimNote->setObjectName(QStringLiteral("PreferenceNote"));
    m_dimNote->setWordWrap(true);
    page->addWidget(m_dimNote);

    m_lockCheck = new QCheckBox(tr("Turn the keypad off while the screen is locked"), this);
    page->addWidget(m_lockCheck);
    m_lockNote = new QLabel(this);
    m_lockNote->setObjectName(QStringLiteral("PreferenceNote"));
    m_lockNote->setWordWrap(true);
    page->addWidget(m_lockNote);
    page->addStretch(1);

    connect(m_dimCheck, &QCheckBox::toggled, this, &DimmingPage::apply);
    connect(m_dimCheck, &QCheckBox::toggled, this, &DimmingPage::showAvailability);
    connect(m_minutes, qOverload<int>(&QSpinBox::valueChanged), this, &DimmingPage::apply);
    connect(m_level, qOverload<int>(&QSpinBox::valueChanged), this, &DimmingPage::apply);
    connect(m_lockCheck, &QCheckBox::toggled, this, &DimmingPage::apply);
}

void DimmingPage::showSettings()
{
    const DimmingSettings settings = m_dimmer ? m_dimmer->settings() : DimmingSettings();
    m_showing = true;
    m_dimCheck->setChecked(settings.dimAfterMinutes > 0);
    if (settings.dimAfterMinutes > 0)
        m_minutes->setValue(settings.dimAfterMinutes);
    m_level->setValue(settings.dimLevel);
    m_lockCheck->setChecked(settings.offWhileLocked);
    m_showing = false;
}

void DimmingPage::showAvailability()
{
    const bool dimming = !m_dimmer.isNull();
    const bool locks = dimming && m_lockMonitor && m_lockMonitor->available();
    m_dimCheck->setEnabled(dimming);
    for (QWidget* part : {static_cast<QWidget*>(m_minutes), static_cast<QWidget*>(m_minutesLabel),
                          static_cast<QWidget*>(m_levelLabel), static_cast<QWidget*>(m_level)})
        part->setEnabled(dimming && m_dimCheck->isChecked());
    m_dimNote->setText(dimming ? tr("The next key press brings the brightness back; that press does nothing else.")
                               : tr("Unavailable: the keypad connection is not running."));
    m_lockCheck->setEnabled(locks);
    m_lockNote->setVisible(!locks);
    m_lockNote->setText(
        tr("Unavailable: neither logind nor a screen saver reports screen locks on this desktop (D-Bus)."));
}

void DimmingPage::apply()
{
    if (m_showing || !m_dimmer)
        return;
    DimmingSettings settings = m_dimmer->settings();
    settings.dimAfterMinutes = m_dimCheck->isChecked() ? m_minutes->value() : 0;
    settings.dimLevel = m_level->value();
    // An option that cannot work keeps what was stored.
    if (m_lockCheck->isEnabled())
        settings.offWhileLocked = m_lockCheck->isChecked();
    if (settings == m_dimmer->settings())
        return;
    m_dimmer->setSettings(settings);
    settings.store(m_store);
    m_saveTimer->start();
    LOG_MSG(QStringLiteral("dimming: after %1 min to %2, off while locked: %3")
                .arg(settings.dimAfterMinutes)
                .arg(settings.dimLevel)
                .arg(settings.offWhileLocked));
}

void DimmingPage::saveNow()
{
    m_saveTimer->stop();
    if (m_store)
        m_store->save();
}
