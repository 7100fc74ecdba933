#include "hotkeyrecorder.h"

#include "keycapture.h"
#include "keymapping.h"
#include "keypickermenu.h"
#include "virtualkeytable.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QPushButton>
#include <QToolButton>

namespace {

constexpr Qt::KeyboardModifiers ChordModifiers =
    Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier | Qt::MetaModifier;

} // namespace

HotkeyRecorder::HotkeyRecorder(QWidget* parent)
    : QWidget(parent), m_field(new QPushButton(this)), m_pickButton(new QToolButton(this))
{
    m_field->setCheckable(true);
    // Enter arms the field as Space and a click do, also outside dialogs.
    m_field->setAutoDefault(true);
    m_field->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_capture = new KeyCapture(
        m_field, [this](const QKeyEvent& event) { onKeyPress(event); },
        [this](const QKeyEvent& event) { onKeyRelease(event); }, [this] { stop(); });
    connect(m_field, &QPushButton::clicked, this, [this] {
        if (m_recording)
            cancelRecording();
        else
            startRecording();
    });

    auto* menu = new KeyPickerMenu(m_pickButton);
    connect(menu, &KeyPickerMenu::keyChosen, this, &HotkeyRecorder::chooseKey);
    m_pickButton->setMenu(menu);
    m_pickButton->setPopupMode(QToolButton::InstantPopup);
    // The style sheet draws tool buttons flat, so the menu shows by an icon.
    m_pickButton->setObjectName(QStringLiteral("KeyPickButton"));
    m_pickButton->setIcon(QIcon(QStringLiteral(":/image/ctl_chevron_down.png")));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_field);
    layout->addWidget(m_pickButton);
    setFocusProxy(m_field);
    retranslate();
}

void HotkeyRecorder::setChord(const KeyChord& chord)
{
    if (m_recording)
        stop();
    m_chord = chord;
    showState();
}

KeyChord HotkeyRecorder::chord() const
{
    return m_chord;
}

bool HotkeyRecorder::isRecording() const
{
    return m_recording;
}

void HotkeyRecorder::startRecording()
{
    if (m_recording)
        return;
    KeyMapping::reloadLayout();
    m_recording = true;
    m_refused = false;
    m_live = KeyChord();
    m_field->setFocus(Qt::OtherFocusReason);
    m_capture->start();
    showState();
    emit recordingChanged(true);
}

void HotkeyRecorder::cancelRecording()
{
    if (m_recording)
        stop();
}

void HotkeyRecorder::stop()
{
    m_recording = false;
    m_capture->stop();
    showState();
    emit recordingChanged(false);
}

void HotkeyRecorder::finish(const KeyChord& chord)
{
    stop();
    if (chord == m_chord)
        return;
    m_chord = chord;
    showState();
    emit chordChanged(m_chord);
}

void HotkeyRecorder::onKeyPress(const QKeyEvent& event)
{
    if (event.isAutoRepeat())
        return;
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ChordModifiers;
    const Qt::KeyboardModifier modifierKey = KeyMapping::modifierOfKey(event.key());
    if (modifierKey != Qt::NoModifier) {
        m_live.setModifiers(modifiers | modifierKey);
        m_refused = false;
        showState();
        return;
    }
    if (modifiers == Qt::NoModifier && event.key() == Qt::Key_Escape) {
        stop();
        return;
    }
    if (modifiers == Qt::NoModifier && event.key() == Qt::Key_Backspace) {
        finish(KeyChord());
        return;
    }
    const int virtualKey = KeyMapping::virtualKey(event);
    if (virtualKey == 0) {
        m_refused = true;
        showState();
        return;
    }
    KeyChord chord;
    chord.setModifiers(modifiers);
    chord.qtKeyCode = event.key();
    chord.nativeCode = virtualKey;
    finish(chord);
}

void HotkeyRecorder::onKeyRelease(const QKeyEvent& event)
{
    const Qt::KeyboardModifier modifierKey = KeyMapping::modifierOfKey(event.key());
    if (event.isAutoRepeat() || modifierKey == Qt::NoModifier)
        return;
    // X reports the state from before the event, so the released modifier
    // may still be in it.
    m_live.setModifiers(event.modifiers() & ChordModifiers & ~Qt::KeyboardModifiers(modifierKey));
    showState();
}

void HotkeyRecorder::chooseKey(int virtualKey)
{
    KeyChord chord = m_chord;
    chord.nativeCode = virtualKey;
    chord.qtKeyCode = VirtualKeyTable::qtKey(virtualKey);
    finish(chord);
}

void HotkeyRecorder::showState()
{
    const QString prompt = tr("Press a key combination");
    QString text;
    if (!m_recording)
        text = m_chord.isEmpty() ? tr("Not set") : m_chord.text();
    else if (m_refused)
        text = tr("That key cannot be typed. Press another one");
    else
        text = m_live.isEmpty() ? prompt : m_live.text();
    m_field->setText(text);
    m_field->setChecked(m_recording);
    m_field->setAccessibleDescription(m_recording ? prompt
                                                  : tr("Click, or press Enter or Space, to record a key combination"));
}

void HotkeyRecorder::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void HotkeyRecorder::retranslate()
{
    const QString pickText = tr("Keys a keyboard may lack");
    m_pickButton->setToolTip(pickText);
    m_pickButton->setAccessibleName(pickText);
    m_field->setToolTip(tr("Click, or press Enter or Space, to record a key combination"));
    showState();
}
