#include "userquestion.h"

#include "logging.h"

#include <QCoreApplication>
#include <QMutex>

namespace {
QMutex handlerMutex;
UserQuestions::Handler& currentHandler()
{
    static UserQuestions::Handler handler;
    return handler;
}
} // namespace

QString UserQuestion::buttonText(Button button)
{
    switch (button) {
    case Ok:
        return QCoreApplication::translate("UserQuestion", "OK");
    case Cancel:
        return QCoreApplication::translate("UserQuestion", "Cancel");
    case Yes:
        return QCoreApplication::translate("UserQuestion", "Yes");
    case No:
        return QCoreApplication::translate("UserQuestion", "No");
    case Delete:
        return QCoreApplication::translate("UserQuestion", "Delete");
    case Continue:
        return QCoreApplication::translate("UserQuestion", "Continue");
    case Reset:
        return QCoreApplication::translate("UserQuestion", "Reset");
    case Import:
        return QCoreApplication::translate("UserQuestion", "Import");
    case NoButton:
        break;
    }
    return QString();
}

int UserQuestion::slotOf(Button button) const
{
    if (button == NoButton)
        return -1;
    for (int slot = 0; slot < SlotCount; ++slot) {
        if (buttons[slot] == button)
            return slot;
    }
    return -1;
}

void UserQuestions::setHandler(Handler handler)
{
    QMutexLocker locker(&handlerMutex);
    currentHandler() = std::move(handler);
}

UserAnswer UserQuestions::ask(const UserQuestion& question)
{
    Handler handler;
    {
        QMutexLocker locker(&handlerMutex);
        handler = currentHandler();
    }
    if (!handler) {
        LOG_MSG(QStringLiteral("no one to ask \"%1\", answering Cancel").arg(question.subject));
        return {UserQuestion::Cancel, false};
    }
    return handler(question);
}
