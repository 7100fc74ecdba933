#include "keypickermenu.h"

#include "keymapping.h"
#include "virtualkeytable.h"

namespace {

// Esc and Backspace alone cancel and clear a recording, so they are chosen
// here instead.
const int RecorderKeys[] = {0x1B, 0x08};

bool isFunctionKey(int virtualKey)
{
    return virtualKey >= 0x70 && virtualKey <= 0x87;
}

// Menu groups by virtual-key range: media, volume, browser, launchers, others.
int groupOf(int virtualKey)
{
    if (virtualKey >= 0xB0 && virtualKey <= 0xB3)
        return 0;
    if (virtualKey >= 0xAD && virtualKey <= 0xAF)
        return 1;
    if (virtualKey >= 0xA6 && virtualKey <= 0xAC)
        return 2;
    if (virtualKey >= 0xB4 && virtualKey <= 0xB7)
        return 3;
    return 4;
}

} // namespace

KeyPickerMenu::KeyPickerMenu(QWidget* parent) : QMenu(parent)
{
    fill();
}

QVector<int> KeyPickerMenu::offeredKeys()
{
    QVector<int> keys = VirtualKeyTable::keysKeyboardsMayLack();
    for (const int key : RecorderKeys)
        keys << key;
    return keys;
}

void KeyPickerMenu::fill()
{
    QMenu* functionKeys = nullptr;
    int group = -1;
    for (const int key : VirtualKeyTable::keysKeyboardsMayLack()) {
        if (isFunctionKey(key)) {
            if (!functionKeys)
                functionKeys = addMenu(tr("F13 to F24"));
            addKey(functionKeys, key);
            continue;
        }
        if (group != -1 && groupOf(key) != group)
            addSeparator();
        group = groupOf(key);
        addKey(this, key);
    }
    addSection(tr("Keys the recorder uses"));
    for (const int key : RecorderKeys)
        addKey(this, key);
}

void KeyPickerMenu::addKey(QMenu* menu, int virtualKey)
{
    QAction* action = menu->addAction(KeyMapping::keyName(virtualKey));
    connect(action, &QAction::triggered, this, [this, virtualKey] { emit keyChosen(virtualKey); });
}
