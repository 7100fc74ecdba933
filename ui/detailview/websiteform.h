#pragma once

#include "keyitemform.h"

class QLineEdit;
class QPushButton;

// A website key: the address it opens.
class WebsiteForm : public KeyItemForm
{
    Q_OBJECT
public:
    WebsiteForm(KeyItemEditor* editor, QWidget* parent);

    QLineEdit* addressField() const;
    QPushButton* bookmarkButton() const;

protected:
    void refreshFields(const KeyItem& item) override;

private:
    void chooseBookmark();

    QLineEdit* m_address = nullptr;
    QPushButton* m_bookmark = nullptr;
};
