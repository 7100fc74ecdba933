#include "keygridcontroller.h"

#include "buttonlayoutconfig.h"
#include "ka_folder.h"
#include "keyactionabstr.h"
#include "keyiconimage.h"
#include "keyitemeditor.h"
#include "keyitemmodel.h"
#include "logging.h"
#include "objectregistry.h"
#include "settings.h"
#include "settingskeys.h"
#include "userquestion.h"

#include <QMimeData>
#include <QMutexLocker>
#include <QUrl>

namespace {

KA_Folder* folderOf(const KeyItem* item)
{
    return item && item->isFolder() ? qobject_cast<KA_Folder*>(item->action[0]) : nullptr;
}

// Folders live on the root page only.
bool refusesFolderHere(bool isFolder, const KeyItemModel* model)
{
    if (!isFolder || model->isRootList())
        return false;
    LOG_MSG(QStringLiteral("Not allow multi-layer folder!"));
    return true;
}

} // namespace

KeyGridController::KeyGridController(QObject* parent) : QObject(parent) {}

KeyGridController::~KeyGridController()
{
    delete m_clipboard;
}

void KeyGridController::setKeyCount(int count)
{
    m_keyCount = count;
}

int KeyGridController::keyCount() const
{
    return m_keyCount;
}

void KeyGridController::setFavoriteInserter(std::function<bool(const KeyItem*)> inserter)
{
    m_favoriteInserter = std::move(inserter);
}

const KeyItem* KeyGridController::clipboardItem() const
{
    return m_clipboard;
}

KeyItemModel* KeyGridController::model() const
{
    return COMPONENT(KeyItemModel, ComponentId::KeyItemModel);
}

int KeyGridController::layoutForNewItems(const KeyItemModel* model)
{
    return ButtonLayoutConfig::currentLayoutOf(model->currentLayout());
}

bool KeyGridController::isLinkType(int actionType)
{
    return actionType == KAT_LINK_BUTTON || actionType == KAT_NUM;
}

bool KeyGridController::isActionType(int actionType)
{
    if (actionType >= KAT_FOLDER && actionType <= KAT_PASTE_STRING)
        return true;
    LOG_MSG(QStringLiteral("illegal action!"));
    return false;
}

bool KeyGridController::isKeyOnGrid(int idx) const
{
    if (idx >= m_keyCount)
        LOG_MSG(QStringLiteral("key idx >= current layout max key!"));
    return idx >= 0 && idx < m_keyCount;
}

KeyGridController::KeyContext KeyGridController::contextOf(int idx) const
{
    KeyContext context;
    if (idx < 0 || idx >= m_keyCount)
        return context;
    const KeyItemModel* keyModel = model();
    if (!keyModel)
        return context;
    const KeyItem* item = keyModel->keyItemAt(idx);
    if (item && isLinkType(item->actionType))
        return context;
    context.valid = true;
    context.emptyKey = !item;
    context.folderKey = item && item->isFolder();
    context.topLevel = keyModel->isRootList();
    context.clipboardHoldsItem = m_clipboard != nullptr;
    return context;
}

bool KeyGridController::canDrag(int idx) const
{
    const KeyItemModel* keyModel = model();
    const KeyItem* item = keyModel ? keyModel->keyItemAt(idx) : nullptr;
    // The back key belongs to its place on the folder page.
    return item && item->actionType != KAT_INVALID && !isLinkType(item->actionType);
}

bool KeyGridController::opensPage(const KeyItem* item)
{
    return item && (item->isFolder() || isLinkType(item->actionType));
}

void KeyGridController::openPageOf(KeyItem* item)
{
    KeyActionAbstr* action = item->currentAction();
    if (!logMsgWhenRetFail(action != nullptr, QStringLiteral("key has no action!!")))
        return;
    emit pageLeaving();
    action->doAction(0);
}

// ---- drops ----

void KeyGridController::controller_dropKeyItemFromActionList(int actionType, int idx)
{
    LOG_MSG(QStringLiteral("actionType: %1, buttonIdx: %2").arg(actionType).arg(idx));
    KeyItemModel* keyModel = model();
    if (!keyModel || !isKeyOnGrid(idx) || !isActionType(actionType))
        return;
    keyModel->beginUpdate();
    auto* item = new KeyItem(KeyActionType(actionType), idx, layoutForNewItems(keyModel));
    const KeyItem* occupant = keyModel->keyItemAt(idx);
    const bool folder = actionType == KAT_FOLDER;
    bool placed = false;
    if (!refusesFolderHere(folder, keyModel)) {
        if (!occupant)
            placed = keyModel->replaceKeyItem(item, idx);
        else if (folder && occupant->isFolder())
            LOG_MSG(QStringLiteral("Not allow multi-layer folder!"));
    }
    if (!placed)
        delete item;
    keyModel->endUpdate(placed);
    emit keySelected(idx);
}

