#include "keygridcontextmenu.h"

#include "widgetlook.h"

#include <QAction>
#include <QIcon>

KeyGridContextMenu::KeyGridContextMenu(QWidget* parent) : QMenu(parent)
{
    addEntry(this, NewFolder, tr("&New Folder"), QStringLiteral("dsp_folder"));
    m_folderSeparator = addSeparator();
    m_createActions = addMenu(tr("&Create Actions"));
    addEntry(m_createActions, CreateHotkey, tr("&Hotkey"), QStringLiteral("dsp_hotkey"));
    addEntry(m_createActions, CreateMacro, tr("&Macro"), QStringLiteral("dsp_macro"));
    //: The action that starts a program or opens a file (a verb, as in the action palette).
    addEntry(m_createActions, CreateLaunch, tr("&Launch"), QStringLiteral("dsp_launch"));
    addEntry(m_createActions, CreateWebsite, tr("&Website"), QStringLiteral("dsp_website"));
    addEntry(m_createActions, CreateTextString, tr("&Text String"), QStringLiteral("dsp_textstring"));
    addEntry(this, Cut, tr("&Cut"), QString());
    addEntry(this, Copy, tr("&Copy"), QString());
    addEntry(this, Delete, tr("&Delete"), QString());
    addEntry(this, Paste, tr("&Paste"), QString());
    m_favoriteSeparator = addSeparator();
    addEntry(this, SaveAsFavorite, tr("&Save as favorite"), QStringLiteral("icn_fav"));
    setKeyIdx(-1);
}

QAction* KeyGridContextMenu::addEntry(QMenu* menu, Entry entry, const QString& text, const QString& iconName)
{
    QAction* action = menu->addAction(text);
    // A missing image gives a null icon: the entry still works.
    if (!iconName.isEmpty())
        action->setIcon(QIcon(WidgetLook::imagePath(iconName)));
    m_actions[entry] = action;
    return action;
}

QAction* KeyGridContextMenu::action(Entry entry) const
{
    return entry >= 0 && entry < EntryCount ? m_actions[entry] : nullptr;
}

bool KeyGridContextMenu::isShown(Entry entry) const
{
    QAction* entryAction = action(entry);
    if (!entryAction || !entryAction->isVisible())
        return false;
    const bool inSubmenu = entry >= CreateHotkey && entry <= CreateTextString;
    return !inSubmenu || m_createActions->menuAction()->isVisible();
}

QMenu* KeyGridContextMenu::createActionsMenu() const
{
    return m_createActions;
}

void KeyGridContextMenu::showEntriesFor(const Situation& situation)
{
    const bool newFolder = situation.emptyKey && situation.topLevel;
    m_actions[NewFolder]->setVisible(newFolder);
    m_folderSeparator->setVisible(newFolder);
    m_createActions->menuAction()->setVisible(situation.emptyKey);
    const bool occupied = !situation.emptyKey;
    for (Entry entry : {Cut, Copy, Delete, SaveAsFavorite})
        m_actions[entry]->setVisible(occupied);
    m_favoriteSeparator->setVisible(occupied);
    m_actions[Paste]->setVisible(situation.clipboardHoldsItem && !situation.folderKey);
}

void KeyGridContextMenu::setKeyIdx(int keyIdx)
{
    setProperty(KeyIdxProperty, keyIdx);
}

int KeyGridContextMenu::keyIdx() const
{
    bool ok = false;
    const int idx = property(KeyIdxProperty).toInt(&ok);
    return ok ? idx : -1;
}

KeyGridContextMenu::Entry KeyGridContextMenu::entryForShortcut(int qtKey)
{
    switch (qtKey) {
    case Qt::Key_N:
        return NewFolder;
    case Qt::Key_K:
        return CreateHotkey;
    case Qt::Key_M:
        return CreateMacro;
    case Qt::Key_L:
        return CreateLaunch;
    case Qt::Key_W:
        return CreateWebsite;
    case Qt::Key_T:
        return CreateTextString;
    case Qt::Key_X:
        return Cut;
    case Qt::Key_C:
        return Copy;
    case Qt::Key_V:
        return Paste;
    case Qt::Key_D:
        return SaveAsFavorite;
    default:
        return EntryCount;
    }
}
