#include "resetpage.h"

#include "keyitemmodel.h"
#include "logging.h"
#include "preferencelook.h"
#include "userquestion.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

ResetPage::ResetPage(const PreferenceContext& context, QWidget* parent) : PreferencePage(parent), m_context(context)
{
    setObjectName(QStringLiteral("ResetPage"));
    QVBoxLayout* layout = PreferenceLook::pageLayout(this, title());
    layout->addWidget(PreferenceLook::note(
        tr("Removes every key you made, on all six layouts, folders included, and puts back the keys a new "
           "installation starts with. My Favorite and the other settings stay. To keep a copy, use \"Back up "
           "everything\" under Import and export first."),
        this));
    m_reset = new QPushButton(tr("Reset all keys…"), this);
    m_reset->setObjectName(QStringLiteral("ResetAllKeys"));
    m_reset->setAccessibleName(m_reset->text());
    m_reset->setEnabled(m_context.keyModel != nullptr);
    connect(m_reset, &QPushButton::clicked, this, &ResetPage::resetAllKeys);
    auto* row = new QHBoxLayout;
    row->addWidget(m_reset);
    row->addStretch(1);
    layout->addLayout(row);
    m_status = PreferenceLook::status(this);
    layout->addWidget(m_status);
    layout->addStretch(1);
}

QString ResetPage::title() const
{
    return tr("Reset");
}

QPushButton* ResetPage::resetButton() const
{
    return m_reset;
}

bool ResetPage::resetAllKeys()
{
    if (!m_context.keyModel)
        return false;
    UserQuestion question;
    question.subject = tr("Are you sure you want to reset the keys of every layout?");
    question.text = tr("You can't undo this action.");
    question.buttons[UserQuestion::MidSlot] = UserQuestion::Cancel;
    question.buttons[UserQuestion::RightSlot] = UserQuestion::Reset;
    question.defaultButton = UserQuestion::Cancel;
    if (UserQuestions::ask(question).button != UserQuestion::Reset)
        return false;
    LOG_MSG(QStringLiteral("reset the keys of every layout"));
    m_context.keyModel->resetKeyItemsToDefault();
    // Written now rather than a second later: a reset must stick.
    m_context.keyModel->saveCurrentKeyItemsToSettings();
    PreferenceLook::setStatus(m_status, tr("Every layout has its default keys again."));
    return true;
}
