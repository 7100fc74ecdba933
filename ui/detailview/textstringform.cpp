#include "textstringform.h"

#include "ka_paststring.h"
#include "keyitem.h"
#include "keyitemeditor.h"

#include <QPlainTextEdit>
#include <QVBoxLayout>

//: Heading of the form of a key that types a stored text.
TextStringForm::TextStringForm(KeyItemEditor* editor, QWidget* parent) : KeyItemForm(editor, tr("Text String"), parent)
{
    m_text = new QPlainTextEdit(this);
    m_text->setObjectName(QStringLiteral("TextField"));
    // Tab leaves the field, so the form works from the keyboard alone; a
    // tab character can still be pasted in.
    m_text->setTabChangesFocus(true);
    // It takes the room the area has, but never pushes the note out of view.
    m_text->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    m_text->setMinimumHeight(80);
    addField(tr("Text"), m_text);
    body()->setStretchFactor(m_text, 1);
    addNote(tr("The key pastes the text through the clipboard, and the text stays on the clipboard afterwards."));
    connect(m_text, &QPlainTextEdit::textChanged, this, [this] { this->editor()->setText(m_text->toPlainText()); });
}

QPlainTextEdit* TextStringForm::textField() const
{
    return m_text;
}

void TextStringForm::refreshFields(const KeyItem& item)
{
    setTextIfDifferent(m_text, static_cast<const KA_PastString*>(item.action[0])->strText);
}
