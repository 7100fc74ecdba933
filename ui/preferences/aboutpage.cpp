#include "aboutpage.h"

#include "keystageversion.h"
#include "log.h"
#include "preferencelook.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

AboutPage::AboutPage(const QString& settingsFile, QWidget* parent) : PreferencePage(parent)
{
    setObjectName(QStringLiteral("AboutPage"));
    QVBoxLayout* layout = PreferenceLook::pageLayout(this, title());

    auto* version = new QLabel(
        tr("%1, version %2").arg(QCoreApplication::applicationName(), QStringLiteral(KEYSTAGE_VERSION)), this);
    version->setObjectName(QStringLiteral("AboutVersion"));
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(version);
    layout->addWidget(PreferenceLook::note(tr("The desktop companion of your LCD macro keypad."), this));

    layout->addSpacing(6);
    layout->addWidget(PreferenceLook::section(tr("Licences"), this));
    layout->addWidget(PreferenceLook::note(
        tr("%1 is free software: you can redistribute it and modify it under the terms of the GNU General "
           "Public License, version 3 or any later version. It comes with no warranty. It is built with Qt %2, "
           "used under the GNU Lesser General Public License version 3. Key titles are drawn with the Liberation "
           "Sans fonts, used under the SIL Open Font License 1.1.")
            .arg(QCoreApplication::applicationName(), QString::fromLatin1(qVersion())),
        this));
    auto* aboutQt = new QPushButton(tr("About Qt"), this);
    aboutQt->setAccessibleName(aboutQt->text());
    connect(aboutQt, &QPushButton::clicked, this, [this] { QApplication::aboutQt(); });
    auto* licenceRow = new QHBoxLayout;
    licenceRow->addWidget(aboutQt);
    licenceRow->addStretch(1);
    layout->addLayout(licenceRow);

    layout->addSpacing(6);
    layout->addWidget(PreferenceLook::section(tr("Files"), this));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setColumnStretch(0, 1);
    const QString logs = Log::logDirectory();
    m_logFolder = addLocation(grid, tr("Log files"), logs, tr("Open log folder"), logs);
    m_settingsFolder = addLocation(grid, tr("Settings file"), settingsFile, tr("Open settings folder"),
                                   QFileInfo(settingsFile).absolutePath());
    layout->addLayout(grid);
    layout->addWidget(PreferenceLook::note(
        tr("The settings file carries a checksum: a file changed by hand is not loaded, and the settings start "
           "over."),
        this));
    layout->addStretch(1);
}

QString AboutPage::title() const
{
    return tr("About");
}

QPushButton* AboutPage::addLocation(QGridLayout* grid, const QString& name, const QString& path,
                                    const QString& buttonText, const QString& folder)
{
    const int row = grid->rowCount();
    auto* label = new QLabel(name, this);
    auto* value = new QLabel(QDir::toNativeSeparators(path), this);
    value->setObjectName(QStringLiteral("PreferenceValue"));
    value->setAccessibleName(name);
    value->setWordWrap(true);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setBuddy(value);
    auto* button = new QPushButton(buttonText, this);
    button->setAccessibleName(buttonText);
    button->setEnabled(!folder.isEmpty());
    connect(button, &QPushButton::clicked, this, [folder] {
        // The log folder appears with the first log file; make sure it is there.
        QDir().mkpath(folder);
        QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
    });
    // The path takes a line of its own: it is long, and the names of the
    // button and the place are long in some languages.
    grid->addWidget(label, row, 0);
    grid->addWidget(button, row, 1, Qt::AlignRight);
    grid->addWidget(value, row + 1, 0, 1, 2);
    return button;
}

QPushButton* AboutPage::logFolderButton() const
{
    return m_logFolder;
}

QPushButton* AboutPage::settingsFolderButton() const
{
    return m_settingsFolder;
}
