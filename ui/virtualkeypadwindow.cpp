#include "virtualkeypadwindow.h"

#include "buttonlayoutconfig.h"
#include "keygridgeometry.h"
#include "keypadtable.h"
#include "layouttext.h"
#include "logging.h"
#include "objectregistry.h"
#include "simulatedkeypad.h"
#include "widgetlook.h"

#include <QCloseEvent>
#include <QGraphicsOpacityEffect>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace {

const char* const ButtonProperty = "button";
constexpr qreal UnpluggedOpacity = 0.35;

} // namespace

VirtualKeypadWindow::VirtualKeypadWindow(SimulatedKeypad* keypad, ButtonLayoutConfig* layouts, QWidget* parent)
    : QWidget(parent, Qt::Window), m_keypad(keypad)
{
    setObjectName(QStringLiteral("VirtualKeypadWindow"));
    setWindowTitle(tr("Virtual Keypad"));
    setWindowIcon(QIcon(WidgetLook::imagePath(QStringLiteral("icn_logo"))));

    auto* outer = new QVBoxLayout(this);
    outer->setSizeConstraint(QLayout::SetFixedSize);
    outer->setContentsMargins(0, 0, 0, 0);
    m_body = new QWidget(this);
    m_body->setObjectName(QStringLiteral("VirtualKeypadBody"));
    m_body->setAttribute(Qt::WA_StyledBackground);
    outer->addWidget(m_body);
    m_bodyLayout = new QVBoxLayout(m_body);
    m_bodyLayout->setContentsMargins(BodyMargin, BodyMargin, BodyMargin, BodyMargin / 2);
    m_bodyLayout->setSpacing(BodyMargin / 2);
    m_status = new QLabel(m_body);
    m_status->setObjectName(QStringLiteral("VirtualKeypadStatus"));
    m_status->setAlignment(Qt::AlignCenter);
    m_bodyLayout->addWidget(m_status);

    if (!layouts)
        layouts = COMPONENT(ButtonLayoutConfig, ComponentId::ButtonLayoutConfig);
    if (layouts)
        connect(layouts, &ButtonLayoutConfig::buttonLayoutChanged, this, [this](KeyLayout value) { rebuild(value); });
    if (logMsgWhenRetFail(keypad != nullptr, QStringLiteral("keypad is nullptr!!"))) {
        // The keypad reports from whichever thread wrote to it, mostly the
        // device thread.
        connect(keypad, &SimulatedKeypad::keyImageChanged, this, &VirtualKeypadWindow::showKeyImage,
                Qt::QueuedConnection);
        connect(keypad, &SimulatedKeypad::connectionChanged, this, &VirtualKeypadWindow::showConnection,
                Qt::QueuedConnection);
    }
    rebuild(layouts ? layouts->currentLayout() : ButtonLayoutConfig::DefaultLayout);
}

VirtualKeypadWindow::~VirtualKeypadWindow()
{
    releaseButton();
}

QLabel* VirtualKeypadWindow::key(int button) const
{
    return button >= 0 && button < m_keys.size() ? m_keys[button] : nullptr;
}

// The editor's arrangement: the user sees the same keys in both.
QSize VirtualKeypadWindow::gridShape(int layout)
{
    return KeyGridGeometry::gridShape(layout);
}

// The program maps a reported id to its button; the press must be the id
// that lands on this button, whatever numbering the model uses.
int VirtualKeypadWindow::deviceKeyId(int layout, int button)
{
    return KeypadTable::deviceKeyId(layout, button);
}

QImage VirtualKeypadWindow::upright(const QImage& deviceImage, int layout)
{
    return KeypadTable::uprightFromDevice(deviceImage, layout);
}

void VirtualKeypadWindow::rebuild(int layout)
{
    if (!ButtonLayoutConfig::isValidLayout(layout)) {
        LOG_MSG(QStringLiteral("ERROR: invalid layout %1!!").arg(layout));
        return;
    }
    releaseButton();
    m_layout = layout;
    delete m_keyArea;
    m_keys.clear();

    m_keyArea = new QWidget(m_body);
    auto* grid = new QGridLayout(m_keyArea);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(KeySpacing);
    const QSize shape = gridShape(layout);
    // The face, the style sheet's bezel around it, and room for the two
    // pixels a pressed key sinks.
    const int bezel = 2 * KeyGridGeometry::Bezel;
    const QSize keySize = ButtonLayoutConfig::iconSize(layout) + QSize(bezel, bezel + PressTravel);
    for (int button = 0; button < ButtonLayoutConfig::keyCount(layout); ++button) {
        auto* label = new QLabel(m_keyArea);
        label->setObjectName(QStringLiteral("VirtualKeypadKey"));
        label->setFixedSize(keySize);
        label->setAlignment(Qt::AlignCenter);
        label->setProperty(ButtonProperty, button);
        label->setProperty("pressed", QStringLiteral("false"));
        label->installEventFilter(this);
        grid->addWidget(label, button / shape.width(), button % shape.width());
        m_keys.append(label);
    }
    m_bodyLayout->insertWidget(0, m_keyArea);
    showConnection(m_keypad && m_keypad->isPluggedIn());
}

