#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QDataStream>
#include <QHash>
#include <QLatin1String>
#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <functional>

class EncodingCache;

// Keystage.conf exactly as QSettings writes it (NativeFormat on Linux, an INI
// file), for the settings store, which writes the file itself so that nothing
// is encoded twice: the images come encoded from an EncodingCache, and their
// escaped text is kept here from one save to the next. QSettings still reads
// the file, and every byte made here is the byte QSettings would write.
class SettingsFileWriter
{
public:
    // QSettings stores a value that is no plain text or number as
    // "@Variant(" + the QVariant's QDataStream bytes at this version + ")".
    static constexpr QDataStream::Version StreamVersion = QDataStream::Qt_4_0;
    // Waiting longer for QSettings' lock than this means another program hangs on it.
    static constexpr int LockTimeoutMs = 5000;

    // A file as pieces to be written one after another; the escaped images
    // among them are shared with what is kept here, not copied.
    using Content = QByteArrayList;

    // The whole file: `key` (plain ASCII letters, digits and underscores, in
    // the general section) holding `value` (a map, a list or an image), beside
    // other keys that QSettings lays out itself. Empty if it could not.
    Content fileContent(QLatin1String key, const QVariant& value, const QVariantMap& otherKeys, EncodingCache* cache);
    static QByteArray joined(const Content& content);
    // Whether the bytes are exactly the content.
    static bool holds(const Content& content, const QByteArray& bytes);
    // Forgets the escaped images that were not used since the last call.
    void dropUnused();
    int escapedImageCount() const;

    // QSettings' escaping of the text of a value (bytes are Latin-1 characters).
    static QByteArray escapedValue(const QByteArray& text);

    // Replaces the file as QSettings does: under its lock file, atomically,
    // flushed to disk. Creates the directory. False with a reason on failure.
    static bool writeFile(const QString& path, const Content& content, QString* error,
                          int lockTimeoutMs = LockTimeoutMs);

    // Why the file at path cannot be replaced, in the system's words, for a
    // writer (QSettings) that only says that it failed.
    static QString unwritableReason(const QString& path);

    // An entry of a map whose value is worked out while the file is written.
    struct LateEntry
    {
        QString key;
        // Called once, when everything before the entry is on its way to the disk.
        std::function<QVariant()> value;
    };

    // Writes the file of fileContent() as writeFile() does, for a map value
    // whose entry `late.key` (in the map, with any value) gets the value
    // `late.value` returns.
    bool writeMapFile(const QString& path, QLatin1String key, const QVariantMap& map, const LateEntry& late,
                      const QVariantMap& otherKeys, EncodingCache* cache, QString* error);

private:
    using Sink = std::function<bool(const Content& pieces)>;

    // Escapes the file in order into `sink`, which may take pieces early.
    bool escapeFile(QLatin1String key, const QVariant& value, const LateEntry& late, const QVariantMap& otherKeys,
                    EncodingCache* cache, const Sink& sink);

    struct EscapedImage
    {
        QByteArray encoded; // holds the encoded bytes alive, so their address names them
        QByteArray text;
        bool startsAfterNumericEscape = false;
        bool endsAfterNumericEscape = false;
        bool needsQuotes = false;
        quint64 lastUse = 0;
    };

    const EscapedImage& escapedImage(qint64 cacheKey, const QByteArray& encoded, bool afterNumericEscape);

    QHash<qint64, EscapedImage> m_images;
    quint64 m_generation = 1;
};
