// Placeholder until the real widget lands: the chord type of the hotkey
// recorder, with just enough behaviour for the forms and their tests.
#pragma once

#include <QString>

class KA_HotKey;

struct KeyChord
{
    bool keyCmd = false, keyOption = false, keyCtrl = false, keyShift = false;
    int qtKeyCode = -1;
    int nativeCode = -1;

    static KeyChord fromHotKey(const KA_HotKey& hotKey);
    void applyTo(KA_HotKey* hotKey) const;
    bool isEmpty() const;
    QString text() const;
};
