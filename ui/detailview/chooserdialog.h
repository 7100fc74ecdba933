#pragma once

#include "keypadpause.h"

#include <QDialog>

#include <memory>

class ChooserSearchField;
class QAbstractItemView;
class QDialogButtonBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QSortFilterProxyModel;
class QStandardItemModel;
class QVBoxLayout;
class QueryCache;

// What the editor's choosers share: a search field that filters a labelled
// view as you type, a status line with a busy bar while their query runs,
// OK, Cancel and Refresh, and the keypad paused while the chooser is shown.
class ChooserDialog : public QDialog
{
    Q_OBJECT
public:
    ~ChooserDialog() override;

protected:
    // Items carry the text the search looks through under this role.
    static constexpr int SearchRole = Qt::UserRole + 2;

    // Without a cache, the editor session's own.
    ChooserDialog(QueryCache* cache, QWidget* parent);

    // The search row, then the view under its label; the view shows the
    // filtered model.
    void addSearchableView(QAbstractItemView* view, const QString& label);
    void addStatusRow();
    void addButtons();

    void showBusy(const QString& text);
    void showIdle(const QString& text);
    void setAcceptable(bool acceptable);
    // The filter follows the search field's words.
    void applySearch();

    static void nameAfterLabel(QWidget* widget, const QString& label);

    virtual void refresh() = 0;
    virtual void applyFilter() = 0;

    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

    QueryCache* m_cache;
    QVBoxLayout* m_layout = nullptr;
    ChooserSearchField* m_search = nullptr;
    QStandardItemModel* m_model = nullptr;
    QSortFilterProxyModel* m_filter = nullptr;

private:
    QLabel* m_status = nullptr;
    QProgressBar* m_busy = nullptr;
    QPushButton* m_refresh = nullptr;
    QDialogButtonBox* m_buttons = nullptr;
    std::unique_ptr<KeypadPause> m_pause;
};
