#include "defaultimagecache.h"

#include "logging.h"

#include <QHash>
#include <QMutex>
#include <QMutexLocker>

namespace {

// Enough for every default image at every size a face uses; a full cache is
// emptied rather than grown, which only costs a few rescales.
constexpr int MaxFittedImages = 256;

struct Cache
{
    QMutex mutex;
    QHash<QString, QImage> originals; // a null image marks a missing one
    QHash<QString, QImage> fitted;
};

Cache& cache()
{
    static Cache instance;
    return instance;
}

QString fittedKey(const QString& name, const QSize& box)
{
    return QStringLiteral("%1@%2x%3").arg(name).arg(box.width()).arg(box.height());
}

} // namespace

QImage DefaultImageCache::image(const QString& name)
{
    Cache& c = cache();
    {
        QMutexLocker lock(&c.mutex);
        const auto found = c.originals.constFind(name);
        if (found != c.originals.constEnd())
            return found.value();
    }
    const QImage loaded = load(name);
    QMutexLocker lock(&c.mutex);
    c.originals.insert(name, loaded);
    return loaded;
}

QImage DefaultImageCache::fitted(const QString& name, const QSize& box)
{
    Cache& c = cache();
    const QString key = fittedKey(name, box);
    {
        QMutexLocker lock(&c.mutex);
        const auto found = c.fitted.constFind(key);
        if (found != c.fitted.constEnd())
            return found.value();
    }
    const QImage result = fitInto(image(name), box);
    QMutexLocker lock(&c.mutex);
    if (c.fitted.size() >= MaxFittedImages)
        c.fitted.clear();
    c.fitted.insert(key, result);
    return result;
}

QImage DefaultImageCache::fitInto(const QImage& source, const QSize& box)
{
    if (source.isNull() || box.isEmpty())
        return QImage();
    const QSize target = source.size().scaled(box, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    if (target == source.size())
        return source;
    return source.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage DefaultImageCache::load(const QString& name)
{
    if (!logMsgWhenRetFail(!name.isEmpty(), QStringLiteral("default image name is empty!!")))
        return QImage();
    const QString path = QStringLiteral(":/image/%1.png").arg(name);
    const QImage decoded(path);
    if (!logMsgWhenRetFail(!decoded.isNull(), QStringLiteral("default image not found!! -> %1").arg(path)))
        return QImage();
    return decoded.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}
