#pragma once

#include <QWidget>

class FaceEditor;
class KeyItem;
class KeyItemEditor;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QVBoxLayout;

// The property form of one key: its type's heading, the face of the first
// slot (title, style, icon) at the top, then the type's own fields. Every edit goes through the form's
// KeyItemEditor at once; there is no OK. refresh() reads the model back after
// a change from elsewhere (the keypad toggling a hotkey, a paste, a drop);
// what the user is typing is left alone as long as it is what the model holds.
class KeyItemForm : public QWidget
{
    Q_OBJECT
public:
    KeyItemForm(KeyItemEditor* editor, const QString& heading, QWidget* parent);

    KeyItemEditor* editor() const;
    FaceEditor* faceEditor() const;
    QPlainTextEdit* titleField() const;
    // False once the key went away; the form shows nothing new then.
    bool refresh();

    // Sets a field's text unless it already shows it, so a refresh caused by
    // the user's own typing does not move the cursor.
    static void setTextIfDifferent(QLineEdit* field, const QString& text);
    static void setTextIfDifferent(QPlainTextEdit* field, const QString& text);

protected:
    QVBoxLayout* body() const;
    // A label over its control; the control's accessible name is the label.
    QLabel* addField(const QString& label, QWidget* control, QVBoxLayout* into = nullptr);
    // Muted text under a control: what happens, what is missing.
    QLabel* addNote(const QString& text);
    virtual void refreshFields(const KeyItem& item) = 0;

    // The item's title of a slot.
    static QString titleOf(const KeyItem& item, int slot);

private:
    KeyItemEditor* m_editor;
    QVBoxLayout* m_body = nullptr;
    FaceEditor* m_face = nullptr;
};
