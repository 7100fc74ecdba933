#include "keyrenderinfo.h"

QFont KeyRenderInfo::defaultFont()
{
    return QFont(QStringLiteral("Arial"), 9);
}

void KeyRenderInfo::reset()
{
    hintFlags = DefaultHintFlags;
    text.clear();
    textAlign = DefaultTextAlign;
    textFont = defaultFont();
    textColor = QColor(255, 255, 255, 255);
    userImg = QPixmap();
}

void KeyRenderInfo::assignFrom(const KeyRenderInfo& src)
{
    hintFlags = src.hintFlags;
    text = src.text;
    textAlign = src.textAlign;
    textFont = src.textFont;
    textColor = src.textColor;
    userImg = src.userImg;
    defImgPath = src.defImgPath;
}
