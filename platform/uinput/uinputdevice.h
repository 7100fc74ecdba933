#pragma once

#include <QString>
#include <QVector>
#include <QtGlobal>

// A virtual keyboard of the kernel's uinput module, behind an interface so
// the keystroke backend can be tested without /dev/uinput.
class UinputDevice
{
public:
    virtual ~UinputDevice();

    // Creates the keyboard, announcing the evdev key codes it will send.
    // False with the reason when the kernel refuses; never blocks.
    virtual bool create(const QVector<quint16>& keyCodes, QString* reason) = 0;
    // One key event followed by a report, so readers see it at once.
    virtual bool writeKey(quint16 code, bool down) = 0;
};
