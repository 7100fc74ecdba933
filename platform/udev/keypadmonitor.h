#pragma once

#include "hidraweventsource.h"
#include "usbidfilter.h"

#include <QObject>
#include <memory>

class QSocketNotifier;

// Keypad hot-plug notices from the hidraw nodes of keypads, on the thread
// that owns the monitor (the GUI thread).
//
// The device thread talks to the keypad through libusb, which detaches the
// kernel's HID driver while it holds the keypad: the keypad's hidraw node
// goes away when the program opens it and comes back when it closes it. So
// keypadRemoved() also follows our own open and does not prove the keypad
// was unplugged, and keypadArrived() follows our own close. A keypad with
// several HID interfaces announces itself once per interface.
class KeypadMonitor : public QObject
{
    Q_OBJECT

public:
    // Listens to udev for the given keypads. Without udev it logs once and
    // stays silent.
    explicit KeypadMonitor(UsbIdFilter keypads, QObject* parent = nullptr);
    // Listens to the given source; null gives the same silent monitor.
    KeypadMonitor(UsbIdFilter keypads, std::unique_ptr<HidrawEventSource> source, QObject* parent = nullptr);
    ~KeypadMonitor() override;

    // False when there is nothing to listen to.
    bool isActive() const;

    // One hidraw event, as the source delivers it.
    void handleEvent(const HidrawEventSource::Event& event);

signals:
    void keypadArrived(quint32 vid, quint32 pid);
    void keypadRemoved();

private:
    void listen(std::unique_ptr<HidrawEventSource> source, const QString& missingReason);
    void onReadable();

    UsbIdFilter m_keypads;
    std::unique_ptr<HidrawEventSource> m_source;
    QSocketNotifier* m_notifier = nullptr;
};
