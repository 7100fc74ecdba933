#pragma once

#include <QDBusConnection>
#include <QObject>

// Suspend and resume notices from systemd-logind's PrepareForSleep signal.
// aboutToSleep() comes while logind holds the suspend back for its delay
// inhibitors only; the program gets no inhibitor of its own, so whatever it
// does then must be quick.
class SleepMonitor : public QObject
{
    Q_OBJECT

public:
    // Listens on the system bus.
    explicit SleepMonitor(QObject* parent = nullptr);
    // Listens on the given bus, where something owning logind's name sends
    // the signal.
    explicit SleepMonitor(const QDBusConnection& bus, QObject* parent = nullptr);

    // False without a bus connection: then no notice ever comes.
    bool isActive() const;

signals:
    void aboutToSleep();
    void resumed();

private slots:
    void onPrepareForSleep(bool start);

private:
    void subscribe(QDBusConnection bus);

    bool m_active = false;
};
