#include "languagepage.h"

#include "logging.h"
#include "preferencelook.h"
#include "settingskeys.h"
#include "userquestion.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

namespace {

// By index, as the start-up loads them: en-us, ja, zh-TW, it, de, fr.
const char* const OwnNames[LanguagePage::LanguageCount] = {"English",  "日本語",  "繁體中文",
                                                           "Italiano", "Deutsch", "Français"};
// The built-in texts are English.
constexpr int BuiltInLanguage = 0;

} // namespace

LanguagePage::LanguagePage(const PreferenceContext& context, QWidget* parent)
    : PreferencePage(parent), m_context(context)
{
    setObjectName(QStringLiteral("LanguagePage"));
    QVBoxLayout* layout = PreferenceLook::pageLayout(this, title());
    layout->addWidget(PreferenceLook::note(
        tr("The language of %1's windows. It changes when %1 starts again.").arg(QCoreApplication::applicationName()),
        this));

    m_list = new QListWidget(this);
    m_list->setObjectName(QStringLiteral("LanguageList"));
    m_list->setAccessibleName(title());
    const int current = storedIndex() < 0 ? BuiltInLanguage : storedIndex();
    for (int index = 0; index < LanguageCount; ++index) {
        auto* item = new QListWidgetItem(languageName(index), m_list);
        item->setData(Qt::UserRole, index);
        if (index == current) {
            QFont font = item->font();
            font.setBold(true);
            item->setFont(font);
        }
    }
    m_list->setCurrentRow(current);
    // All six rows, no scroll bar: the row height is the style sheet's.
    m_list->ensurePolished();
    m_list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const QMargins margins = m_list->contentsMargins();
    m_list->setFixedHeight(m_list->sizeHintForRow(0) * LanguageCount + margins.top() + margins.bottom() + 8);
    layout->addWidget(m_list);

    m_apply = new QPushButton(tr("Use this language"), this);
    m_apply->setObjectName(QStringLiteral("LanguageApply"));
    m_apply->setAccessibleName(m_apply->text());
    auto* row = new QHBoxLayout;
    row->addWidget(m_apply);
    row->addStretch(1);
    layout->addLayout(row);
    m_status = PreferenceLook::status(this);
    layout->addWidget(m_status);
    layout->addStretch(1);

    connect(m_list, &QListWidget::currentRowChanged, this, &LanguagePage::updateApplyButton);
    connect(m_list, &QListWidget::itemActivated, this, &LanguagePage::apply);
    connect(m_apply, &QPushButton::clicked, this, &LanguagePage::apply);
    updateApplyButton();
}

QString LanguagePage::title() const
{
    return tr("Language");
}

QString LanguagePage::languageName(int index)
{
    return index >= 0 && index < LanguageCount ? QString::fromUtf8(OwnNames[index]) : QString();
}

int LanguagePage::storedIndex() const
{
    if (!m_context.startupSettings)
        return -1;
    const int stored = m_context.startupSettings->value(SettingsKeys::LangIdx, -1).toInt();
    return stored >= 0 && stored < LanguageCount ? stored : -1;
}

void LanguagePage::updateApplyButton()
{
    const int stored = storedIndex() < 0 ? BuiltInLanguage : storedIndex();
    m_apply->setEnabled(m_context.startupSettings && m_list->currentRow() >= 0 && m_list->currentRow() != stored);
}

void LanguagePage::apply()
{
    const int chosen = m_list->currentRow();
    if (!m_apply->isEnabled() || chosen < 0)
        return;
    m_context.startupSettings->setValue(SettingsKeys::LangIdx, chosen);
    m_context.startupSettings->sync();
    if (m_context.startupSettings->status() != QSettings::NoError) {
        LOG_MSG(QStringLiteral("ERROR: Cannot store lang_idx %1!!").arg(chosen));
        PreferenceLook::setStatus(m_status, tr("The language could not be stored."), true);
        return;
    }
    LOG_MSG(QStringLiteral("lang_idx set to %1").arg(chosen));
    updateApplyButton();

    UserQuestion question;
    question.subject = tr("Restart %1 now?").arg(QCoreApplication::applicationName());
    question.text = tr("%1 is used from the next start.").arg(languageName(chosen));
    question.buttons[UserQuestion::MidSlot] = UserQuestion::No;
    question.buttons[UserQuestion::RightSlot] = UserQuestion::Yes;
    question.icon = UserQuestion::LogoIcon;
    question.defaultButton = UserQuestion::Yes;
    if (UserQuestions::ask(question).button == UserQuestion::Yes && m_context.restart) {
        m_context.restart();
        return;
    }
    PreferenceLook::setStatus(m_status, tr("%1 is used from the next start.").arg(languageName(chosen)));
}

QListWidget* LanguagePage::languageList() const
{
    return m_list;
}

QPushButton* LanguagePage::applyButton() const
{
    return m_apply;
}
