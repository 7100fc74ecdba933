#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QDataStream>
#include <QHash>
#include <QString>
#include <QVariantMap>

// Reads a QDataStream-encoded QVariantMap from untrusted bytes.
//
// QDataStream trusts the counts it reads: a list or a font's family list
// reserves room for as many elements as the data claims, so a few forged
// bytes ask for gigabytes. This reader walks the encoding itself first: maps
// and lists it builds on its own, checking every count against the bytes that
// are left and against a budget for the whole file; every other value must be
// of a type the program stores, and is only handed to QDataStream once its
// exact extent is known, after which the stream has to end right there.
// Colours, fonts and images that Qt reads but the program cannot use (see
// ValueSanity) come out as the default value of their type, with a log line.
class BoundedMapReader
{
public:
    explicit BoundedMapReader(const QByteArray& bytes);

    // The bytes must hold exactly one map.
    bool readDocument(QVariantMap* map);
    QString failure() const { return m_failure; }

    // An entry of the document's map, key and value, as the bytes hold it.
    QByteArray topLevelEntry(const QString& key) const;

private:
    // An entry takes at least a key length and a value header.
    static constexpr qint64 MinMapEntrySize = 4 + 5;
    static constexpr qint64 MinListElementSize = 5;
    static constexpr qint64 MinStringSize = 4;

    bool fail(const QString& why);
    qint64 remaining() const { return m_bytes.size() - m_position; }

    bool skip(qint64 count);
    bool takeU32(quint32* value);
    bool takeU8(quint8* value);
    bool takeCount(quint32* count, qint64 minElementSize, const char* what);
    bool checkDepth(int depth);

    // Lets QDataStream read what was walked from start to m_position.
    template <typename Read>
    bool readWalked(qint64 start, Read read);
    bool readMap(QVariantMap* map, int depth);
    bool readList(QVariantList* list, int depth);
    bool readStringList(QStringList* list);
    bool readString(QString* text);

    // A QVariant: type id, null flag, value. The name is for the log.
    bool readVariant(QVariant* value, int depth, const QString& name);

    // Advances over the value part of a QVariant of one of the types the
    // program stores; anything else is refused.
    bool walkLeaf(quint32 type);
    bool walkString();
    bool walkByteArray();

    // The QFont layout of the current stream version.
    bool walkFont();

    // QImage and QPixmap: a null marker, then a PNG file. The PNG is walked
    // chunk by chunk up to IEND, and its size is checked before any decoder
    // allocates pixels for it.
    bool walkImage();
    const QByteArray m_bytes;
    QBuffer m_buffer;
    QDataStream m_stream;
    qint64 m_position = 0;
    quint32 m_budget;
    QString m_failure;
    QHash<QString, QByteArray> m_topLevelEntries;
};
