#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QHash>
#include <QMutex>
#include <QVariant>

class QPixmap;

// The QDataStream bytes of values that are slow to produce, kept from one
// save to the next. Writing a key image costs a PNG compression each time
// (a quarter of a millisecond and more); the settings tree holds thousands of
// images and a save streams the tree more than once.
//
// Images are known by QPixmap::cacheKey(), which changes whenever the
// pixels of a pixmap do, so a hit always holds the bytes QDataStream would
// write now. Entries not asked for between two calls of dropUnused() are
// dropped, so images that left the tree do not stay in memory. Thread-safe;
// images themselves are encoded on the calling thread, as QDataStream does.
class EncodingCache
{
public:
    // What QDataStream writes for the pixmap at any version from Qt 4.0 on:
    // the null marker and, unless the pixmap is null, a PNG file.
    QByteArray pixmap(const QPixmap& pixmap);
    // The same for the pixmap that a reader of pixmap()'s bytes gets back.
    // Nearly always the same bytes again, but only decoding and encoding
    // once more can tell; that is done once per image.
    QByteArray reloadedPixmap(const QPixmap& pixmap);
    // For a caller that has seen a reader get pixmap()'s bytes back from a
    // pixmap read from those very bytes: reloadedPixmap() is pixmap().
    void markReloadStable(const QPixmap& pixmap);

    // What QDataStream writes at `version` for the value a reader gets from
    // the value's bytes at version `via` (a QVariant with its header).
    QByteArray reloadedValue(const QVariant& value, QDataStream::Version via, QDataStream::Version version);

    // Forgets everything that was not asked for since the last call.
    void dropUnused();
    int imageCount() const;

    // The uncached encoding, for pixmaps that cannot be cached.
    static QByteArray encodePixmap(const QPixmap& pixmap);

private:
    struct ImageEntry
    {
        QByteArray encoded;
        QByteArray reloaded; // empty until known
        quint64 lastUse = 0;
    };
    struct ValueEntry
    {
        QByteArray reloaded;
        quint64 lastUse = 0;
    };

    bool lookUpImage(qint64 key, ImageEntry* entry);

    mutable QMutex m_mutex;
    QHash<qint64, ImageEntry> m_images;
    QHash<QByteArray, ValueEntry> m_values;
    quint64 m_generation = 1;
};