void KeyGridController::controller_dropKeyItemFromKeyItemGridView(KeyItem* item, int idx)
{
    KeyItemModel* keyModel = model();
    if (!keyModel || !item || !isKeyOnGrid(idx))
        return;
    keyModel->beginUpdate();
    // The back key stays in its place on its folder page.
    if (item->actionType == KAT_INVALID || isLinkType(item->actionType)) {
        LOG_MSG(QStringLiteral("illegal action!"));
        keyModel->endUpdate(false);
        return;
    }
    bool moved = false;
    if (!keyModel->keyItemAt(idx))
        moved = keyModel->replaceKeyItem(item, idx);
    keyModel->endUpdate(moved);
    emit keySelected(idx);
}

void KeyGridController::controller_dropKeyItemFromFavoriteGridView(const KeyItem* item, int idx)
{
    KeyItemModel* keyModel = model();
    if (!keyModel || !item || !isKeyOnGrid(idx))
        return;
    if (item->actionType == KAT_INVALID || isLinkType(item->actionType)) {
        LOG_MSG(QStringLiteral("illegal action!"));
        return;
    }
    if (refusesFolderHere(item->isFolder(), keyModel))
        return;
    if (item->isFolder() && !confirmFavoriteLayout(item, keyModel))
        return;
    auto* copy = new KeyItem(item->actionType, -1, layoutForNewItems(keyModel));
    *copy = *item;
    copy->keyIdx = -1;
    copy->parent = nullptr;
    controller_dropKeyItemFromKeyItemGridView(copy, idx);
    // Refused: no page took it.
    if (!copy->ownerList)
        delete copy;
}

bool KeyGridController::confirmFavoriteLayout(const KeyItem* favorite, const KeyItemModel* keyModel) const
{
    if (favorite->layout <= layoutForNewItems(keyModel))
        return true;
    UserQuestion question;
    question.subject = tr("The limit of folder is different.");
    question.text = tr("If continues, some items may be lost. Are you sure you want to proceed?");
    question.buttons[UserQuestion::MidSlot] = UserQuestion::Cancel;
    question.buttons[UserQuestion::RightSlot] = UserQuestion::Continue;
    // Closing the dialog without a choice goes on, as the delete question does.
    return UserQuestions::ask(question).button != UserQuestion::Cancel;
}

// ---- edits ----

void KeyGridController::setClipboard(KeyItem* copy)
{
    delete m_clipboard;
    m_clipboard = copy;
}

void KeyGridController::controller_copyEvent(int idx)
{
    KeyItemModel* keyModel = model();
    const KeyItem* item = keyModel ? keyModel->keyItemAt(idx) : nullptr;
    if (!item || isLinkType(item->actionType))
        return;
    auto* copy = new KeyItem(*item);
    // The copy belongs to no page until it is pasted.
    copy->parent = nullptr;
    copy->ownerList = nullptr;
    setClipboard(copy);
}

void KeyGridController::controller_pasteEvent(int idx)
{
    KeyItemModel* keyModel = model();
    if (!m_clipboard || !keyModel || !isKeyOnGrid(idx))
        return;
    keyModel->beginUpdate();
    const KeyItem* target = keyModel->keyItemAt(idx);
    bool changed = false;
    if (target && (target->isFolder() || isLinkType(target->actionType)))
        LOG_MSG(QStringLiteral("can't paste onto this key!"));
    else if (!refusesFolderHere(m_clipboard->isFolder(), keyModel))
        changed = keyModel->copyKeyItem(m_clipboard, idx);
    keyModel->endUpdate(changed);
    if (changed)
        emit keyChanged(idx);
}

void KeyGridController::cut(int idx)
{
    controller_copyEvent(idx);
    controller_delEvent(idx, true);
}

void KeyGridController::controller_delEvent(int idx, bool ignoreConfirmationBox)
{
    KeyItemModel* keyModel = model();
    const KeyItem* item = keyModel ? keyModel->keyItemAt(idx) : nullptr;
    if (!item || isLinkType(item->actionType))
        return;
    // Asked before the model is locked: the keypad's key presses go on
    // while the question is open.
    if (!ignoreConfirmationBox && !handleKB_DelConfirmMsgBox())
        return;
    keyModel->beginUpdate();
    // The keypad may have changed the page meanwhile.
    const bool stillThere = keyModel->keyItemAt(idx) == item;
    if (stillThere)
        emit closeFunctionDescription();
    const bool deleted = stillThere && keyModel->deleteKeyItem(idx);
    keyModel->endUpdate(deleted);
    if (deleted)
        emit keyChanged(idx);
}

bool KeyGridController::handleKB_DelConfirmMsgBox()
{
    Settings* settings = COMPONENT(Settings, ComponentId::Settings);
    if (settings && settings->value(SettingsKeys::DeleteItemDontShowAgain, false).toBool())
        return true;
    UserQuestion question;
    question.subject = tr("Are you sure you want to delete this item?");
    question.text = tr("You can't undo this action.");
    question.buttons[UserQuestion::MidSlot] = UserQuestion::Cancel;
    question.buttons[UserQuestion::RightSlot] = UserQuestion::Delete;
    question.checkBoxText = tr("Don't ask me again");
    const UserAnswer answer = UserQuestions::ask(question);
    // Only Cancel says no: closing the dialog without a choice deletes.
    const bool agreed = answer.button != UserQuestion::Cancel;
    if (agreed && answer.checked && settings)
        settings->setValue(SettingsKeys::DeleteItemDontShowAgain, true);
    return agreed;
}

