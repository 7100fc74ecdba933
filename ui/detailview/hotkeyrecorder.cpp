// Placeholder until the real widget lands.
#include "hotkeyrecorder.h"

#include <QHBoxLayout>
#include <QKeySequenceEdit>

HotkeyRecorder::HotkeyRecorder(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_edit = new QKeySequenceEdit(this);
    layout->addWidget(m_edit);
    setFocusProxy(m_edit);
    connect(m_edit, &QKeySequenceEdit::editingFinished, this, &HotkeyRecorder::onEditingFinished);
}

void HotkeyRecorder::setChord(const KeyChord& chord)
{
    m_chord = chord;
    m_edit->setKeySequence(QKeySequence(chord.text(), QKeySequence::NativeText));
}

KeyChord HotkeyRecorder::chord() const
{
    return m_chord;
}

bool HotkeyRecorder::isRecording() const
{
    return false;
}

// Letters, digits and function keys only: their virtual-key codes follow
// from the Qt key code.
void HotkeyRecorder::onEditingFinished()
{
    const QKeySequence sequence = m_edit->keySequence();
    if (sequence.isEmpty())
        return;
    const int combined = sequence[0];
    KeyChord chord;
    chord.keyCtrl = combined & Qt::ControlModifier;
    chord.keyOption = combined & Qt::AltModifier;
    chord.keyShift = combined & Qt::ShiftModifier;
    chord.keyCmd = combined & Qt::MetaModifier;
    chord.qtKeyCode = combined & ~int(Qt::KeyboardModifierMask);
    if ((chord.qtKeyCode >= Qt::Key_A && chord.qtKeyCode <= Qt::Key_Z) ||
        (chord.qtKeyCode >= Qt::Key_0 && chord.qtKeyCode <= Qt::Key_9))
        chord.nativeCode = chord.qtKeyCode;
    else if (chord.qtKeyCode >= Qt::Key_F1 && chord.qtKeyCode <= Qt::Key_F24)
        chord.nativeCode = 0x70 + chord.qtKeyCode - Qt::Key_F1;
    else
        return;
    m_chord = chord;
    emit chordChanged(chord);
}
