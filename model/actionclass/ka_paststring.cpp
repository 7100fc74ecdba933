#include "ka_paststring.h"

#include "actionservices.h"
#include "logging.h"

#include <QThread>

KeyActionType KA_PastString::getActionType() const
{
    return KAT_PASTE_STRING;
}

bool KA_PastString::isValid() const
{
    return !strText.isEmpty();
}

void KA_PastString::reset()
{
    strText.clear();
}

// Types the text by pasting it: on the clipboard, then Ctrl+V. The text stays
// on the clipboard afterwards.
bool KA_PastString::doAction(int)
{
    ActionServices* services = ActionServices::instance();
    if (!isValid() || !services)
        return false;
    if (!services->setClipboardText(strText)) {
        LOG_MSG(QStringLiteral("The clipboard could not take the text; nothing pasted."));
        return true;
    }
    QThread::msleep(10);
    constexpr int VirtualKeyV = 86;
    services->sendKeyEvent(VirtualKeyV, false, false, true, false);
    return true;
}
