#include "encodingcache.h"

#include <QPixmap>

namespace {

// Pixmaps are written alike at every version from Qt 4.0 on (a null marker,
// then PNG); the cache keeps one form for all of them.
constexpr QDataStream::Version PixmapVersion = QDataStream::Qt_4_0;

QPixmap decodePixmap(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    stream.setVersion(PixmapVersion);
    QPixmap pixmap;
    stream >> pixmap;
    return pixmap;
}

QByteArray valueBytes(const QVariant& value, QDataStream::Version version)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(version);
    stream << value;
    return bytes;
}

} // namespace

QByteArray EncodingCache::encodePixmap(const QPixmap& pixmap)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(PixmapVersion);
    stream << pixmap;
    return bytes;
}

bool EncodingCache::lookUpImage(qint64 key, ImageEntry* entry)
{
    QMutexLocker locker(&m_mutex);
    const auto found = m_images.find(key);
    if (found == m_images.end())
        return false;
    found->lastUse = m_generation;
    *entry = *found;
    return true;
}

QByteArray EncodingCache::pixmap(const QPixmap& pixmap)
{
    if (pixmap.isNull())
        return encodePixmap(pixmap);
    const qint64 key = pixmap.cacheKey();
    ImageEntry entry;
    if (lookUpImage(key, &entry))
        return entry.encoded;
    const QByteArray encoded = encodePixmap(pixmap);
    QMutexLocker locker(&m_mutex);
    ImageEntry& stored = m_images[key];
    if (stored.encoded.isEmpty())
        stored.encoded = encoded;
    stored.lastUse = m_generation;
    return stored.encoded;
}

QByteArray EncodingCache::reloadedPixmap(const QPixmap& pixmap)
{
    if (pixmap.isNull())
        return encodePixmap(pixmap);
    const qint64 key = pixmap.cacheKey();
    ImageEntry entry;
    if (lookUpImage(key, &entry) && !entry.reloaded.isEmpty())
        return entry.reloaded;
    const QByteArray encoded = entry.encoded.isEmpty() ? this->pixmap(pixmap) : entry.encoded;
    QByteArray reloaded = encodePixmap(decodePixmap(encoded));
    // Shares the bytes in the usual case, where they are the same.
    if (reloaded == encoded)
        reloaded = encoded;
    QMutexLocker locker(&m_mutex);
    ImageEntry& stored = m_images[key];
    if (stored.encoded.isEmpty())
        stored.encoded = encoded;
    stored.reloaded = reloaded;
    stored.lastUse = m_generation;
    return reloaded;
}

void EncodingCache::markReloadStable(const QPixmap& pixmap)
{
    if (pixmap.isNull())
        return;
    const QByteArray encoded = this->pixmap(pixmap);
    QMutexLocker locker(&m_mutex);
    ImageEntry& stored = m_images[pixmap.cacheKey()];
    stored.reloaded = encoded;
    stored.lastUse = m_generation;
}

QByteArray EncodingCache::reloadedValue(const QVariant& value, QDataStream::Version via, QDataStream::Version version)
{
    // The reader sees nothing but these bytes, so they and the versions are the whole key.
    const QByteArray bytes = valueBytes(value, via);
    const QByteArray key = bytes + char(via) + char(version);
    {
        QMutexLocker locker(&m_mutex);
        const auto found = m_values.find(key);
        if (found != m_values.end()) {
            found->lastUse = m_generation;
            return found->reloaded;
        }
    }
    QDataStream reader(bytes);
    reader.setVersion(via);
    QVariant reloaded;
    reader >> reloaded;
    const QByteArray written = valueBytes(reloaded, version);
    QMutexLocker locker(&m_mutex);
    m_values.insert(key, {written, m_generation});
    return written;
}

void EncodingCache::dropUnused()
{
    QMutexLocker locker(&m_mutex);
    for (auto it = m_images.begin(); it != m_images.end();)
        it = it->lastUse == m_generation ? std::next(it) : m_images.erase(it);
    for (auto it = m_values.begin(); it != m_values.end();)
        it = it->lastUse == m_generation ? std::next(it) : m_values.erase(it);
    ++m_generation;
}

int EncodingCache::imageCount() const
{
    QMutexLocker locker(&m_mutex);
    return m_images.size();
}
