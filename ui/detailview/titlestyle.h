#pragma once

#include <QColor>
#include <QFont>
#include <QString>

struct KeyRenderInfo;

// A title's look as the style dialog edits it: font, colour and one of nine
// positions (top, middle, bottom x left, centre, right) kept as Qt alignment
// flags in textAlign. The rules here say what a choice in the dialog means
// for KeyRenderInfo, so the dialog only shows them.
struct TitleStyle
{
    enum Row
    {
        Top,
        Middle,
        Bottom
    };
    enum Column
    {
        Left,
        Centre,
        Right
    };
    static constexpr int Rows = 3;
    static constexpr int Columns = 3;

    // The renderer draws titles at 8 to 24 face pixels, a point being 4/3
    // pixel (see FaceTitle): sizes outside this range would not show.
    static constexpr int MinPointSize = 6;
    static constexpr int MaxPointSize = 18;

    QFont font;
    QColor color;
    int align = 0;

    static TitleStyle of(const KeyRenderInfo& face);
    // KeyRenderInfo's reset values.
    static TitleStyle resetStyle();
    // Writes font, colour and alignment; the text and the image stay.
    void applyTo(KeyRenderInfo& face) const;
    // Whether face already has this style.
    bool isIn(const KeyRenderInfo& face) const;

    static int alignment(int row, int column);
    // The position a stored alignment is drawn at: without a vertical flag
    // the title sits at the bottom, without a horizontal one in the centre.
    static int rowOf(int align);
    static int columnOf(int align);
    int row() const { return rowOf(align); }
    int column() const { return columnOf(align); }
    void setPosition(int row, int column);

    // The family the title is drawn with, which the dialog shows: "Arial"
    // and families this machine lacks are drawn with the bundled font.
    QString shownFamily() const;
    // Picking the family the title is drawn with already keeps the stored
    // one, so a layout keeps "Arial" (drawn alike everywhere) unless the
    // user really picks another font.
    void setFamily(const QString& family);
    int pointSize() const;
    // Clamped to MinPointSize..MaxPointSize.
    void setPointSize(int points);
};
