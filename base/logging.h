#pragma once

#include <QString>

// The one logging statement of the program. It records the qualified name of
// the function it stands in ("IPC_Thread::run"), its line and the calling
// thread, and hands the record to the main window's log; before a main window
// has registered itself the message goes to the debug output instead.
#define LOG_MSG(message)                                                                                               \
    do {                                                                                                               \
        static const QString logFunctionName_ = qualifiedFunctionName(Q_FUNC_INFO);                                    \
        writeLogRecord(logFunctionName_, __LINE__, (message));                                                         \
    } while (false)

// Logs "ERROR: " + message when ok is false; returns ok so callers can bail out:
//     if (!logMsgWhenRetFail(item != nullptr, "keyItem is nullptr!!")) return;
bool logMsgWhenRetFail(bool ok, const QString& message);

// "void IPC_Thread::run()" -> "IPC_Thread::run"
QString qualifiedFunctionName(const char* prettyFunction);

// "%1,%2 : 0x%3,%4\n\t%5\n" for the calling thread.
QString formatLogRecord(const QString& function, int line, const QString& message);

void writeLogRecord(const QString& function, int line, const QString& message);
