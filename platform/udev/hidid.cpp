#include "hidid.h"

#include <QList>

namespace {

// Hexadecimal digits only: toUInt() would also take a "0x" prefix, a sign
// or blanks, which no udev value carries.
bool parseHexField(const QByteArray& field, int maxDigits, quint32* value)
{
    if (field.isEmpty() || field.size() > maxDigits)
        return false;
    quint32 result = 0;
    for (const char c : field) {
        int digit = 0;
        if (c >= '0' && c <= '9')
            digit = c - '0';
        else if (c >= 'a' && c <= 'f')
            digit = c - 'a' + 10;
        else if (c >= 'A' && c <= 'F')
            digit = c - 'A' + 10;
        else
            return false;
        result = result * 16 + quint32(digit);
    }
    *value = result;
    return true;
}

std::optional<HidId> parseFields(const QList<QByteArray>& fields, int maxDigits)
{
    HidId id;
    if (fields.size() != 3 || !parseHexField(fields[0], maxDigits, &id.bus) ||
        !parseHexField(fields[1], maxDigits, &id.vendorId) || !parseHexField(fields[2], maxDigits, &id.productId))
        return std::nullopt;
    return id;
}

std::optional<HidId> fromDeviceName(const QByteArray& name)
{
    const int dot = name.indexOf('.');
    quint32 instance = 0;
    if (dot < 0 || !parseHexField(name.mid(dot + 1), 8, &instance))
        return std::nullopt;
    const QList<QByteArray> fields = name.left(dot).split(':');
    for (const QByteArray& field : fields) {
        if (field.size() != 4)
            return std::nullopt;
    }
    return parseFields(fields, 4);
}

} // namespace

std::optional<HidId> HidId::parse(const QByteArray& text)
{
    return parseFields(text.split(':'), 8);
}

std::optional<HidId> HidId::fromDevicePath(const QByteArray& devicePath)
{
    // Searched from the node upwards, so the nearest HID device is the one.
    const QList<QByteArray> components = devicePath.split('/');
    for (auto it = components.crbegin(); it != components.crend(); ++it) {
        if (const std::optional<HidId> id = fromDeviceName(*it))
            return id;
    }
    return std::nullopt;
}
