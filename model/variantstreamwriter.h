#pragma once

#include <QDataStream>
#include <QVariant>
#include <QVariantMap>

#include <functional>

class EncodingCache;
class QPixmap;

// Writes QVariant trees in exactly the bytes QDataStream writes for them at
// the stream's version (Qt 4.0 or later), but takes images from an
// EncodingCache instead of compressing every one of them again. Checksums
// and files that QDataStream or QSettings read depend on every byte, so
// maps, lists and images are the only values written here; everything else
// goes to QDataStream itself.
class VariantStreamWriter
{
public:
    enum class Form
    {
        // The values as they are.
        InMemory,
        // The values that QSettings hands back after storing these: it keeps
        // a value in Qt 4.0's stream form ("@Variant(...)"), which has no
        // room for some font details, and images come back decoded.
        ReadBackFromSettingsFile,
    };

    VariantStreamWriter(QDataStream* stream, EncodingCache* cache, Form form = Form::InMemory);

    // Where the bytes of a non-null image go in place of the stream's device,
    // for an output that keeps something made from them.
    using ImageWriter = std::function<void(const QPixmap& pixmap, const QByteArray& bytes)>;
    void setImageWriter(ImageWriter writer);

    // As `stream << map`: a count, then the entries in descending key order.
    void write(const QVariantMap& map);
    // As `stream << value`.
    void write(const QVariant& value);

    // `stream << value` for a map value, in parts, for a caller that has
    // some of the values only later: the header with the entry count, then
    // every entry, in descending key order.
    void writeMapStart(const QVariant& map);
    void writeEntry(const QString& key, const QVariant& value);

    static QByteArray serialise(const QVariantMap& map, QDataStream::Version version, EncodingCache* cache,
                                Form form = Form::InMemory);

private:
    void writeHeader(const QVariant& value);
    void writeList(const QVariantList& list);
    bool writePixmap(const QVariant& value);
    void writeLeaf(const QVariant& value);

    QDataStream* m_stream;
    EncodingCache* m_cache;
    Form m_form;
    ImageWriter m_imageWriter;
};
