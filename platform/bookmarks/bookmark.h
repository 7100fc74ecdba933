#pragma once

#include <QString>
#include <QVector>

// One bookmark of a browser the user has.
struct Bookmark
{
    // "Firefox", "Google Chrome (Work)": the browser, and its profile where
    // the user has several.
    QString browser;
    QString title;
    QString url;
    // The folders from the browser's root down, joined by " / ";
    // "Bookmarks Toolbar / News".
    QString folder;
};

using BookmarkList = QVector<Bookmark>;

// Browser-internal addresses (Firefox's place: queries, bookmarklets) open
// nothing from outside the browser.
inline bool isOpenableBookmarkUrl(const QString& url)
{
    return !url.isEmpty() && !url.startsWith(QLatin1String("place:"), Qt::CaseInsensitive) &&
           !url.startsWith(QLatin1String("javascript:"), Qt::CaseInsensitive);
}
