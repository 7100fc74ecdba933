#include "widgetlook.h"

#include <QStyle>
#include <QWidget>

namespace WidgetLook {

QString imagePath(const QString& name)
{
    return QStringLiteral("%1/%2.%3").arg(QStringLiteral(":/image"), name, QStringLiteral("png"));
}

void setStyleProperty(QWidget* widget, const char* name, const QVariant& value)
{
    if (!widget || widget->property(name) == value)
        return;
    widget->setProperty(name, value);
    repolish(widget);
}

void repolish(QWidget* widget)
{
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

} // namespace WidgetLook
