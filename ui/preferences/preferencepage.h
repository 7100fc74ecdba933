#pragma once

#include <QString>
#include <QWidget>

// One page of the preference dialog. A page that runs something which must
// not be cut short (a firmware update, a download) refuses to let the
// dialog close, or the program quit, and says why.
class PreferencePage : public QWidget
{
    Q_OBJECT
public:
    using QWidget::QWidget;

    // The page's name in the dialog's list.
    virtual QString title() const = 0;
    // False while the page must stay open; why then holds the reason, translated.
    virtual bool canClose(QString& why) const
    {
        Q_UNUSED(why)
        return true;
    }
};
