#include "folderform.h"

#include "foldercondition.h"
#include "formdialogs.h"
#include "ka_execute.h"
#include "ka_folder.h"
#include "keyitem.h"
#include "keyitemeditor.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

//: Heading of the form of a folder key: a key that opens a page of more keys.
FolderForm::FolderForm(KeyItemEditor* editor, QWidget* parent) : KeyItemForm(editor, tr("Folder"), parent)
{
    // Read only: the link names a program, which is picked, not typed.
    m_application = new QLineEdit(this);
    m_application->setObjectName(QStringLiteral("ApplicationField"));
    m_application->setReadOnly(true);
    m_application->setPlaceholderText(tr("No application"));
    QLabel* label = addField(tr("Open this folder when an application comes to the front"), m_application);
    label->setWordWrap(true);

    m_choose = new QPushButton(tr("Choose application…"), this);
    m_browse = new QPushButton(tr("Browse…"), this);
    //: Forgets the application that opens this folder.
    m_clear = new QPushButton(tr("Clear"), this);
    m_clear->setToolTip(tr("The folder no longer opens by itself"));
    // Two buttons a row: three side by side are wider than the form's
    // column in some languages.
    auto* rows = new QGridLayout;
    int index = 0;
    for (QPushButton* button : {m_choose, m_browse, m_clear}) {
        button->setAccessibleName(button->text());
        rows->addWidget(button, index / 2, index % 2);
        ++index;
    }
    rows->setColumnStretch(2, 1);
    body()->addLayout(rows);
    connect(m_choose, &QPushButton::clicked, this, &FolderForm::chooseApplication);
    connect(m_browse, &QPushButton::clicked, this, &FolderForm::browse);
    connect(m_clear, &QPushButton::clicked, this, [this] {
        this->editor()->setFolderApplication(QString());
        refresh();
    });

    const QString notice = FolderCondition::sourceNotice();
    if (!notice.isEmpty())
        m_sourceNote = addNote(notice);
    body()->addStretch(1);
}

QLineEdit* FolderForm::applicationField() const
{
    return m_application;
}

QPushButton* FolderForm::chooseButton() const
{
    return m_choose;
}

QPushButton* FolderForm::browseButton() const
{
    return m_browse;
}

QPushButton* FolderForm::clearButton() const
{
    return m_clear;
}

QLabel* FolderForm::sourceNote() const
{
    return m_sourceNote;
}

QString FolderForm::executablePath(const QString& executable, const QString& commandLine)
{
    const QString program = executable.isEmpty() ? splitCommandLine(commandLine).program : executable;
    if (program.isEmpty() || QFileInfo(program).isAbsolute())
        return program;
    const QString found = QStandardPaths::findExecutable(program);
    return found.isEmpty() ? program : found;
}

void FolderForm::refreshFields(const KeyItem& item)
{
    const QString path = static_cast<const KA_Folder*>(item.action[0])->appName;
    setTextIfDifferent(m_application, path);
    m_application->setToolTip(path);
    m_clear->setEnabled(!path.isEmpty());
}

void FolderForm::chooseApplication()
{
    const QPointer<FolderForm> self(this);
    ApplicationEntry application;
    if (!FormDialogs::chooseApplication(this, ApplicationChooser::Installed | ApplicationChooser::Running,
                                        &application) ||
        !self)
        return;
    const QString path = executablePath(application.executable, application.commandLine);
    if (path.isEmpty())
        return;
    editor()->setFolderApplication(path);
    refresh();
}

void FolderForm::browse()
{
    const QPointer<FolderForm> self(this);
    const QString path = FormDialogs::chooseFile(this, FormDialogs::FileKind::Executable);
    if (!self || path.isEmpty())
        return;
    editor()->setFolderApplication(path);
    refresh();
}
