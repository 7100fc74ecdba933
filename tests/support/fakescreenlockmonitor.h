#pragma once

#include "screenlockmonitor.h"

// A screen lock monitor the test drives: it locks, unlocks and becomes
// available when told.
class FakeScreenLockMonitor : public ScreenLockMonitor
{
    Q_OBJECT

public:
    explicit FakeScreenLockMonitor(bool available = true, QObject* parent = nullptr);

    bool available() const override;
    bool isLocked() const override;

    void setAvailable(bool available);
    void setLocked(bool locked);

private:
    bool m_available;
    bool m_locked = false;
};
