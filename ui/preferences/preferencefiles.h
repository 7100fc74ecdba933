#pragma once

#include <QString>

#include <functional>

class QWidget;

// The file dialogs of the preference pages: the desktop's own (through its
// portal where there is one). Tests put their own runner in place.
class PreferenceFiles
{
public:
    struct Runner
    {
        // Each gives an empty path when cancelled.
        std::function<QString(QWidget* parent, const QString& caption, const QString& suggested, const QString& filter)>
            saveFile;
        std::function<QString(QWidget* parent, const QString& caption, const QString& folder, const QString& filter)>
            openFile;
        std::function<QString(QWidget* parent, const QString& caption, const QString& folder)> chooseFolder;
    };

    static QString saveFile(QWidget* parent, const QString& caption, const QString& suggested, const QString& filter);
    static QString openFile(QWidget* parent, const QString& caption, const QString& folder, const QString& filter);
    static QString chooseFolder(QWidget* parent, const QString& caption, const QString& folder);

    // A runner whose empty members fall back to the real dialogs; a default
    // Runner puts them all back.
    static void setRunner(const Runner& runner);
};
