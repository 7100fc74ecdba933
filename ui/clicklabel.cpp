#include "clicklabel.h"

#include <QMouseEvent>

ClickLabel::ClickLabel(QWidget* parent) : QLabel(parent)
{
    setCursor(Qt::PointingHandCursor);
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
    const bool click = m_pressed && event->button() == Qt::LeftButton && rect().contains(event->pos());
    m_pressed = false;
    if (click) {
        event->accept();
        emit mouseClicked(this);
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
