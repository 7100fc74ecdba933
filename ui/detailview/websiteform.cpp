#include "websiteform.h"

#include "formdialogs.h"
#include "ka_execute.h"
#include "keyitem.h"
#include "keyitemeditor.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

WebsiteForm::WebsiteForm(KeyItemEditor* editor, QWidget* parent) : KeyItemForm(editor, tr("Website"), parent)
{
    m_address = new QLineEdit(this);
    m_address->setObjectName(QStringLiteral("AddressField"));
    m_address->setPlaceholderText(tr("example.com or https://…"));
    m_address->setClearButtonEnabled(true);
    addField(tr("Address"), m_address);
    connect(m_address, &QLineEdit::textEdited, this, [this](const QString& text) { this->editor()->setPath(text); });

    m_bookmark = new QPushButton(tr("Choose bookmark…"), this);
    m_bookmark->setAccessibleName(m_bookmark->text());
    auto* row = new QHBoxLayout;
    row->addWidget(m_bookmark);
    row->addStretch(1);
    body()->addLayout(row);
    connect(m_bookmark, &QPushButton::clicked, this, &WebsiteForm::chooseBookmark);
    addNote(tr("An address without \"https://\" opens as \"http://\"."));
    body()->addStretch(1);
}

QLineEdit* WebsiteForm::addressField() const
{
    return m_address;
}

QPushButton* WebsiteForm::bookmarkButton() const
{
    return m_bookmark;
}

void WebsiteForm::refreshFields(const KeyItem& item)
{
    setTextIfDifferent(m_address, static_cast<const KA_Execute*>(item.action[0])->path);
}

// The page's title becomes the key's only when the key has none yet: a
// title the user wrote is never replaced unasked.
void WebsiteForm::chooseBookmark()
{
    Bookmark bookmark;
    const QPointer<WebsiteForm> self(this);
    // The form may have closed while the dialog was open.
    if (!FormDialogs::chooseBookmark(this, &bookmark) || !self || bookmark.url.isEmpty())
        return;
    editor()->setPath(bookmark.url);
    const KeyItem* item = editor()->item();
    if (item && titleOf(*item, 0).isEmpty() && !bookmark.title.isEmpty())
        editor()->setTitle(0, bookmark.title);
    refresh();
}
