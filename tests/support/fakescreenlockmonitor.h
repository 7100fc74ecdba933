#pragma once

#include "screenlockmonitor.h"

// A screen lock monitor the test drives.
class FakeScreenLockMonitor : public ScreenLockMonitor
{
    Q_OBJECT

public:
    bool available() const override { return m_available; }
    bool isLocked() const override { return m_locked; }
    void setAvailable(bool available);
    void setLocked(bool locked);

private:
    bool m_available = true;
    bool m_locked = false;
};
