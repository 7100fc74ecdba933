#include "autostartentry.h"

#include "keystageappid.h"
#include "logging.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTranslator>

#include <algorithm>

namespace {

const char CommentContext[] = "AutostartEntry";
const char* const CommentText = QT_TRANSLATE_NOOP("AutostartEntry", "Starts %1 in the tray at login");

// Comment[ll]= lines for every language the program carries, read from its
// own translations, so the desktop's list of start-up programs reads in the
// user's language whichever language the program was in when it wrote the
// entry. The files' names (":/translator/zh-TW.qm") give the locale names.
QString translatedComments()
{
    QString lines;
    const QDir translations(QStringLiteral(":/translator"));
    const QStringList files = translations.entryList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    for (const QString& file : files) {
        const QString locale = QFileInfo(file).completeBaseName().replace(QLatin1Char('-'), QLatin1Char('_'));
        QTranslator translator;
        if (locale.startsWith(QLatin1String("en")) || !translator.load(translations.filePath(file)))
            continue;
        const QString comment = translator.translate(CommentContext, CommentText);
        if (!comment.isEmpty())
            lines += QStringLiteral("Comment[%1]=%2\n").arg(locale, comment.arg(QCoreApplication::applicationName()));
    }
    return lines;
}

// Characters that make an Exec argument need quotes, and those that must be
// escaped inside the quotes.
const QString ReservedInExec = QStringLiteral(" \t\n\"'\\><~|&;$*?#()`");
const QString EscapedInQuotes = QStringLiteral("\"`$\\");

// The escapes of a desktop entry's string values, applied to the whole value.
QString escapedString(const QString& value)
{
    QString escaped;
    for (const QChar c : value) {
        switch (c.unicode()) {
        case '\\':
            escaped += QStringLiteral("\\\\");
            break;
        case '\n':
            escaped += QStringLiteral("\\n");
            break;
        case '\t':
            escaped += QStringLiteral("\\t");
            break;
        case '\r':
            escaped += QStringLiteral("\\r");
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}

QString absoluteDirectory(const QString& variable, const QString& fallback)
{
    const QString value = qEnvironmentVariable(variable.toLatin1().constData());
    // XDG base directories must be absolute paths; a relative one is ignored, as the desktop ignores it.
    return !value.isEmpty() && QDir::isAbsolutePath(value) ? value : fallback;
}

QByteArray readFile(const QString& path, bool* ok)
{
    QFile file(path);
    *ok = file.open(QIODevice::ReadOnly);
    return *ok ? file.read(1 << 20) : QByteArray();
}

} // namespace

AutostartEntry::AutostartEntry(const QString& program) : m_program(program.isEmpty() ? defaultProgram() : program) {}

QString AutostartEntry::program() const
{
    return m_program;
}

QString AutostartEntry::defaultProgram()
{
#ifdef KEYSTAGE_INSTALLED_PROGRAM
    const QFileInfo installed(QStringLiteral(KEYSTAGE_INSTALLED_PROGRAM));
    if (installed.isFile() && installed.isExecutable())
        return installed.absoluteFilePath();
#endif
    return QCoreApplication::applicationFilePath();
}

QString AutostartEntry::userDirectory()
{
    return absoluteDirectory(QStringLiteral("XDG_CONFIG_HOME"), QDir::homePath() + QStringLiteral("/.config")) +
           QStringLiteral("/autostart");
}

QStringList AutostartEntry::systemDirectories()
{
    const QString dirs = qEnvironmentVariable("XDG_CONFIG_DIRS");
    QStringList result;
    for (const QString& dir : dirs.split(QLatin1Char(':'), Qt::SkipEmptyParts)) {
        if (QDir::isAbsolutePath(dir))
            result << dir + QStringLiteral("/autostart");
    }
    if (result.isEmpty())
        result << QStringLiteral("/etc/xdg/autostart");
    return result;
}

QString AutostartEntry::filePath() const
{
    return userDirectory() + QLatin1Char('/') + QLatin1String(FileName);
}

QString AutostartEntry::systemEntry() const
{
    for (const QString& dir : systemDirectories()) {
        const QString path = dir + QLatin1Char('/') + QLatin1String(FileName);
        if (QFileInfo::exists(path))
            return path;
    }
    return QString();
}

bool AutostartEntry::isEnabled() const
{
    // The user's file overrides the system's whatever it says.
    QString path = filePath();
    if (!QFileInfo::exists(path))
        path = systemEntry();
    if (path.isEmpty())
        return false;
    bool ok = false;
    const QByteArray text = readFile(path, &ok);
    return ok && entryStartsProgram(text);
}

bool AutostartEntry::setEnabled(bool enabled, QString* error)
{
    const QString path = filePath();
    QString problem;
    if (enabled || !systemEntry().isEmpty()) {
        QByteArray text = desktopEntry(m_program);
        if (!enabled)
            text += "Hidden=true\n";
        QSaveFile file(path);
        if (!QDir().mkpath(userDirectory()))
            problem =
                QCoreApplication::translate("AutostartEntry", "The folder %1 cannot be made.").arg(userDirectory());
        else if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
            problem = file.errorString();
    } else if (QFileInfo::exists(path) && !QFile::remove(path)) {
        problem = QFile(path).errorString();
    }
    if (problem.isEmpty()) {
        LOG_MSG(
            QStringLiteral("start at login %1: %2").arg(enabled ? QStringLiteral("on") : QStringLiteral("off"), path));
        return true;
    }
    LOG_MSG(QStringLiteral("ERROR: Cannot change %1: %2!!").arg(path, problem));
    if (error)
        *error = problem;
    return false;
}

QString AutostartEntry::execArgument(const QString& argument)
{
    QString result = argument;
    const bool needsQuotes = argument.isEmpty() || std::any_of(argument.cbegin(), argument.cend(),
                                                               [](QChar c) { return ReservedInExec.contains(c); });
    if (needsQuotes) {
        QString quoted;
        for (const QChar c : argument) {
            if (EscapedInQuotes.contains(c))
                quoted += QLatin1Char('\\');
            quoted += c;
        }
        result = QLatin1Char('"') + quoted + QLatin1Char('"');
    }
    // Field codes start with %; a literal one is doubled.
    result.replace(QLatin1Char('%'), QStringLiteral("%%"));
    return result;
}

QByteArray AutostartEntry::desktopEntry(const QString& program)
{
    const QString exec = execArgument(program) + QStringLiteral(" --runinbk");
    QString text;
    text += QStringLiteral("[Desktop Entry]\n");
    text += QStringLiteral("Type=Application\n");
    text += QStringLiteral("Name=%1\n").arg(QCoreApplication::applicationName());
    text +=
        QStringLiteral("Comment=%1\n").arg(QString::fromLatin1(CommentText).arg(QCoreApplication::applicationName()));
    text += translatedComments();
    // Without the program (uninstalled) the desktop skips the entry.
    text += QStringLiteral("TryExec=%1\n").arg(escapedString(program));
    text += QStringLiteral("Exec=%1\n").arg(escapedString(exec));
    text += QStringLiteral("Icon=" KEYSTAGE_APP_ID "\n");
    text += QStringLiteral("Terminal=false\n");
    text += QStringLiteral("X-GNOME-Autostart-enabled=true\n");
    return text.toUtf8();
}

bool AutostartEntry::entryStartsProgram(const QByteArray& text)
{
    bool inEntry = false;
    bool seenEntry = false;
    for (QByteArray line : text.split('\n')) {
        line = line.trimmed();
        if (line.startsWith('[')) {
            inEntry = line == "[Desktop Entry]";
            seenEntry = seenEntry || inEntry;
            continue;
        }
        if (!inEntry)
            continue;
        const int equals = line.indexOf('=');
        if (equals < 0)
            continue;
        const QByteArray key = line.left(equals).trimmed();
        const QByteArray value = line.mid(equals + 1).trimmed();
        if ((key == "Hidden" && value == "true") || (key == "X-GNOME-Autostart-enabled" && value == "false"))
            return false;
    }
    return seenEntry;
}
