#pragma once

#include "hidraweventsource.h"

#include <QString>
#include <memory>

struct udev;
struct udev_monitor;

// hidraw events from udev's netlink monitor, delivered after udev has run its
// rules on them, so a node announced here already carries its permissions.
class UdevHidrawSource : public HidrawEventSource
{
public:
    ~UdevHidrawSource() override;
    UdevHidrawSource(const UdevHidrawSource&) = delete;
    UdevHidrawSource& operator=(const UdevHidrawSource&) = delete;

    // Null when there is no udev to listen to; *reason then says why.
    static std::unique_ptr<UdevHidrawSource> create(QString* reason);

    int fd() const override;
    bool receive(Event* event) override;

private:
    UdevHidrawSource(struct udev* context, udev_monitor* monitor);

    struct udev* m_udev;
    udev_monitor* m_monitor;
};
