#pragma once

#include "keyitemform.h"

class FaceEditor;
class HotkeyRecorder;
class QCheckBox;
class QLabel;
class QPlainTextEdit;
struct KeyChord;

// A hotkey: one key chord, or two that the key performs in turn. The first
// chord's face is the one at the top; the second has its own.
class HotkeyForm : public KeyItemForm
{
    Q_OBJECT
public:
    HotkeyForm(KeyItemEditor* editor, QWidget* parent);

    HotkeyRecorder* recorder(int slot) const;
    QCheckBox* toggleBox() const;
    FaceEditor* secondFaceEditor() const;
    QPlainTextEdit* secondTitleField() const;
    // Which of the two the next press performs (the one the keypad shows).
    QLabel* nextPressNote() const;

protected:
    void refreshFields(const KeyItem& item) override;

private:
    void onChordChanged(int slot, const KeyChord& chord);

    HotkeyRecorder* m_recorder[2] = {nullptr, nullptr};
    QCheckBox* m_toggle = nullptr;
    QWidget* m_second = nullptr;
    FaceEditor* m_secondFace = nullptr;
    QLabel* m_nextPress = nullptr;
};
