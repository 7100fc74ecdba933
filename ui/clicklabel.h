#pragma once

#include <QEvent>
#include <QLabel>

// A label that acts as a small button: title bar buttons and other picture
// buttons report clicks and hover through it. Given a focus policy, Space and
// Enter click it too.
class ClickLabel : public QLabel
{
    Q_OBJECT
public:
    explicit ClickLabel(QWidget* parent = nullptr);

public slots:
    // What a click does: assistive technology and the keyboard press it so.
    void click();

signals:
    void mouseClicked(ClickLabel* pad);
    // QEvent::Enter or QEvent::Leave.
    void mouseEnterLeaveEvent(ClickLabel* pad, QEvent* e);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    bool m_pressed = false;
};
