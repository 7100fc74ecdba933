#pragma once

class QWidget;

// A widget that draws a row or grid of buttons itself (the key grid, the
// action palette) and keeps their selection and keyboard position. It tells
// assistive technology about them: each button is a QWidget the owner
// created, reported as a button with the owner's selection and focus.
class ButtonOwner
{
public:
    virtual ~ButtonOwner() = default;

    // -1 when the widget is none of this owner's buttons.
    virtual int buttonIndexOf(const QWidget* widget) const = 0;
    virtual QWidget* buttonWidget(int idx) const = 0;
    virtual bool isButtonSelected(int idx) const = 0;
    // The button the keyboard is on while the owner has the focus; -1 for none.
    virtual int keyboardButton() const = 0;
    // What a click on the button does.
    virtual void pressButton(int idx) = 0;
};
