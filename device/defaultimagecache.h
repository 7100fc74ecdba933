#pragma once

#include <QImage>
#include <QSize>
#include <QString>

// The default key images of the resource folder ":/image", decoded once and
// kept, with the fitted copies the key faces draw, for every thread: faces
// are rendered on the GUI thread and on worker threads alike, so only QImage
// is used here and every access holds one mutex.
class DefaultImageCache
{
public:
    // The image named name (":/image/<name>.png") in premultiplied ARGB at
    // its own size; null when there is no such image (logged once per name).
    static QImage image(const QString& name);

    // The image scaled smoothly to fit into box, keeping its aspect ratio.
    static QImage fitted(const QString& name, const QSize& box);

    // Scales any image to fit into box, keeping its aspect ratio; an image
    // that already fits exactly is returned as it is.
    static QImage fitInto(const QImage& source, const QSize& box);

private:
    static QImage load(const QString& name);
};
