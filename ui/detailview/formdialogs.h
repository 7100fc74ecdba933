#pragma once

#include "applicationchooser.h"
#include "bookmarkchooser.h"
#include "titlestyle.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <functional>

class QWidget;
struct KeyRenderInfo;

// The dialogs the property forms open: a file, an application, a
// bookmark, a key's icon or its title's style. Each keeps the keypad paused while it is open, on every way out.
// Tests put their own runner in place of the real dialogs.
class FormDialogs
{
public:
    enum class FileKind
    {
        Executable, // the folder link: a program
        Anything,   // a launch key: a program, script, document or folder
        Image       // a key's icon
    };

    struct Runner
    {
        // Empty when cancelled.
        std::function<QString(QWidget* parent, FileKind kind)> chooseFile;
        // False when cancelled.
        std::function<bool(QWidget* parent, ApplicationChooser::Sources sources, ApplicationEntry* chosen)>
            chooseApplication;
        std::function<bool(QWidget* parent, Bookmark* chosen)> chooseBookmark;
        // The picture for userImg; false when cancelled.
        std::function<bool(QWidget* parent, const KeyRenderInfo& face, QImage* chosen)> chooseIcon;
        // gridIconSize: the size the grid shows keys at, for the preview.
        std::function<bool(QWidget* parent, const KeyRenderInfo& face, const QSize& gridIconSize, TitleStyle* chosen)>
            chooseTitleStyle;
    };

    static QString chooseFile(QWidget* parent, FileKind kind);
    static bool chooseApplication(QWidget* parent, ApplicationChooser::Sources sources, ApplicationEntry* chosen);
    static bool chooseBookmark(QWidget* parent, Bookmark* chosen);
    static bool chooseIcon(QWidget* parent, const KeyRenderInfo& face, QImage* chosen);
    static bool chooseTitleStyle(QWidget* parent, const KeyRenderInfo& face, const QSize& gridIconSize,
                                 TitleStyle* chosen);

    // A runner whose empty members fall back to the real dialogs; a default
    // Runner puts them all back.
    static void setRunner(const Runner& runner);

private:
    static QString runFileDialog(QWidget* parent, FileKind kind);
    static bool runApplicationChooser(QWidget* parent, ApplicationChooser::Sources sources, ApplicationEntry* chosen);
    static bool runBookmarkChooser(QWidget* parent, Bookmark* chosen);
    static bool runIconChooser(QWidget* parent, const KeyRenderInfo& face, QImage* chosen);
    static bool runTitleStyleDialog(QWidget* parent, const KeyRenderInfo& face, const QSize& gridIconSize,
                                    TitleStyle* chosen);
};
