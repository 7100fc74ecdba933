#include "settingsfilewriter.h"

#include "encodingcache.h"
#include "variantstreamwriter.h"

#include <QByteArrayList>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QLockFile>
#include <QPixmap>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QtEndian>

#include <cerrno>
#include <cstring>
#include <utility>

namespace {

bool isHexDigit(uchar c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// The one-letter escapes QSettings uses, or 0.
char letterEscape(uchar c)
{
    switch (c) {
    case '\a':
        return 'a';
    case '\b':
        return 'b';
    case '\f':
        return 'f';
    case '\n':
        return 'n';
    case '\r':
        return 'r';
    case '\t':
        return 't';
    case '\v':
        return 'v';
    case '"':
        return '"';
    case '\\':
        return '\\';
    default:
        return 0;
    }
}

// What one byte becomes in each of the two states of QSettings' escaping: a
// hex digit right after a numeric escape ("\0", "\x1f") is escaped itself,
// since QSettings reads "\x" with as many hex digits as follow. Packed into
// one word: the text in the low four bytes, then its size, whether a numeric
// escape ends it, and whether the byte forces quotes around the value.
quint64 packEscape(const char* text, int size, bool numeric, bool forcesQuotes)
{
    quint32 chars = 0;
    for (int i = 0; i < size; ++i)
        chars |= quint32(quint8(text[i])) << (8 * i);
    return quint64(chars) | quint64(size) << 32 | quint64(numeric) << 40 | quint64(forcesQuotes) << 48;
}

quint64 escapeFor(uchar c, bool afterNumericEscape)
{
    // Lower-case hex without leading zeros, as QByteArray::number(c, 16) gives it.
    static const char digits[] = "0123456789abcdef";
    const bool forcesQuotes = c == ';' || c == ',' || c == '=';
    if ((afterNumericEscape && isHexDigit(c)) || (c != 0 && !letterEscape(c) && (c <= 0x1f || c >= 0x7f))) {
        const char hex[4] = {'\\', 'x', digits[c >> 4], digits[c & 0xf]};
        const char shortHex[3] = {'\\', 'x', digits[c & 0xf]};
        return c >= 0x10 ? packEscape(hex, 4, true, forcesQuotes) : packEscape(shortHex, 3, true, forcesQuotes);
    }
    if (c == 0)
        return packEscape("\\0", 2, true, false);
    if (const char letter = letterEscape(c)) {
        const char text[2] = {'\\', letter};
        return packEscape(text, 2, false, false);
    }
    const char plain = char(c);
    return packEscape(&plain, 1, false, forcesQuotes);
}

struct EscapeTable
{
    quint64 plain[256];
    quint64 afterNumeric[256];

    EscapeTable()
    {
        for (int c = 0; c < 256; ++c) {
            plain[c] = escapeFor(uchar(c), false);
            afterNumeric[c] = escapeFor(uchar(c), true);
        }
    }
};

// The escaped text of one value, after a prefix, as a list of pieces: small
// parts are escaped into chunks, escaped images are taken in as they are.
class EscapedOutput
{
public:
    explicit EscapedOutput(const QByteArray& prefix, bool afterNumericEscape = false)
        : m_chunk(prefix), m_afterNumeric(afterNumericEscape)
    {
        m_chunk.append(' '); // room for an opening quote
        m_valueStart = m_chunk.size();
    }

    void escape(const char* data, int size)
    {
        static const EscapeTable table;
        char* out = room(4 * qint64(size));
        const auto* in = reinterpret_cast<const uchar*>(data);
        const auto* const end = in + size;
        quint64 afterNumeric = m_afterNumeric;
        quint64 quotes = 0;
        for (; in != end; ++in) {
            // Both lookups go ahead without waiting for the previous byte.
            const quint64 plain = table.plain[*in];
            const quint64 numeric = table.afterNumeric[*in];
            const quint64 escape = afterNumeric ? numeric : plain;
            const quint32 text = qToLittleEndian(quint32(escape)); // first character in the lowest byte
            std::memcpy(out, &text, 4);
            out += (escape >> 32) & 0xff;
            afterNumeric = (escape >> 40) & 1;
            quotes |= escape >> 48;
        }
        m_afterNumeric = afterNumeric != 0;
        m_needsQuotes = m_needsQuotes || quotes != 0;
        m_chunk.resize(int(out - m_chunk.data()));
    }

    void appendEscaped(const QByteArray& text, bool endsAfterNumericEscape, bool needsQuotes)
    {
        if (text.isEmpty())
            return;
        if (text.size() < SharedPieceSize) {
            std::memcpy(room(text.size()), text.constData(), size_t(text.size()));
            m_chunk.resize(m_chunk.size() + text.size());
        } else {
            takeChunk();
            m_pieces.append(text);
        }
        m_afterNumeric = endsAfterNumericEscape;
        m_needsQuotes = m_needsQuotes || needsQuotes;
    }

    bool afterNumericEscape() const { return m_afterNumeric; }
    bool needsQuotes() const { return m_needsQuotes; }

    // The escaped text alone, as it continues a value.
    QByteArray text()
    {
        takeChunk();
        QByteArray text = m_pieces.join();
        return text.mid(m_valueStart);
    }

    // Once quotes are certain, everything so far, with the opening quote.
    SettingsFileWriter::Content takeQuoted()
    {
        Q_ASSERT(m_needsQuotes);
        takeChunk();
        if (!m_openingTaken)
            m_pieces.first()[m_valueStart - 1] = '"';
        m_openingTaken = true;
        return nonEmpty(std::exchange(m_pieces, QByteArrayList()));
    }

    // A value with ';', ',' or '=' in it, or with a space at either end, goes in quotes.
    SettingsFileWriter::Content finish(const QByteArray& suffix)
    {
        if (m_openingTaken) {
            takeChunk();
            m_pieces.append("\"" + suffix);
            return nonEmpty(m_pieces);
        }
        takeChunk();
        QByteArray& first = m_pieces.first();
        const char* const last = lastValueByte();
        const bool empty = last == first.constData() + m_valueStart - 1;
        if (m_needsQuotes || (!empty && (firstValueByte() == ' ' || *last == ' '))) {
            first[m_valueStart - 1] = '"';
            m_pieces.append("\"" + suffix);
        } else {
            first.remove(m_valueStart - 1, 1);
            m_pieces.append(suffix);
        }
        return nonEmpty(m_pieces);
    }

private:
    // Escaped images from this size on are shared rather than copied.
    static constexpr int SharedPieceSize = 512;

    // Room for `size` more bytes after the end of the chunk, where they are
    // written before the size is set.
    char* room(qint64 size)
    {
        const qint64 needed = m_chunk.size() + size + 4; // an escape always copies four bytes
        if (needed > m_chunk.capacity())
            m_chunk.reserve(int(qMax<qint64>(needed, 2 * qint64(m_chunk.capacity()))));
        return m_chunk.data() + m_chunk.size();
    }

    // The chunks between two images are small, and there are thousands.
    void takeChunk()
    {
        m_chunk.squeeze();
        m_pieces.append(m_chunk);
        m_chunk = QByteArray();
    }

    static SettingsFileWriter::Content nonEmpty(const QByteArrayList& pieces)
    {
        SettingsFileWriter::Content content;
        for (const QByteArray& piece : pieces) {
            if (!piece.isEmpty())
                content.append(piece);
        }
        return content;
    }

    char firstValueByte() const
    {
        const QByteArray& first = m_pieces.first();
        if (first.size() > m_valueStart)
            return first.at(m_valueStart);
        for (int i = 1; i < m_pieces.size(); ++i) {
            if (!m_pieces.at(i).isEmpty())
                return m_pieces.at(i).at(0);
        }
        return 0;
    }

    // The last byte of the value, or the quote slot when the value is empty.
    const char* lastValueByte() const
    {
        for (int i = m_pieces.size() - 1; i > 0; --i) {
            if (!m_pieces.at(i).isEmpty())
                return m_pieces.at(i).constData() + m_pieces.at(i).size() - 1;
        }
        return m_pieces.first().constData() + m_pieces.first().size() - 1;
    }

    QByteArrayList m_pieces;
    QByteArray m_chunk;
    int m_valueStart = 0;
    bool m_afterNumeric = false;
    bool m_needsQuotes = false;
    bool m_openingTaken = false;
};

// Lets QDataStream write into an EscapedOutput.
class EscapingDevice : public QIODevice
{
public:
    explicit EscapingDevice(EscapedOutput* output) : m_output(output)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 size) override
    {
        m_output->escape(data, int(size));
        return size;
    }

private:
    EscapedOutput* m_output;
};

struct Layout
{
    QByteArray before;
    QByteArray after;
};

// Where QSettings puts the value of `key` among the other keys: it lays out
// the file with a stand-in value, which is then cut out.
bool layoutAround(const QByteArray& key, const QVariantMap& otherKeys, Layout* layout)
{
    // The general section comes first, and alone it is all there is.
    if (otherKeys.isEmpty()) {
        *layout = {"[General]\n" + key + '=', "\n"};
        return true;
    }
    QTemporaryDir scratch;
    const QString scratchFile = scratch.filePath(QStringLiteral("layout.conf"));
    {
        QSettings settings(scratchFile, QSettings::IniFormat);
        for (auto it = otherKeys.constBegin(); it != otherKeys.constEnd(); ++it)
            settings.setValue(it.key(), it.value());
        settings.setValue(QString::fromLatin1(key), QStringLiteral("x"));
        settings.sync();
    }
    QFile file(scratchFile);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray content = file.readAll();
    // The general section is the first, and no line can hold a bare newline.
    const QByteArray standIn = '\n' + key + "=x\n";
    const int at = content.indexOf(standIn);
    if (at < 0)
        return false;
    *layout = {content.left(at + 1) + key + '=', content.mid(at + standIn.size() - 1)};
    return true;
}

} // namespace

