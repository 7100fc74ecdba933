#include "variantstreamwriter.h"

#include "encodingcache.h"
#include "settingsfilewriter.h"

#include <QPixmap>

// The QVariant and container layouts below are those of this stream version
// and of every earlier one from Qt 4.0 on.
static_assert(QDataStream::Qt_DefaultCompiledVersion == QDataStream::Qt_5_15,
              "check the QVariant, QMap and QPixmap stream layouts in VariantStreamWriter for the new version");

namespace {

// Values that come back from Qt 4.0's stream form exactly as they went in.
bool survivesSettingsFile(int type)
{
    switch (type) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QByteArray:
    case QMetaType::QColor:
        return true;
    default:
        return false;
    }
}

} // namespace

VariantStreamWriter::VariantStreamWriter(QDataStream* stream, EncodingCache* cache, Form form)
    : m_stream(stream), m_cache(cache), m_form(form)
{
}

void VariantStreamWriter::setImageWriter(ImageWriter writer)
{
    m_imageWriter = std::move(writer);
}

QByteArray VariantStreamWriter::serialise(const QVariantMap& map, QDataStream::Version version, EncodingCache* cache,
                                          Form form)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(version);
    VariantStreamWriter(&stream, cache, form).write(map);
    return bytes;
}

void VariantStreamWriter::write(const QVariantMap& map)
{
    *m_stream << quint32(map.size());
    // QDataStream's own order, duplicate keys included, so that a reader
    // inserting the entries one by one ends with the same map.
    auto it = map.constEnd();
    while (it != map.constBegin()) {
        --it;
        writeEntry(it.key(), it.value());
    }
}

void VariantStreamWriter::writeMapStart(const QVariant& map)
{
    Q_ASSERT(map.userType() == QMetaType::QVariantMap);
    writeHeader(map);
    *m_stream << quint32(static_cast<const QVariantMap*>(map.constData())->size());
}

void VariantStreamWriter::writeEntry(const QString& key, const QVariant& value)
{
    *m_stream << key;
    write(value);
}

void VariantStreamWriter::writeList(const QVariantList& list)
{
    *m_stream << quint32(list.size());
    for (const QVariant& value : list)
        write(value);
}

void VariantStreamWriter::write(const QVariant& value)
{
    if (m_stream->version() < QDataStream::Qt_4_0) {
        *m_stream << value;
        return;
    }
    switch (value.userType()) {
    case QMetaType::QVariantMap:
        writeHeader(value);
        write(*static_cast<const QVariantMap*>(value.constData()));
        return;
    case QMetaType::QVariantList:
        writeHeader(value);
        writeList(*static_cast<const QVariantList*>(value.constData()));
        return;
    case QMetaType::QPixmap:
        if (writePixmap(value))
            return;
        break;
    default:
        break;
    }
    writeLeaf(value);
}

// Type ids of maps, lists and pixmaps are the same in Qt 4 streams; the null
// flag came with Qt 4.2. A value QSettings reads back never has it set.
void VariantStreamWriter::writeHeader(const QVariant& value)
{
    *m_stream << quint32(value.userType());
    if (m_stream->version() >= QDataStream::Qt_4_2)
        *m_stream << qint8(m_form == Form::InMemory ? value.data_ptr().is_null : false);
}

bool VariantStreamWriter::writePixmap(const QVariant& value)
{
    const auto& pixmap = *static_cast<const QPixmap*>(value.constData());
    if (pixmap.isNull())
        return false;
    writeHeader(value);
    const QByteArray bytes = m_form == Form::InMemory ? m_cache->pixmap(pixmap) : m_cache->reloadedPixmap(pixmap);
    if (m_imageWriter)
        m_imageWriter(pixmap, bytes);
    else
        m_stream->writeRawData(bytes.constData(), bytes.size());
    return true;
}

void VariantStreamWriter::writeLeaf(const QVariant& value)
{
    if (m_form == Form::InMemory || (survivesSettingsFile(value.userType()) && !value.data_ptr().is_null)) {
        *m_stream << value;
        return;
    }
    const QByteArray bytes =
        m_cache->reloadedValue(value, SettingsFileWriter::StreamVersion, QDataStream::Version(m_stream->version()));
    m_stream->writeRawData(bytes.constData(), bytes.size());
}
