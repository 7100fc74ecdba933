#include "keypadpage.h"

#include "brightnessthrottle.h"
#include "buttonlayoutconfig.h"
#include "hid_comm.h"
#include "keypaddimmer.h"
#include "keypadtable.h"
#include "logging.h"
#include "preferencelook.h"
#include "settings.h"
#include "settingskeys.h"

#include <QCoreApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include <memory>

namespace {

// Failed open attempts each report "disconnected"; the state is read once
// they have been quiet this long.
constexpr int SettleMs = 200;

QLabel* valueLabel(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QStringLiteral("PreferenceValue"));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

} // namespace

KeypadPage::KeypadPage(const PreferenceContext& context, QWidget* parent)
    : PreferencePage(parent), m_context(context), m_hid(context.hid)
{
    setObjectName(QStringLiteral("KeypadPage"));
    QVBoxLayout* layout = PreferenceLook::pageLayout(this, title());
    buildDeviceSection(layout);
    buildBrightnessSection(layout);
    layout->addStretch(1);

    m_settleTimer.setSingleShot(true);
    m_settleTimer.setInterval(SettleMs);
    connect(&m_settleTimer, &QTimer::timeout, this, &KeypadPage::refresh);
    if (m_hid)
        connect(
            m_hid, &Hid_Comm::KeyboardStatusChange, this, [this] { m_settleTimer.start(); }, Qt::QueuedConnection);

    m_saveTimer.setSingleShot(true);
    m_saveTimer.setInterval(SaveDelayMs);
    connect(&m_saveTimer, &QTimer::timeout, this, [this] {
        if (m_context.store)
            m_context.store->save();
    });
    refresh();
}

KeypadPage::~KeypadPage()
{
    if (m_saveTimer.isActive() && m_context.store)
        m_context.store->save();
}

QString KeypadPage::title() const
{
    //: The USB keypad with LCD keys this program drives.
    return tr("Keypad");
}

void KeypadPage::buildDeviceSection(QVBoxLayout* layout)
{
    m_connection = PreferenceLook::note(QString(), this);
    layout->addWidget(m_connection);
    auto* form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignLeft);
    form->setHorizontalSpacing(18);
    m_model = valueLabel(this);
    m_serial = valueLabel(this);
    m_firmware = valueLabel(this);
    const std::pair<QString, QLabel*> rows[] = {
        {tr("Model"), m_model}, {tr("Serial number"), m_serial}, {tr("Firmware version"), m_firmware}};
    for (const auto& [name, value] : rows) {
        value->setAccessibleName(name);
        form->addRow(name, value);
    }
    layout->addLayout(form);
}

void KeypadPage::buildBrightnessSection(QVBoxLayout* layout)
{
    layout->addSpacing(8);
    QLabel* heading = PreferenceLook::section(tr("Brightness"), this);
    layout->addWidget(heading);

    const int stored = m_context.store
                           ? m_context.store->value(SettingsKeys::Brightness, SettingsKeys::BrightnessDefault).toInt()
                           : SettingsKeys::BrightnessDefault;
    m_brightness = new QSlider(Qt::Horizontal, this);
    m_brightness->setObjectName(QStringLiteral("BrightnessSlider"));
    m_brightness->setAccessibleName(tr("Brightness"));
    m_brightness->setRange(SettingsKeys::BrightnessMin, SettingsKeys::BrightnessMax);
    m_brightness->setPageStep(10);
    m_brightness->setValue(qBound(SettingsKeys::BrightnessMin, stored, SettingsKeys::BrightnessMax));
    heading->setBuddy(m_brightness);
    m_brightnessValue = new QLabel(this);
    m_brightnessValue->setMinimumWidth(48);
    m_brightnessValue->setText(tr("%1 %").arg(m_brightness->value()));

    auto* row = new QHBoxLayout;
    row->addWidget(m_brightness, 1);
    row->addWidget(m_brightnessValue);
    layout->addLayout(row);
    layout->addWidget(
        PreferenceLook::note(tr("Set on the keypad as you move it, and on every keypad you connect."), this));

    const QPointer<Hid_Comm> hid = m_hid;
    m_throttle = new BrightnessThrottle(
        [hid](int level) {
            // Gone only once the task thread, which runs this, has ended.
            if (Hid_Comm* connection = hid.data())
                connection->setBacklight(level);
        },
        m_context.runInBackground, this);
    connect(m_brightness, &QSlider::valueChanged, this, &KeypadPage::onBrightnessChanged);

    layout->addSpacing(8);
    m_logo = new QPushButton(tr("Show logo"), this);
    m_logo->setObjectName(QStringLiteral("ShowLogoButton"));
    m_logo->setAccessibleName(m_logo->text());
    connect(m_logo, &QPushButton::clicked, this, &KeypadPage::showLogo);
    auto* logoRow = new QHBoxLayout;
    logoRow->addWidget(m_logo);
    logoRow->addStretch(1);
    layout->addLayout(logoRow);
    m_status = PreferenceLook::status(this);
    layout->addWidget(m_status);
}

