#pragma once

#include "applicationentry.h"
#include "chooserdialog.h"
#include "querycache.h"

class QListView;
class QTabBar;

// Picks an installed application (from the desktop's menus) or a running
// one (from the desktop's windows): searchable as you type, Enter takes the
// selected one, Esc cancels. The keypad is paused while it is shown.
class ApplicationChooser : public ChooserDialog
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

private:
    QueryCache::Query currentQuery() const;
    void showResult();
    void showBusy();
    void refresh() override;
    void applyFilter() override;
    void updateAcceptance();

    Sources m_sources;
    ApplicationList m_entries;
    bool m_runningAsked = false;
    QTabBar* m_tabs = nullptr;
    QListView* m_list = nullptr;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ApplicationChooser::Sources)
