#include "ipctoken.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

const char* tokenFileName(int token)
{
    switch (token) {
    case TokenBringToFront:
        return "TOKEN_BringAppToFront";
    case TokenOpenFile:
        return "TOKEN_OpenExtensionFile";
    default:
        return nullptr;
    }
}

bool writeAll(int fd, const QByteArray& data)
{
    qsizetype done = 0;
    while (done < data.size()) {
        const ssize_t n = ::write(fd, data.constData() + done, size_t(data.size() - done));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        done += n;
    }
    return true;
}

} // namespace

QString ipcTokenPath(int token)
{
    const char* name = tokenFileName(token);
    if (!name)
        return QString();
    // Qt creates the runtime directory with mode 0700 when the session has none.
    const QString directory = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (directory.isEmpty())
        return QString();
    return directory + QLatin1Char('/') + QLatin1String(name);
}

bool sendIpcToken(int token, const QVariant& payload)
{
    QByteArray contents;
    if (token == TokenBringToFront)
        contents = QByteArrayLiteral("vse");
    else if (token == TokenOpenFile)
        contents = payload.toString().toUtf8();
    else
        return false;

    const QString path = ipcTokenPath(token);
    if (path.isEmpty())
        return false;
    const int fd =
        ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (fd < 0)
        return false;
    writeAll(fd, contents);
    ::close(fd);
    return true;
}

TokenRead readIpcToken(const QString& path, QByteArray* contents)
{
    const QByteArray nativePath = QFile::encodeName(path);
    const int fd = ::open(nativePath.constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) {
        if (errno == ENOENT)
            return TokenRead::Absent;
        return errno == ELOOP ? TokenRead::NotAFile : TokenRead::Unreadable;
    }

    contents->clear();
    char buffer[4096];
    for (;;) {
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        contents->append(buffer, int(n));
        // A token holds a path; anything larger is not ours.
        if (contents->size() > 64 * 1024)
            break;
    }
    ::close(fd);
    return TokenRead::Read;
}

QString longPathName(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return path;
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? path : canonical;
}
