// Placeholder until the real widget lands: a key sequence field that stands
// in for the recorder with the keyboard grab.
#pragma once

#include "keychord.h"

#include <QWidget>

class QKeySequenceEdit;

class HotkeyRecorder : public QWidget
{
    Q_OBJECT
public:
    explicit HotkeyRecorder(QWidget* parent = nullptr);

    void setChord(const KeyChord& chord);
    KeyChord chord() const;
    bool isRecording() const;

signals:
    // Only on the user's edits.
    void chordChanged(const KeyChord& chord);
    void recordingChanged(bool recording);

private:
    void onEditingFinished();

    QKeySequenceEdit* m_edit = nullptr;
    KeyChord m_chord;
};
