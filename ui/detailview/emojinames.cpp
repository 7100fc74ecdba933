#include "emojinames.h"

#include "logging.h"

#include <QFile>
#include <QXmlStreamReader>

namespace {

// Annotation files are a few hundred kilobytes; anything far larger is not one.
constexpr qint64 MaxFileSize = 16 * 1024 * 1024;

void readAnnotations(const QString& path, QHash<QString, QString>* names)
{
    QFile file(path);
    if (file.size() > MaxFileSize || !file.open(QIODevice::ReadOnly)) {
        LOG_MSG(QStringLiteral("no emoji names in %1: %2").arg(path, file.errorString()));
        return;
    }
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QLatin1String("annotation"))
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        if (attributes.value(QLatin1String("type")) != QLatin1String("tts"))
            continue;
        const QString characters = attributes.value(QLatin1String("cp")).toString();
        const QString name = xml.readElementText().trimmed();
        if (!characters.isEmpty() && !name.isEmpty())
            names->insert(characters, name);
    }
    if (xml.hasError())
        LOG_MSG(QStringLiteral("ERROR: emoji names in %1 end early!! -> %2").arg(path, xml.errorString()));
}

} // namespace

QString EmojiNames::defaultDirectory()
{
    return QStringLiteral("/usr/share/unicode/cldr/common");
}

QString EmojiNames::currentLocale()
{
    //: The Unicode CLDR locale whose emoji names suit this language: ja, zh_Hant, de, fr or it. Not shown.
    return tr("en");
}

QHash<QString, QString> EmojiNames::load(const QString& directory, const QString& locale)
{
    QHash<QString, QString> names;
    for (const char* kind : {"annotations", "annotationsDerived"})
        readAnnotations(QStringLiteral("%1/%2/%3.xml").arg(directory, QLatin1String(kind), locale), &names);
    return names;
}

void EmojiNames::translate(EmojiList* entries, const QString& directory, const QString& locale)
{
    if (locale.isEmpty() || locale == QLatin1String("en"))
        return;
    const QHash<QString, QString> names = load(directory, locale);
    if (names.isEmpty())
        return;
    for (EmojiEntry& entry : *entries) {
        // The annotations leave out the emoji presentation selector.
        QString name = names.value(entry.emoji);
        if (name.isEmpty())
            name = names.value(QString(entry.emoji).remove(QChar(0xFE0F)));
        if (!name.isEmpty())
            entry.name = name;
    }
}
