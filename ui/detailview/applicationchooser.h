// Placeholder until the real widget lands: an empty list to choose from.
#pragma once

#include "applicationentry.h"

#include <QDialog>

class QListWidget;

class ApplicationChooser : public QDialog
{
    Q_OBJECT
public:
    enum Source
    {
        Installed = 0x1,
        Running = 0x2
    };
    Q_DECLARE_FLAGS(Sources, Source)

    ApplicationChooser(Sources sources, QWidget* parent);

    ApplicationEntry selectedApplication() const;

private:
    QListWidget* m_list = nullptr;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ApplicationChooser::Sources)
