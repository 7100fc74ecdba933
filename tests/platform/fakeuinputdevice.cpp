#include "fakeuinputdevice.h"

FakeUinputDevice::FakeUinputDevice(State* state) : m_state(state) {}

bool FakeUinputDevice::create(const QVector<quint16>& keyCodes, QString* reason)
{
    ++m_state->createCalls;
    if (!m_state->failure.isEmpty()) {
        *reason = m_state->failure;
        return false;
    }
    m_state->announced = keyCodes;
    return true;
}

bool FakeUinputDevice::writeKey(quint16 code, bool down)
{
    m_state->writes.append({code, down});
    return true;
}
