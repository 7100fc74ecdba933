#include "iconthemeindex.h"

#include "logging.h"

#include <QDir>
#include <QFile>
#include <QIcon>
#include <QSet>
#include <QTextStream>

namespace {

// Bounds for a damaged or hostile theme folder.
constexpr int MaxThemes = 16;
constexpr int MaxNames = 100000;
constexpr qint64 MaxIndexSize = 1024 * 1024;

const QString Hicolor = QStringLiteral("hicolor");

QStringList listValue(const QString& value)
{
    QStringList items;
    for (const QString& item : value.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const QString trimmed = item.trimmed();
        if (!trimmed.isEmpty())
            items << trimmed;
    }
    return items;
}

} // namespace

QString IconThemeIndex::fallbackTheme()
{
    return QStringLiteral("Adwaita");
}

void IconThemeIndex::applyFallbackTheme()
{
    if (QIcon::fallbackThemeName().isEmpty() || QIcon::fallbackThemeName() == Hicolor)
        QIcon::setFallbackThemeName(fallbackTheme());
    const QString theme = QIcon::themeName();
    if (!theme.isEmpty() && theme != Hicolor && !themeFolders(theme, QIcon::themeSearchPaths()).isEmpty())
        return;
    LOG_MSG(QStringLiteral("icon theme \"%1\" replaced by %2").arg(theme, fallbackTheme()));
    QIcon::setThemeName(fallbackTheme());
}

QStringList IconThemeIndex::themeFolders(const QString& theme, const QStringList& searchPaths)
{
    QStringList folders;
    if (theme.isEmpty() || theme.contains(QLatin1Char('/')) || theme == QLatin1String(".."))
        return folders;
    for (const QString& path : searchPaths) {
        const QString folder = path + QLatin1Char('/') + theme;
        if (QFile::exists(folder + QStringLiteral("/index.theme")))
            folders << folder;
    }
    return folders;
}

IconThemeIndex::Index IconThemeIndex::readIndex(const QString& indexFile)
{
    Index index;
    QFile file(indexFile);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text) || file.size() > MaxIndexSize) {
        LOG_MSG(QStringLiteral("ERROR: cannot read the icon theme index!! -> %1").arg(indexFile));
        return index;
    }
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    bool inThemeSection = false;
    QString line;
    while (stream.readLineInto(&line)) {
        line = line.trimmed();
        if (line.startsWith(QLatin1Char('['))) {
            inThemeSection = line == QLatin1String("[Icon Theme]");
            continue;
        }
        if (!inThemeSection)
            continue;
        const int equals = line.indexOf(QLatin1Char('='));
        if (equals < 0)
            continue;
        const QString key = line.left(equals).trimmed();
        const QString value = line.mid(equals + 1);
        if (key == QLatin1String("Inherits"))
            index.inherits = listValue(value);
        else if (key == QLatin1String("Directories") || key == QLatin1String("ScaledDirectories"))
            index.directories += listValue(value);
    }
    return index;
}

void IconThemeIndex::collectNames(const QString& folder, const QStringList& directories, QStringList* names)
{
    static const QStringList patterns = {QStringLiteral("*.png"), QStringLiteral("*.svg"), QStringLiteral("*.xpm")};
    for (const QString& directory : directories) {
        if (directory.contains(QLatin1String("..")))
            continue;
        const QDir dir(folder + QLatin1Char('/') + directory);
        for (const QString& file : dir.entryList(patterns, QDir::Files | QDir::Readable)) {
            if (names->size() >= MaxNames)
                return;
            const QString name = file.left(file.lastIndexOf(QLatin1Char('.')));
            // GTK's pre-drawn "name.symbolic.png" stand for "name", whose
            // vector form the theme has as well.
            if (!name.endsWith(QLatin1String(".symbolic")))
                names->append(name);
        }
    }
}

QStringList IconThemeIndex::iconNames(const QString& theme, const QStringList& searchPaths)
{
    QStringList names;
    QStringList queue{theme};
    QSet<QString> seen;
    bool found = false;
    while (!queue.isEmpty() && seen.size() < MaxThemes) {
        const QString current = queue.takeFirst();
        if (seen.contains(current))
            continue;
        seen.insert(current);
        for (const QString& folder : themeFolders(current, searchPaths)) {
            found = true;
            const Index index = readIndex(folder + QStringLiteral("/index.theme"));
            collectNames(folder, index.directories, &names);
            queue += index.inherits;
        }
        // Every theme ends in hicolor, named or not.
        if (found && queue.isEmpty() && !seen.contains(Hicolor))
            queue << Hicolor;
    }
    if (seen.size() >= MaxThemes && !queue.isEmpty())
        LOG_MSG(QStringLiteral("ERROR: icon theme inherits too many themes, %1 left out!!").arg(queue.join(", ")));
    names.removeDuplicates();
    names.sort(Qt::CaseInsensitive);
    return names;
}