SettingsFileWriter::Content SettingsFileWriter::fileContent(QLatin1String key, const QVariant& value,
                                                            const QVariantMap& otherKeys, EncodingCache* cache)
{
    Content content;
    const bool escaped = escapeFile(key, value, LateEntry(), otherKeys, cache, [&](const Content& pieces) {
        content += pieces;
        return true;
    });
    return escaped ? content : Content();
}

bool SettingsFileWriter::escapeFile(QLatin1String key, const QVariant& value, const LateEntry& late,
                                    const QVariantMap& otherKeys, EncodingCache* cache, const Sink& sink)
{
    Layout layout;
    if (!layoutAround(QByteArray(key.data(), key.size()), otherKeys, &layout))
        return false;
    EscapedOutput output(layout.before);
    output.escape("@Variant(", 9);
    {
        EscapingDevice device(&output);
        QDataStream stream(&device);
        stream.setVersion(StreamVersion);
        VariantStreamWriter writer(&stream, cache);
        writer.setImageWriter([&](const QPixmap& pixmap, const QByteArray& encoded) {
            const EscapedImage& image = escapedImage(pixmap.cacheKey(), encoded, output.afterNumericEscape());
            output.appendEscaped(image.text, image.endsAfterNumericEscape, image.needsQuotes);
        });
        if (late.key.isEmpty() || value.userType() != QMetaType::QVariantMap) {
            writer.write(value);
        } else {
            const auto& map = *static_cast<const QVariantMap*>(value.constData());
            writer.writeMapStart(value);
            auto it = map.constEnd();
            while (it != map.constBegin()) {
                --it;
                if (it.key() != late.key) {
                    writer.writeEntry(it.key(), it.value());
                    continue;
                }
                // What comes before goes to the disk while the value is worked out.
                if (output.needsQuotes() && !sink(output.takeQuoted()))
                    return false;
                writer.writeEntry(it.key(), late.value());
            }
        }
    }
    output.escape(")", 1);
    return sink(output.finish(layout.after));
}

