#pragma once

#include "keychord.h"

#include <QWidget>

class KeyCapture;
class QKeyEvent;
class QPushButton;
class QToolButton;

// A field that records a key chord: armed by a click, Enter or Space, it takes
// the next chord from the keyboard while holding the keyboard grab, so that
// the desktop's own shortcuts (Alt+Tab, Super, Print) are recorded instead of
// acted on. While armed, modifiers show as they are held; Esc alone cancels,
// Backspace alone clears, losing the focus cancels. Keys a keyboard may lack
// are chosen from a list beside the field, keeping the modifiers.
class HotkeyRecorder : public QWidget
{
    Q_OBJECT

public:
    explicit HotkeyRecorder(QWidget* parent = nullptr);

    void setChord(const KeyChord& chord);
    KeyChord chord() const;
    bool isRecording() const;

    // Arms the field as a click would.
    void startRecording();
    // Disarms it, keeping the chord it had.
    void cancelRecording();

signals:
    // The user changed the chord (not setChord).
    void chordChanged(const KeyChord& chord);
    void recordingChanged(bool recording);

protected:
    void changeEvent(QEvent* event) override;

private:
    void onKeyPress(const QKeyEvent& event);
    void onKeyRelease(const QKeyEvent& event);
    void finish(const KeyChord& chord);
    void stop();
    void chooseKey(int virtualKey);
    void showState();
    void retranslate();

    QPushButton* m_field;
    QToolButton* m_pickButton;
    KeyChord m_chord;
    KeyChord m_live; // the modifiers held while armed
    bool m_recording = false;
    KeyCapture* m_capture = nullptr;
    bool m_refused = false; // the last key pressed cannot be typed
};
