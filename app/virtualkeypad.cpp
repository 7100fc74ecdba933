#include "virtualkeypad.h"

#include "buttonlayoutconfig.h"
#include "hid_comm.h"
#include "hidtransport.h"
#include "keypadtable.h"
#include "logging.h"
#include "simulatedkeypad.h"
#include "virtualkeypadwindow.h"

#include <QEvent>
#include <QScreen>
#include <QTimer>
#include <QWidget>

namespace {
constexpr int WindowGap = 16;
} // namespace

VirtualKeypad::VirtualKeypad(Hid_Comm* hid, ButtonLayoutConfig* layouts, QWidget* mainWindow)
    : QObject(mainWindow), m_hid(hid), m_layouts(layouts), m_mainWindow(mainWindow)
{
    if (layouts)
        connect(layouts, &ButtonLayoutConfig::buttonLayoutChanged, this,
                [this](KeyLayout layout) { onLayoutChanged(layout); });
    if (mainWindow)
        mainWindow->installEventFilter(this);
    if (auto* installed = dynamic_cast<SimulatedKeypad*>(HidTransport::instance())) {
        m_keypad = installed;
        // Once the main window is up, so that the keypad can stand beside it.
        QTimer::singleShot(0, this, [this] { setActive(true); });
    }
}

VirtualKeypad::~VirtualKeypad()
{
    m_window.reset();
    // A keypad of our own must not stay installed once it is gone.
    if (m_ownKeypad && HidTransport::instance() == m_keypad) {
        if (m_hid)
            m_hid->switchTransport(nullptr);
        else
            HidTransport::setInstance(nullptr);
    }
}

unsigned short VirtualKeypad::productIdForLayout(int layout)
{
    const KeypadTable::LayoutFacts* facts = KeypadTable::layout(layout);
    return facts ? static_cast<unsigned short>(facts->productId) : SimulatedKeypad::DefaultProductId;
}

int VirtualKeypad::currentLayout() const
{
    return m_layouts ? m_layouts->currentLayout()
                     : ButtonLayoutConfig::currentLayoutOf(ButtonLayoutConfig::DefaultLayout);
}

void VirtualKeypad::setActive(bool active)
{
    if (active == m_active)
        return;
    if (!logMsgWhenRetFail(!m_hid.isNull(), QStringLiteral("Hid_Comm is nullptr!!"))) {
        emit activeChanged(m_active);
        return;
    }
    m_active = active;
    if (active) {
        const unsigned short productId = productIdForLayout(currentLayout());
        if (!m_keypad) {
            m_ownKeypad = std::make_unique<SimulatedKeypad>(productId);
            m_keypad = m_ownKeypad.get();
        }
        m_keypad->setProductId(productId);
        // Tests read the keypad's traffic log; on screen it would only hold
        // the last thousand reports, images and all.
        m_keypad->setReportLogLimit(0);
        if (!m_window) {
            m_window = std::make_unique<VirtualKeypadWindow>(m_keypad, m_layouts);
            connect(m_window.get(), &VirtualKeypadWindow::closed, this, [this] { setActive(false); });
            m_window->installEventFilter(this);
        }
        m_hid->switchTransport(m_keypad);
        showWindow();
    } else {
        if (m_window)
            m_window->hide();
        m_hid->switchTransport(nullptr);
    }
    LOG_MSG(QStringLiteral("virtual keypad %1").arg(active ? QStringLiteral("on") : QStringLiteral("off")));
    emit activeChanged(active);
}

// Each layout belongs to a model; the keypad becomes that model, as if the
// user had plugged in another one.
void VirtualKeypad::onLayoutChanged(int layout)
{
    const unsigned short productId = productIdForLayout(layout);
    if (!m_active || !m_hid || m_keypad->productId() == productId)
        return;
    m_keypad->setProductId(productId);
    m_hid->switchTransport(m_keypad);
}

void VirtualKeypad::showWindow()
{
    m_window->adjustSize();
    m_docked = true;
    dockBesideMainWindow();
    m_window->show();
    m_window->raise();
}

void VirtualKeypad::dockBesideMainWindow()
{
    if (!m_window || !m_mainWindow || !m_mainWindow->isVisible() || m_mainWindow->isMinimized())
        return;
    const QRect main = m_mainWindow->frameGeometry();
    const QRect screen = m_mainWindow->screen()->availableGeometry();
    const int width = m_window->frameGeometry().width();
    int x = main.right() + WindowGap;
    if (x + width > screen.right())
        x = main.left() - WindowGap - width;
    m_dockedPosition = QPoint(qMax(screen.left(), x), main.top());
    m_window->move(m_dockedPosition);
}

bool VirtualKeypad::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (watched == m_mainWindow && m_active && m_docked &&
        (type == QEvent::Move || type == QEvent::Resize || type == QEvent::Show))
        QTimer::singleShot(0, this, [this] { dockBesideMainWindow(); });
    else if (m_window && watched == m_window.get() && type == QEvent::Move && m_window->isVisible() &&
             m_window->pos() != m_dockedPosition)
        m_docked = false;
    return QObject::eventFilter(watched, event);
}
