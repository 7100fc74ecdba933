#include "keyeventrecorder.h"

#include "hid_comm.h"

KeyEventRecorder::KeyEventRecorder(Hid_Comm* hid)
{
    connect(
        hid, &Hid_Comm::keyPressed, this, [this](int id) { events.append(QStringLiteral("press %1").arg(id)); },
        Qt::QueuedConnection);
    connect(
        hid, &Hid_Comm::keyReleased, this, [this](int id) { events.append(QStringLiteral("release %1").arg(id)); },
        Qt::QueuedConnection);
    connect(
        hid, &Hid_Comm::KeyboardStatusChange, this,
        [this](bool isConnected) {
            events.append(isConnected ? QStringLiteral("connected") : QStringLiteral("disconnected"));
        },
        Qt::QueuedConnection);
}

QStringList KeyEventRecorder::keyEvents() const
{
    QStringList keys;
    for (const QString& event : events) {
        if (event.startsWith(QLatin1String("press")) || event.startsWith(QLatin1String("release")))
            keys.append(event);
    }
    return keys;
}
