#pragma once

#include "preferencecontext.h"
#include "preferencepage.h"

class QGridLayout;
class QLabel;
class QPushButton;

// Export of the layout in use and of My Favorite to files, import of either
// (the same way as a file handed to the program on its command line), and a
// one-click backup of everything.
class ImportExportPage : public PreferencePage
{
    Q_OBJECT
public:
    explicit ImportExportPage(const PreferenceContext& context, QWidget* parent = nullptr);

    QString title() const override;

    QPushButton* exportLayoutButton() const;
    QPushButton* exportFavoritesButton() const;
    QPushButton* importButton() const;
    QPushButton* backupButton() const;
    QString statusText() const;

public slots:
    void exportLayout();
    void exportFavorites();
    void importFile();
    void backUpEverything();

private:
    QPushButton* addAction(QGridLayout* grid, const QString& text, const QString& explanation);
    // The key model's edits of the last second reach the tree first (its
    // own save waits a second).
    void flushEdits();
    QString exportTo(const QString& caption, const QString& suggestedName, const QString& filter,
                     const QString& suffix);
    void report(const QString& text, bool problem = false);
    static QString documentsFolder();

    PreferenceContext m_context;
    QPushButton* m_exportLayout = nullptr;
    QPushButton* m_exportFavorites = nullptr;
    QPushButton* m_import = nullptr;
    QPushButton* m_backup = nullptr;
    QLabel* m_status = nullptr;
};
