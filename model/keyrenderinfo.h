#pragma once

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QString>

class KeyItem;

// The face of one feature slot of a key: title, its style, and the image.
struct KeyRenderInfo
{
    static constexpr int DefaultHintFlags = 1;
    static constexpr int DefaultTextAlign = 0x44; // Qt::AlignHCenter | Qt::AlignBottom

    int hintFlags = DefaultHintFlags;
    QString text;
    int textAlign = DefaultTextAlign;
    QFont textFont = defaultFont();
    QColor textColor = QColor(255, 255, 255, 255);
    QPixmap userImg; // null: the default image is shown
    QString defImgPath;
    KeyItem* owner = nullptr;

    static QFont defaultFont();

    // Back to the reset values; the default image and the owner stay.
    void reset();
    // Copies every field but the owner.
    void assignFrom(const KeyRenderInfo& src);
};
