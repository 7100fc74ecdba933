#pragma once

#include <QLineEdit>
#include <QRegularExpression>

class QAbstractItemView;

// The search field of a chooser: typing filters the list, and the keys that
// move through a list (Up, Down, Page Up, Page Down) move through it from
// here, so the hands never leave the field before Enter.
class ChooserSearchField : public QLineEdit
{
    Q_OBJECT
public:
    explicit ChooserSearchField(QWidget* parent = nullptr);

    void setView(QAbstractItemView* view) { m_view = view; }

    // Every word of the text, in any order and case: "edit text" finds
    // "Text Editor".
    static QRegularExpression pattern(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QAbstractItemView* m_view = nullptr;
};
