#include "boundedmapreader.h"

#include "settings.h"
#include "valuesanity.h"

#include <QCoreApplication>
#include <QGuiApplication>

BoundedMapReader::BoundedMapReader(const QByteArray& bytes) : m_bytes(bytes), m_budget(Settings::MaxValueCount)
{
    m_buffer.setData(m_bytes);
    m_buffer.open(QIODevice::ReadOnly);
    m_stream.setDevice(&m_buffer);
}

bool BoundedMapReader::readDocument(QVariantMap* map)
{
    if (!readMap(map, 0))
        return false;
    if (remaining() != 0)
        return fail(QStringLiteral("%1 bytes after the end of the map").arg(remaining()));
    return true;
}

QByteArray BoundedMapReader::topLevelEntry(const QString& key) const
{
    return m_topLevelEntries.value(key);
}

bool BoundedMapReader::fail(const QString& why)
{
    if (m_failure.isEmpty())
        m_failure = QStringLiteral("%1 (at byte %2)").arg(why).arg(m_position);
    return false;
}

bool BoundedMapReader::skip(qint64 count)
{
    if (count > remaining())
        return fail(QStringLiteral("truncated: %1 bytes needed, %2 left").arg(count).arg(remaining()));
    m_position += count;
    return true;
}

bool BoundedMapReader::takeU32(quint32* value)
{
    if (remaining() < 4)
        return fail(QStringLiteral("truncated"));
    const auto* data = reinterpret_cast<const uchar*>(m_bytes.constData() + m_position);
    *value = (quint32(data[0]) << 24) | (quint32(data[1]) << 16) | (quint32(data[2]) << 8) | quint32(data[3]);
    m_position += 4;
    return true;
}

bool BoundedMapReader::takeU8(quint8* value)
{
    if (remaining() < 1)
        return fail(QStringLiteral("truncated"));
    *value = quint8(m_bytes.at(int(m_position)));
    m_position += 1;
    return true;
}

bool BoundedMapReader::takeCount(quint32* count, qint64 minElementSize, const char* what)
{
    if (!takeU32(count))
        return false;
    if (*count > remaining() / minElementSize)
        return fail(QStringLiteral("%1 claims %2 elements in %3 bytes").arg(what).arg(*count).arg(remaining()));
    if (*count > m_budget)
        return fail(QStringLiteral("more than %1 values").arg(Settings::MaxValueCount));
    m_budget -= *count;
    return true;
}

bool BoundedMapReader::checkDepth(int depth)
{
    if (depth > Settings::MaxNestingDepth)
        return fail(QStringLiteral("nested deeper than %1 levels").arg(Settings::MaxNestingDepth));
    return true;
}

template <typename Read>
bool BoundedMapReader::readWalked(qint64 start, Read read)
{
    m_buffer.seek(start);
    read();
    if (m_stream.status() != QDataStream::Ok || m_buffer.pos() != m_position)
        return fail(QStringLiteral("unreadable value"));
    return true;
}

bool BoundedMapReader::readMap(QVariantMap* map, int depth)
{
    if (!checkDepth(depth))
        return false;
    quint32 count = 0;
    if (!takeCount(&count, MinMapEntrySize, "map"))
        return false;
    for (quint32 i = 0; i < count; ++i) {
        const qint64 start = m_position;
        QString key;
        if (!readString(&key))
            return false;
        if (map->contains(key))
            return fail(QStringLiteral("key \"%1\" appears twice").arg(key));
        QVariant value;
        if (!readVariant(&value, depth + 1, key))
            return false;
        map->insert(key, value);
        if (depth == 0)
            m_topLevelEntries.insert(key, m_bytes.mid(int(start), int(m_position - start)));
    }
    return true;
}

bool BoundedMapReader::readList(QVariantList* list, int depth)
{
    if (!checkDepth(depth))
        return false;
    quint32 count = 0;
    if (!takeCount(&count, MinListElementSize, "list"))
        return false;
    for (quint32 i = 0; i < count; ++i) {
        QVariant value;
        if (!readVariant(&value, depth + 1, QStringLiteral("a list element")))
            return false;
        list->append(value);
    }
    return true;
}

bool BoundedMapReader::readStringList(QStringList* list)
{
    quint32 count = 0;
    if (!takeCount(&count, MinStringSize, "string list"))
        return false;
    for (quint32 i = 0; i < count; ++i) {
        QString text;
        if (!readString(&text))
            return false;
        list->append(text);
    }
    return true;
}

bool BoundedMapReader::readString(QString* text)
{
    const qint64 start = m_position;
    return walkString() && readWalked(start, [&] { m_stream >> *text; });
}

