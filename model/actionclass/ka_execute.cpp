#include "ka_execute.h"

#include "actionservices.h"
#include "keyitem.h"
#include "logging.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

KA_Execute::KA_Execute(KeyItem* owner) : owner(owner) {}

KeyActionType KA_Execute::getActionType() const
{
    return owner ? owner->actionType : KAT_EXE_APP_FILE;
}

bool KA_Execute::isValid() const
{
    return !path.isEmpty();
}

void KA_Execute::reset()
{
    path.clear();
}

// The press only hands the work over: a slow start never holds up the next
// key. The command is copied, because the key may be edited meanwhile.
bool KA_Execute::doAction(int)
{
    ActionServices* services = ActionServices::instance();
    if (!isValid() || !services)
        return false;
    const QString command = path;
    return services->runTask(QStringLiteral("executeCmd"), [command] { executeCmd(command); });
}

CommandLine splitCommandLine(const QString& command)
{
    const QString line = command.trimmed();
    CommandLine parts;
    if (line.startsWith(QLatin1Char('"'))) {
        const int closing = line.indexOf(QLatin1Char('"'), 1);
        parts.program = closing < 0 ? line.mid(1) : line.mid(1, closing - 1);
        parts.rest = closing < 0 ? QString() : line.mid(closing + 1);
    } else {
        const int blank = line.indexOf(QRegularExpression(QStringLiteral("\\s")));
        parts.program = blank < 0 ? line : line.left(blank);
        parts.rest = blank < 0 ? QString() : line.mid(blank + 1);
    }
    parts.rest = parts.rest.trimmed();
    return parts;
}

bool hasUrlScheme(const QString& text)
{
    // A scheme, then a colon that does not start a port number ("host:8080").
    static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]*:(?!\\d)"));
    return text.contains(QLatin1String("://")) || scheme.match(text.trimmed()).hasMatch();
}

namespace {

bool launch(ActionServices* services, const QString& program, const QString& rest)
{
    const QFileInfo info(program);
    const QString workingDirectory = info.absolutePath();
    if (info.isFile() && info.isExecutable() &&
        services->startDetached(info.absoluteFilePath(), QProcess::splitCommand(rest), workingDirectory))
        return true;
    return services->openUrl(QUrl::fromLocalFile(info.absoluteFilePath()));
}

QString onPath(const QString& program)
{
    if (program.isEmpty() || program.contains(QLatin1Char('/')))
        return QString();
    return QStandardPaths::findExecutable(program);
}

} // namespace

void executeCmd(const QString& command)
{
    ActionServices* services = ActionServices::instance();
    if (!services)
        return;
    CommandLine parts = splitCommandLine(command);
    // A path with blanks, given without quotes, is still the one path.
    if (QFileInfo::exists(command.trimmed()))
        parts = {command.trimmed(), QString()};
    const QString program = QDir::fromNativeSeparators(parts.program);
    if (!program.isEmpty() && QFileInfo::exists(program)) {
        launch(services, program, parts.rest);
        LOG_MSG(QStringLiteral("execute: %1").arg(command));
        return;
    }
    // A program named without its directory, as a shell would find it.
    const QString found = hasUrlScheme(command) ? QString() : onPath(program);
    if (!found.isEmpty()) {
        launch(services, found, parts.rest);
        LOG_MSG(QStringLiteral("execute: %1").arg(command));
        return;
    }
    const QString text = command.trimmed();
    services->openUrl(QUrl::fromUserInput(hasUrlScheme(text) ? text : QStringLiteral("http://") + text));
    LOG_MSG(QStringLiteral("execute: %1").arg(command));
}
