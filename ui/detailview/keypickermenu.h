#pragma once

#include <QMenu>

// The keys many keyboards lack (media, volume, browser, launchers, F13 to
// F24, Print and the like) and the keys a recorder keeps for itself (Esc,
// Backspace), to be chosen by name.
class KeyPickerMenu : public QMenu
{
    Q_OBJECT

public:
    explicit KeyPickerMenu(QWidget* parent = nullptr);

    // The virtual keys offered, in menu order.
    static QVector<int> offeredKeys();

signals:
    void keyChosen(int virtualKey);

private:
    void fill();
    void addKey(QMenu* menu, int virtualKey);
};
