#pragma once

#include <QString>
#include <QVariant>

class QWidget;

// What the editor's widgets share about their looks: the image resources,
// and the dynamic properties that the application style sheet keys on.
namespace WidgetLook {

// The resource path of a named image: ":/image/<name>.png".
QString imagePath(const QString& name);

// Sets a property the style sheet matches on and restyles the widget, which
// Qt does not do by itself for dynamic properties; an unchanged value costs
// nothing.
void setStyleProperty(QWidget* widget, const char* name, const QVariant& value);

// Restyles a widget whose look depends on an ancestor's property.
void repolish(QWidget* widget);

} // namespace WidgetLook
