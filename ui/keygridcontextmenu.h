#pragma once

#include <QMenu>

class QAction;

// The key grid's context menu. Which entries show depends on the key it was
// opened for; the grid decides that and reads the menu's "keyIdx" property
// in its handlers, so the same actions serve the keyboard shortcuts.
class KeyGridContextMenu : public QMenu
{
    Q_OBJECT
public:
    enum Entry
    {
        NewFolder,
        CreateHotkey,
        CreateMacro,
        CreateLaunch,
        CreateWebsite,
        CreateTextString,
        Cut,
        Copy,
        Delete,
        Paste,
        SaveAsFavorite,
        EntryCount,
    };

    // What the entries depend on.
    struct Situation
    {
        bool emptyKey = false;
        bool folderKey = false;
        bool topLevel = true;
        bool clipboardHoldsItem = false;
    };

    static constexpr char KeyIdxProperty[] = "keyIdx";

    explicit KeyGridContextMenu(QWidget* parent = nullptr);

    QAction* action(Entry entry) const;
    // Visible as the menu shows it now: the create entries only with their submenu.
    bool isShown(Entry entry) const;
    QMenu* createActionsMenu() const;
    void showEntriesFor(const Situation& situation);
    void setKeyIdx(int keyIdx);
    int keyIdx() const;

    // The entry a Ctrl+letter shortcut stands for; EntryCount for none.
    static Entry entryForShortcut(int qtKey);

private:
    QAction* addEntry(QMenu* menu, Entry entry, const QString& text, const QString& iconName);

    QAction* m_actions[EntryCount] = {};
    QMenu* m_createActions = nullptr;
    QAction* m_folderSeparator = nullptr;
    QAction* m_favoriteSeparator = nullptr;
};
