#include "importexportpage.h"

#include "buttonlayoutconfig.h"
#include "configurationbackup.h"
#include "keyitemmodel.h"
#include "logging.h"
#include "preferencefiles.h"
#include "preferencelook.h"
#include "settings.h"

#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace {
const QString LayoutSuffix = QStringLiteral("kslayout");
const QString FavoritesSuffix = QStringLiteral("ksfavorites");
} // namespace

ImportExportPage::ImportExportPage(const PreferenceContext& context, QWidget* parent)
    : PreferencePage(parent), m_context(context)
{
    setObjectName(QStringLiteral("ImportExportPage"));
    QVBoxLayout* layout = PreferenceLook::pageLayout(this, title());
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(12);
    grid->setColumnStretch(1, 1);
    m_exportLayout = addAction(grid, tr("Export layout…"),
                               tr("The keys of the layout in use, with their folders, as a .kslayout file."));
    m_exportFavorites = addAction(grid, tr("Export My Favorite…"), tr("All of My Favorite as a .ksfavorites file."));
    m_import = addAction(grid, tr("Import…"),
                         tr("A .kslayout file replaces the keys of the layout in use; a .ksfavorites file adds to "
                            "My Favorite. You are asked first."));
    m_backup = addAction(grid, tr("Back up everything…"),
                         tr("Every layout and My Favorite, each in a file of its own, into a new dated folder inside "
                            "the folder you choose."));
    layout->addLayout(grid);
    m_status = PreferenceLook::status(this);
    layout->addWidget(m_status);
    layout->addStretch(1);

    connect(m_exportLayout, &QPushButton::clicked, this, &ImportExportPage::exportLayout);
    connect(m_exportFavorites, &QPushButton::clicked, this, &ImportExportPage::exportFavorites);
    connect(m_import, &QPushButton::clicked, this, &ImportExportPage::importFile);
    connect(m_backup, &QPushButton::clicked, this, &ImportExportPage::backUpEverything);
    const bool haveStore = m_context.store != nullptr;
    for (QPushButton* button : {m_exportLayout, m_exportFavorites, m_backup})
        button->setEnabled(haveStore);
    m_import->setEnabled(bool(m_context.importFile));
}

QString ImportExportPage::title() const
{
    return tr("Import and export");
}

QPushButton* ImportExportPage::addAction(QGridLayout* grid, const QString& text, const QString& explanation)
{
    const int row = grid->rowCount();
    auto* button = new QPushButton(text, this);
    button->setAccessibleName(text);
    button->setAccessibleDescription(explanation);
    button->setMinimumWidth(200);
    grid->addWidget(button, row, 0, Qt::AlignTop);
    grid->addWidget(PreferenceLook::note(explanation, this), row, 1);
    return button;
}

QString ImportExportPage::documentsFolder()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

void ImportExportPage::flushEdits()
{
    if (m_context.keyModel)
        m_context.keyModel->saveCurrentKeyItemsToSettings();
}

QString ImportExportPage::exportTo(const QString& caption, const QString& suggestedName, const QString& filter,
                                   const QString& suffix)
{
    QString path =
        PreferenceFiles::saveFile(this, caption, documentsFolder() + QLatin1Char('/') + suggestedName, filter);
    if (!path.isEmpty() && QFileInfo(path).suffix() != suffix)
        path += QLatin1Char('.') + suffix;
    return path;
}

void ImportExportPage::exportLayout()
{
    const int layout = m_context.layouts ? m_context.layouts->currentLayout() : -1;
    const QString path = exportTo(tr("Export layout"), ConfigurationBackup::layoutFileName(layout),
                                  tr("Keystage layout (*.kslayout)"), LayoutSuffix);
    if (path.isEmpty())
        return;
    flushEdits();
    if (m_context.store->exportSetting(path))
        report(tr("The layout was exported to %1.").arg(QDir::toNativeSeparators(path)));
    else
        report(tr("The layout could not be exported to %1.").arg(QDir::toNativeSeparators(path)), true);
}

void ImportExportPage::exportFavorites()
{
    const QString path = exportTo(tr("Export My Favorite"), ConfigurationBackup::favoritesFileName(),
                                  tr("Keystage favorites (*.ksfavorites)"), FavoritesSuffix);
    if (path.isEmpty())
        return;
    if (m_context.store->exportMyFavorite(path))
        report(tr("My Favorite was exported to %1.").arg(QDir::toNativeSeparators(path)));
    else
        report(tr("My Favorite could not be exported to %1.").arg(QDir::toNativeSeparators(path)), true);
}

void ImportExportPage::importFile()
{
    const QString path =
        PreferenceFiles::openFile(this, tr("Import"), documentsFolder(),
                                  tr("Keystage files (*.kslayout *.ksfavorites);;Keystage layout (*.kslayout);;"
                                     "Keystage favorites (*.ksfavorites)"));
    if (path.isEmpty() || !m_context.importFile)
        return;
    report(QString());
    // Asks, imports and tells of problems itself.
    m_context.importFile(path);
}

void ImportExportPage::backUpEverything()
{
    const QString parent = PreferenceFiles::chooseFolder(this, tr("Back up everything into"), documentsFolder());
    if (parent.isEmpty())
        return;
    flushEdits();
    const ConfigurationBackup::Result result = ConfigurationBackup::write(*m_context.store, parent);
    if (result.ok)
        // At least two: a layout and My Favorite.
        report(tr("%n files were written to %1.", nullptr, result.files.size())
                   .arg(QDir::toNativeSeparators(result.folder)));
    else
        report(tr("The backup failed. %1").arg(result.error), true);
}

void ImportExportPage::report(const QString& text, bool problem)
{
    PreferenceLook::setStatus(m_status, text, problem);
}

QPushButton* ImportExportPage::exportLayoutButton() const
{
    return m_exportLayout;
}

QPushButton* ImportExportPage::exportFavoritesButton() const
{
    return m_exportFavorites;
}

QPushButton* ImportExportPage::importButton() const
{
    return m_import;
}

QPushButton* ImportExportPage::backupButton() const
{
    return m_backup;
}

QString ImportExportPage::statusText() const
{
    return m_status->text();
}
