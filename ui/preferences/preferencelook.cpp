#include "preferencelook.h"

#include "widgetlook.h"

#include <QLabel>
#include <QVBoxLayout>

namespace PreferenceLook {

QVBoxLayout* pageLayout(QWidget* page, const QString& heading)
{
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(24, 18, 24, 18);
    layout->setSpacing(10);
    auto* title = new QLabel(heading, page);
    title->setObjectName(QStringLiteral("PreferenceHeading"));
    // The style sheet's padding counts as a frame, which would indent the text.
    title->setIndent(0);
    layout->addWidget(title);
    return layout;
}

QLabel* section(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(QStringLiteral("PreferenceSection"));
    label->setIndent(0);
    return label;
}

QLabel* note(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(QStringLiteral("PreferenceNote"));
    label->setWordWrap(true);
    return label;
}

QLabel* status(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QStringLiteral("PreferenceStatus"));
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->hide();
    return label;
}

void setStatus(QLabel* label, const QString& text, bool problem)
{
    label->setText(text);
    label->setAccessibleName(text);
    label->setVisible(!text.isEmpty());
    WidgetLook::setStyleProperty(label, "problem", problem);
}

} // namespace PreferenceLook
