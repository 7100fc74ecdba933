#pragma once

#include <QString>
#include <QStringList>

// The names of the icons a desktop icon theme offers: those of the theme, of
// the themes it inherits and of "hicolor", which every theme falls back to,
// read from the themes' folders (index.theme and the icon files) as the
// freedesktop icon theme specification lays them out. QIcon finds each of
// these names in the theme. Reading many folders is slow: iconNames() is a
// plain function for a worker thread.
class IconThemeIndex
{
public:
    // The theme the program falls back to when the desktop names none; the
    // program's packages install it (adwaita-icon-theme).
    static QString fallbackTheme();

    // Makes QIcon use the fallback theme when the desktop sets no theme (or
    // only the bare "hicolor", or one that is not installed), and fall back
    // to it for names the user's theme lacks. GUI thread, once at start-up.
    static void applyFallbackTheme();

    // Sorted, without duplicates; empty when the theme is not found.
    static QStringList iconNames(const QString& theme, const QStringList& searchPaths);

    // The folders of a theme found on the search paths, each holding an
    // index.theme.
    static QStringList themeFolders(const QString& theme, const QStringList& searchPaths);

private:
    struct Index
    {
        QStringList inherits;
        QStringList directories;
    };
    static Index readIndex(const QString& indexFile);
    static void collectNames(const QString& folder, const QStringList& directories, QStringList* names);
};
