#include "dialogbuttons.h"

#include "userquestion.h"

#include <QDialogButtonBox>
#include <QPushButton>

namespace DialogButtons {

void useOwnTexts(QDialogButtonBox* box)
{
    static const struct
    {
        QDialogButtonBox::StandardButton standard;
        UserQuestion::Button own;
    } pairs[] = {
        {QDialogButtonBox::Ok, UserQuestion::Ok},       {QDialogButtonBox::Cancel, UserQuestion::Cancel},
        {QDialogButtonBox::Reset, UserQuestion::Reset}, {QDialogButtonBox::Yes, UserQuestion::Yes},
        {QDialogButtonBox::No, UserQuestion::No},
    };
    for (const auto& pair : pairs) {
        if (QPushButton* button = box->button(pair.standard))
            button->setText(UserQuestion::buttonText(pair.own));
    }
}

} // namespace DialogButtons
