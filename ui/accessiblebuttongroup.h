#pragma once

#include <QAccessibleWidget>

class ButtonOwner;

// The key grid or the palette as assistive technology sees it: a named group
// whose focused child is the button the keyboard is on, for the widget itself
// holds the keyboard focus, not its buttons.
class AccessibleButtonGroup : public QAccessibleWidget
{
public:
    AccessibleButtonGroup(QWidget* widget, ButtonOwner* owner);

    QAccessibleInterface* focusChild() const override;

private:
    ButtonOwner* m_owner = nullptr;
};
