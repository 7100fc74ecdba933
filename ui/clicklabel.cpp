#include "clicklabel.h"

#include "accessibility.h"

#include <QKeyEvent>
#include <QMouseEvent>

ClickLabel::ClickLabel(QWidget* parent) : QLabel(parent)
{
    Accessibility::install();
    setCursor(Qt::PointingHandCursor);
}

void ClickLabel::click()
{
    emit mouseClicked(this);
}

void ClickLabel::keyPressEvent(QKeyEvent* event)
{
    const bool activates =
        event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (activates && (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && !event->isAutoRepeat()) {
        event->accept();
        click();
        return;
    }
    QLabel::keyPressEvent(event);
}

void ClickLabel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_pressed = true;
        event->accept();
        return;
    }
    QLabel::mousePressEvent(event);
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event)
{
    // Like a push button: the click counts only when released over the label.
    const bool released = m_pressed && event->button() == Qt::LeftButton && rect().contains(event->pos());
    m_pressed = false;
    if (released) {
        event->accept();
        click();
        return;
    }
    QLabel::mouseReleaseEvent(event);
}

void ClickLabel::enterEvent(QEvent* event)
{
    QLabel::enterEvent(event);
    emit mouseEnterLeaveEvent(this, event);
}

void ClickLabel::leaveEvent(QEvent* event)
{
    QLabel::leaveEvent(event);
    emit mouseEnterLeaveEvent(this, event);
}