void KeyGridController::createNewAction(int actionType, int idx)
{
    KeyItemModel* keyModel = model();
    if (!keyModel || !isKeyOnGrid(idx) || !isActionType(actionType))
        return;
    if (refusesFolderHere(actionType == KAT_FOLDER, keyModel))
        return;
    keyModel->beginUpdate();
    const bool created = keyModel->createKeyAction(idx, KeyActionType(actionType));
    keyModel->endUpdate(created);
    if (created)
        emit keySelected(idx);
}

void KeyGridController::resetKey(int idx)
{
    KeyItemModel* keyModel = model();
    if (idx < 0 || !keyModel)
        return;
    keyModel->beginUpdate();
    const KeyItem* item = keyModel->keyItemAt(idx);
    const bool reset = item && !isLinkType(item->actionType) && keyModel->resetKeyItemToDefault(idx);
    keyModel->endUpdate(reset);
    if (reset)
        emit keyChanged(idx);
}

void KeyGridController::saveAsFavorite(int idx)
{
    KeyItemModel* keyModel = model();
    const KeyItem* item = idx >= 0 && keyModel ? keyModel->keyItemAt(idx) : nullptr;
    if (!item || isLinkType(item->actionType))
        return;
    if (!m_favoriteInserter) {
        LOG_MSG(QStringLiteral("ERROR: nothing keeps favorites!!"));
        return;
    }
    if (!m_favoriteInserter(item))
        LOG_MSG(QStringLiteral("favorite not kept"));
}

void KeyGridController::moveToFolder(int idx)
{
    KeyItemModel* keyModel = model();
    if (idx < 0 || !keyModel)
        return;
    keyModel->beginUpdate();
    const KeyItem* item = keyModel->keyItemAt(idx);
    const bool moved = item && !item->isFolder() && !isLinkType(item->actionType) && keyModel->keyItemBecomeFolder(idx);
    keyModel->endUpdate(moved);
    if (moved)
        emit keyChanged(idx);
}

// ---- pages ----

bool KeyGridController::openOnDragHover(int idx, bool draggingFolder)
{
    KeyItemModel* keyModel = model();
    if (!keyModel)
        return false;
    keyModel->beginUpdate();
    bool changed = false;
    bool opened = false;
    KeyItem* item = idx >= 0 ? keyModel->keyItemAt(idx) : nullptr;
    if (item && keyModel->isRootList()) {
        // A folder may not end up inside a folder.
        if (!draggingFolder && !item->isFolder())
            changed = keyModel->keyItemBecomeFolder(idx);
        item = keyModel->keyItemAt(idx);
        opened = !draggingFolder && item && item->isFolder();
    } else if (item) {
        opened = isLinkType(item->actionType);
    }
    if (opened)
        openPageOf(item);
    keyModel->endUpdate(changed);
    return opened;
}

void KeyGridController::followTreeItem(const KeyItem* item)
{
    KeyItemModel* keyModel = model();
    if (!keyModel)
        return;
    // A folder shows its own page; any other key the page it lives on.
    KA_Folder* folder = item->isFolder() ? folderOf(item) : folderOf(item->parent);
    keyModel->beginUpdate();
    bool changed = false;
    if (folder && keyModel->getCurrentLayoutListHead() != &folder->childList) {
        keyModel->changeListHead(folder, &folder->childList);
        changed = true;
    } else if (!folder && !keyModel->isRootList()) {
        keyModel->changeListToRoot();
        changed = true;
    }
    keyModel->endUpdate(changed);
}

// ---- icons from files ----

QString KeyGridController::droppedImageFile(const QMimeData* mime)
{
    if (!mime || !mime->hasUrls())
        return QString();
    for (const QUrl& url : mime->urls()) {
        if (url.isLocalFile() && KeyIconImage::isImageFile(url.toLocalFile()))
            return url.toLocalFile();
    }
    return QString();
}

bool KeyGridController::setIconFromFile(int idx, const QString& path)
{
    KeyItemModel* keyModel = model();
    const KeyItem* item = keyModel && isKeyOnGrid(idx) ? keyModel->keyItemAt(idx) : nullptr;
    if (!item || isLinkType(item->actionType)) {
        LOG_MSG(QStringLiteral("no icon for this key! -> %1").arg(idx));
        return false;
    }
    const QImage image = KeyIconImage::fromFile(path);
    if (image.isNull())
        return false;
    int slot = 0;
    {
        // The keypad's thread flips a two-feature hotkey's slot.
        QMutexLocker locker(keyModel->updateLock());
        slot = item->cfIdx;
    }
    KeyItemEditor editor(keyModel, idx);
    if (!editor.setIcon(slot, image))
        return false;
    emit keySelected(idx);
    return true;
}
