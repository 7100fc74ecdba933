#pragma once

#include "bookmark.h"
#include "keypadpause.h"

#include <QDialog>

#include <memory>

class ChooserSearchField;
class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QSortFilterProxyModel;
class QStandardItemModel;
class QTreeView;
class QueryCache;

// Picks a bookmark of any browser the user has, grouped by browser,
// searchable by title, address and folder. The keypad is paused while it
// is shown.
class BookmarkChooser : public QDialog
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

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void showResult();
    void showBusy();
    void applyFilter();
    void updateAcceptance();
    int currentBookmark() const;

    QueryCache* m_cache;
    BookmarkList m_bookmarks;
    ChooserSearchField* m_search = nullptr;
    QTreeView* m_tree = nullptr;
    QStandardItemModel* m_model = nullptr;
    QSortFilterProxyModel* m_filter = nullptr;
    QLabel* m_status = nullptr;
    QProgressBar* m_busy = nullptr;
    QCheckBox* m_useTitle = nullptr;
    QPushButton* m_refresh = nullptr;
    QDialogButtonBox* m_buttons = nullptr;
    std::unique_ptr<KeypadPause> m_pause;
};
