#include "myapplication.h"

#include "ipctoken.h"
#include "logging.h"

#include <QFileOpenEvent>

MyApplication::MyApplication(int& argc, char** argv) : QApplication(argc, argv) {}

bool MyApplication::event(QEvent* e)
{
    if (e->type() == QEvent::FileOpen) {
        const QString file = static_cast<QFileOpenEvent*>(e)->file();
        LOG_MSG(QStringLiteral("Got QEvent::FileOpen: %1").arg(file));
        sendIpcToken(TokenOpenFile, file);
    }
    return QApplication::event(e);
}
