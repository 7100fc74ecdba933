#include "layouttext.h"

#include "keypadtable.h"

#include <QCoreApplication>

namespace LayoutText {

QString keys(int keyCount)
{
    return QCoreApplication::translate("LayoutText", "%1 keys").arg(keyCount);
}

bool isVertical(int layout)
{
    const QSize shape = KeypadTable::gridShape(layout);
    return shape.height() > shape.width();
}

QString describe(int layout)
{
    if (!KeypadTable::isValidLayout(layout))
        return QString();
    const int count = KeypadTable::keyCount(layout);
    return isVertical(layout) ? QCoreApplication::translate("LayoutText", "%1 keys, vertical").arg(count)
                              : QCoreApplication::translate("LayoutText", "%1 keys, horizontal").arg(count);
}

} // namespace LayoutText
