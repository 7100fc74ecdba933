#include "fakescreenlockmonitor.h"

#include <utility>

void FakeScreenLockMonitor::setAvailable(bool available)
{
    if (std::exchange(m_available, available) != available)
        emit availableChanged(available);
}

void FakeScreenLockMonitor::setLocked(bool locked)
{
    if (std::exchange(m_locked, locked) != locked)
        emit lockedChanged(locked);
}
