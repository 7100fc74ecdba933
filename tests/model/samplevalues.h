#pragma once

// Values of every type the settings tree holds, for tests that compare our
// stream and file writers with what Qt itself writes.

#include "ka_folder.h"
#include "ka_paststring.h"
#include "keyitem.h"
#include "keyitemserialization.h"

#include <QColor>
#include <QDate>
#include <QFont>
#include <QImage>
#include <QList>
#include <QPainter>
#include <QPair>
#include <QPixmap>
#include <QRandomGenerator>
#include <QVariantMap>

namespace SampleValues {

// Alpha below 255 everywhere: the PNG holds unpremultiplied colours, the
// pixmap premultiplied ones, so this is the image most likely to change on
// the way through a file.
inline QPixmap semiTransparentPixmap(int seed = 0)
{
    QImage image(9, 7, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qPremultiply(qRgba(x * 30 + seed, y * 30, 200, (x * 8 + y + seed) * 3 % 250 + 5)));
    }
    return QPixmap::fromImage(image);
}

// Large flat areas: compressed much better than the others.
inline QPixmap opaquePixmap()
{
    QImage image(72, 72, QImage::Format_RGB32);
    image.fill(QColor(20, 90, 160));
    QPainter(&image).fillRect(10, 12, 44, 40, QColor(240, 200, 10));
    return QPixmap::fromImage(image);
}

// Compressed data: every byte value, in every order.
inline QPixmap noisePixmap(quint32 seed)
{
    QRandomGenerator random(seed);
    QImage image(24, 24, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, random.generate());
    }
    return QPixmap::fromImage(image);
}

inline QFont styledFont()
{
    QFont font(QStringLiteral("DejaVu Sans"), 13);
    font.setStyleName(QStringLiteral("Bold"));
    font.setLetterSpacing(QFont::AbsoluteSpacing, 1.5);
    font.setCapitalization(QFont::SmallCaps);
    return font;
}

inline QVariantMap keyItemMap()
{
    KeyItem folder(KAT_FOLDER, 3, 2);
    folder.render[0].userImg = semiTransparentPixmap(1);
    folder.render[0].textFont = styledFont();
    folder.render[0].text = QStringLiteral("Földer ✓");
    auto* child = new KeyItem(KAT_PASTE_STRING, 0, 2);
    child->render[0].userImg = opaquePixmap();
    child->render[1].userImg = noisePixmap(7);
    static_cast<KA_PastString*>(child->action[0])->strText = QStringLiteral("a;b,c=d \"e\\f");
    auto* page = static_cast<KA_Folder*>(folder.action[0]);
    child->parent = &folder;
    child->ownerList = &page->childList;
    page->childList.insert(0, child);
    QVariantMap map;
    map << folder;
    return map;
}

// A map whose null flag is set although it holds entries: QDataStream writes the flag as it is.
inline QVariant flaggedNullMap()
{
    QVariant value(QVariant::Map);
    static_cast<QVariantMap*>(value.data())->insert(QStringLiteral("k"), 1);
    return value;
}

inline QVariantMap mapWithDuplicateKeys()
{
    QMultiMap<QString, QVariant> map;
    map.insert(QStringLiteral("k"), 1);
    map.insert(QStringLiteral("k"), semiTransparentPixmap(3));
    map.insert(QStringLiteral("k"), QStringLiteral("third"));
    return map;
}

inline QByteArray everyByte()
{
    QByteArray bytes;
    for (int c = 0; c < 256; ++c)
        bytes.append(char(c)).append('a').append(char(c)).append('0');
    return bytes;
}

// Every type of value the tree holds, and some it might.
inline QList<QPair<const char*, QVariant>> everyValueType()
{
    return {
        {"int", 42},
        {"uint", 4000000000u},
        {"long long", -(qlonglong(1) << 40)},
        {"unsigned long long", qulonglong(1) << 63},
        {"double", 1.25},
        {"true", true},
        {"string", QStringLiteral("über ✓ ;,=\"\\ ")},
        {"empty string", QString(QLatin1String(""))},
        {"null string", QString()},
        {"byte array", everyByte()},
        {"rgb colour", QColor(10, 20, 30, 200)},
        {"hsv colour", QColor::fromHsv(200, 100, 50)},
        {"extended rgb colour", QColor::fromRgbF(1.5, -0.25, 0.5)},
        {"invalid colour", QColor()},
        {"default font", QFont()},
        {"styled font", styledFont()},
        {"semi-transparent pixmap", semiTransparentPixmap()},
        {"opaque pixmap", opaquePixmap()},
        {"noise pixmap", noisePixmap(1)},
        {"null pixmap", QPixmap()},
        {"type-only pixmap", QVariant(QVariant::Pixmap)},
        {"image", semiTransparentPixmap().toImage()},
        {"invalid variant", QVariant()},
        {"date", QDate(2024, 2, 29)},
        {"string list", QStringList{QStringLiteral("a"), QString()}},
        {"list", QVariantList{1, QStringLiteral("x"), QVariantMap{{QStringLiteral("img"), opaquePixmap()}},
                              QVariantList{styledFont(), QPixmap()}}},
        {"empty map", QVariantMap()},
        {"type-only map", QVariant(QVariant::Map)},
        {"type-only list", QVariant(QVariant::List)},
        {"flagged null map with entries", flaggedNullMap()},
        {"duplicate keys", mapWithDuplicateKeys()},
        {"nested maps",
         QVariantMap{{QStringLiteral("a"),
                      QVariantMap{{QStringLiteral("b"), QVariantMap{{QStringLiteral("c"), noisePixmap(2)}}},
                                  {QStringLiteral("font"), styledFont()}}}}},
        {"key item", keyItemMap()},
    };
}

// The value inside a map with neighbours on either side.
inline QVariantMap around(const QVariant& value)
{
    return {{QStringLiteral("0 first"), 1}, {QStringLiteral("value"), value}, {QStringLiteral("z last"), QString()}};
}

} // namespace SampleValues
