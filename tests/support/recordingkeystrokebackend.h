#pragma once

#include "keystrokebackend.h"

#include <QMutex>
#include <QVector>

// The fake desktop for tests: remembers every keystroke with the time it
// was sent. It types any virtual key the real backends know and refuses the
// rest the same way, so callers see the same failures.
class RecordingKeystrokeBackend : public KeystrokeBackend
{
public:
    struct Event
    {
        int virtualKey;
        bool down;
        qint64 monotonicNs; // steady clock
    };

    QString name() const override;
    bool isUsable() override;
    QString unusableReason() const override;
    bool keyDown(int virtualKey) override;
    bool keyUp(int virtualKey) override;

    // An empty reason makes the backend usable again.
    void setUnusable(const QString& reason);
    QVector<Event> events() const;
    void clear();

private:
    bool record(int virtualKey, bool down);

    mutable QMutex m_mutex;
    QVector<Event> m_events;
    QString m_unusableReason;
};
