#pragma once

#include "emojicatalog.h"

#include <QCoreApplication>
#include <QHash>
#include <QString>

// The names of emoji in the user's language, from the annotations of the
// Unicode CLDR (Debian's unicode-cldr-core): the emoji test data names them
// in English only. Plain functions, safe on any thread.
class EmojiNames
{
    Q_DECLARE_TR_FUNCTIONS(EmojiNames)

public:
    static QString defaultDirectory();
    // The CLDR locale of the language the program speaks; "en" for English.
    static QString currentLocale();
    // Emoji characters to their spoken names ("tts"), from the locale's
    // annotations and derived annotations (skin tones and the like).
    static QHash<QString, QString> load(const QString& directory, const QString& locale);
    // Gives every entry the locale's name where the annotations have one;
    // English, or no annotations, leave the names as they are.
    static void translate(EmojiList* entries, const QString& directory, const QString& locale);
};
