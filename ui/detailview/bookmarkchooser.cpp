// Placeholder until the real widget lands.
#include "bookmarkchooser.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QVBoxLayout>

BookmarkChooser::BookmarkChooser(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("Choose bookmark"));
    auto* layout = new QVBoxLayout(this);
    auto* list = new QListWidget(this);
    list->setAccessibleName(tr("Bookmarks"));
    layout->addWidget(list);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

Bookmark BookmarkChooser::selectedBookmark() const
{
    return Bookmark();
}
