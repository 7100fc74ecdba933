#include "layouttext.h"

#include "keypadtable.h"

#include <QCoreApplication>

namespace LayoutText {

QString keys(int keyCount)
{
    return QCoreApplication::translate("LayoutText", "%1 keys").arg(keyCount);
}

QString describe(int layout)
{
    if (!KeypadTable::isValidLayout(layout))
        return QString();
    const int count = KeypadTable::keyCount(layout);
    const QSize shape = KeypadTable::gridShape(layout);
    return shape.height() > shape.width() ? QCoreApplication::translate("LayoutText", "%1 keys, vertical").arg(count)
                                          : QCoreApplication::translate("LayoutText", "%1 keys, horizontal").arg(count);
}

} // namespace LayoutText
