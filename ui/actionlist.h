#pragma once

#include "buttonowner.h"

#include <QPixmap>
#include <QPoint>
#include <QSize>
#include <QVector>
#include <QWidget>

class QDrag;
class QLabel;
class QMimeData;
class QPushButton;

// The palette above the key grid: one entry per action type the user can
// create, dragged onto a key to make a new item there, plus the Settings and
// My Favorite buttons. Selecting an entry makes the main window describe it.
//
// From the keyboard the arrows move between the entries and Enter or Space
// activates one (entryActivated): the main window drops it on the selected
// key, or selects it when no key is. Each entry is an accessible button named
// by its tool tip.
class ActionList : public QWidget, public ButtonOwner
{
    Q_OBJECT
public:
    static constexpr int EntryCount = 6;
    static constexpr int IconSide = 42;
    static constexpr int ButtonIconSide = 28;

    struct Entry
    {
        int index = -1;
        QPixmap normal;
        QPixmap highlighted;
        QSize iconSize = QSize(IconSide, IconSide);
        bool enabled = true;
        QLabel* label = nullptr;
    };

    explicit ActionList(QWidget* parent = nullptr);
    ~ActionList() override;

    // The palette name of an action type ("Folder" ... "Text String"); empty
    // for types the palette does not offer.
    static QString actionName(int actionType);
    // "VSE/ActionList-item" holding the action type as a qint32.
    static QMimeData* createMimeData(int actionType);

    int entryAt(const QPoint& pos) const;
    int selectedIndex() const;
    int hoveredIndex() const;
    QLabel* entryLabel(int idx) const;
    void setEntryEnabled(int idx, bool enabled);
    bool isEntryEnabled(int idx) const;
    // The drag of an entry, ready to run; null for no or a disabled entry.
    QDrag* createDrag(int idx);
    // The entry the keyboard is on.
    int keyboardIndex() const;
    QPushButton* settingsButton() const;
    QPushButton* favoriteButton() const;

    int buttonIndexOf(const QWidget* widget) const override;
    QWidget* buttonWidget(int idx) const override;
    bool isButtonSelected(int idx) const override;
    int keyboardButton() const override;
    void pressButton(int idx) override;

signals:
    void actionItemSelected(int actionType);
    void favoriteActionItemSelected();
    void preferenceRequested();
    void favoriteWindowRequested();
    // Enter or Space on an enabled entry.
    void entryActivated(int actionType);

public slots:
    void onFavoriteButtonMousePressed();
    void onPreferenceButoonPressed();
    void cancelSelectedFavoriteButton();
    void onButtonViewIndexChanged();
    void cancelSelectedIcon(bool emitSignal);
    void cancelPreviousAndThenSelectIcon(int idx);
    void cancelHoveredKeyButton();
    void cancelPreviousAndThenHoverKeyButton(int hoveringIdx);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    // Runs the drag; separate so that a test can see the drag without a
    // window system running it.
    virtual Qt::DropAction execDrag(QDrag* drag);

private:
    void buildEntries();
    QPushButton* makeButton(const char* objectName, const QString& image, const QString& toolTip);
    void showEntry(int idx, bool highlighted, const char* state);
    void setFavoriteButtonState(const char* state);
    bool isValidIndex(int idx) const;
    bool showToolTip(QEvent* event);
    void moveKeyboardIndex(int idx);
    // The style sheet's focus frame on the keyboard's entry, while the
    // focus came from the keyboard.
    void updateFocusLook();

    QVector<Entry> m_entries;
    QPushButton* m_settingsButton = nullptr;
    QPushButton* m_favoriteButton = nullptr;
    int m_selected = -1;
    int m_hovered = -1;
    bool m_leftPressed = false;
    int m_keyboardIdx = 0;
    bool m_focusVisible = false;
};
