#pragma once

#include "preferencecontext.h"
#include "preferencepage.h"

#include <QPointer>
#include <QTimer>

class BrightnessThrottle;
class Hid_Comm;
class QLabel;
class QPushButton;
class QSlider;
class QVBoxLayout;

// The connected keypad: its model, serial number and firmware version, its
// brightness and "Show logo". The keypad is read on the task thread (each
// read may wait for the device) and again whenever one connects or goes.
class KeypadPage : public PreferencePage
{
    Q_OBJECT
public:
    // The logo stays this long before the keys' images come back.
    static constexpr int LogoShownMs = 3000;
    // A burst of brightness changes is written to disk once, this long after the last.
    static constexpr int SaveDelayMs = 1000;

    explicit KeypadPage(const PreferenceContext& context, QWidget* parent = nullptr);
    ~KeypadPage() override;

    QString title() const override;

    QSlider* brightnessSlider() const;
    QPushButton* logoButton() const;
    BrightnessThrottle* throttle() const;
    // "No keypad connected", "Reading the keypad…" or empty once read.
    QString connectionText() const;
    QString modelText() const;
    QString serialText() const;
    QString firmwareText() const;

public slots:
    // Reads the keypad again (or says that there is none).
    void refresh();

private:
    void buildDeviceSection(QVBoxLayout* layout);
    void buildBrightnessSection(QVBoxLayout* layout);
    void onBrightnessChanged(int level);
    void showLogo();
    void showDeviceInfo(bool read, const QString& serial, const QString& firmware);

    PreferenceContext m_context;
    QPointer<Hid_Comm> m_hid;
    BrightnessThrottle* m_throttle = nullptr;
    QTimer m_settleTimer;
    QTimer m_saveTimer;
    int m_readGeneration = 0;

    QLabel* m_connection = nullptr;
    QLabel* m_model = nullptr;
    QLabel* m_serial = nullptr;
    QLabel* m_firmware = nullptr;
    QSlider* m_brightness = nullptr;
    QLabel* m_brightnessValue = nullptr;
    QPushButton* m_logo = nullptr;
    QLabel* m_status = nullptr;
};
