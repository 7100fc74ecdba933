#pragma once

#include <QImage>

class KeyItem;

// Placeholder until the key face composition lands.
class KeyFaceRenderer
{
public:
    static QImage render(const KeyItem* item);
};
