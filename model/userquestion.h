#pragma once

#include <QString>
#include <functional>

// A question the model or the editor must ask the user (limits,
// confirmations). The model has no widgets: the main window installs a
// handler that shows the message dialog; tests install their own.
//
// Buttons are named by what they mean, not by their text: the answer is the
// meaning of the clicked button, so no translation can turn "Cancel" into a
// yes.
struct UserQuestion
{
    enum Button
    {
        NoButton = 0, // closed without a choice
        Ok = 0x01,
        Cancel = 0x02,
        Yes = 0x04,
        No = 0x08,
        Delete = 0x10,
        Continue = 0x20,
        Reset = 0x40,
        Import = 0x80,
    };
    // The message dialog's icon kinds.
    enum Icon
    {
        NoIcon = 0,
        LogoIcon = 1,
        WarningIcon = 2,
        CloseIcon = 3,
    };
    // The dialog's three button places, left to right.
    enum Slot
    {
        LeftSlot = 0,
        MidSlot = 1,
        RightSlot = 2,
        SlotCount = 3,
    };

    QString title;
    QString subject;
    QString text;
    Button buttons[SlotCount] = {NoButton, NoButton, NoButton};
    QString checkBoxText;
    Icon icon = WarningIcon;
    Button defaultButton = Cancel;

    // The translated text a button shows.
    static QString buttonText(Button button);
    // The slot that holds the button, -1 when it is not offered.
    int slotOf(Button button) const;
};

struct UserAnswer
{
    UserQuestion::Button button = UserQuestion::NoButton;
    bool checked = false;
};

class UserQuestions
{
public:
    using Handler = std::function<UserAnswer(const UserQuestion&)>;

    static void setHandler(Handler handler);
    // Without a handler nobody can answer: the answer is Cancel whatever
    // buttons the question offers. Every question treats Cancel as "no",
    // while an unanswered close (NoButton) lets the delete questions go on.
    static UserAnswer ask(const UserQuestion& question);
};
