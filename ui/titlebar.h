#pragma once

#include <QPoint>
#include <QWidget>

class ClickLabel;
class QLabel;

// The title bar of our frameless windows: logo, title and picture buttons.
// Dragging it moves the window.
class TitleBar : public QWidget
{
    Q_OBJECT
public:
    enum Button
    {
        NoButton = 0x0,
        AboutButton = 0x1,
        MinimizeButton = 0x2,
        CloseButton = 0x4,
    };
    Q_DECLARE_FLAGS(Buttons, Button)

    explicit TitleBar(Buttons buttons, QWidget* parent = nullptr);

    void setTitle(const QString& title);
    QString title() const;
    void setLogoVisible(bool visible);

    // Null when the bar was made without that button. The close button's
    // object name is "SystemBtn_Close".
    ClickLabel* button(Button which) const;

    // Active and inactive look, driven by the application's state.
    void setActiveLook(bool active);

    // Hover look of one of the bar's buttons.
    static void updateButtonHover(ClickLabel* pad, QEvent* e);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    ClickLabel* addButton(Button which, const QString& objectName, const QString& iconName, const QString& toolTip);

    QLabel* m_logo = nullptr;
    QLabel* m_title = nullptr;
    ClickLabel* m_about = nullptr;
    ClickLabel* m_minimize = nullptr;
    ClickLabel* m_close = nullptr;
    bool m_dragging = false;
    QPoint m_dragOffset;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(TitleBar::Buttons)
