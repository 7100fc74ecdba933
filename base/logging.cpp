#include "logging.h"

#include "log.h"
#include "objectregistry.h"

#include <QDebug>
#include <QThread>

#include <algorithm>

namespace {

// Index of the '(' that opens the parameter list of a pretty function name,
// skipping parentheses inside template arguments and "operator()".
int parameterListStart(const QString& text)
{
    int depth = 0;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('<'))
            ++depth;
        else if (c == QLatin1Char('>') && depth > 0)
            --depth;
        else if (c == QLatin1Char('(') && depth == 0) {
            if (text.midRef(0, i).endsWith(QLatin1String("operator")))
                continue;
            return i;
        }
    }
    return -1;
}

// Index just past the return type: the last blank outside template brackets.
int nameStart(const QString& text)
{
    int depth = 0;
    for (int i = text.size() - 1; i >= 0; --i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('>'))
            ++depth;
        else if (c == QLatin1Char('<') && depth > 0)
            --depth;
        else if (c == QLatin1Char(' ') && depth == 0)
            return i + 1;
    }
    return 0;
}

bool needsEscape(QChar c)
{
    const char16_t u = c.unicode();
    return u < 0x20 || (u >= 0x7f && u <= 0x9f) || u == 0x2028 || u == 0x2029 || u == '\\';
}

void appendEscaped(QString* out, QChar c)
{
    switch (c.unicode()) {
    case '\\':
        out->append(QLatin1String("\\\\"));
        return;
    case '\n':
        out->append(QLatin1String("\\n"));
        return;
    case '\r':
        out->append(QLatin1String("\\r"));
        return;
    case '\t':
        out->append(QLatin1String("\\t"));
        return;
    default:
        break;
    }
    if (c.unicode() < 0x100)
        out->append(QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QLatin1Char('0')));
    else
        out->append(QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0')));
}

// A text as it may stand in a record: backslashes doubled, line breaks, tabs
// and every other control character written as escapes ("\n", "\t", "\x1b",
// "\u2028"), so that every line break of a record is the format's own and a
// file name with a newline cannot forge a record.
QString escapeLogText(const QString& text)
{
    // Nearly every message is plain: no copy for those.
    if (std::none_of(text.begin(), text.end(), needsEscape))
        return text;
    QString out;
    out.reserve(text.size() + 8);
    for (const QChar c : text) {
        if (needsEscape(c))
            appendEscaped(&out, c);
        else
            out.append(c);
    }
    return out;
}

} // namespace

QString qualifiedFunctionName(const char* prettyFunction)
{
    QString text = QString::fromLatin1(prettyFunction);
    const int paren = parameterListStart(text);
    if (paren >= 0)
        text.truncate(paren);
    text = text.trimmed();
    text = text.mid(nameStart(text));
    while (text.startsWith(QLatin1Char('*')) || text.startsWith(QLatin1Char('&')))
        text.remove(0, 1);
    return text;
}

QString formatLogRecord(const QString& function, int line, const QString& message)
{
    QThread* thread = QThread::currentThread();
    // One multi-argument arg() so that '%' signs inside the message stay as they are.
    return QStringLiteral("%1,%2 : 0x%3,%4\n\t%5\n")
        .arg(function, QString::number(line), QString::number(reinterpret_cast<quintptr>(thread), 16),
             escapeLogText(thread ? thread->objectName() : QString()), escapeLogText(message));
}

void writeLogRecord(const QString& function, int line, const QString& message)
{
    if (Log* log = ObjectRegistry::mainWindowLog()) {
        log->logMsg(formatLogRecord(function, line, message));
        return;
    }
    qDebug().noquote() << QStringLiteral("Log file not created: ") + escapeLogText(message);
}

bool logMsgWhenRetFail(bool ok, const QString& message)
{
    if (!ok)
        LOG_MSG(QStringLiteral("ERROR: ") + message);
    return ok;
}
