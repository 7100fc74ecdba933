#include "keyfacerenderer.h"

#include "bundledfonts.h"
#include "defaultimagecache.h"
#include "facetitle.h"
#include "keyitem.h"
#include "keyrenderinfo.h"
#include "livefacepainter.h"
#include "logging.h"
#include "systemreadings.h"

#include <QPainter>

namespace {

constexpr int Face = KeyFaceRenderer::FaceSize;
constexpr int ImageMargin = 4;   // between the image and the face's edges
constexpr int TitleEdge = 3;     // between the title and the face's top or bottom edge
constexpr int TitleSide = 3;     // between the title and the face's sides
constexpr int TitleGap = 2;      // between the image and the title
constexpr int MinImageSide = 24; // a title never squeezes the image below this
constexpr int MaxTitleLines = 2;
constexpr int PressedSide = 64;
constexpr int PressedShade = 51; // black at 20 % over the pressed face

enum class TitlePlace
{
    Top,
    Bottom,
    Over,
};

struct FaceLayout
{
    QRect imageArea;
    QRect titleBand;
};

TitlePlace titlePlace(int textAlign)
{
    const Qt::Alignment vertical = Qt::Alignment(textAlign) & Qt::AlignVertical_Mask;
    if (vertical & Qt::AlignTop)
        return TitlePlace::Top;
    if (vertical & Qt::AlignVCenter)
        return TitlePlace::Over;
    return TitlePlace::Bottom;
}

Qt::Alignment horizontalAlignment(int textAlign)
{
    const Qt::Alignment horizontal = Qt::Alignment(textAlign) & Qt::AlignHorizontal_Mask;
    if (horizontal & (Qt::AlignLeft | Qt::AlignRight))
        return horizontal & (Qt::AlignLeft | Qt::AlignRight);
    return Qt::AlignHCenter;
}

// Height left to the image when a title of titleHeight sits at the top or
// the bottom.
int imageRoom(int titleHeight)
{
    return Face - ImageMargin - TitleGap - TitleEdge - titleHeight;
}

QRect wholeImageArea()
{
    return QRect(ImageMargin, ImageMargin, Face - 2 * ImageMargin, Face - 2 * ImageMargin);
}

FaceLayout layoutFor(TitlePlace place, int titleHeight)
{
    if (titleHeight <= 0)
        return {wholeImageArea(), QRect()};
    const int bandWidth = Face - 2 * TitleSide;
    switch (place) {
    case TitlePlace::Top: {
        const QRect band(TitleSide, TitleEdge, bandWidth, titleHeight);
        const int imageTop = band.bottom() + 1 + TitleGap;
        return {QRect(ImageMargin, imageTop, Face - 2 * ImageMargin, Face - ImageMargin - imageTop), band};
    }
    case TitlePlace::Bottom: {
        const QRect band(TitleSide, Face - TitleEdge - titleHeight, bandWidth, titleHeight);
        return {QRect(ImageMargin, ImageMargin, Face - 2 * ImageMargin, band.top() - TitleGap - ImageMargin), band};
    }
    case TitlePlace::Over:
        break;
    }
    return {wholeImageArea(), QRect(TitleSide, (Face - titleHeight) / 2, bandWidth, titleHeight)};
}

QImage blankCanvas()
{
    QImage canvas(Face, Face, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::black);
    return canvas;
}

void drawCentred(QPainter& painter, const QImage& image, const QRect& area)
{
    if (image.isNull())
        return;
    painter.drawImage(
        QPoint(area.x() + (area.width() - image.width()) / 2, area.y() + (area.height() - image.height()) / 2), image);
}

// The title in as many lines as leave the image its minimum size.
FaceTitle layOutTitle(const KeyRenderInfo& face, TitlePlace place, bool hasImage)
{
    const bool shown = (face.hintFlags & KeyFaceRenderer::HintShowTitle) && BundledFonts::canDrawText();
    const QString text = shown ? face.text : QString();
    const int bandWidth = Face - 2 * TitleSide;
    const FaceTitle title(text, face.textFont, bandWidth, MaxTitleLines);
    if (place == TitlePlace::Over || !hasImage || imageRoom(title.height()) >= MinImageSide)
        return title;
    return FaceTitle(text, face.textFont, bandWidth, 1);
}

} // namespace

