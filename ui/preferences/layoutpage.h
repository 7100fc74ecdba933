#pragma once

#include "preferencecontext.h"
#include "preferencepage.h"

class QAbstractButton;
class QButtonGroup;
class QRadioButton;
class QToolButton;

// Which keypad the user has and how it is held: the three sizes with their
// pictures and the orientation. A choice takes effect at once through the
// layouts, which the grid, the key model and the keypad follow.
class LayoutPage : public PreferencePage
{
    Q_OBJECT
public:
    static constexpr int SizeCount = 3;

    explicit LayoutPage(const PreferenceContext& context, QWidget* parent = nullptr);

    QString title() const override;

    // The layout of a size (6, 15 or 32 keys) held one way; -1 if none.
    static int layoutFor(int keyCount, bool vertical);

    QToolButton* sizeButton(int keyCount) const;
    QRadioButton* horizontalButton() const;
    QRadioButton* verticalButton() const;

public slots:
    // Shows the layout in force.
    void showLayout(int layout);

private:
    void choose();

    PreferenceContext m_context;
    QButtonGroup* m_sizes = nullptr;
    QButtonGroup* m_orientations = nullptr;
    QRadioButton* m_horizontal = nullptr;
    QRadioButton* m_vertical = nullptr;
};
