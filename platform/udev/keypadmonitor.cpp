#include "keypadmonitor.h"

#include "hidid.h"
#include "logging.h"
#include "udevhidrawsource.h"

#include <QSocketNotifier>

#include <optional>

namespace {

std::optional<HidId> hidIdOf(const HidrawEventSource::Event& event)
{
    // The parent's HID_ID is only there while the node exists; a remove
    // still has the path, which names the HID device.
    if (!event.hidId.isEmpty())
        return HidId::parse(event.hidId);
    return HidId::fromDevicePath(event.devicePath);
}

QString hex(quint32 value)
{
    return QStringLiteral("0x%1").arg(value, 4, 16, QLatin1Char('0'));
}

} // namespace

KeypadMonitor::KeypadMonitor(UsbIdFilter keypads, QObject* parent) : QObject(parent), m_keypads(std::move(keypads))
{
    QString reason;
    std::unique_ptr<HidrawEventSource> source = UdevHidrawSource::create(&reason);
    listen(std::move(source), reason);
}

KeypadMonitor::KeypadMonitor(UsbIdFilter keypads, std::unique_ptr<HidrawEventSource> source, QObject* parent)
    : QObject(parent), m_keypads(std::move(keypads))
{
    listen(std::move(source), QStringLiteral("no event source"));
}

KeypadMonitor::~KeypadMonitor() = default;

void KeypadMonitor::listen(std::unique_ptr<HidrawEventSource> source, const QString& missingReason)
{
    if (!source || source->fd() < 0) {
        LOG_MSG(QStringLiteral("No keypad hot-plug notices: %1. A keypad plugged in later is not seen until restart!!")
                    .arg(source ? QStringLiteral("the event source has no descriptor") : missingReason));
        return;
    }
    m_source = std::move(source);
    m_notifier = new QSocketNotifier(m_source->fd(), QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &KeypadMonitor::onReadable);
}

bool KeypadMonitor::isActive() const
{
    return m_notifier != nullptr;
}

void KeypadMonitor::onReadable()
{
    HidrawEventSource::Event event;
    if (m_source->receive(&event))
        handleEvent(event);
}

void KeypadMonitor::handleEvent(const HidrawEventSource::Event& event)
{
    const bool added = event.action == "add";
    if (!added && event.action != "remove")
        return;
    const std::optional<HidId> id = hidIdOf(event);
    if (!id) {
        LOG_MSG(QStringLiteral("Cannot tell the HID device of hidraw event \"%1\" (HID_ID \"%2\", path \"%3\")!!")
                    .arg(QString::fromUtf8(event.action), QString::fromUtf8(event.hidId),
                         QString::fromUtf8(event.devicePath)));
        return;
    }
    if (!m_keypads.accepts(id->vendorId, id->productId))
        return;
    if (added) {
        LOG_MSG(QStringLiteral("keypad hidraw node added: vid %1, pid %2").arg(hex(id->vendorId), hex(id->productId)));
        emit keypadArrived(id->vendorId, id->productId);
    } else {
        LOG_MSG(QStringLiteral("keypad hidraw node removed (unplugged, or opened through libusb): vid %1, pid %2")
                    .arg(hex(id->vendorId), hex(id->productId)));
        emit keypadRemoved();
    }
}
