#pragma once

#include "keyactionabstr.h"

#include <QList>
#include <QString>

// A folder key: opens its page, whose last key leads back. Folders hold one
// level only.
class KA_Folder : public KeyActionAbstr
{
    Q_OBJECT
public:
    explicit KA_Folder(KeyItem* owner);
    ~KA_Folder() override;

    // Copies the page; across layouts only plain keys survive, renumbered,
    // and the page gets a back key of its new layout.
    KA_Folder& operator=(const KA_Folder& src);

    bool doAction() override;
    bool doAction(int param) override;
    KeyActionType getActionType() const override;
    bool isFolder() const override;
    bool isValid() const override;
    void reset() override;

    int linkCount() const;
    // Frees the children, back key included.
    void clearChildren();
    // Appends the back key for the owner's layout.
    KeyItem* appendLinkKey();

    QList<KeyItem*> childList;
    KeyItem* owner = nullptr;
    bool isExpend = false;
    QString appName;
    // Whether this folder's page is the one shown now.
    bool isOpened = false;

private:
    void copyChildrenSameLayout(const KA_Folder& src);
    void copyChildrenAcrossLayouts(const KA_Folder& src);
    void removeSurplusLinkKeys();
    KeyItem* appendCopyOf(const KeyItem& child);
};