void KeypadPage::onBrightnessChanged(int level)
{
    m_brightnessValue->setText(tr("%1 %").arg(level));
    if (m_context.store) {
        m_context.store->setValue(SettingsKeys::Brightness, level);
        m_saveTimer.start();
    }
    // The dimmer comes back to this level after dimming and after a lock.
    if (m_context.dimmer)
        m_context.dimmer->noteBrightness(level);
    if (m_hid && m_hid->isOpened())
        m_throttle->setLevel(level);
}

void KeypadPage::refresh()
{
    const int generation = ++m_readGeneration;
    const bool connected = m_hid && m_hid->isOpened();
    m_logo->setEnabled(connected);
    if (!connected) {
        m_connection->setText(tr("No keypad connected"));
        showDeviceInfo(false, QString(), QString());
        return;
    }
    m_connection->setText(tr("Reading the keypad…"));
    struct Answers
    {
        bool read = false;
        QString serial;
        QString firmware;
    };
    auto answers = std::make_shared<Answers>();
    Hid_Comm* hid = m_hid.data();
    BackgroundTask::run(
        m_context.runInBackground, this,
        [hid, answers] {
            answers->read = hid->readFWVersion(answers->firmware) && hid->readSerialNumber(answers->serial);
        },
        [this, generation, answers] {
            // A newer read has started meanwhile: its answer counts.
            if (generation != m_readGeneration)
                return;
            if (!answers->read)
                LOG_MSG(QStringLiteral("ERROR: the keypad did not tell its version and serial number!!"));
            m_connection->setText(answers->read ? QString() : tr("The keypad does not answer."));
            showDeviceInfo(answers->read, answers->serial, answers->firmware);
        });
}

void KeypadPage::showDeviceInfo(bool read, const QString& serial, const QString& firmware)
{
    const QString model =
        read && m_context.layouts ? KeypadTable::modelName(m_context.layouts->currentLayout()) : QString();
    const QString none = QStringLiteral("—");
    m_model->setText(model.isEmpty() ? none : model);
    m_serial->setText(serial.isEmpty() ? none : serial);
    m_firmware->setText(firmware.isEmpty() ? none : firmware);
    m_connection->setVisible(!m_connection->text().isEmpty());
}

void KeypadPage::showLogo()
{
    if (!m_hid)
        return;
    Hid_Comm* hid = m_hid.data();
    auto shown = std::make_shared<bool>(false);
    m_logo->setEnabled(false);
    BackgroundTask::run(
        m_context.runInBackground, this, [hid, shown] { *shown = hid->showLogo(); },
        [this, shown] {
            m_logo->setEnabled(m_hid && m_hid->isOpened());
            PreferenceLook::setStatus(m_status,
                                      *shown ? tr("The keypad shows its logo for a moment.")
                                             : tr("The keypad did not show its logo."),
                                      !*shown);
            // The keys' images come back even when the dialog has closed by then.
            if (*shown && m_context.redrawKeypad)
                QTimer::singleShot(LogoShownMs, qApp, m_context.redrawKeypad);
        });
}

QSlider* KeypadPage::brightnessSlider() const
{
    return m_brightness;
}

QPushButton* KeypadPage::logoButton() const
{
    return m_logo;
}

BrightnessThrottle* KeypadPage::throttle() const
{
    return m_throttle;
}

QString KeypadPage::connectionText() const
{
    return m_connection->text();
}

QString KeypadPage::modelText() const
{
    return m_model->text();
}

QString KeypadPage::serialText() const
{
    return m_serial->text();
}

QString KeypadPage::firmwareText() const
{
    return m_firmware->text();
}
