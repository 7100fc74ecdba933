#include "formdialogs.h"

#include "keypadpause.h"

#include <QDir>
#include <QFileDialog>
#include <QPointer>

namespace {
FormDialogs::Runner g_runner;
} // namespace

void FormDialogs::setRunner(const Runner& runner)
{
    g_runner = runner;
}

QString FormDialogs::chooseFile(QWidget* parent, FileKind kind)
{
    KeypadPause pause;
    return g_runner.chooseFile ? g_runner.chooseFile(parent, kind) : runFileDialog(parent, kind);
}

bool FormDialogs::chooseApplication(QWidget* parent, ApplicationChooser::Sources sources, ApplicationEntry* chosen)
{
    KeypadPause pause;
    return g_runner.chooseApplication ? g_runner.chooseApplication(parent, sources, chosen)
                                      : runApplicationChooser(parent, sources, chosen);
}

bool FormDialogs::chooseBookmark(QWidget* parent, Bookmark* chosen)
{
    KeypadPause pause;
    return g_runner.chooseBookmark ? g_runner.chooseBookmark(parent, chosen) : runBookmarkChooser(parent, chosen);
}

// The desktop's own file dialog (through its portal where there is one).
// A folder is a fine thing for a launch key to open, but the native dialogs
// pick either files or folders; files are what people launch most.
QString FormDialogs::runFileDialog(QWidget* parent, FileKind kind)
{
    if (kind == FileKind::Executable)
        return QFileDialog::getOpenFileName(parent, QObject::tr("Choose a program"), QStringLiteral("/usr/bin"));
    return QFileDialog::getOpenFileName(parent, QObject::tr("Choose a program, script, document or folder"),
                                        QDir::homePath());
}

bool FormDialogs::runApplicationChooser(QWidget* parent, ApplicationChooser::Sources sources, ApplicationEntry* chosen)
{
    // The form may go away while the dialog runs its own event loop.
    QPointer<ApplicationChooser> dialog = new ApplicationChooser(sources, parent);
    const bool accepted = dialog->exec() == QDialog::Accepted && dialog;
    if (accepted && chosen)
        *chosen = dialog->selectedApplication();
    delete dialog;
    return accepted;
}

bool FormDialogs::runBookmarkChooser(QWidget* parent, Bookmark* chosen)
{
    QPointer<BookmarkChooser> dialog = new BookmarkChooser(parent);
    const bool accepted = dialog->exec() == QDialog::Accepted && dialog;
    if (accepted && chosen)
        *chosen = dialog->selectedBookmark();
    delete dialog;
    return accepted;
}
