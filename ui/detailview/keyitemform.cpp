#include "keyitemform.h"

#include "faceeditor.h"
#include "keyitem.h"
#include "keyitemeditor.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace {
constexpr int FieldSpacing = 4;
} // namespace

KeyItemForm::KeyItemForm(KeyItemEditor* editor, const QString& heading, QWidget* parent)
    : QWidget(parent), m_editor(editor)
{
    setObjectName(QStringLiteral("KeyItemForm"));
    editor->setParent(this);
    m_body = new QVBoxLayout(this);
    m_body->setContentsMargins(4, 8, 4, 8);
    m_body->setSpacing(FieldSpacing);

    auto* headingLabel = new QLabel(heading, this);
    headingLabel->setObjectName(QStringLiteral("FormHeading"));
    m_body->addWidget(headingLabel);

    //: The text shown on the key of the keypad, under its icon.
    m_face = new FaceEditor(editor, 0, tr("Title"), this);
    m_body->addWidget(m_face);
}

KeyItemEditor* KeyItemForm::editor() const
{
    return m_editor;
}

FaceEditor* KeyItemForm::faceEditor() const
{
    return m_face;
}

QPlainTextEdit* KeyItemForm::titleField() const
{
    return m_face->titleField();
}

QVBoxLayout* KeyItemForm::body() const
{
    return m_body;
}

bool KeyItemForm::refresh()
{
    const KeyItem* item = m_editor->item();
    if (!item)
        return false;
    m_face->refresh(*item);
    refreshFields(*item);
    return true;
}

QString KeyItemForm::titleOf(const KeyItem& item, int slot)
{
    return slot >= 0 && slot < KeyItem::SlotCount ? item.render[slot].text : QString();
}

QLabel* KeyItemForm::addField(const QString& label, QWidget* control, QVBoxLayout* into)
{
    QVBoxLayout* layout = into ? into : m_body;
    auto* caption = new QLabel(label, control->parentWidget());
    caption->setObjectName(QStringLiteral("FieldLabel"));
    caption->setBuddy(control);
    control->setAccessibleName(label);
    // A little air above each field, none between a label and its control.
    if (layout->count() > 0)
        layout->addSpacing(FieldSpacing);
    layout->addWidget(caption);
    layout->addWidget(control);
    return caption;
}

QLabel* KeyItemForm::addNote(const QString& text)
{
    auto* note = new QLabel(text, this);
    note->setObjectName(QStringLiteral("FormNote"));
    note->setWordWrap(true);
    m_body->addWidget(note);
    return note;
}

void KeyItemForm::setTextIfDifferent(QLineEdit* field, const QString& text)
{
    if (field->text() != text)
        field->setText(text);
}

void KeyItemForm::setTextIfDifferent(QPlainTextEdit* field, const QString& text)
{
    if (field->toPlainText() != text)
        field->setPlainText(text);
}
