#pragma once

#include <QCoreApplication>
#include <QMetaType>
#include <QString>
#include <QVector>

class QIODevice;

// One emoji of the Unicode emoji test data.
struct EmojiEntry
{
    QString emoji; // the characters
    QString name;  // "grinning face"
    QString group; // "Smileys & Emotion"
    QString subgroup;
};

using EmojiList = QVector<EmojiEntry>;

// Reads the emoji test data of Unicode ("emoji-test.txt", Debian's
// unicode-data package): the fully-qualified emoji in the file's order,
// which is the order people know from emoji keyboards, with their names and
// groups. Other statuses (components, unqualified forms) are left out.
// Plain functions, safe on any thread.
class EmojiCatalog
{
    Q_DECLARE_TR_FUNCTIONS(EmojiCatalog)

public:
    struct Result
    {
        EmojiList entries;
        // Lines that looked like data but could not be read.
        int malformedLines = 0;
        // For the user, translated; empty when entries were found.
        QString error;
    };

    static QString defaultPath();
    static Result load(const QString& path);
    static Result parse(QIODevice* device);

    // A data line into an entry; false for a line that is not a
    // fully-qualified emoji, *malformed set when it is not valid data at all.
    static bool parseLine(const QString& line, EmojiEntry* entry, bool* malformed);
};

Q_DECLARE_METATYPE(EmojiEntry)