QImage KeyFaceRenderer::render(const KeyItem* item)
{
    const KeyRenderInfo* face = currentFace(item);
    return face ? render(*face) : blankFace();
}

const KeyRenderInfo* KeyFaceRenderer::currentFace(const KeyItem* item)
{
    if (!logMsgWhenRetFail(item != nullptr, QStringLiteral("keyItem is nullptr!!")))
        return nullptr;
    if (item->actionType == KAT_INVALID)
        return nullptr;
    if (!logMsgWhenRetFail(item->actionType >= KAT_FOLDER && item->actionType < KAT_NUM,
                           QStringLiteral("unknown action type!! -> %1").arg(int(item->actionType))))
        return nullptr;
    int slot = item->cfIdx;
    if (!logMsgWhenRetFail(slot >= 0 && slot < KeyItem::SlotCount,
                           QStringLiteral("cfIdx out of range, slot 0 shown!! -> %1").arg(slot)))
        slot = 0;
    return &item->render[slot];
}

QImage KeyFaceRenderer::render(const KeyRenderInfo& face)
{
    ensureFontsLoaded();
    if (FaceHints::liveKind(face.hintFlags) != FaceHints::LiveKind::None) {
        const QImage live = LiveFacePainter::paint(face, SystemReadings::current(), QDateTime::currentDateTime());
        if (!live.isNull())
            return live.convertToFormat(QImage::Format_RGBA8888);
    }
    const QImage source = faceImage(face);
    const TitlePlace place = titlePlace(face.textAlign);
    const FaceTitle title = layOutTitle(face, place, !source.isNull());
    const FaceLayout layout = layoutFor(place, title.height());

    QImage canvas = blankCanvas();
    QPainter painter(&canvas);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    drawCentred(painter, fittedImage(face, source, layout.imageArea.size()), layout.imageArea);
    const QColor color = face.textColor.isValid() ? face.textColor : QColor(255, 255, 255);
    title.paint(painter, layout.titleBand, horizontalAlignment(face.textAlign), color,
                place == TitlePlace::Over && !source.isNull());
    painter.end();
    return canvas.convertToFormat(QImage::Format_RGBA8888);
}

QImage KeyFaceRenderer::faceImage(const KeyRenderInfo& face)
{
    if (!face.userImg.isNull())
        return face.userImg.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (face.defImgPath.isEmpty())
        return QImage();
    return DefaultImageCache::image(face.defImgPath);
}

QImage KeyFaceRenderer::fittedImage(const KeyRenderInfo& face, const QImage& source, const QSize& box)
{
    if (source.isNull())
        return QImage();
    // Default images are few and drawn at few sizes: their fitted copies are kept.
    if (face.userImg.isNull())
        return DefaultImageCache::fitted(face.defImgPath, box);
    return DefaultImageCache::fitInto(source, box);
}

QImage KeyFaceRenderer::renderPressed(const KeyItem* item)
{
    return pressedLook(render(item));
}

QImage KeyFaceRenderer::pressedLook(const QImage& face)
{
    if (face.isNull())
        return blankFace();
    QImage canvas = blankCanvas();
    const QRect pushed((Face - PressedSide) / 2, (Face - PressedSide) / 2, PressedSide, PressedSide);
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(pushed, face.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    painter.fillRect(pushed, QColor(0, 0, 0, PressedShade));
    painter.end();
    return canvas.convertToFormat(QImage::Format_RGBA8888);
}

QImage KeyFaceRenderer::blankFace()
{
    return blankCanvas().convertToFormat(QImage::Format_RGBA8888);
}

QImage KeyFaceRenderer::defaultImage(const QString& name)
{
    return DefaultImageCache::image(name);
}

void KeyFaceRenderer::ensureFontsLoaded()
{
    BundledFonts::ensureLoaded();
}
