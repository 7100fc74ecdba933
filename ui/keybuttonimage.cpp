#include "keybuttonimage.h"

#include <QPainter>

QPixmap KeyButtonImage::compose(const QPixmap& face, const QSize& size)
{
    QPixmap composed(size);
    composed.fill(Qt::black);
    if (face.isNull())
        return composed;
    QPainter painter(&composed);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(composed.rect(), face);
    return composed;
}
