#pragma once

#include <QPixmap>
#include <QSize>

// A key's face as the editor's grid shows it: scaled smoothly to the
// layout's icon size on black. The grid and the previews of the face
// editor draw keys this one way.
class KeyButtonImage
{
public:
    static QPixmap compose(const QPixmap& face, const QSize& size);
};
