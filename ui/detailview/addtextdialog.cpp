#include "addtextdialog.h"

#include "dialogbuttons.h"
#include "stepbuilder.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

AddTextDialog::AddTextDialog(QWidget* parent)
    : QDialog(parent), m_text(new QPlainTextEdit(this)), m_summary(new QLabel(this))
{
    setWindowTitle(tr("Add text"));
    auto* explanation =
        new QLabel(tr("Each character becomes a press and a release of the key that types it on a US keyboard, with "
                      "Shift where a US keyboard needs it, the way the keypad types on every desktop. With another "
                      "keyboard layout active some characters come out differently, and characters a US keyboard "
                      "lacks are left out. To insert any text as it is, use a Text String key instead."),
                   this);
    explanation->setWordWrap(true);
    auto* textLabel = new QLabel(tr("&Text:"), this);
    textLabel->setBuddy(m_text);
    m_text->setAccessibleName(tr("Text:"));
    m_text->setTabChangesFocus(true);
    m_summary->setWordWrap(true);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    DialogButtons::useOwnTexts(buttons);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Add"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_text, &QPlainTextEdit::textChanged, this, &AddTextDialog::showSummary);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(explanation);
    layout->addWidget(textLabel);
    layout->addWidget(m_text);
    layout->addWidget(m_summary);
    layout->addWidget(buttons);
    showSummary();
}

void AddTextDialog::setText(const QString& text)
{
    m_text->setPlainText(text);
}

QList<MarcoKeyItem> AddTextDialog::steps() const
{
    return StepBuilder::fromText(m_text->toPlainText());
}

void AddTextDialog::showSummary()
{
    QString skipped;
    const int count = StepBuilder::fromText(m_text->toPlainText(), &skipped).size();
    QString summary = tr("%n step(s)", nullptr, count);
    if (!skipped.isEmpty())
        //: %1 lists the characters that cannot be typed.
        summary = tr("%n step(s). Left out: %1", nullptr, count).arg(skipped);
    m_summary->setText(summary);
}
