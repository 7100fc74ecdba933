#pragma once

#include "keypadtable.h"

#include <QImage>
#include <QString>
#include <QStringList>

// The pictures a user gives a key, made into what the key keeps in userImg:
// a square image of the key's size with the picture fitted in without
// distortion and transparent around it, so a layout carries the picture
// itself and shows it the same anywhere. The face renderer then fits that
// square into the room the title leaves.
class KeyIconImage
{
public:
    static constexpr int Size = KeypadTable::KeyImageSize;

    // Fitted into the square, aspect kept, centred, transparency kept; a
    // picture smaller than the square is enlarged. Null for a null source.
    static QImage fitted(const QImage& source);

    // An image file: the formats Qt reads here (PNG, JPEG, SVG, WebP with the
    // image formats plugin, the first frame of a GIF, ...). Vector images are
    // drawn at the key's size. Null with *error set when unreadable.
    static QImage fromFile(const QString& path, QString* error = nullptr);
    // Whether the file's suffix names a format Qt can read here.
    static bool isImageFile(const QString& path);
    // "*.png *.jpg ..." for a file dialog.
    static QString fileDialogPatterns();

    // An icon of the desktop's icon theme; symbolic icons (monochrome, made
    // for light backgrounds) are drawn white, as the key's face is black.
    // GUI thread (QIcon). Null when the theme has no such icon.
    static QImage fromThemeIcon(const QString& name);

    // An emoji drawn with the colour emoji font. GUI thread (fonts).
    static QImage fromEmoji(const QString& emoji);
    static QString emojiFamily();

private:
    static QStringList readableSuffixes();
    static QImage opaqueBounds(const QImage& image);
};
