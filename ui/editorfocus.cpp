#include "editorfocus.h"

#include "actionlist.h"
#include "formarea.h"
#include "keyitemgridview.h"

EditorFocus::EditorFocus(const Parts& parts, QObject* parent) : QObject(parent), m_parts(parts)
{
    m_chain.setRegions({parts.grid, parts.palette, parts.form, parts.tree, parts.titleBar});
    connect(parts.grid, &KeyItemGridView::formFocusWanted, this, &EditorFocus::enterForm);
    connect(parts.palette, &ActionList::entryActivated, this, &EditorFocus::activatePaletteEntry);
}

bool EditorFocus::moveFocus(bool next)
{
    return m_chain.move(next);
}

void EditorFocus::enterForm()
{
    // An empty key has nothing to fill in: the palette makes something of it.
    if (!m_parts.form->focusFirstControl())
        m_parts.palette->setFocus(Qt::TabFocusReason);
}

void EditorFocus::activatePaletteEntry(int actionType)
{
    if (!m_parts.grid->dropActionOnSelectedKey(actionType))
        m_parts.palette->cancelPreviousAndThenSelectIcon(actionType);
}
