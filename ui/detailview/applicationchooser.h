#pragma once

#include "applicationentry.h"
#include "keypadpause.h"
#include "querycache.h"

#include <QDialog>

#include <memory>

class ChooserSearchField;
class QDialogButtonBox;
class QLabel;
class QListView;
class QProgressBar;
class QPushButton;
class QSortFilterProxyModel;
class QStandardItemModel;
class QTabBar;

// Picks an installed application (from the desktop's menus) or a running
// one (from the desktop's windows): searchable as you type, Enter takes the
// selected one, Esc cancels. The keypad is paused while it is shown.
class ApplicationChooser : public QDialog
{
    Q_OBJECT
public:
    enum Source
    {
        Installed = 0x1,
        Running = 0x2,
    };
    Q_DECLARE_FLAGS(Sources, Source)

    // Without a cache, the editor session's own.
    explicit ApplicationChooser(Sources sources, QWidget* parent = nullptr, QueryCache* cache = nullptr);
    ~ApplicationChooser() override;

    // The chosen application after exec() returned Accepted; empty before.
    ApplicationEntry selectedApplication() const;
    Source currentSource() const;
    void setCurrentSource(Source source);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QueryCache::Query currentQuery() const;
    void showResult();
    void showBusy();
    void applyFilter();
    void updateAcceptance();

    QueryCache* m_cache;
    Sources m_sources;
    ApplicationList m_entries;
    bool m_runningAsked = false;
    QTabBar* m_tabs = nullptr;
    ChooserSearchField* m_search = nullptr;
    QListView* m_list = nullptr;
    QStandardItemModel* m_model = nullptr;
    QSortFilterProxyModel* m_filter = nullptr;
    QLabel* m_status = nullptr;
    QProgressBar* m_busy = nullptr;
    QPushButton* m_refresh = nullptr;
    QDialogButtonBox* m_buttons = nullptr;
    std::unique_ptr<KeypadPause> m_pause;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ApplicationChooser::Sources)
