#pragma once

#include <QObject>

class QSocketNotifier;

// Turns SIGTERM, SIGINT and SIGHUP (a session logging out, a service manager,
// Ctrl+C in a terminal) into a signal on the GUI thread, so the program quits
// the same orderly way as from its tray menu.
class TerminationSignals : public QObject
{
    Q_OBJECT
public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

signals:
    void terminationRequested(int signalNumber);

private:
    void readSignal();

    QSocketNotifier* m_notifier = nullptr;
};
