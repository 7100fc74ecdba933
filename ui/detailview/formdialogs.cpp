#include "formdialogs.h"

#include "iconchooser.h"
#include "keyiconimage.h"
#include "keypadpause.h"
#include "titlestyledialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>

namespace {

FormDialogs::Runner g_runner;

// A home without a pictures folder opens at home.
QString picturesFolder()
{
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return QFileInfo(pictures).isDir() ? pictures : QDir::homePath();
}

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

bool FormDialogs::chooseIcon(QWidget* parent, const KeyRenderInfo& face, QImage* chosen)
{
    KeypadPause pause;
    return g_runner.chooseIcon ? g_runner.chooseIcon(parent, face, chosen) : runIconChooser(parent, face, chosen);
}

bool FormDialogs::chooseTitleStyle(QWidget* parent, const KeyRenderInfo& face, const QSize& gridIconSize,
                                   TitleStyle* chosen)
{
    KeypadPause pause;
    return g_runner.chooseTitleStyle ? g_runner.chooseTitleStyle(parent, face, gridIconSize, chosen)
                                     : runTitleStyleDialog(parent, face, gridIconSize, chosen);
}

// The desktop's own file dialog (through its portal where there is one).
// A folder is a fine thing for a launch key to open, but the native dialogs
// pick either files or folders; files are what people launch most.
QString FormDialogs::runFileDialog(QWidget* parent, FileKind kind)
{
    if (kind == FileKind::Image)
        return QFileDialog::getOpenFileName(parent, QObject::tr("Choose an image"), picturesFolder(),
                                            QObject::tr("Images (%1)").arg(KeyIconImage::fileDialogPatterns()) +
                                                QStringLiteral(";;") + QObject::tr("All files (*)"));
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

bool FormDialogs::runIconChooser(QWidget* parent, const KeyRenderInfo& face, QImage* chosen)
{
    QPointer<IconChooser> dialog = new IconChooser(face, parent);
    const bool accepted = dialog->exec() == QDialog::Accepted && dialog;
    if (accepted && chosen)
        *chosen = dialog->chosenImage();
    delete dialog;
    return accepted;
}

bool FormDialogs::runTitleStyleDialog(QWidget* parent, const KeyRenderInfo& face, const QSize& gridIconSize,
                                      TitleStyle* chosen)
{
    QPointer<TitleStyleDialog> dialog = new TitleStyleDialog(face, gridIconSize, parent);
    const bool accepted = dialog->exec() == QDialog::Accepted && dialog;
    if (accepted && chosen)
        *chosen = dialog->style();
    delete dialog;
    return accepted;
}
