#include "valuesanity.h"

#include "logging.h"
#include "settings.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPixmap>

#include <cstring>
#include <type_traits>

namespace {

bool isSize(qreal size)
{
    return qIsFinite(size) && (size == -1 || (size > 0 && size <= ValueSanity::MaxFontSize));
}

bool isSpacing(qreal spacing)
{
    return qIsFinite(spacing) && qAbs(spacing) <= ValueSanity::MaxFontSize;
}

} // namespace

QString ValueSanity::problem(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::QColor:
        return colorProblem(value);
    case QMetaType::QFont:
        return fontProblem(value);
    case QMetaType::QPixmap: {
        const auto* pixmap = static_cast<const QPixmap*>(value.constData());
        return imageProblem(pixmap->width(), pixmap->height());
    }
    case QMetaType::QImage: {
        const auto* image = static_cast<const QImage*>(value.constData());
        return imageProblem(image->width(), image->height());
    }
    default:
        return QString();
    }
}

QVariant ValueSanity::usable(const QVariant& value, const QString& what)
{
    const QString wrong = problem(value);
    if (wrong.isEmpty())
        return value;
    LOG_MSG(QStringLiteral("Err: %1 is unusable (%2), the default is used!!").arg(what, wrong));
    return QVariant(value.userType(), nullptr);
}

// The colour model is read as raw bytes: QColor's own accessors, and its copy
// constructor, would load it as a QColor::Spec, which it may not be.
QString ValueSanity::colorProblem(const QVariant& value)
{
    static_assert(std::is_standard_layout<QColor>::value, "QColor's first member is its colour model");
    const auto* color = static_cast<const QColor*>(value.constData());
    std::underlying_type<QColor::Spec>::type spec = 0;
    std::memcpy(&spec, color, sizeof spec);
    if (spec < QColor::Invalid || spec > QColor::ExtendedRgb)
        return QStringLiteral("colour model %1").arg(spec);
    // Hues are hundredths of a degree; Qt's conversions expect at most a full circle.
    if ((spec == QColor::Hsv && color->hsvHue() > 360) || (spec == QColor::Hsl && color->hslHue() > 360))
        return QStringLiteral("hue beyond 360 degrees");
    if (spec == QColor::ExtendedRgb && !(qIsFinite(color->redF()) && qIsFinite(color->greenF()) &&
                                         qIsFinite(color->blueF()) && qIsFinite(color->alphaF())))
        return QStringLiteral("component not a finite number");
    return QString();
}

QString ValueSanity::fontProblem(const QVariant& value)
{
    const auto* font = static_cast<const QFont*>(value.constData());
    const qreal points = font->pointSizeF();
    const int pixels = font->pixelSize();
    if (!isSize(points) || !isSize(pixels) || (points == -1 && pixels == -1))
        return QStringLiteral("size %1 pt, %2 px").arg(points).arg(pixels);
    // setWeight() and setStretch() take no more than these.
    if (font->weight() > 99)
        return QStringLiteral("weight %1").arg(font->weight());
    if (font->stretch() > QFont::UltraExpanded)
        return QStringLiteral("stretch %1").arg(font->stretch());
    if (int(font->styleHint()) > int(QFont::Fantasy))
        return QStringLiteral("style hint %1").arg(int(font->styleHint()));
    if (int(font->capitalization()) > int(QFont::Capitalize))
        return QStringLiteral("capitalization %1").arg(int(font->capitalization()));
    if (!isSpacing(font->letterSpacing()) || !isSpacing(font->wordSpacing()))
        return QStringLiteral("spacing %1, %2").arg(font->letterSpacing()).arg(font->wordSpacing());
    return QString();
}

QString ValueSanity::imageProblem(int width, int height)
{
    if (width > Settings::MaxImageSide || height > Settings::MaxImageSide)
        return QStringLiteral("%1 x %2 pixels").arg(width).arg(height);
    return QString();
}
