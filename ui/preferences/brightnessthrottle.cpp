#include "brightnessthrottle.h"

BrightnessThrottle::BrightnessThrottle(Sender sender, BackgroundRunner runner, QObject* parent)
    : QObject(parent), m_sender(std::move(sender)), m_runner(std::move(runner))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &BrightnessThrottle::sendWhenDue);
}

void BrightnessThrottle::setLevel(int level)
{
    m_waiting = level;
    sendWhenDue();
}

bool BrightnessThrottle::isIdle() const
{
    return !m_waiting && !m_sending;
}

int BrightnessThrottle::lastSentLevel() const
{
    return m_lastSent;
}

void BrightnessThrottle::sendWhenDue()
{
    if (m_sending || !m_waiting)
        return;
    if (m_sinceLastSend.isValid() && m_sinceLastSend.elapsed() < IntervalMs) {
        if (!m_timer.isActive())
            m_timer.start(int(IntervalMs - m_sinceLastSend.elapsed()));
        return;
    }
    const int level = *m_waiting;
    m_waiting.reset();
    // The keypad has it already (the slider went away and came back).
    if (level == m_lastSent)
        return;
    m_sending = true;
    m_sinceLastSend.start();
    const Sender sender = m_sender;
    BackgroundTask::run(
        m_runner, this, [sender, level] { sender(level); }, [this, level] { onSent(level); });
}

void BrightnessThrottle::onSent(int level)
{
    m_sending = false;
    m_lastSent = level;
    emit levelSent(level);
    sendWhenDue();
}
