#pragma once

#include "uinputdevice.h"

#include <QPair>

// A uinput keyboard in memory: creation succeeds or fails as the test says,
// and every key written is remembered.
class FakeUinputDevice : public UinputDevice
{
public:
    struct State
    {
        QString failure; // creation fails with this reason while set
        int createCalls = 0;
        QVector<quint16> announced;
        QVector<QPair<quint16, bool>> writes;
    };

    // The state outlives the device, which its backend owns.
    explicit FakeUinputDevice(State* state);

    bool create(const QVector<quint16>& keyCodes, QString* reason) override;
    bool writeKey(quint16 code, bool down) override;

private:
    State* m_state;
};
