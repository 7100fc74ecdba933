#pragma once

#include <QWidget>

class FunctionDescription;
class QVBoxLayout;

// The part of the right column below the action palette. It shows either the
// description of an action type (the palette's selection, or the drag hint
// while nothing is chosen) or, later, the property form of the selected key.
class FormArea : public QWidget
{
    Q_OBJECT
public:
    // The type shown while no description is up.
    static constexpr int NoDescription = 7;

    explicit FormArea(QWidget* parent = nullptr);

    // Shows the description of an action type; the drag hint for any type
    // outside the six. Showing the type already shown does nothing.
    void showFunctionDescription(int actionType);
    int shownActionType() const;
    FunctionDescription* functionDescription() const;

public slots:
    void closeFunctionDescription();

private:
    QVBoxLayout* m_layout = nullptr;
    FunctionDescription* m_description = nullptr;
    int m_shownType = NoDescription;
};
