#pragma once

#include <QList>
#include <QObject>
#include <QString>

class Hid_Comm;

// Collects Hid_Comm's signals on the test's thread (queued, as the program
// receives them), so tests can wait for them without racing the device thread.
class KeyEventRecorder : public QObject
{
    Q_OBJECT

public:
    explicit KeyEventRecorder(Hid_Comm* hid);

    // "press 3", "release 3", "connected", "disconnected", in order.
    QStringList events;
    QStringList keyEvents() const;
};
