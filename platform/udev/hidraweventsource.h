#pragma once

#include <QByteArray>

// Where KeypadMonitor gets its hidraw add and remove events from: udev in the
// program, a scripted source in tests.
class HidrawEventSource
{
public:
    struct Event
    {
        QByteArray action;     // "add", "remove", "change", ...
        QByteArray hidId;      // HID_ID of the node's HID device; empty when unknown
        QByteArray devicePath; // sysfs path of the hidraw node ("/devices/...")
    };

    virtual ~HidrawEventSource();

    // A descriptor that becomes readable while an event is pending.
    virtual int fd() const = 0;

    // Takes one pending event. False when there was none or it could not be
    // read; the descriptor is drained either way.
    virtual bool receive(Event* event) = 0;
};
