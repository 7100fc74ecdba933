#include "ka_folder.h"

#include "actionservices.h"
#include "buttonlayoutconfig.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "objectregistry.h"

#include <QFileInfo>

KA_Folder::KA_Folder(KeyItem* owner) : owner(owner)
{
    appendLinkKey();
}

KA_Folder::~KA_Folder()
{
    clearChildren();
}

void KA_Folder::clearChildren()
{
    qDeleteAll(childList);
    childList.clear();
}

KeyItem* KA_Folder::appendLinkKey()
{
    const int layout = owner ? owner->layout : -1;
    auto* link = new KeyItem(KAT_LINK_BUTTON, ButtonLayoutConfig::keyCount(layout) - 1, layout);
    link->parent = owner;
    link->ownerList = &childList;
    childList.append(link);
    return link;
}

KA_Folder& KA_Folder::operator=(const KA_Folder& src)
{
    if (this == &src)
        return *this;
    isExpend = src.isExpend;
    appName = src.appName;
    clearChildren();
    const int srcLayout = src.owner ? src.owner->layout : -1;
    if (srcLayout == ButtonLayoutConfig::currentLayoutOf(srcLayout))
        copyChildrenSameLayout(src);
    else
        copyChildrenAcrossLayouts(src);
    removeSurplusLinkKeys();
    return *this;
}

KeyItem* KA_Folder::appendCopyOf(const KeyItem& child)
{
    auto* copy = new KeyItem(child.actionType, child.keyIdx, child.layout);
    *copy = child;
    copy->parent = owner;
    copy->ownerList = &childList;
    childList.append(copy);
    return copy;
}

void KA_Folder::copyChildrenSameLayout(const KA_Folder& src)
{
    for (const KeyItem* child : src.childList)
        appendCopyOf(*child);
}

void KA_Folder::copyChildrenAcrossLayouts(const KA_Folder& src)
{
    const int limit = ButtonLayoutConfig::keyCount(ButtonLayoutConfig::currentLayoutOf(-1)) - 1;
    int copied = 0;
    for (KeyItem* child : src.childList) {
        if (copied >= limit)
            break;
        if (child->actionType < KAT_HOTKEY || child->actionType > KAT_PASTE_STRING)
            continue;
        // The source child takes its new number too: callers rely on it.
        child->keyIdx = copied;
        appendCopyOf(*child);
        ++copied;
    }
    appendLinkKey();
}

void KA_Folder::removeSurplusLinkKeys()
{
    bool seen = false;
    for (int i = 0; i < childList.size();) {
        if (childList.at(i)->actionType != KAT_LINK_BUTTON) {
            ++i;
            continue;
        }
        if (!seen) {
            seen = true;
            ++i;
            continue;
        }
        delete childList.takeAt(i);
    }
}

int KA_Folder::linkCount() const
{
    int count = 0;
    for (const KeyItem* child : childList) {
        if (child->actionType == KAT_LINK_BUTTON)
            ++count;
    }
    return count;
}

// Opens the folder when the application it names is in front, unless its
// page is already the one shown.
bool KA_Folder::doAction()
{
    ActionServices* services = ActionServices::instance();
    auto* model = qobject_cast<KeyItemModel*>(ObjectRegistry::find(ComponentId::KeyItemModel));
    if (!services || !model)
        return false;
    if (appName.isEmpty() || QFileInfo(appName).baseName() != services->foregroundApplicationName())
        return true;
    if (model->getCurrentLayoutListHead() != &childList)
        doAction(0);
    return true;
}

// Enters the folder: its page becomes the one shown on the keypad and in the
// editor.
bool KA_Folder::doAction(int)
{
    auto* model = qobject_cast<KeyItemModel*>(ObjectRegistry::find(ComponentId::KeyItemModel));
    if (!model)
        return false;
    model->beginUpdate();
    model->changeListHead(this, &childList);
    isExpend = true;
    model->endUpdate(true);
    return true;
}

KeyActionType KA_Folder::getActionType() const
{
    return KAT_FOLDER;
}

bool KA_Folder::isFolder() const
{
    return true;
}

bool KA_Folder::isValid() const
{
    return true;
}

void KA_Folder::reset()
{
    isExpend = false;
}
