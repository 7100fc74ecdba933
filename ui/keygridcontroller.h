#pragma once

#include "keyitem.h"

#include <QObject>
#include <functional>

class KeyItemModel;
class QMimeData;

// The key grid's edit rules, without widgets: what a drop from the palette,
// the grid or My Favorite does to a key, and cut, copy, paste, delete, reset,
// save as favourite, make folder and create. Every change goes through the
// key model's update bracket. The view turns mouse, drag, menu and keys into
// these calls and follows the signals with its selection.
//
// Rules kept everywhere: a folder never lands inside a folder, the back key
// (types 6 and 7) takes no edit, and keys outside the grid are refused.
class KeyGridController : public QObject
{
    Q_OBJECT
public:
    // What a key offers to the context menu; valid is false where no menu
    // shows at all (no key, no model, the back key).
    struct KeyContext
    {
        bool valid = false;
        bool emptyKey = false;
        bool folderKey = false;
        bool topLevel = true;
        bool clipboardHoldsItem = false;
    };

    explicit KeyGridController(QObject* parent = nullptr);
    ~KeyGridController() override;

    // The number of keys the grid shows; indexes from it on are refused.
    void setKeyCount(int count);
    int keyCount() const;
    // What "&Save as favorite" calls; it returns whether the item was kept.
    void setFavoriteInserter(std::function<bool(const KeyItem*)> inserter);
    const KeyItem* clipboardItem() const;

    static bool isLinkType(int actionType);
    KeyContext contextOf(int idx) const;
    // A key that may be dragged: occupied and not the back key.
    bool canDrag(int idx) const;
    // Folders and back keys open (or leave) their page on a click.
    static bool opensPage(const KeyItem* item);
    void openPageOf(KeyItem* item);

    void controller_copyEvent(int idx);
    void controller_pasteEvent(int idx);
    void controller_delEvent(int idx, bool ignoreConfirmationBox);
    void controller_dropKeyItemFromActionList(int actionType, int idx);
    void controller_dropKeyItemFromKeyItemGridView(KeyItem* item, int idx);
    void controller_dropKeyItemFromFavoriteGridView(const KeyItem* item, int idx);
    bool handleKB_DelConfirmMsgBox();
    void createNewAction(int actionType, int idx);
    // Copies, then deletes without asking.
    void cut(int idx);
    void resetKey(int idx);
    void saveAsFavorite(int idx);
    void moveToFolder(int idx);
    // A drag rested on key idx (-1: on none that may react). At the top level
    // the key becomes a folder and opens, unless a folder is being dragged;
    // inside a folder only the back key reacts. True when a page opened.
    bool openOnDragHover(int idx, bool draggingFolder);
    // Shows the page a folder tree entry stands for.
    void followTreeItem(const KeyItem* item);

    // An image file dragged from a file manager: the first local file of a
    // type Qt reads here; empty when the drag offers none.
    static QString droppedImageFile(const QMimeData* mime);
    // The picture of an image file becomes the icon of the face the key
    // shows now. An empty key (no action to show it) and the back key are
    // refused, as is a file that cannot be read; true when the icon was set.
    bool setIconFromFile(int idx, const QString& path);

signals:
    // The drop or creation target; the view selects it and tells the editor.
    void keySelected(int idx);
    // The item at idx changed or went; the view refreshes it if selected.
    void keyChanged(int idx);
    void closeFunctionDescription();
    // Sent before a folder or back key changes the page.
    void pageLeaving();

private:
    KeyItemModel* model() const;
    bool isKeyOnGrid(int idx) const;
    static int layoutForNewItems(const KeyItemModel* model);
    static bool isActionType(int actionType);
    bool confirmFavoriteLayout(const KeyItem* favorite, const KeyItemModel* model) const;
    void setClipboard(KeyItem* copy);

    int m_keyCount = 0;
    KeyItem* m_clipboard = nullptr;
    std::function<bool(const KeyItem*)> m_favoriteInserter;
};
