#include "keyfacerenderer.h"

QImage KeyFaceRenderer::render(const KeyItem*)
{
    QImage image(72, 72, QImage::Format_RGBA8888);
    image.fill(Qt::black);
    return image;
}
