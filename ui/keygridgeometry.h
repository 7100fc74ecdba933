#pragma once

#include <QRect>
#include <QSize>
#include <QVector>

// Where the keys of a layout sit in the editor's key panel: row-major button
// indices, every key the layout's icon size plus a bezel on each side (the
// style sheet draws the key's frame there), the block centred in the panel
// with one even spacing on both axes.
class KeyGridGeometry
{
public:
    static constexpr int MinSpacing = 4;
    static constexpr int MaxSpacing = 20;
    // Border and padding of a key button around its face.
    static constexpr int Bezel = 4;

    // Columns x rows as the user sees the keypad held that way; invalid for
    // an unknown layout.
    static QSize gridShape(int layout);
    // One rectangle per button index, in panel coordinates; empty for an
    // unknown layout.
    static QVector<QRect> keyRects(int layout);

    // The key reached from idx by moving dx columns and dy rows; -1 off the
    // grid or for an unknown layout.
    static int step(int layout, int idx, int dx, int dy);

private:
    static int spacing(const QSize& shape, const QSize& key, const QSize& panel);
};