QByteArray SettingsFileWriter::joined(const Content& content)
{
    return content.join();
}

bool SettingsFileWriter::holds(const Content& content, const QByteArray& bytes)
{
    int at = 0;
    for (const QByteArray& piece : content) {
        if (piece.size() > bytes.size() - at ||
            std::memcmp(piece.constData(), bytes.constData() + at, size_t(piece.size())) != 0)
            return false;
        at += piece.size();
    }
    return at == bytes.size();
}

const SettingsFileWriter::EscapedImage& SettingsFileWriter::escapedImage(qint64 cacheKey, const QByteArray& encoded,
                                                                         bool afterNumericEscape)
{
    EscapedImage& image = m_images[cacheKey];
    image.lastUse = m_generation;
    // The entry holds its encoded bytes, so no other bytes can be at that address.
    if (image.encoded.constData() == encoded.constData() && image.startsAfterNumericEscape == afterNumericEscape &&
        !image.text.isNull())
        return image;
    EscapedOutput output(QByteArray(), afterNumericEscape);
    output.escape(encoded.constData(), encoded.size());
    image.encoded = encoded;
    image.text = output.text();
    image.startsAfterNumericEscape = afterNumericEscape;
    image.endsAfterNumericEscape = output.afterNumericEscape();
    image.needsQuotes = output.needsQuotes();
    return image;
}

