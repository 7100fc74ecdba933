#pragma once

#include "focuschain.h"

#include <QObject>

class ActionList;
class FormArea;
class KeyItemGridView;

// The keyboard's way through the editor. Tab and Shift+Tab go from the key
// grid to the palette, the property form, the folder tree and the title bar
// and round again; Enter on a key leads into its form (or to the palette when
// the key has none to fill in); Enter on a palette entry drops it on the
// selected key, or selects it when no key is selected.
class EditorFocus : public QObject
{
    Q_OBJECT
public:
    struct Parts
    {
        KeyItemGridView* grid = nullptr;
        ActionList* palette = nullptr;
        FormArea* form = nullptr;
        QWidget* tree = nullptr;
        QWidget* titleBar = nullptr;
    };

    EditorFocus(const Parts& parts, QObject* parent = nullptr);

    // The window's focusNextPrevChild.
    bool moveFocus(bool next);

private:
    void enterForm();
    void activatePaletteEntry(int actionType);

    Parts m_parts;
    FocusChain m_chain;
};
