#pragma once

#include "keyitemform.h"

class MacroEditor;

// A macro key: the key downs and ups it plays.
class MacroForm : public KeyItemForm
{
    Q_OBJECT
public:
    MacroForm(KeyItemEditor* editor, QWidget* parent);

    MacroEditor* macroEditor() const;

protected:
    void refreshFields(const KeyItem& item) override;

private:
    MacroEditor* m_steps = nullptr;
};
