#pragma once

#include "marcokeyitem.h"

#include <QList>
#include <QWidget>

class KeyCapture;
class MacroStepModel;
class QFrame;
class QKeyEvent;
class QLabel;
class QPushButton;
class QTableView;

// Records and edits the steps of a macro. Recording takes every key down and
// up in order while holding the keyboard grab, so that the desktop's own
// shortcuts are recorded instead of acted on; Esc alone or Stop ends it. The
// step list is edited with insert, delete, move and clear, and "Add text…"
// turns a text into steps. A macro that leaves a key held gets a warning
// with a fix.
class MacroEditor : public QWidget
{
    Q_OBJECT

public:
    explicit MacroEditor(QWidget* parent = nullptr);

    void setSteps(const QList<MarcoKeyItem>& steps);
    QList<MarcoKeyItem> steps() const;
    bool isRecording() const;

    void startRecording();
    void stopRecording();

signals:
    // The user changed the steps (not setSteps).
    void stepsChanged(const QList<MarcoKeyItem>& steps);

private:
    QPushButton* addButton(const QString& text, void (MacroEditor::*slot)());
    void onKeyPress(const QKeyEvent& event);
    void onKeyRelease(const QKeyEvent& event);
    void insertKey();
    void addText();
    void deleteSteps();
    void moveUp();
    void moveDown();
    void move(int delta);
    void clearSteps();
    void releaseHeldKeys();
    void edited();
    void insertAtSelection(const QList<MarcoKeyItem>& steps);
    int currentRow() const;
    void updateControls();

    MacroStepModel* m_model;
    QTableView* m_view;
    QPushButton* m_recordButton;
    QPushButton* m_stopButton;
    QLabel* m_status;
    QPushButton* m_deleteButton;
    QPushButton* m_upButton;
    QPushButton* m_downButton;
    QPushButton* m_clearButton;
    QFrame* m_warning;
    QLabel* m_warningText;
    bool m_recording = false;
    KeyCapture* m_capture = nullptr;
    QList<int> m_downKeys; // keys pressed during this recording, not yet released
    int m_skippedKeys = 0;
};
