#include "desktopexec.h"

#include "programlocator.h"

#include <QFileInfo>

#include <glib.h>

namespace {

QStringList parseArguments(const QString& exec)
{
    QStringList arguments;
    int count = 0;
    gchar** argv = nullptr;
    if (!g_shell_parse_argv(exec.toUtf8().constData(), &count, &argv, nullptr))
        return arguments;
    for (int i = 0; i < count; ++i)
        arguments.append(QString::fromUtf8(argv[i]));
    g_strfreev(argv);
    return arguments;
}

bool isForwardingMarker(const QString& argument, bool closing)
{
    if (closing)
        return argument == QLatin1String("@@");
    return argument.size() <= 3 && argument.startsWith(QLatin1String("@@")) && argument != QLatin1String("@@");
}

// "flatpak run ... @@u %U @@" forwards the files a launcher hands over;
// with the field code gone the markers would enclose nothing.
QStringList dropEmptyForwarding(const QStringList& arguments)
{
    QStringList kept;
    for (int i = 0; i < arguments.size(); ++i) {
        if (i + 1 < arguments.size() && isForwardingMarker(arguments[i], false) &&
            isForwardingMarker(arguments[i + 1], true)) {
            ++i;
            continue;
        }
        kept.append(arguments[i]);
    }
    return kept;
}

bool isEnvironmentAssignment(const QString& argument)
{
    const int equals = argument.indexOf(QLatin1Char('='));
    return equals > 0 && !argument.startsWith(QLatin1Char('-'));
}

} // namespace

DesktopExec::DesktopExec(const QString& exec)
{
    QStringList arguments;
    for (const QString& raw : parseArguments(exec)) {
        const QString argument = removeFieldCodes(raw);
        if (!argument.isEmpty())
            arguments.append(argument);
    }
    m_arguments = dropEmptyForwarding(arguments);
}

QString DesktopExec::removeFieldCodes(const QString& argument)
{
    QString result;
    result.reserve(argument.size());
    for (int i = 0; i < argument.size(); ++i) {
        if (argument[i] != QLatin1Char('%') || i + 1 == argument.size()) {
            result.append(argument[i]);
            continue;
        }
        ++i;
        if (argument[i] == QLatin1Char('%'))
            result.append(QLatin1Char('%'));
        // Every other code (%f %F %u %U %i %c %k and the deprecated ones)
        // expands to what a launcher hands over; a key hands over nothing.
    }
    return result;
}

QString DesktopExec::quoteArgument(const QString& argument)
{
    bool needsQuotes = argument.isEmpty();
    for (const QChar c : argument)
        needsQuotes = needsQuotes || c.isSpace() || c == QLatin1Char('"');
    if (!needsQuotes)
        return argument;
    QString quoted = argument;
    quoted.replace(QLatin1String("\""), QLatin1String("\"\"\""));
    return QLatin1Char('"') + quoted + QLatin1Char('"');
}

QString DesktopExec::commandLine() const
{
    QStringList quoted;
    for (const QString& argument : m_arguments)
        quoted.append(quoteArgument(argument));
    return quoted.join(QLatin1Char(' '));
}

QString DesktopExec::executable(ProgramLocator& locator) const
{
    int index = 0;
    if (!m_arguments.isEmpty() && QFileInfo(m_arguments.first()).fileName() == QLatin1String("env")) {
        index = 1;
        while (index < m_arguments.size() && isEnvironmentAssignment(m_arguments[index]))
            ++index;
    }
    if (index >= m_arguments.size())
        return QString();
    const QString found = locator.find(m_arguments[index]);
    return found.isEmpty() ? m_arguments[index] : found;
}
