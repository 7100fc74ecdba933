#pragma once

#include <QString>
#include <functional>

// A question the model must ask the user (limits, confirmations). The model
// has no widgets: the main window installs a handler that shows the message
// dialog; tests install their own.
struct UserQuestion
{
    QString title;
    QString subject;
    QString text;
    QString leftText;
    QString midText;
    QString rightText;
    QString checkBoxText;
    int iconKind = 2;      // warning
    int defaultButton = 1; // middle
};

struct UserAnswer
{
    QString buttonText; // empty when the question was closed without a choice
    bool checked = false;
};

class UserQuestions
{
public:
    using Handler = std::function<UserAnswer(const UserQuestion&)>;

    static void setHandler(Handler handler);
    // Without a handler nobody can answer: the answer is "Cancel", so nothing
    // irreversible happens unasked.
    static UserAnswer ask(const UserQuestion& question);
};
