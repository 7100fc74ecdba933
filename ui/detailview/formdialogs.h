#pragma once

#include "applicationchooser.h"
#include "bookmarkchooser.h"

#include <QString>

#include <functional>

class QWidget;

// The dialogs the property forms open: a file, an application or a
// bookmark. Each keeps the keypad paused while it is open, on every way out.
// Tests put their own runner in place of the real dialogs.
class FormDialogs
{
public:
    enum class FileKind
    {
        Executable, // the folder link: a program
        Anything    // a launch key: a program, script, document or folder
    };

    struct Runner
    {
        // Empty when cancelled.
        std::function<QString(QWidget* parent, FileKind kind)> chooseFile;
        // False when cancelled.
        std::function<bool(QWidget* parent, ApplicationChooser::Sources sources, ApplicationEntry* chosen)>
            chooseApplication;
        std::function<bool(QWidget* parent, Bookmark* chosen)> chooseBookmark;
    };

    static QString chooseFile(QWidget* parent, FileKind kind);
    static bool chooseApplication(QWidget* parent, ApplicationChooser::Sources sources, ApplicationEntry* chosen);
    static bool chooseBookmark(QWidget* parent, Bookmark* chosen);

    // A runner whose empty members fall back to the real dialogs; a default
    // Runner puts them all back.
    static void setRunner(const Runner& runner);

private:
    static QString runFileDialog(QWidget* parent, FileKind kind);
    static bool runApplicationChooser(QWidget* parent, ApplicationChooser::Sources sources, ApplicationEntry* chosen);
    static bool runBookmarkChooser(QWidget* parent, Bookmark* chosen);
};
