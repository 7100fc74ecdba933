#include "launchform.h"

#include "formdialogs.h"
#include "ka_execute.h"
#include "keyiconimage.h"
#include "keyitem.h"
#include "keyitemeditor.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

//: Heading of the form of a Launch key: the action that starts a program or opens a file (a verb).
LaunchForm::LaunchForm(KeyItemEditor* editor, QWidget* parent) : KeyItemForm(editor, tr("Launch"), parent)
{
    m_command = new QLineEdit(this);
    m_command->setObjectName(QStringLiteral("CommandField"));
    m_command->setPlaceholderText(tr("A program, script, document or folder"));
    m_command->setClearButtonEnabled(true);
    addField(tr("Command"), m_command);
    connect(m_command, &QLineEdit::textEdited, this, [this](const QString& text) {
        m_nameOffer->hide();
        this->editor()->setPath(text);
    });

    m_file = new QPushButton(tr("Choose file…"), this);
    m_file->setAccessibleName(m_file->text());
    m_application = new QPushButton(tr("Choose application…"), this);
    m_application->setAccessibleName(m_application->text());
    // One above the other: side by side they widen the column in the longer
    // languages once the live face controls make the form scroll.
    body()->addWidget(m_file, 0, Qt::AlignLeft);
    body()->addWidget(m_application, 0, Qt::AlignLeft);
    connect(m_file, &QPushButton::clicked, this, &LaunchForm::chooseFile);
    connect(m_application, &QPushButton::clicked, this, &LaunchForm::chooseApplication);

    // A hint, not a question: the user may ignore it and go on.
    m_nameOffer = new QWidget(this);
    auto* offerRow = new QHBoxLayout(m_nameOffer);
    offerRow->setContentsMargins(0, 0, 0, 0);
    m_nameOfferText = new QLabel(m_nameOffer);
    m_nameOfferText->setObjectName(QStringLiteral("FormNote"));
    m_nameOfferText->setWordWrap(true);
    m_useName = new QPushButton(tr("Use as title"), m_nameOffer);
    m_useName->setAccessibleName(m_useName->text());
    offerRow->addWidget(m_nameOfferText, 1);
    offerRow->addWidget(m_useName);
    body()->addWidget(m_nameOffer);
    m_nameOffer->hide();
    body()->addStretch(1);
    connect(m_useName, &QPushButton::clicked, this, [this] {
        m_nameOffer->hide();
        this->editor()->setTitle(0, m_offeredName);
        refresh();
        titleField()->setFocus();
    });
}

QLineEdit* LaunchForm::commandField() const
{
    return m_command;
}

QPushButton* LaunchForm::fileButton() const
{
    return m_file;
}

QPushButton* LaunchForm::applicationButton() const
{
    return m_application;
}

QPushButton* LaunchForm::useNameButton() const
{
    return m_useName;
}

QString LaunchForm::commandFor(const QString& path)
{
    return path.contains(QLatin1Char(' ')) ? QLatin1Char('"') + path + QLatin1Char('"') : path;
}

void LaunchForm::refreshFields(const KeyItem& item)
{
    setTextIfDifferent(m_command, static_cast<const KA_Execute*>(item.action[0])->path);
}

void LaunchForm::chooseFile()
{
    const QPointer<LaunchForm> self(this);
    const QString path = FormDialogs::chooseFile(this, FormDialogs::FileKind::Anything);
    if (!self || path.isEmpty())
        return;
    editor()->setPath(commandFor(path));
    refresh();
}

void LaunchForm::chooseApplication()
{
    const QPointer<LaunchForm> self(this);
    ApplicationEntry application;
    if (!FormDialogs::chooseApplication(this, ApplicationChooser::Installed, &application) || !self ||
        application.commandLine.isEmpty())
        return;
    editor()->setPath(application.commandLine);
    offerName(application.name);
    takeIcon(application);
    refresh();
}

// A key still showing the default picture takes the application's icon, as
// the desktop shows it; a picture the user chose stays.
void LaunchForm::takeIcon(const ApplicationEntry& application)
{
    const KeyItem* item = editor()->item();
    if (!item || !item->render[0].userImg.isNull())
        return;
    const QIcon icon = application.icon();
    if (icon.isNull())
        return;
    const QImage image = KeyIconImage::fitted(icon.pixmap(KeyIconImage::Size).toImage());
    if (!image.isNull())
        editor()->setIcon(0, image);
}

// An empty title takes the name at once; a title the user wrote is only
// offered a replacement.
void LaunchForm::offerName(const QString& name)
{
    const KeyItem* item = editor()->item();
    if (!item || name.isEmpty() || titleOf(*item, 0) == name)
        return;
    if (titleOf(*item, 0).isEmpty()) {
        editor()->setTitle(0, name);
        return;
    }
    m_offeredName = name;
    m_nameOfferText->setText(tr("Use \"%1\" as the title?").arg(name));
    m_nameOffer->show();
}
