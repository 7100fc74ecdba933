#pragma once

#include "preferencepage.h"

#include <QPointer>

class KeypadDimmer;
class QCheckBox;
class QLabel;
class QSpinBox;
class QTimer;
class ScreenLockMonitor;
class Settings;

// The preferences' dimming options: dim the keypad after some minutes
// without a key press, to a chosen level, and turn it off while the screen
// is locked. Changes apply at once and are stored a moment later. An option
// whose service is missing (no dimmer, no screen lock notices) says so and
// stays off.
class DimmingPage : public PreferencePage
{
    Q_OBJECT
public:
    static constexpr int DefaultMinutes = 5;
    // Edits are written to disk once they have paused this long.
    static constexpr int SaveDelayMs = 1000;

    DimmingPage(KeypadDimmer* dimmer, ScreenLockMonitor* lockMonitor, Settings* store, QWidget* parent = nullptr);
    ~DimmingPage() override;

    QString title() const override;

    QCheckBox* dimCheck() const;
    QSpinBox* minutesBox() const;
    QSpinBox* levelBox() const;
    QCheckBox* lockCheck() const;
    QLabel* dimNote() const;
    QLabel* lockNote() const;

private:
    void buildPage();
    void showSettings();
    void showAvailability();
    void apply();
    void saveNow();

    QPointer<KeypadDimmer> m_dimmer;
    QPointer<ScreenLockMonitor> m_lockMonitor;
    QPointer<Settings> m_store;
    QCheckBox* m_dimCheck = nullptr;
    QSpinBox* m_minutes = nullptr;
    QLabel* m_minutesLabel = nullptr;
    QLabel* m_levelLabel = nullptr;
    QSpinBox* m_level = nullptr;
    QLabel* m_dimNote = nullptr;
    QCheckBox* m_lockCheck = nullptr;
    QLabel* m_lockNote = nullptr;
    QTimer* m_saveTimer = nullptr;
    bool m_showing = false;
};
