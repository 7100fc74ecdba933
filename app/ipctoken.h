#pragma once

#include <QString>
#include <QVariant>

// The two hand-over requests a starting process can leave for the instance
// that already runs. The files live in the per-user runtime directory.
enum IpcToken
{
    TokenBringToFront = 0, // "TOKEN_BringAppToFront", contents "vse"
    TokenOpenFile = 1,     // "TOKEN_OpenExtensionFile", contents the path in UTF-8
};

// Full path of a token's file; empty for an unknown token or when there is
// no usable runtime directory.
QString ipcTokenPath(int token);

// Writes the token file, replacing an earlier one. Never follows a symbolic
// link planted at the token's path. Returns whether the file was opened.
bool sendIpcToken(int token, const QVariant& payload = QVariant());

enum class TokenRead
{
    Absent,     // no such file
    Unreadable, // there, but cannot be opened: leave it for the next pass
    NotAFile,   // a symbolic link planted at the path: never followed
    Read,
};

// Reads a token file without following a symbolic link.
TokenRead readIpcToken(const QString& path, QByteArray* contents);

// The path in its long form: absolute and canonical when the file exists,
// unchanged otherwise.
QString longPathName(const QString& path);
