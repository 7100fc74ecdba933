#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QStringList>

class QPainter;

// The title of a key face, laid out for the 72-pixel face: its font in face
// pixels and its text broken into lines that each fit the width, at most
// maxLines of them; text that does not fit ends in an ellipsis.
class FaceTitle
{
public:
    // The stored point size is what the user picked in the editor, whose
    // previews show a face at 96 dpi; a face pixel is that screen's pixel, so
    // a point is 4/3 pixel (the default 9 pt gives 12 px). The bounds keep
    // titles legible on the keypad and leave room for the icon.
    static constexpr int MinPixelSize = 8;
    static constexpr int MaxPixelSize = 24;

    FaceTitle(const QString& text, const QFont& stored, int width, int maxLines);

    bool isEmpty() const { return m_lines.isEmpty(); }
    const QStringList& lines() const { return m_lines; }
    const QFont& font() const { return m_font; }
    int height() const { return m_lines.size() * m_lineHeight; }
    // Width of the widest line.
    int width() const;

    // Draws the lines from the top of band down, each placed by horizontal
    // (left, right, otherwise centred), with a thin halo of the contrasting
    // shade so the title reads on any icon; backdrop adds a translucent
    // plate behind the lines for titles laid over the icon.
    void paint(QPainter& painter, const QRect& band, Qt::Alignment horizontal, const QColor& color,
               bool backdrop) const;

    // The stored font as a face font: bundled family for "Arial" and
    // unknown families, face pixel size, grey-scale antialiasing (colour
    // fringes would show once the face is rotated for the keypad).
    static QFont faceFont(const QFont& stored);
    static int pixelSizeFor(const QFont& stored);

private:
    static QStringList breakLines(const QString& text, const QFont& font, int width, int maxLines);
    static QColor haloFor(const QColor& color);
    int lineX(const QString& line, const QRect& band, Qt::Alignment horizontal) const;
    void paintHalo(QPainter& painter, const QRect& band, Qt::Alignment horizontal, const QColor& halo) const;
    void paintBackdrop(QPainter& painter, const QRect& band, Qt::Alignment horizontal) const;

    QFont m_font;
    QStringList m_lines;
    int m_lineHeight = 0;
};
