#pragma once

#include "keyitemform.h"

class QPlainTextEdit;

// A text key: the text it types.
class TextStringForm : public KeyItemForm
{
    Q_OBJECT
public:
    TextStringForm(KeyItemEditor* editor, QWidget* parent);

    QPlainTextEdit* textField() const;

protected:
    void refreshFields(const KeyItem& item) override;

private:
    QPlainTextEdit* m_text = nullptr;
};
