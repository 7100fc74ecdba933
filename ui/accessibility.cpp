#include "accessibility.h"

#include "accessiblebutton.h"
#include "accessiblebuttongroup.h"
#include "buttonowner.h"
#include "clicklabel.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QLabel>
#include <QWidget>

namespace {

// The labels inside a ButtonOwner are its buttons. Decided by kind, not by
// the owner's list: a label may be asked about before the owner has listed it,
// and the answer is kept for the label's life.
ButtonOwner* ownerOfButton(QWidget* widget)
{
    if (!qobject_cast<QLabel*>(widget))
        return nullptr;
    for (QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto* owner = dynamic_cast<ButtonOwner*>(parent))
            return owner;
        if (parent->isWindow())
            break;
    }
    return nullptr;
}

// Asked once per object and class name, from the most derived class up.
QAccessibleInterface* factory(const QString& className, QObject* object)
{
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget || className != QLatin1String(object->metaObject()->className()))
        return nullptr;
    if (auto* owner = dynamic_cast<ButtonOwner*>(widget))
        return new AccessibleButtonGroup(widget, owner);
    if (qobject_cast<ClickLabel*>(widget))
        return new AccessibleButton(widget, nullptr);
    // Qt leaves the clear button of a line edit nameless.
    if (className == QLatin1String("QLineEditIconButton"))
        return new AccessibleButton(widget, nullptr, QCoreApplication::translate("Accessibility", "Clear"));
    if (ButtonOwner* owner = ownerOfButton(widget))
        return new AccessibleButton(widget, owner);
    return nullptr;
}

} // namespace

namespace Accessibility {

void install()
{
    static bool installed = false;
    if (installed)
        return;
    installed = true;
    QAccessible::installFactory(factory);
}

} // namespace Accessibility
