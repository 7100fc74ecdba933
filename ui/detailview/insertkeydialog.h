#pragma once

#include "keychord.h"

#include <QDialog>

class HotkeyRecorder;

// Asks for one key or chord to insert into a macro, by recording it or by
// choosing it from the list of keys a keyboard may lack.
class InsertKeyDialog : public QDialog
{
    Q_OBJECT

public:
    explicit InsertKeyDialog(QWidget* parent = nullptr);

    KeyChord chord() const;
    HotkeyRecorder* recorder() const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    HotkeyRecorder* m_recorder;
};
