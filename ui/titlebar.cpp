#include "titlebar.h"

#include "clicklabel.h"
#include "widgetlook.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QWindow>

namespace {
constexpr int BarHeight = 36;
constexpr int ButtonSize = 28;
constexpr int ButtonIconSize = 16;

} // namespace

TitleBar::TitleBar(Buttons buttons, QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("TitleBar"));
    setAttribute(Qt::WA_StyledBackground);
    setFixedHeight(BarHeight);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 0, 6, 0);
    layout->setSpacing(4);

    m_logo = new QLabel(this);
    m_logo->setObjectName(QStringLiteral("TitleBarLogo"));
    m_logo->setPixmap(
        QPixmap(QStringLiteral(":/image/icn_logo.png")).scaled(20, 20, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    layout->addWidget(m_logo);

    m_title = new QLabel(this);
    m_title->setObjectName(QStringLiteral("TitleBarTitle"));
    layout->addWidget(m_title, 1);

    if (buttons & AboutButton)
        m_about = addButton(AboutButton, QStringLiteral("SystemBtn_About"), QStringLiteral("btn_about"), tr("About"));
    if (buttons & MinimizeButton)
        m_minimize =
            addButton(MinimizeButton, QStringLiteral("SystemBtn_Min"), QStringLiteral("btn_minimize"), tr("Minimize"));
    if (buttons & CloseButton)
        m_close = addButton(CloseButton, QStringLiteral("SystemBtn_Close"), QStringLiteral("btn_close"), tr("Close"));

    setActiveLook(true);
}

ClickLabel* TitleBar::addButton(Button which, const QString& objectName, const QString& iconName,
                                const QString& toolTip)
{
    Q_UNUSED(which)
    auto* button = new ClickLabel(this);
    button->setObjectName(objectName);
    button->setToolTip(toolTip);
    button->setFixedSize(ButtonSize, ButtonSize);
    button->setAlignment(Qt::AlignCenter);
    button->setPixmap(QPixmap(WidgetLook::imagePath(iconName))
                          .scaled(ButtonIconSize, ButtonIconSize, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    button->setProperty("hover", false);
    connect(button, &ClickLabel::mouseEnterLeaveEvent, this, &TitleBar::updateButtonHover);
    layout()->addWidget(button);
    return button;
}

void TitleBar::setTitle(const QString& title)
{
    m_title->setText(title);
}

QString TitleBar::title() const
{
    return m_title->text();
}

void TitleBar::setLogoVisible(bool visible)
{
    m_logo->setVisible(visible);
}

ClickLabel* TitleBar::button(Button which) const
{
    switch (which) {
    case AboutButton:
        return m_about;
    case MinimizeButton:
        return m_minimize;
    case CloseButton:
        return m_close;
    default:
        return nullptr;
    }
}

void TitleBar::setActiveLook(bool active)
{
    // The style sheet keys on this property: "true" or "false".
    WidgetLook::setStyleProperty(this, "active", active);
    for (QLabel* label : {m_title, static_cast<QLabel*>(m_logo)})
        WidgetLook::repolish(label);
}

void TitleBar::updateButtonHover(ClickLabel* pad, QEvent* e)
{
    if (!pad || !e)
        return;
    WidgetLook::setStyleProperty(pad, "hover", e->type() == QEvent::Enter);
}

void TitleBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    // Let the window manager move the window where it can (X11 and Wayland);
    // otherwise move it ourselves.
    QWindow* handle = window()->windowHandle();
    if (handle && handle->startSystemMove()) {
        event->accept();
        return;
    }
    m_dragging = true;
    m_dragOffset = event->globalPos() - window()->frameGeometry().topLeft();
    event->accept();
}

void TitleBar::mouseMoveEvent(QMouseEvent* event)
{
    if (m_dragging && (event->buttons() & Qt::LeftButton)) {
        window()->move(event->globalPos() - m_dragOffset);
        event->accept();
        return;
    }
    QWidget::mouseMoveEvent(event);
}

void TitleBar::mouseReleaseEvent(QMouseEvent* event)
{
    m_dragging = false;
    QWidget::mouseReleaseEvent(event);
}

void TitleBar::mouseDoubleClickEvent(QMouseEvent* event)
{
    // A fixed-size window: a double click must not maximise it.
    event->accept();
}