void VirtualKeypadWindow::showKeyImage(int deviceKey)
{
    for (int button = 0; button < m_keys.size(); ++button) {
        if (KeypadTable::deviceKeyNumber(m_layout, button) == deviceKey)
            showButtonImage(button);
    }
}

void VirtualKeypadWindow::showButtonImage(int button)
{
    QLabel* label = key(button);
    if (!label)
        return;
    const QImage shown = m_keypad ? m_keypad->keyImage(KeypadTable::deviceKeyNumber(m_layout, button)) : QImage();
    QPixmap face(label->size());
    if (shown.isNull())
        face.fill(Qt::black);
    else
        face = QPixmap::fromImage(
            upright(shown, m_layout).scaled(label->size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    label->setPixmap(face);
}

void VirtualKeypadWindow::showConnection(bool pluggedIn)
{
    if (!pluggedIn)
        releaseButton();
    m_status->setText(pluggedIn ? LayoutText::describe(m_layout) : tr("unplugged"));
    WidgetLook::setStyleProperty(m_body, "unplugged", pluggedIn ? QStringLiteral("false") : QStringLiteral("true"));
    if (pluggedIn) {
        m_body->setGraphicsEffect(nullptr);
    } else if (!m_body->graphicsEffect()) {
        auto* dim = new QGraphicsOpacityEffect(m_body);
        dim->setOpacity(UnpluggedOpacity);
        m_body->setGraphicsEffect(dim);
    }
    // Unplugging blanks the keys without one notice per key.
    for (int button = 0; button < m_keys.size(); ++button)
        showButtonImage(button);
}

void VirtualKeypadWindow::pressButton(int button)
{
    if (!m_keypad || !m_keypad->isPluggedIn() || !key(button))
        return;
    const int id = deviceKeyId(m_layout, button);
    if (id < 0) {
        LOG_MSG(QStringLiteral("no key id reaches button %1 on %2")
                    .arg(button)
                    .arg(ButtonLayoutConfig::layoutName(m_layout)));
        return;
    }
    releaseButton();
    m_pressedButton = button;
    m_pressedBit = id - 1;
    m_keypad->pressKey(m_pressedBit);
    setPressedLook(button, true);
}

void VirtualKeypadWindow::releaseButton()
{
    if (m_pressedButton < 0)
        return;
    if (m_keypad)
        m_keypad->releaseKey(m_pressedBit);
    setPressedLook(m_pressedButton, false);
    m_pressedButton = -1;
    m_pressedBit = -1;
}

void VirtualKeypadWindow::setPressedLook(int button, bool pressed)
{
    if (QLabel* label = key(button)) {
        WidgetLook::setStyleProperty(label, "pressed", pressed ? QStringLiteral("true") : QStringLiteral("false"));
    }
}

bool VirtualKeypadWindow::eventFilter(QObject* watched, QEvent* event)
{
    const bool press = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    const bool release = event->type() == QEvent::MouseButtonRelease;
    if ((press || release) && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        if (press)
            pressButton(watched->property(ButtonProperty).toInt());
        else
            releaseButton();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

// The key under the press keeps the mouse until the release, wherever that
// happens; a release that reaches the window from elsewhere counts too.
void VirtualKeypadWindow::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        releaseButton();
    QWidget::mouseReleaseEvent(event);
}

void VirtualKeypadWindow::leaveEvent(QEvent* event)
{
    releaseButton();
    QWidget::leaveEvent(event);
}

void VirtualKeypadWindow::hideEvent(QHideEvent* event)
{
    releaseButton();
    QWidget::hideEvent(event);
}

void VirtualKeypadWindow::closeEvent(QCloseEvent* event)
{
    releaseButton();
    event->accept();
    emit closed();
}
