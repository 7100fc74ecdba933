#include "insertkeydialog.h"

#include "dialogbuttons.h"
#include "hotkeyrecorder.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

InsertKeyDialog::InsertKeyDialog(QWidget* parent) : QDialog(parent), m_recorder(new HotkeyRecorder(this))
{
    setWindowTitle(tr("Insert key"));
    auto* label = new QLabel(tr("&Key to insert (a press and a release, with its modifiers around it):"), this);
    label->setWordWrap(true);
    label->setBuddy(m_recorder);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    DialogButtons::useOwnTexts(buttons);
    QPushButton* insert = buttons->button(QDialogButtonBox::Ok);
    insert->setText(tr("Insert"));
    insert->setEnabled(false);
    insert->setAutoDefault(false);
    buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_recorder, &HotkeyRecorder::chordChanged, this, [insert](const KeyChord& chord) {
        insert->setEnabled(chord.hasKey());
        if (chord.hasKey())
            insert->setFocus(Qt::OtherFocusReason);
    });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_recorder);
    layout->addWidget(buttons);
}

KeyChord InsertKeyDialog::chord() const
{
    return m_recorder->chord();
}

HotkeyRecorder* InsertKeyDialog::recorder() const
{
    return m_recorder;
}

void InsertKeyDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    // Armed once the dialog is on screen, where the keyboard grab can hold.
    QTimer::singleShot(0, m_recorder, &HotkeyRecorder::startRecording);
}
