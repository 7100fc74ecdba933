#include "accessiblebutton.h"

#include "buttonowner.h"

#include <QAccessibleEvent>
#include <QWidget>

AccessibleButton::AccessibleButton(QWidget* button, ButtonOwner* owner, const QString& fallbackName)
    : QAccessibleWidget(button, QAccessible::Button), m_owner(owner), m_fallbackName(fallbackName)
{
}

int AccessibleButton::index() const
{
    return m_owner ? m_owner->buttonIndexOf(widget()) : -1;
}

QWidget* AccessibleButton::ownerWidget() const
{
    return dynamic_cast<QWidget*>(m_owner);
}

QString AccessibleButton::text(QAccessible::Text t) const
{
    if (t == QAccessible::Name && widget()->accessibleName().isEmpty())
        return widget()->toolTip().isEmpty() ? m_fallbackName : widget()->toolTip();
    if (t == QAccessible::Description && widget()->accessibleDescription().isEmpty())
        return QString(); // the tool tip is the name already
    return QAccessibleWidget::text(t);
}

QAccessible::State AccessibleButton::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    const int idx = index();
    if (idx < 0)
        return state;
    const QWidget* owner = ownerWidget();
    state.focusable = owner && owner->focusPolicy() != Qt::NoFocus;
    state.focused = owner && owner->hasFocus() && m_owner->keyboardButton() == idx;
    state.selectable = true;
    state.selected = m_owner->isButtonSelected(idx);
    return state;
}

QStringList AccessibleButton::actionNames() const
{
    return {pressAction()};
}

void AccessibleButton::doAction(const QString& actionName)
{
    if (actionName != pressAction())
        return;
    const int idx = index();
    if (idx >= 0)
        m_owner->pressButton(idx);
    else if (!m_owner)
        QMetaObject::invokeMethod(widget(), "click", Qt::QueuedConnection);
}

void AccessibleButton::announceFocus(QWidget* button)
{
    if (!button || !QAccessible::isActive())
        return;
    QAccessibleEvent event(button, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void AccessibleButton::announceSelection(QWidget* button)
{
    if (!button || !QAccessible::isActive())
        return;
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent event(button, changed);
    QAccessible::updateAccessibility(&event);
}
