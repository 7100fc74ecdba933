#include "keygridgeometry.h"

#include "keypadtable.h"

#include <algorithm>

QSize KeyGridGeometry::gridShape(int layout)
{
    return KeypadTable::gridShape(layout);
}

int KeyGridGeometry::spacing(const QSize& shape, const QSize& key, const QSize& panel)
{
    // Even gaps around and between keys on the tighter axis, kept within
    // bounds so that small layouts stay a compact block.
    const int horizontal = (panel.width() - shape.width() * key.width()) / (shape.width() + 1);
    const int vertical = (panel.height() - shape.height() * key.height()) / (shape.height() + 1);
    return std::clamp(std::min(horizontal, vertical), MinSpacing, MaxSpacing);
}

QVector<QRect> KeyGridGeometry::keyRects(int layout)
{
    QVector<QRect> rects;
    const QSize shape = gridShape(layout);
    if (!shape.isValid())
        return rects;
    const QSize key = KeypadTable::iconSize(layout) + QSize(2 * Bezel, 2 * Bezel);
    const QSize panel = KeypadTable::panelSize(layout);
    const int gap = spacing(shape, key, panel);
    const QSize block(shape.width() * key.width() + (shape.width() - 1) * gap,
                      shape.height() * key.height() + (shape.height() - 1) * gap);
    const QPoint origin((panel.width() - block.width()) / 2, (panel.height() - block.height()) / 2);
    for (int row = 0; row < shape.height(); ++row) {
        for (int column = 0; column < shape.width(); ++column) {
            const QPoint topLeft(origin.x() + column * (key.width() + gap), origin.y() + row * (key.height() + gap));
            rects.append(QRect(topLeft, key));
        }
    }
    return rects;
}

int KeyGridGeometry::step(int layout, int idx, int dx, int dy)
{
    const QSize shape = gridShape(layout);
    if (!shape.isValid() || idx < 0 || idx >= shape.width() * shape.height())
        return -1;
    const int column = idx % shape.width() + dx;
    const int row = idx / shape.width() + dy;
    if (column < 0 || column >= shape.width() || row < 0 || row >= shape.height())
        return -1;
    return row * shape.width() + column;
}
