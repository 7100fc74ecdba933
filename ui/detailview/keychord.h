#pragma once

#include <QCoreApplication>
#include <QMetaType>
#include <QString>

class KA_HotKey;

// One key chord as a hotkey stores it: four modifiers and a key, the key as
// a Windows virtual-key code (the portable form) with the Qt key it was
// recorded as.
class KeyChord
{
    Q_DECLARE_TR_FUNCTIONS(KeyChord)

public:
    bool keyCmd = false;    // Super
    bool keyOption = false; // Alt
    bool keyCtrl = false;
    bool keyShift = false;
    int qtKeyCode = -1;
    int nativeCode = -1;

    static KeyChord fromHotKey(const KA_HotKey& hotKey);
    void applyTo(KA_HotKey* hotKey) const;

    // Neither a key nor a modifier.
    bool isEmpty() const;
    // A key is set; modifiers alone type nothing.
    bool hasKey() const;

    Qt::KeyboardModifiers modifiers() const;
    void setModifiers(Qt::KeyboardModifiers modifiers);

    // "Ctrl+Alt+T" with the key names of the user's layout and the modifier
    // names of the user's language; modifiers alone end in "+"; empty for an
    // empty chord.
    QString text() const;

    bool operator==(const KeyChord& other) const;
    bool operator!=(const KeyChord& other) const { return !(*this == other); }
};

Q_DECLARE_METATYPE(KeyChord)
