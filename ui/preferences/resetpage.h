#pragma once

#include "preferencecontext.h"
#include "preferencepage.h"

class QLabel;
class QPushButton;

// Puts the default keys back on every layout, after a confirmation.
class ResetPage : public PreferencePage
{
    Q_OBJECT
public:
    explicit ResetPage(const PreferenceContext& context, QWidget* parent = nullptr);

    QString title() const override;
    QPushButton* resetButton() const;

public slots:
    // Asks first; true when the keys were reset.
    bool resetAllKeys();

private:
    PreferenceContext m_context;
    QPushButton* m_reset = nullptr;
    QLabel* m_status = nullptr;
};
