#include "keyiconimage.h"

#include "logging.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QIcon>
#include <QImageReader>
#include <QPainter>

namespace {

// Large enough that the colour emoji font draws its own bitmaps without
// scaling them up (its glyphs are 136 x 128 pixels at 109 pixels).
constexpr int EmojiPixelSize = 109;
constexpr int EmojiCanvas = 160;

QImage transparentSquare(int side)
{
    QImage canvas(side, side, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    return canvas;
}

} // namespace

QImage KeyIconImage::fitted(const QImage& source)
{
    if (source.isNull())
        return QImage();
    const QImage image = source.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage scaled = image.size() == image.size().scaled(Size, Size, Qt::KeepAspectRatio)
                              ? image
                              : image.scaled(Size, Size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QImage canvas = transparentSquare(Size);
    QPainter painter(&canvas);
    painter.drawImage(QPoint((Size - scaled.width()) / 2, (Size - scaled.height()) / 2), scaled);
    painter.end();
    return canvas;
}

QImage KeyIconImage::fromFile(const QString& path, QString* error)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QByteArray format = reader.format();
    const QSize size = reader.size();
    // Vector images are drawn at the key's size rather than scaled from
    // their nominal one; large photos decode faster straight to it.
    const bool vector = format.startsWith("svg");
    if (size.isValid() && reader.supportsOption(QImageIOHandler::ScaledSize) &&
        (vector || size.width() > Size || size.height() > Size))
        reader.setScaledSize(size.scaled(Size, Size, Qt::KeepAspectRatio));
    const QImage image = reader.read();
    if (image.isNull()) {
        const QString why = reader.errorString();
        LOG_MSG(QStringLiteral("ERROR: cannot read the image!! -> %1: %2").arg(path, why));
        if (error)
            *error = why;
        return QImage();
    }
    return fitted(image);
}

QStringList KeyIconImage::readableSuffixes()
{
    QStringList suffixes;
    for (const QByteArray& format : QImageReader::supportedImageFormats())
        suffixes << QString::fromLatin1(format).toLower();
    suffixes.removeDuplicates();
    return suffixes;
}

bool KeyIconImage::isImageFile(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return !suffix.isEmpty() && readableSuffixes().contains(suffix);
}

QString KeyIconImage::fileDialogPatterns()
{
    QStringList patterns;
    for (const QString& suffix : readableSuffixes())
        patterns << QStringLiteral("*.") + suffix;
    return patterns.join(QLatin1Char(' '));
}

QImage KeyIconImage::fromThemeIcon(const QString& name)
{
    const QIcon icon = QIcon::fromTheme(name);
    if (icon.isNull())
        return QImage();
    QImage image = icon.pixmap(QSize(Size, Size)).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return QImage();
    if (name.endsWith(QLatin1String("-symbolic"))) {
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(image.rect(), Qt::white);
    }
    return fitted(image);
}

QString KeyIconImage::emojiFamily()
{
    return QStringLiteral("Noto Color Emoji");
}

QImage KeyIconImage::fromEmoji(const QString& emoji)
{
    if (emoji.isEmpty())
        return QImage();
    static const bool fontInstalled = [] {
        const bool installed = QFontDatabase().hasFamily(emojiFamily());
        if (!installed)
            LOG_MSG(
                QStringLiteral("ERROR: the colour emoji font is missing, emoji are drawn in black and white!! -> %1")
                    .arg(emojiFamily()));
        return installed;
    }();
    Q_UNUSED(fontInstalled)
    QFont font(emojiFamily());
    font.setPixelSize(EmojiPixelSize);
    QImage canvas = transparentSquare(EmojiCanvas);
    QPainter painter(&canvas);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(canvas.rect(), Qt::AlignCenter, emoji);
    painter.end();
    // Fonts place glyphs differently: what was drawn is what is fitted.
    return fitted(opaqueBounds(canvas));
}

QImage KeyIconImage::opaqueBounds(const QImage& image)
{
    int left = image.width(), top = image.height(), right = -1, bottom = -1;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) == 0)
                continue;
            left = qMin(left, x);
            right = qMax(right, x);
            top = qMin(top, y);
            bottom = qMax(bottom, y);
        }
    }
    if (right < 0)
        return QImage();
    return image.copy(QRect(QPoint(left, top), QPoint(right, bottom)));
}
