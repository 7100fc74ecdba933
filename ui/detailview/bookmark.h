// Placeholder until the real widget lands: one browser bookmark.
#pragma once

#include <QString>

struct Bookmark
{
    QString browser, title, url, folder;
};
