#pragma once

#include "buttonowner.h"
#include "keyitem.h"
#include "keylayout.h"

#include <QPoint>
#include <QVector>
#include <QWidget>
#include <functional>

class ButtonLayoutConfig;
class KeyGridContextMenu;
class KeyGridController;
class KeyItemModel;
class QLabel;
class QTimer;

// The editor's picture of the keypad: one QLabel per key of the current
// layout showing the key's face. The view keeps selection, hover, mouse,
// drag, the context menu and the shortcuts; what a drop or an edit does to a
// key is KeyGridController's, which changes KeyItemModel inside its update
// bracket. The view keeps no key data.
//
// The model may notify from its key action thread: connect its updateContent
// queued to onUpdateContent. A null item there means the whole page changed.
//
// From the keyboard the selection is the cursor: the arrows move it by rows
// and columns, Enter opens a folder or back key and otherwise asks for the
// form (formFocusWanted), the Menu key and Shift+F10 open the context menu.
// Each key is an accessible button "Key N: title, type".
class KeyItemGridView : public QWidget, public ButtonOwner
{
    Q_OBJECT
public:
    static constexpr int DragStartDistance = 5;
    static constexpr int DragHoverDelayMs = 800;
    // Room the main window needs beside the key panel: its right column.
    static constexpr int MainWindowExtraWidth = 400;
    static constexpr int SelectionFrameWidth = 2;

    explicit KeyItemGridView(QWidget* parent = nullptr);
    ~KeyItemGridView() override;

    // What "&Save as favorite" calls; it returns whether the item was kept.
    void setFavoriteInserter(std::function<bool(const KeyItem*)> inserter);

    int selectedKeyIdx() const;
    int hoveredKeyIdx() const;
    int dragHoverKeyIdx() const;
    int dragSourceKeyIdx() const;
    int keyButtonCount() const;
    QLabel* keyButton(int idx) const;
    const KeyItem* clipboardItem() const;
    KeyGridContextMenu* contextMenu() const;
    static QSize gridShape(int layout);
    // A key's face as the grid shows it: the icon scaled onto a black square
    // of the given size, framed when selected. My Favorite shows its items so.
    static QPixmap composeKeyIcon(const QPixmap& icon, const QSize& size, bool selected);

    // The key whose button contains pos (view coordinates), -1 for none.
    int keyIdxAt(const QPoint& pos) const;

    // The operations behind the mouse, the drops and the menu; callable
    // directly without events. The edits are the controller's.
    void controller_mousePress(const QPoint& pos, bool rightButton);
    void controller_copyEvent(int idx);
    void controller_pasteEvent(int idx);
    void controller_dropKeyItemFromActionList(int actionType, int idx);
    void controller_dropKeyItemFromKeyItemGridView(KeyItem* item, int idx);
    void controller_dropKeyItemFromFavoriteGridView(const KeyItem* item, int idx);
    bool handleKB_DelConfirmMsgBox();
    void createNewAction(int actionType, int idx);
    // Shows the menu entries that apply to the key; false: no menu at all.
    bool updateContextMenuActions(int idx);
    // Draws every key of the current page; empty keys black.
    void refreshAllKeys();

    // "Key 3: Media, Folder", "Key 4: Hotkey", "Key 7: empty"; idx from 0.
    static QString keyAccessibleName(int idx, const KeyItem* item);
    // A palette entry's Enter: the action is dropped on the selected key as a
    // drag would drop it. False when no key is selected.
    bool dropActionOnSelectedKey(int actionType);

    int buttonIndexOf(const QWidget* widget) const override;
    QWidget* buttonWidget(int idx) const override;
    bool isButtonSelected(int idx) const override;
    int keyboardButton() const override;
    void pressButton(int idx) override;

signals:
    void buttonIdxChanged(KeyIdx idx);
    void dragItem();
    void closeFunctionDescription();
    // Enter on a key that opens no page: the keyboard goes to its form.
    void formFocusWanted();

public slots:
    void changeLayoutButtonView(KeyLayout keyLayout);
    // With showFunctionDescription the main window learns that no key is
    // selected (buttonIdxChanged(-1)).
    void cancelSelectedKeyButton(bool showFunctionDescription);
    void cancelPreviousAndThenSelectKeyButton(int idx);
    void cancelHoveredKeyButton();
    void cancelPreviousAndThenHoverKeyButton(int hoveringIdx);
    // While a layout change is under way the keys are not redrawn.
    void onLayoutChanging(bool changing);
    void resetAllButtonToDef();
    void setButtonIcon(int buttonIdx, QPixmap& icon, bool selected);
    void onUpdateContent(const KeyItem* item);
    void onTimerTimeout();
    void onTreeItemChanged(const KeyItem* item);
    void onContextMenuTrigger_Cut(bool checked);
    void onContextMenuTrigger_Copy(bool checked);
    void onContextMenuTrigger_Paste(bool checked);
    void onContextMenuTrigger_Del(bool checked);
    void onContextMenuTrigger_Rest(bool checked);
    void onContextMenuTrigger_Favorite(bool checked);
    void onContextMenuTrigger_CreateFolder(bool checked);
    void onContextMenuTrigger_CreateHotkey(bool checked);
    void onContextMenuTrigger_CreateMacrokey(bool checked);
    void onContextMenuTrigger_CreateLaunch(bool checked);
    void onContextMenuTrigger_CreateWebsite(bool checked);
    void onContextMenuTrigger_CreateTextString(bool checked);
    void onContextMenuTrigger_MoveToFolder(bool checked);
    void controller_delEvent(int idx, bool ignoreConfirmationBox);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    KeyItemModel* model() const;
    ButtonLayoutConfig* layouts() const;
    void connectMenu();
    void connectController();
    void createKeyButtons(int layout);
    void deleteKeyButtons();
    void resizeMainWindow();
    void showKey(int idx, const KeyItem* item, bool framed);
    void redrawKey(int idx, bool framed);
    void setKeyState(int idx, const char* state);
    const char* restingState(int idx) const;
    void selectAndAnnounce(int idx);
    void announceIfSelected(int idx);
    void showContextMenu(const QPoint& pos);
    bool triggerShortcut(int qtKey);
    bool navigate(QKeyEvent* event);
    void moveSelection(int dx, int dy);
    void moveSelectionTo(int idx);
    void openOrEnterForm();
    void setFocusVisible(bool visible);
    // The keyboard's place: the selected key framed, or the whole grid
    // while none is; only while the focus came from the keyboard.
    void updateFocusLook();
    void announceKeyboardFocus();
    void startDrag(int idx, const QPoint& pressPos);
    void clearDragState();
    int menuKeyIdx() const;

    int m_layout = -1;
    QWidget* m_container = nullptr;
    QVector<QLabel*> m_buttons;
    int m_selectedIdx = -1;
    int m_hoveredIdx = -1;
    int m_dragHoverIdx = -1;
    int m_dragSourceIdx = -1;
    bool m_dragIsFolder = false;
    bool m_dragIsImageFile = false;
    QPoint m_dragPos;
    QPoint m_pressPos;
    bool m_pressed = false;
    bool m_layoutChanging = false;
    bool m_focusVisible = false;
    QTimer* m_dragHoverTimer = nullptr;
    KeyGridContextMenu* m_menu = nullptr;
    KeyGridController* m_controller = nullptr;
};
