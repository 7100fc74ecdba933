#pragma once

#include "bookmark.h"
#include "chooserdialog.h"

class QCheckBox;
class QTreeView;

// Picks a bookmark of any browser the user has, grouped by browser,
// searchable by title, address and folder. The keypad is paused while it
// is shown.
class BookmarkChooser : public ChooserDialog
{
    Q_OBJECT
public:
    // Without a cache, the editor session's own.
    explicit BookmarkChooser(QWidget* parent = nullptr, QueryCache* cache = nullptr);
    ~BookmarkChooser() override;

    // The chosen bookmark after exec() returned Accepted; empty before.
    Bookmark selectedBookmark() const;
    // Whether the user wants the page title as the key's title.
    bool usePageTitle() const;

private:
    void showResult();
    void showBusy();
    void refresh() override;
    void applyFilter() override;
    void updateAcceptance();
    int currentBookmark() const;

    BookmarkList m_bookmarks;
    QTreeView* m_tree = nullptr;
    QCheckBox* m_useTitle = nullptr;
};
