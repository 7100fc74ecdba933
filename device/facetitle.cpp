#include "facetitle.h"

#include "bundledfonts.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QTextLayout>
#include <QtMath>

namespace {

// The halo is drawn as one layer at this opacity, so overlapping offsets do
// not darken the middle of thin strokes more than their edges.
constexpr qreal HaloOpacity = 0.75;
constexpr int HaloRadius = 1;
constexpr int BackdropAlpha = 128;
constexpr int BackdropPadding = 3; // left and right of the text; one pixel above and below

constexpr QChar ZeroWidthSpace(0x200B);

// Titles are often key chords and addresses ("Ctrl+Shift+Esc",
// "example.com/path"): a line may also break after these, not only at
// blanks, so that such a title is not split in the middle of a word.
bool breaksAfter(QChar c)
{
    return QStringLiteral("+/\\_.:@&?=").contains(c);
}

QString prepareForLayout(const QString& text)
{
    QString trimmed = text.trimmed();
    trimmed.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    QString prepared;
    prepared.reserve(trimmed.size() * 2);
    for (int i = 0; i < trimmed.size(); ++i) {
        const QChar c = trimmed.at(i);
        prepared += c == QLatin1Char('\n') ? QChar(QChar::LineSeparator) : c;
        if (breaksAfter(c) && i + 1 < trimmed.size() && !trimmed.at(i + 1).isSpace())
            prepared += ZeroWidthSpace;
    }
    return prepared;
}

QString oneLine(const QString& text)
{
    QString line = text;
    line.remove(ZeroWidthSpace);
    line.replace(QChar::LineSeparator, QLatin1Char(' '));
    return line.simplified();
}

} // namespace

FaceTitle::FaceTitle(const QString& text, const QFont& stored, int width, int maxLines) : m_font(faceFont(stored))
{
    const QFontMetrics metrics(m_font);
    m_lineHeight = metrics.height();
    m_lines = breakLines(text, m_font, width, maxLines);
}

int FaceTitle::width() const
{
    const QFontMetrics metrics(m_font);
    int widest = 0;
    for (const QString& line : m_lines)
        widest = qMax(widest, metrics.horizontalAdvance(line));
    return widest;
}

int FaceTitle::pixelSizeFor(const QFont& stored)
{
    int pixels = 12;
    if (stored.pointSizeF() > 0)
        pixels = qRound(stored.pointSizeF() * 4.0 / 3.0);
    else if (stored.pixelSize() > 0)
        pixels = stored.pixelSize();
    return qBound(MinPixelSize, pixels, MaxPixelSize);
}

QFont FaceTitle::faceFont(const QFont& stored)
{
    QFont font(stored);
    font.setFamily(BundledFonts::titleFamily(stored.family()));
    font.setPixelSize(pixelSizeFor(stored));
    font.setHintingPreference(QFont::PreferVerticalHinting);
    font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return font;
}

QStringList FaceTitle::breakLines(const QString& text, const QFont& font, int width, int maxLines)
{
    const QString prepared = prepareForLayout(text);
    if (prepared.isEmpty() || maxLines < 1 || width < 1)
        return {};
    QTextLayout layout(prepared, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    const QFontMetrics metrics(font);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (lines.size() == maxLines - 1) {
            lines << metrics.elidedText(oneLine(prepared.mid(line.textStart())), Qt::ElideRight, width);
            break;
        }
        lines << oneLine(prepared.mid(line.textStart(), line.textLength()));
    }
    layout.endLayout();
    while (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

QColor FaceTitle::haloFor(const QColor& color)
{
    // A dark title gets a light halo: it would vanish on the black face.
    return color.lightnessF() < 0.35 ? QColor(255, 255, 255) : QColor(0, 0, 0);
}

int FaceTitle::lineX(const QString& line, const QRect& band, Qt::Alignment horizontal) const
{
    const int advance = QFontMetrics(m_font).horizontalAdvance(line);
    if (horizontal & Qt::AlignLeft)
        return band.left();
    if (horizontal & Qt::AlignRight)
        return band.left() + band.width() - advance;
    return band.left() + (band.width() - advance) / 2;
}

void FaceTitle::paint(QPainter& painter, const QRect& band, Qt::Alignment horizontal, const QColor& color,
                      bool backdrop) const
{
    if (m_lines.isEmpty())
        return;
    if (backdrop)
        paintBackdrop(painter, band, horizontal);
    paintHalo(painter, band, horizontal, haloFor(color));
    painter.setFont(m_font);
    painter.setPen(color);
    const int ascent = QFontMetrics(m_font).ascent();
    for (int i = 0; i < m_lines.size(); ++i)
        painter.drawText(QPoint(lineX(m_lines[i], band, horizontal), band.top() + i * m_lineHeight + ascent),
                         m_lines[i]);
}

void FaceTitle::paintHalo(QPainter& painter, const QRect& band, Qt::Alignment horizontal, const QColor& halo) const
{
    const QRect area = band.adjusted(-HaloRadius - 1, -HaloRadius - 1, HaloRadius + 1, HaloRadius + 1);
    QImage layer(area.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter layerPainter(&layer);
    layerPainter.setFont(m_font);
    layerPainter.setPen(halo);
    layerPainter.translate(-area.topLeft());
    const int ascent = QFontMetrics(m_font).ascent();
    for (int i = 0; i < m_lines.size(); ++i) {
        const QPoint origin(lineX(m_lines[i], band, horizontal), band.top() + i * m_lineHeight + ascent);
        for (int dy = -HaloRadius; dy <= HaloRadius; ++dy)
            for (int dx = -HaloRadius; dx <= HaloRadius; ++dx)
                if (dx != 0 || dy != 0)
                    layerPainter.drawText(origin + QPoint(dx, dy), m_lines[i]);
    }
    layerPainter.end();
    painter.save();
    painter.setOpacity(HaloOpacity);
    painter.drawImage(area.topLeft(), layer);
    painter.restore();
}

void FaceTitle::paintBackdrop(QPainter& painter, const QRect& band, Qt::Alignment horizontal) const
{
    const int plateWidth = width() + 2 * BackdropPadding;
    int left = band.left() + (band.width() - plateWidth) / 2;
    if (horizontal & Qt::AlignLeft)
        left = band.left() - BackdropPadding;
    else if (horizontal & Qt::AlignRight)
        left = band.left() + band.width() - plateWidth + BackdropPadding;
    const QRectF plate(left, band.top() - 1, plateWidth, height() + 2);
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, BackdropAlpha));
    painter.drawRoundedRect(plate, 3, 3);
    painter.restore();
}
