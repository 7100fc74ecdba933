#include "titlestyle.h"

#include "bundledfonts.h"
#include "facetitle.h"
#include "keyrenderinfo.h"

#include <QtGlobal>

namespace {

const Qt::Alignment RowFlags[TitleStyle::Rows] = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};
const Qt::Alignment ColumnFlags[TitleStyle::Columns] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};

} // namespace

TitleStyle TitleStyle::of(const KeyRenderInfo& face)
{
    TitleStyle style;
    style.font = face.textFont;
    style.color = face.textColor.isValid() ? face.textColor : QColor(255, 255, 255);
    style.align = face.textAlign;
    return style;
}

TitleStyle TitleStyle::resetStyle()
{
    return of(KeyRenderInfo());
}

void TitleStyle::applyTo(KeyRenderInfo& face) const
{
    face.textFont = font;
    face.textColor = color;
    face.textAlign = align;
}

bool TitleStyle::isIn(const KeyRenderInfo& face) const
{
    return face.textFont == font && face.textColor == color && face.textAlign == align;
}

int TitleStyle::alignment(int row, int column)
{
    return int(RowFlags[qBound(0, row, Rows - 1)] | ColumnFlags[qBound(0, column, Columns - 1)]);
}

int TitleStyle::rowOf(int align)
{
    const Qt::Alignment flags(align);
    if (flags & Qt::AlignTop)
        return Top;
    return flags & Qt::AlignVCenter ? Middle : Bottom;
}

int TitleStyle::columnOf(int align)
{
    const Qt::Alignment flags(align);
    if (flags & Qt::AlignLeft)
        return Left;
    return flags & Qt::AlignRight ? Right : Centre;
}

void TitleStyle::setPosition(int row, int column)
{
    align = alignment(row, column);
}

QString TitleStyle::shownFamily() const
{
    return BundledFonts::titleFamily(font.family());
}

void TitleStyle::setFamily(const QString& family)
{
    if (family.isEmpty() || family == shownFamily())
        return;
    font.setFamily(family);
}

int TitleStyle::pointSize() const
{
    const int points = font.pointSize() > 0 ? font.pointSize() : qRound(FaceTitle::pixelSizeFor(font) * 3.0 / 4.0);
    return qBound(MinPointSize, points, MaxPointSize);
}

void TitleStyle::setPointSize(int points)
{
    font.setPointSize(qBound(MinPointSize, points, MaxPointSize));
}
