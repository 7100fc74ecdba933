#pragma once

#include "keyitemform.h"

class QLabel;
class QLineEdit;
class QPushButton;

// A folder key: its title and the application whose coming to the front
// opens the folder on the keypad.
class FolderForm : public KeyItemForm
{
    Q_OBJECT
public:
    FolderForm(KeyItemEditor* editor, QWidget* parent);

    QLineEdit* applicationField() const;
    QPushButton* chooseButton() const;
    QPushButton* browseButton() const;
    QPushButton* clearButton() const;
    // What tells the application in front, or what would; null when there
    // is nothing to say.
    QLabel* sourceNote() const;

    // What the folder link stores for a chosen application: its executable's
    // path, found on PATH when the entry names only a command.
    static QString executablePath(const QString& executable, const QString& commandLine);

protected:
    void refreshFields(const KeyItem& item) override;

private:
    void chooseApplication();
    void browse();

    QLineEdit* m_application = nullptr;
    QPushButton* m_choose = nullptr;
    QPushButton* m_browse = nullptr;
    QPushButton* m_clear = nullptr;
    QLabel* m_sourceNote = nullptr;
};
