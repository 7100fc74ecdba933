#include "accessiblebuttongroup.h"

#include "buttonowner.h"

#include <QWidget>

AccessibleButtonGroup::AccessibleButtonGroup(QWidget* widget, ButtonOwner* owner)
    : QAccessibleWidget(widget, QAccessible::Grouping), m_owner(owner)
{
}

QAccessibleInterface* AccessibleButtonGroup::focusChild() const
{
    if (!widget()->hasFocus())
        return QAccessibleWidget::focusChild();
    QWidget* button = m_owner->buttonWidget(m_owner->keyboardButton());
    return button ? QAccessible::queryAccessibleInterface(button) : QAccessibleWidget::focusChild();
}
