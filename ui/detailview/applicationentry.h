// Placeholder until the real widget lands: one installed or running
// application as the chooser offers it.
#pragma once

#include <QIcon>
#include <QString>

struct ApplicationEntry
{
    QString name, commandLine, executable, iconName, iconPath, desktopId;

    QIcon icon() const;
};
