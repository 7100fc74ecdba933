#pragma once

#include "preferencepage.h"

class QGridLayout;
class QPushButton;

// The program's version, the licences of what it is built with, and where
// it keeps its log files and its settings, with buttons that open them.
class AboutPage : public PreferencePage
{
    Q_OBJECT
public:
    // The settings file's path; the log folder is the log's own.
    explicit AboutPage(const QString& settingsFile, QWidget* parent = nullptr);

    QString title() const override;

    QPushButton* logFolderButton() const;
    QPushButton* settingsFolderButton() const;

private:
    QPushButton* addLocation(QGridLayout* grid, const QString& name, const QString& path, const QString& buttonText,
                             const QString& folder);

    QPushButton* m_logFolder = nullptr;
    QPushButton* m_settingsFolder = nullptr;
};
