// Placeholder until the real widget lands.
#include "applicationchooser.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QVBoxLayout>

ApplicationChooser::ApplicationChooser(Sources, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("Choose application"));
    auto* layout = new QVBoxLayout(this);
    m_list = new QListWidget(this);
    m_list->setAccessibleName(tr("Applications"));
    layout->addWidget(m_list);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

ApplicationEntry ApplicationChooser::selectedApplication() const
{
    return ApplicationEntry();
}
