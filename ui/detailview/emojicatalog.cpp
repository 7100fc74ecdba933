#include "emojicatalog.h"

#include "logging.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

namespace {

// A file larger than this is not the emoji test data (about 600 kB).
constexpr qint64 MaxFileSize = 16 * 1024 * 1024;
constexpr int MaxCodePoints = 16;
constexpr uint LastCodePoint = 0x10FFFF;

// "1F469 200D 1F4BC" into the characters; empty when any part is not a
// Unicode scalar value.
QString charactersOf(const QString& codePoints)
{
    const QStringList parts = codePoints.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (parts.isEmpty() || parts.size() > MaxCodePoints)
        return QString();
    QVector<uint> ucs4;
    for (const QString& part : parts) {
        bool ok = false;
        const uint value = part.toUInt(&ok, 16);
        if (!ok || value > LastCodePoint || (value >= 0xD800 && value <= 0xDFFF))
            return QString();
        ucs4 << value;
    }
    return QString::fromUcs4(ucs4.constData(), ucs4.size());
}

QString headerValue(const QString& line, const QLatin1String& key)
{
    return line.startsWith(key) ? line.mid(key.size()).trimmed() : QString();
}

} // namespace

QString EmojiCatalog::defaultPath()
{
    return QStringLiteral("/usr/share/unicode/emoji/emoji-test.txt");
}

bool EmojiCatalog::parseLine(const QString& line, EmojiEntry* entry, bool* malformed)
{
    // code points ; status # emoji [E<version>] name
    static const QRegularExpression data(
        QStringLiteral(R"(^\s*([0-9A-Fa-f ]+?)\s*;\s*([a-z-]+)\s*#\s*\S+\s+(?:E\d+\.\d+\s+)?(\S.*?)\s*$)"));
    *malformed = false;
    const QRegularExpressionMatch match = data.match(line);
    if (!match.hasMatch()) {
        *malformed = true;
        return false;
    }
    if (match.captured(2) != QLatin1String("fully-qualified"))
        return false;
    const QString characters = charactersOf(match.captured(1));
    if (characters.isEmpty()) {
        *malformed = true;
        return false;
    }
    entry->emoji = characters;
    entry->name = match.captured(3);
    return true;
}

EmojiCatalog::Result EmojiCatalog::load(const QString& path)
{
    QFile file(path);
    Result result;
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        LOG_MSG(QStringLiteral("ERROR: cannot open the emoji list!! -> %1: %2").arg(path, file.errorString()));
        result.error = tr("The list of emoji (%1) cannot be read. Install the package unicode-data.").arg(path);
        return result;
    }
    if (file.size() > MaxFileSize) {
        LOG_MSG(QStringLiteral("ERROR: the emoji list is too large!! -> %1: %2 bytes").arg(path).arg(file.size()));
        result.error = tr("The list of emoji (%1) is not valid.").arg(path);
        return result;
    }
    result = parse(&file);
    if (!result.error.isEmpty())
        LOG_MSG(QStringLiteral("ERROR: no emoji in the list!! -> %1").arg(path));
    else if (result.malformedLines > 0)
        LOG_MSG(
            QStringLiteral("%1 unreadable lines in the emoji list skipped -> %2").arg(result.malformedLines).arg(path));
    return result;
}

EmojiCatalog::Result EmojiCatalog::parse(QIODevice* device)
{
    Result result;
    QTextStream stream(device);
    stream.setCodec("UTF-8");
    QString group;
    QString subgroup;
    QString line;
    while (stream.readLineInto(&line)) {
        if (line.trimmed().isEmpty())
            continue;
        if (line.startsWith(QLatin1Char('#'))) {
            const QString newGroup = headerValue(line, QLatin1String("# group:"));
            const QString newSubgroup = headerValue(line, QLatin1String("# subgroup:"));
            if (!newGroup.isEmpty())
                group = newGroup;
            if (!newSubgroup.isEmpty())
                subgroup = newSubgroup;
            continue;
        }
        EmojiEntry entry;
        bool malformed = false;
        if (parseLine(line, &entry, &malformed)) {
            entry.group = group;
            entry.subgroup = subgroup;
            result.entries << entry;
        }
        if (malformed)
            ++result.malformedLines;
    }
    if (result.entries.isEmpty())
        result.error = tr("The list of emoji holds no emoji.");
    return result;
}
