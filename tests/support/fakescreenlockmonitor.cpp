#include "fakescreenlockmonitor.h"

FakeScreenLockMonitor::FakeScreenLockMonitor(bool available, QObject* parent)
    : ScreenLockMonitor(parent), m_available(available)
{
}

bool FakeScreenLockMonitor::available() const
{
    return m_available;
}

bool FakeScreenLockMonitor::isLocked() const
{
    return m_locked;
}

void FakeScreenLockMonitor::setAvailable(bool available)
{
    if (available == m_available)
        return;
    m_available = available;
    emit availableChanged(available);
}

void FakeScreenLockMonitor::setLocked(bool locked)
{
    if (locked == m_locked)
        return;
    m_locked = locked;
    emit lockedChanged(locked);
}
