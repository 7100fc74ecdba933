#include "hotkeyform.h"

#include "faceeditor.h"
#include "hotkeyrecorder.h"
#include "ka_hotkey.h"
#include "keychord.h"
#include "keyitem.h"
#include "keyitemeditor.h"

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

//: Heading of the form of a hotkey: a keypad key that types a keyboard shortcut.
HotkeyForm::HotkeyForm(KeyItemEditor* editor, QWidget* parent) : KeyItemForm(editor, tr("Hotkey"), parent)
{
    m_recorder[0] = new HotkeyRecorder(this);
    addField(tr("Key combination"), m_recorder[0]);

    m_toggle = new QCheckBox(tr("Toggle between two hotkeys"), this);
    m_toggle->setAccessibleName(m_toggle->text());
    body()->addSpacing(4);
    body()->addWidget(m_toggle);
    m_nextPress = addNote(QString());

    m_second = new QWidget(this);
    auto* second = new QVBoxLayout(m_second);
    second->setContentsMargins(0, 0, 0, 0);
    second->setSpacing(4);
    m_recorder[1] = new HotkeyRecorder(m_second);
    addField(tr("Second key combination"), m_recorder[1], second);
    m_secondFace = new FaceEditor(editor, 1, tr("Second title"), m_second);
    second->addSpacing(4);
    second->addWidget(m_secondFace);
    body()->addWidget(m_second);
    body()->addStretch(1);

    for (int slot = 0; slot < 2; ++slot)
        connect(m_recorder[slot], &HotkeyRecorder::chordChanged, this,
                [this, slot](const KeyChord& chord) { onChordChanged(slot, chord); });
    connect(m_toggle, &QCheckBox::toggled, this, [this](bool on) {
        this->editor()->setMultiFeature(on);
        refresh();
    });
}

HotkeyRecorder* HotkeyForm::recorder(int slot) const
{
    return slot == 0 || slot == 1 ? m_recorder[slot] : nullptr;
}

QCheckBox* HotkeyForm::toggleBox() const
{
    return m_toggle;
}

FaceEditor* HotkeyForm::secondFaceEditor() const
{
    return m_secondFace;
}

QPlainTextEdit* HotkeyForm::secondTitleField() const
{
    return m_secondFace->titleField();
}

QLabel* HotkeyForm::nextPressNote() const
{
    return m_nextPress;
}

void HotkeyForm::onChordChanged(int slot, const KeyChord& chord)
{
    editor()->setChord(slot, chord);
    refresh();
}

void HotkeyForm::refreshFields(const KeyItem& item)
{
    for (int slot = 0; slot < 2; ++slot) {
        const KeyChord chord = KeyChord::fromHotKey(*static_cast<const KA_HotKey*>(item.action[slot]));
        // Never while the user is recording into it.
        if (!m_recorder[slot]->isRecording())
            m_recorder[slot]->setChord(chord);
    }
    const QSignalBlocker blocker(m_toggle);
    m_toggle->setChecked(item.multiFeatureFlag);
    m_second->setVisible(item.multiFeatureFlag);
    m_secondFace->refresh(item);
    m_nextPress->setVisible(item.multiFeatureFlag);
    m_nextPress->setText(item.cfIdx == 0 ? tr("The keypad shows the first hotkey now.")
                                         : tr("The keypad shows the second hotkey now."));
}
