#pragma once

#include "preferencecontext.h"
#include "preferencepage.h"

class QLabel;
class QListWidget;
class QPushButton;

// The language of the user interface. The translation is loaded at start,
// so a new choice is stored ("lang_idx") and used from the next start, which
// the page offers to make at once.
class LanguagePage : public PreferencePage
{
    Q_OBJECT
public:
    static constexpr int LanguageCount = 6;

    explicit LanguagePage(const PreferenceContext& context, QWidget* parent = nullptr);

    QString title() const override;

    // A language by its own name, in the order of the stored indices.
    static QString languageName(int index);
    // The stored index; one outside 0..5 means the built-in English texts.
    int storedIndex() const;

    QListWidget* languageList() const;
    QPushButton* applyButton() const;

public slots:
    // Stores the selected language and offers to restart.
    void apply();

private:
    void updateApplyButton();

    PreferenceContext m_context;
    QListWidget* m_list = nullptr;
    QPushButton* m_apply = nullptr;
    QLabel* m_status = nullptr;
};
