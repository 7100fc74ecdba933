#include "userquestion.h"

#include "logging.h"

#include <QMutex>

namespace {
QMutex handlerMutex;
UserQuestions::Handler& currentHandler()
{
    static UserQuestions::Handler handler;
    return handler;
}
} // namespace

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
        return {QStringLiteral("Cancel"), false};
    }
    return handler(question);
}