void SettingsFileWriter::dropUnused()
{
    for (auto it = m_images.begin(); it != m_images.end();)
        it = it->lastUse == m_generation ? std::next(it) : m_images.erase(it);
    ++m_generation;
}

int SettingsFileWriter::escapedImageCount() const
{
    return m_images.size();
}

QByteArray SettingsFileWriter::escapedValue(const QByteArray& text)
{
    EscapedOutput output{QByteArray()};
    output.escape(text.constData(), text.size());
    return joined(output.finish(QByteArray()));
}

namespace {

// Gathers pieces into large writes: they are many and mostly small.
class ChunkedWriter
{
public:
    explicit ChunkedWriter(QIODevice* device) : m_device(device) { m_buffer.reserve(WriteSize); }

    bool write(const SettingsFileWriter::Content& pieces)
    {
        for (const QByteArray& piece : pieces) {
            if (m_buffer.size() + piece.size() > WriteSize && !flush())
                return false;
            if (piece.size() >= WriteSize) {
                if (m_device->write(piece) != piece.size())
                    return false;
            } else {
                m_buffer.append(piece);
            }
        }
        return true;
    }

    bool flush()
    {
        const bool written = m_device->write(m_buffer) == m_buffer.size();
        m_buffer.resize(0);
        return written;
    }

private:
    static constexpr int WriteSize = 1024 * 1024;

    QIODevice* m_device;
    QByteArray m_buffer;
};

// Replaces the file as QSettings does, with what `produce` writes.
bool replaceFile(const QString& path, int lockTimeoutMs, QString* error,
                 const std::function<bool(ChunkedWriter*)>& produce)
{
    const QFileInfo info(path);
    if (!QDir().mkpath(info.absolutePath())) {
        *error = QStringLiteral("cannot create %1").arg(info.absolutePath());
        return false;
    }
    QLockFile lock(path + QStringLiteral(".lock"));
    if (!lock.tryLock(lockTimeoutMs)) {
        // A folder the user may not write to is the usual cause: say so.
        *error = lock.error() == QLockFile::PermissionError
                     ? QStringLiteral("%1: %2").arg(info.absolutePath(), qt_error_string(EACCES))
                     : QStringLiteral("cannot lock %1 (error %2)").arg(path).arg(int(lock.error()));
        return false;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        *error = file.errorString();
        return false;
    }
    ChunkedWriter writer(&file);
    if (!produce(&writer) || !writer.flush() || !file.commit()) {
        *error = file.errorString().isEmpty() ? QStringLiteral("the content could not be made") : file.errorString();
        return false;
    }
    return true;
}

} // namespace

QString SettingsFileWriter::unwritableReason(const QString& path)
{
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return QStringLiteral("cannot create %1").arg(QFileInfo(path).absolutePath());
    // Opening finds a folder in the way or a folder without write permission;
    // nothing is replaced, the probe is thrown away.
    QSaveFile probe(path);
    if (!probe.open(QIODevice::WriteOnly))
        return probe.errorString();
    probe.cancelWriting();
    return QStringLiteral("the file could not be written completely (is the disk full?)");
}

bool SettingsFileWriter::writeFile(const QString& path, const Content& content, QString* error, int lockTimeoutMs)
{
    return replaceFile(path, lockTimeoutMs, error, [&](ChunkedWriter* writer) { return writer->write(content); });
}

bool SettingsFileWriter::writeMapFile(const QString& path, QLatin1String key, const QVariantMap& map,
                                      const LateEntry& late, const QVariantMap& otherKeys, EncodingCache* cache,
                                      QString* error)
{
    return replaceFile(path, LockTimeoutMs, error, [&](ChunkedWriter* writer) {
        return escapeFile(key, map, late, otherKeys, cache,
                          [writer](const Content& pieces) { return writer->write(pieces); });
    });
}
