#include "keycapture.h"

#include <QEvent>
#include <QKeyEvent>
#include <QWidget>

KeyCapture::KeyCapture(QWidget* target, KeyHandler onPress, KeyHandler onRelease, std::function<void()> onInterrupted)
    : QObject(target), m_target(target), m_onPress(std::move(onPress)), m_onRelease(std::move(onRelease)),
      m_onInterrupted(std::move(onInterrupted))
{
    m_target->installEventFilter(this);
}

void KeyCapture::start()
{
    m_active = true;
    m_target->grabKeyboard();
}

void KeyCapture::stop()
{
    m_active = false;
    m_target->releaseKeyboard();
}

bool KeyCapture::isActive() const
{
    return m_active;
}

bool KeyCapture::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_target || !m_active)
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // Every key is ours while capturing, none a shortcut of the window.
        event->accept();
        return true;
    case QEvent::KeyPress:
        m_onPress(*static_cast<QKeyEvent*>(event));
        return true;
    case QEvent::KeyRelease:
        m_onRelease(*static_cast<QKeyEvent*>(event));
        return true;
    case QEvent::FocusOut:
    case QEvent::Hide:
        m_onInterrupted();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
