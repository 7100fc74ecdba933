#pragma once

#include "uinputdevice.h"

struct libevdev;
struct libevdev_uinput;

// The uinput keyboard made with libevdev. The device node is opened by us,
// not by libevdev, so that a missing or locked node fails at once and with
// the node's name in the reason.
class LibevdevUinputDevice : public UinputDevice
{
public:
    explicit LibevdevUinputDevice(const QString& nodePath = QStringLiteral("/dev/uinput"));
    ~LibevdevUinputDevice() override;

    bool create(const QVector<quint16>& keyCodes, QString* reason) override;
    bool writeKey(quint16 code, bool down) override;

private:
    void destroy();

    QString m_nodePath;
    int m_fd = -1;
    libevdev* m_prototype = nullptr;
    libevdev_uinput* m_device = nullptr;
};