bool BoundedMapReader::readVariant(QVariant* value, int depth, const QString& name)
{
    const qint64 start = m_position;
    quint32 type = 0;
    quint8 isNull = 0;
    if (!takeU32(&type) || !takeU8(&isNull))
        return false;
    switch (type) {
    case QMetaType::QVariantMap: {
        QVariantMap map;
        if (isNull || !readMap(&map, depth))
            return fail(QStringLiteral("bad map"));
        *value = map;
        return true;
    }
    case QMetaType::QVariantList: {
        QVariantList list;
        if (isNull || !readList(&list, depth))
            return fail(QStringLiteral("bad list"));
        *value = list;
        return true;
    }
    case QMetaType::QStringList: {
        QStringList list;
        if (isNull || !readStringList(&list))
            return fail(QStringLiteral("bad string list"));
        *value = list;
        return true;
    }
    default:
        break;
    }
    if (!walkLeaf(type))
        return false;
    if (!readWalked(start, [&] { m_stream >> *value; }))
        return false;
    if (value->userType() != int(type))
        return fail(QStringLiteral("value of type %1 changed type").arg(type));
    if (!ValueSanity::problem(*value).isEmpty())
        *value = ValueSanity::usable(*value, QStringLiteral("\"%1\" at byte %2").arg(name).arg(start));
    return true;
}

bool BoundedMapReader::walkLeaf(quint32 type)
{
    switch (type) {
    case QMetaType::UnknownType: // an invalid QVariant: nothing follows
        return true;
    case QMetaType::Bool:
        return skip(1);
    case QMetaType::Int:
    case QMetaType::UInt:
        return skip(4);
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return skip(8);
    case QMetaType::QString:
        return walkString();
    case QMetaType::QByteArray:
        return walkByteArray();
    case QMetaType::QColor:
        // colour model, alpha, red, green, blue, padding
        return skip(1 + 5 * 2);
    case QMetaType::QFont:
        return walkFont();
    case QMetaType::QPixmap:
        // A pixmap needs a GUI application; without one QPixmap aborts the process.
        if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
            return fail(QStringLiteral("images need a GUI application"));
        return walkImage();
    case QMetaType::QImage:
        return walkImage();
    default:
        return fail(QStringLiteral("values of type %1 are not expected").arg(type));
    }
}

bool BoundedMapReader::walkString()
{
    quint32 size = 0;
    if (!takeU32(&size))
        return false;
    if (size == 0xffffffffu) // null string
        return true;
    if (size % 2 != 0)
        return fail(QStringLiteral("odd string length %1").arg(size));
    return skip(size);
}

bool BoundedMapReader::walkByteArray()
{
    quint32 size = 0;
    if (!takeU32(&size))
        return false;
    return size == 0xffffffffu || skip(size);
}

bool BoundedMapReader::walkFont()
{
    if (!walkString() || !walkString()) // family, style name
        return false;
    // point size (double), pixel size, style hint, style strategy (16 bit),
    // character set, weight, bits, stretch (16 bit), extended bits,
    // letter and word spacing, hinting preference, capitalization
    if (!skip(8 + 4 + 1 + 2 + 1 + 1 + 1 + 2 + 1 + 4 + 4 + 1 + 1))
        return false;
    quint32 families = 0;
    if (!takeCount(&families, MinStringSize, "font family list"))
        return false;
    for (quint32 i = 0; i < families; ++i) {
        if (!walkString())
            return false;
    }
    return true;
}

bool BoundedMapReader::walkImage()
{
    quint32 notNull = 0;
    if (!takeU32(&notNull))
        return false;
    if (notNull == 0)
        return true;
    static const QByteArray Signature("\x89PNG\r\n\x1a\n", 8);
    if (remaining() < Signature.size() || m_bytes.mid(int(m_position), Signature.size()) != Signature)
        return fail(QStringLiteral("image is not a PNG"));
    m_position += Signature.size();
    bool first = true;
    for (;;) {
        quint32 length = 0;
        if (!takeU32(&length))
            return false;
        if (length > 0x7fffffffu)
            return fail(QStringLiteral("PNG chunk too long"));
        if (remaining() < 4)
            return fail(QStringLiteral("truncated"));
        const QByteArray chunkType = m_bytes.mid(int(m_position), 4);
        m_position += 4;
        if (first) {
            if (chunkType != "IHDR" || length != 13)
                return fail(QStringLiteral("PNG without header"));
            quint32 width = 0;
            quint32 height = 0;
            if (!takeU32(&width) || !takeU32(&height))
                return false;
            if (width == 0 || height == 0 || width > quint32(Settings::MaxImageSide) ||
                height > quint32(Settings::MaxImageSide))
                return fail(QStringLiteral("image of %1 x %2 pixels is larger than %3 x %3")
                                .arg(width)
                                .arg(height)
                                .arg(Settings::MaxImageSide));
            length -= 8;
            first = false;
        }
        if (m_budget == 0)
            return fail(QStringLiteral("more than %1 values").arg(Settings::MaxValueCount));
        --m_budget;
        if (!skip(qint64(length) + 4)) // data and CRC
            return false;
        if (chunkType == "IEND")
            return true;
    }
}
