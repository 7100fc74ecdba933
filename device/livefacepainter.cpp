#include "livefacepainter.h"

#include "bundledfonts.h"
#include "keypadtable.h"
#include "keyrenderinfo.h"
#include "systemreadings.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

using FaceHints::LiveKind;

namespace {

constexpr int Face = KeypadTable::KeyImageSize;
constexpr int Margin = 3;
constexpr int CaptionPixels = 12;
constexpr int CaptionBand = CaptionPixels + 3;
constexpr int GraphBand = 16;
constexpr int ValuePixels = 30; // the largest value font; smaller when it must
constexpr int MinValuePixels = 10;
constexpr int GraphFillAlpha = 90;

QFont faceFont(const KeyRenderInfo& face, int pixels, bool bold)
{
    QFont font(BundledFonts::titleFamily(face.textFont.family()));
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

// The largest bold font up to maxPixels in which text fits width and height.
QFont fittedFont(const KeyRenderInfo& face, const QString& text, const QSize& room, int maxPixels)
{
    QFont font = faceFont(face, maxPixels, true);
    for (int pixels = maxPixels; pixels > MinValuePixels; --pixels) {
        font.setPixelSize(pixels);
        const QFontMetrics metrics(font);
        if (metrics.horizontalAdvance(text) <= room.width() && metrics.capHeight() * 4 / 3 <= room.height())
            break;
    }
    return font;
}

QString captionOf(const KeyRenderInfo& face, LiveKind kind)
{
    const QString title = face.text.section(QLatin1Char('\n'), 0, 0).trimmed();
    if (!title.isEmpty())
        return title;
    switch (kind) {
    case LiveKind::Processor:
        return LiveFacePainter::tr("CPU");
    case LiveKind::Memory:
        return LiveFacePainter::tr("RAM");
    case LiveKind::Network:
        return LiveFacePainter::tr("Net B/s");
    default:
        return QString();
    }
}

void drawCaption(QPainter& painter, const KeyRenderInfo& face, const QString& caption, const QRect& band)
{
    if (caption.isEmpty())
        return;
    const QFont font = faceFont(face, CaptionPixels, false);
    painter.setFont(font);
    const QString shown = QFontMetrics(font).elidedText(caption, Qt::ElideRight, band.width());
    painter.drawText(band, Qt::AlignHCenter | Qt::AlignVCenter, shown);
}

void drawValue(QPainter& painter, const KeyRenderInfo& face, const QString& text, const QRect& room)
{
    painter.setFont(fittedFont(face, text, room.size(), ValuePixels));
    painter.drawText(room, Qt::AlignCenter, text);
}

QVector<float> historyOf(LiveKind kind, const SystemReadings& readings)
{
    switch (kind) {
    case LiveKind::Processor:
        return readings.processorHistory;
    case LiveKind::Memory:
        return readings.memoryHistory;
    case LiveKind::Network:
        return readings.networkHistory;
    default:
        return {};
    }
}

// Newest sample at the right edge; a full history spans the band.
void drawGraph(QPainter& painter, const QVector<float>& history, float scale, const QRect& band, const QColor& color)
{
    if (history.size() < 2 || scale <= 0)
        return;
    const qreal step = qreal(band.width()) / (SystemReadings::HistoryLength - 1);
    const int first = int(history.size()) - 1;
    QPainterPath line;
    for (int i = first; i >= 0; --i) {
        const qreal x = band.right() + 1 - (first - i) * step;
        const qreal y = band.bottom() + 1 - qMin(1.0f, history.at(i) / scale) * band.height();
        if (i == first)
            line.moveTo(x, y);
        else
            line.lineTo(x, y);
    }
    QPainterPath area = line;
    area.lineTo(line.currentPosition().x(), band.bottom() + 1);
    area.lineTo(band.right() + 1, band.bottom() + 1);
    area.closeSubpath();
    QColor fill = color;
    fill.setAlpha(GraphFillAlpha);
    painter.fillPath(area, fill);
    painter.strokePath(line, QPen(color, 1.2));
}

void drawArrow(QPainter& painter, const QRect& box, bool down)
{
    const qreal cx = box.center().x() + 0.5;
    const qreal half = box.width() / 2.0;
    const qreal top = box.top(), bottom = box.bottom() + 1;
    QPainterPath arrow;
    arrow.moveTo(cx - half, down ? top : bottom);
    arrow.lineTo(cx + half, down ? top : bottom);
    arrow.lineTo(cx, down ? bottom : top);
    arrow.closeSubpath();
    painter.fillPath(arrow, painter.pen().color());
}

// Received over sent, each behind its arrow.
void drawRates(QPainter& painter, const KeyRenderInfo& face, const SystemReadings& readings, const QRect& room)
{
    const int lineHeight = room.height() / 2;
    const int arrowSide = qMin(10, lineHeight / 2);
    const QString texts[2] = {LiveFacePainter::shortRate(readings.receiveBytesPerSecond),
                              LiveFacePainter::shortRate(readings.sendBytesPerSecond)};
    const QSize textRoom(room.width() - arrowSide - 2, lineHeight);
    // Both lines in one size: the wider text decides it.
    const QString& wider = QFontMetrics(faceFont(face, ValuePixels, true)).horizontalAdvance(texts[0]) >=
                                   QFontMetrics(faceFont(face, ValuePixels, true)).horizontalAdvance(texts[1])
                               ? texts[0]
                               : texts[1];
    painter.setFont(fittedFont(face, wider, textRoom, ValuePixels - 8));
    for (int line = 0; line < 2; ++line) {
        const QRect band(room.x(), room.y() + line * lineHeight, room.width(), lineHeight);
        drawArrow(painter, QRect(band.x(), band.center().y() - arrowSide / 2, arrowSide, arrowSide), line == 0);
        painter.drawText(band.adjusted(arrowSide + 2, 0, 0, 0), Qt::AlignRight | Qt::AlignVCenter, texts[line]);
    }
}

// The short time format without its AM/PM marker, which the caption shows.
QString clockText(const QDateTime& now, const QLocale& locale, QString* marker)
{
    QString format = locale.timeFormat(QLocale::ShortFormat);
    // Seconds never show: the clock changes once a minute.
    format.remove(QLatin1String(":ss")).remove(QLatin1String(".ss"));
    QString text = locale.toString(now.time(), format);
    // "h" means 12 hours only beside the marker, so it is formatted with it
    // and taken out afterwards.
    if (format.contains(QLatin1Char('a'), Qt::CaseInsensitive)) {
        *marker = now.time().hour() < 12 ? locale.amText() : locale.pmText();
        text.remove(*marker, Qt::CaseInsensitive);
    }
    return text.simplified();
}

} // namespace

QString LiveFacePainter::shortRate(double bytesPerSecond)
{
    if (bytesPerSecond < 0)
        return QString();
    static const char units[] = {'K', 'M', 'G', 'T'};
    if (bytesPerSecond < 999.5)
        return QString::number(qRound(bytesPerSecond));
    double value = bytesPerSecond;
    for (char unit : units) {
        value /= 1000.0;
        if (value < 9.95)
            return QString::number(value, 'f', 1) + QLatin1Char(unit);
        if (value < 999.5 || unit == 'T')
            return QString::number(qRound(value)) + QLatin1Char(unit);
    }
    return QString();
}

QString LiveFacePainter::valueText(LiveKind kind, const SystemReadings& readings, const QDateTime& now,
                                   const QLocale& locale)
{
    const auto percent = [](double value) {
        return value < 0 ? QString() : QString::number(qRound(value)) + QLatin1Char('%');
    };
    switch (kind) {
    case LiveKind::Processor:
        return percent(readings.processorPercent);
    case LiveKind::Memory:
        return percent(readings.memoryPercent);
    case LiveKind::Network:
        if (readings.receiveBytesPerSecond < 0 || readings.sendBytesPerSecond < 0)
            return QString();
        return shortRate(readings.receiveBytesPerSecond) + QLatin1Char('/') + shortRate(readings.sendBytesPerSecond);
    case LiveKind::Clock: {
        QString marker;
        const QString time = clockText(now, locale, &marker);
        return marker.isEmpty() ? time : time + QLatin1Char(' ') + marker;
    }
    case LiveKind::Date:
        return locale.toString(now.date(), QLocale::ShortFormat);
    case LiveKind::None:
        break;
    }
    return QString();
}

QImage LiveFacePainter::paint(const KeyRenderInfo& face, const SystemReadings& readings, const QDateTime& now,
                              const QLocale& locale)
{
    const LiveKind kind = FaceHints::liveKind(face.hintFlags);
    if (kind == LiveKind::None || !BundledFonts::canDrawText() || valueText(kind, readings, now, locale).isEmpty())
        return QImage();

    QImage canvas(Face, Face, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::black);
    QPainter painter(&canvas);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const QColor color = face.textColor.isValid() ? face.textColor : QColor(Qt::white);
    painter.setPen(color);

    const bool graph = FaceHints::showsGraph(face.hintFlags) && FaceHints::canShowGraph(kind);
    const QRect caption(Margin, Margin, Face - 2 * Margin, CaptionPixels);
    const QRect graphBand(Margin, Face - Margin - GraphBand, Face - 2 * Margin, GraphBand);
    const int valueTop = Margin + CaptionBand;
    const int valueBottom = graph ? graphBand.top() - 2 : Face - Margin;
    const QRect valueRoom(Margin, valueTop, Face - 2 * Margin, valueBottom - valueTop);

    switch (kind) {
    case LiveKind::Processor:
    case LiveKind::Memory:
        drawCaption(painter, face, captionOf(face, kind), caption);
        drawValue(painter, face, valueText(kind, readings, now, locale), valueRoom);
        if (graph)
            drawGraph(painter, historyOf(kind, readings), 100.0f, graphBand, color);
        break;
    case LiveKind::Network: {
        drawCaption(painter, face, captionOf(face, kind), caption);
        drawRates(painter, face, readings, valueRoom);
        const QVector<float> history = historyOf(kind, readings);
        if (graph && !history.isEmpty())
            drawGraph(painter, history, *std::max_element(history.cbegin(), history.cend()), graphBand, color);
        break;
    }
    case LiveKind::Clock: {
        QString marker;
        const QString time = clockText(now, locale, &marker);
        const QString title = captionOf(face, kind);
        drawCaption(painter, face, marker.isEmpty() ? title : marker, caption);
        // Without anything above it, the time takes the middle of the face.
        const QRect room = marker.isEmpty() && title.isEmpty() ? QRect(Margin, 0, Face - 2 * Margin, Face) : valueRoom;
        drawValue(painter, face, time, room);
        break;
    }
    case LiveKind::Date: {
        drawCaption(painter, face, locale.dayName(now.date().dayOfWeek(), QLocale::ShortFormat), caption);
        const QRect month(Margin, Face - Margin - CaptionPixels, Face - 2 * Margin, CaptionPixels);
        drawValue(painter, face, QString::number(now.date().day()),
                  QRect(Margin, valueTop, Face - 2 * Margin, month.top() - valueTop));
        drawCaption(painter, face, locale.monthName(now.date().month(), QLocale::ShortFormat), month);
        break;
    }
    case LiveKind::None:
        break;
    }
    painter.end();
    return canvas;
}
