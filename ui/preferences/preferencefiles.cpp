#include "preferencefiles.h"

#include <QFileDialog>

namespace {
PreferenceFiles::Runner g_runner;
} // namespace

void PreferenceFiles::setRunner(const Runner& runner)
{
    g_runner = runner;
}

QString PreferenceFiles::saveFile(QWidget* parent, const QString& caption, const QString& suggested,
                                  const QString& filter)
{
    if (g_runner.saveFile)
        return g_runner.saveFile(parent, caption, suggested, filter);
    return QFileDialog::getSaveFileName(parent, caption, suggested, filter);
}

QString PreferenceFiles::openFile(QWidget* parent, const QString& caption, const QString& folder, const QString& filter)
{
    if (g_runner.openFile)
        return g_runner.openFile(parent, caption, folder, filter);
    return QFileDialog::getOpenFileName(parent, caption, folder, filter);
}

QString PreferenceFiles::chooseFolder(QWidget* parent, const QString& caption, const QString& folder)
{
    if (g_runner.chooseFolder)
        return g_runner.chooseFolder(parent, caption, folder);
    return QFileDialog::getExistingDirectory(parent, caption, folder);
}
