#pragma once

#include <QAccessibleWidget>

class ButtonOwner;

// A picture label that acts as a button, as assistive technology sees it:
// role Button, named by its accessible name or else its tool tip, with the
// press action. The buttons of a ButtonOwner carry the owner's selection and
// keyboard position as their selected and focused states; other buttons (the
// title bar's ClickLabels) are pressed through their click() slot.
class AccessibleButton : public QAccessibleWidget
{
public:
    // The fallback name serves buttons with neither name nor tool tip.
    AccessibleButton(QWidget* button, ButtonOwner* owner, const QString& fallbackName = QString());

    QString text(QAccessible::Text t) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;

    // Tell assistive technology that a button became the focused one, or
    // that its selection changed.
    static void announceFocus(QWidget* button);
    static void announceSelection(QWidget* button);

private:
    int index() const;
    QWidget* ownerWidget() const;

    ButtonOwner* m_owner = nullptr;
    QString m_fallbackName;
};
