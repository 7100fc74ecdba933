#pragma once

#include <QMenu>

class QActionGroup;

// The keypad layouts to choose from, one checkable entry each, offered by the
// palette's Settings button until the preference dialog takes this over.
class LayoutMenu : public QMenu
{
    Q_OBJECT
public:
    explicit LayoutMenu(QWidget* parent = nullptr);

    // "15 keys, vertical": how a layout is named to the user.
    static QString layoutText(int layout);

    // Ticks the entry of the layout in force (none for an invalid value).
    void setCurrentLayout(int layout);
    int checkedLayout() const;
    QAction* layoutAction(int layout) const;

signals:
    void layoutChosen(int layout);

private:
    QActionGroup* m_group = nullptr;
};
