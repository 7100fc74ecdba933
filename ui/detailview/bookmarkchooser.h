// Placeholder until the real widget lands: an empty list to choose from.
#pragma once

#include "bookmark.h"

#include <QDialog>

class BookmarkChooser : public QDialog
{
    Q_OBJECT
public:
    explicit BookmarkChooser(QWidget* parent);

    Bookmark selectedBookmark() const;
};
