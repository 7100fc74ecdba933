#pragma once

#include <QList>
#include <QPoint>
#include <QPointer>
#include <QWidget>

class ClickLabel;
class FavoriteKeyItemModel;
class KeyItem;
class QEvent;
class QGridLayout;
class QLabel;
class QMenu;
class QPushButton;
class QScrollArea;
class QToolButton;
class TitleBar;

// "My Favorite": a tool window beside the editor with a scrollable pad of up
// to 60 saved key items. Keys are collected by dragging them here from the
// key grid or with the grid's "&Save as favorite", and dragged back onto
// keys; the grid decides what such a drop does. The items live in
// FavoriteKeyItemModel; this window only shows them.
//
// Every occupied slot is a focusable button named after its item: arrow keys
// move between them, Enter or Space puts the item on the key selected in the
// grid (favoriteActivated), Delete, the Menu key or Shift+F10 reach
// "&Delete". Esc hides the window.
class Favorite : public QWidget
{
    Q_OBJECT
public:
    static constexpr int Columns = 3;
    static constexpr int SlotSpacing = 10;
    static constexpr int SlotSide = 72;
    static constexpr int MinRows = 5;
    static constexpr int MaxRows = 20;
    // Three slots and their gaps; with a scroll bar beside them.
    static constexpr int NarrowPadWidth = 236;
    static constexpr int WidePadWidth = 248;
    static constexpr int DragStartDistance = 5;

    // mainWindow: the editor, beside which the window first appears; it is
    // also the window's parent, so this one goes with it.
    explicit Favorite(FavoriteKeyItemModel* model, QWidget* mainWindow = nullptr);
    ~Favorite() override;

    // The pad's rows for a number of items: always one free slot in sight
    // until the pad is full.
    static int rowCount(int itemCount);
    static int padWidth(int rows);

    // The slot under a point of this window, -1 for none or an empty slot.
    int isPosInButtonPad(const QPoint& point) const;
    void setupTitleBar();

    int slotCount() const;
    // A slot of the pad (occupied ones first); null outside.
    QToolButton* slotButton(int idx) const;
    QScrollArea* pad() const;
    QLabel* usageLabel() const;
    QPushButton* resetButton() const;
    TitleBar* titleBar() const;
    // Null until first used.
    QMenu* contextMenu() const;

signals:
    // Enter or Space on a slot: the item should go on the selected key.
    void favoriteActivated(const KeyItem* item);
    void visibilityChanged(bool visible);

public slots:
    void updatefavoriteGridView();
    void onContextMenuTrigger_Del(bool checked);
    void onTitleBarButtonMouseEvent(ClickLabel* pad, QEvent* e);
    void onAppStateChange(bool isAppActive);
    void bringWindowToFront();
    void onResetAllBtnClicked();
    void moveScrollbarToBottom();
    bool insertKeyItem(const KeyItem* keyItem);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void buildWindow();
    int itemCount() const;
    const KeyItem* itemAt(int idx) const;
    int slotIndexOf(const QObject* object) const;
    void drawSlot(int idx);
    void setDropTarget(bool shown);
    void showContextMenu(int idx, const QPoint& globalPos);
    void removeItem(int idx);
    void focusSlot(int idx);
    bool handleSlotKey(int idx, QKeyEvent* event);
    void startDrag(int idx, const QPoint& pressPos);
    void saveWindowPosition();
    void restoreWindowPosition();

    QPointer<FavoriteKeyItemModel> m_model;
    QPointer<QWidget> m_mainWindow;
    TitleBar* m_titleBar = nullptr;
    QScrollArea* m_pad = nullptr;
    QWidget* m_padContent = nullptr;
    QGridLayout* m_grid = nullptr;
    QList<QToolButton*> m_slots;
    QLabel* m_usage = nullptr;
    QPushButton* m_reset = nullptr;
    QMenu* m_menu = nullptr;
    QAction* m_deleteAction = nullptr;
    int m_pressedSlot = -1;
    QPoint m_pressPos;
    bool m_dropTargetShown = false;
    // Position saving waits for the first show and pauses while the window
    // is brought to the front.
    bool m_shownOnce = false;
    bool m_bringingToFront = false;
    bool m_positionChanged = false;
};
