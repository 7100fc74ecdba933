#pragma once

#include "keystrokebackend.h"
#include "uinputdevice.h"

#include <QMutex>

#include <memory>

// Keystrokes through one uinput virtual keyboard, made on first need and
// kept for the life of the backend: the desktop treats every new keyboard
// as a hot-plug, which is too slow and too noisy to repeat per keystroke.
// Works under Wayland and on the console, given write access to
// /dev/uinput (the udev rule grants it to the seat's user).
class UinputKeystrokeBackend : public KeystrokeBackend
{
public:
    // Null: the libevdev keyboard on /dev/uinput.
    explicit UinputKeystrokeBackend(std::unique_ptr<UinputDevice> device = nullptr);
    ~UinputKeystrokeBackend() override;

    QString name() const override;
    bool isUsable() override;
    QString unusableReason() const override;
    bool keyDown(int virtualKey) override;
    bool keyUp(int virtualKey) override;

    // How long a keystroke waits after it had to create the keyboard, for
    // the desktop to open the new device before the first event.
    static constexpr int SettleMs = 250;

private:
    bool ensureDevice();
    bool sendKey(int virtualKey, bool down);

    std::unique_ptr<UinputDevice> m_device;
    mutable QMutex m_mutex;
    bool m_created = false;
    QString m_reason;
};
