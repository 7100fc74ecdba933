#pragma once

#include <QObject>

// Whether the user's session is locked, as the desktop says. The keypad
// goes dark while it is.
class ScreenLockMonitor : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // False while nothing tells this monitor about locks: then lockedChanged
    // never comes and isLocked() stays false.
    virtual bool available() const = 0;
    virtual bool isLocked() const = 0;

signals:
    void lockedChanged(bool locked);
    void availableChanged(bool available);
};
