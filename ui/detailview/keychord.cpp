// Placeholder until the real widget lands.
#include "keychord.h"

#include "ka_hotkey.h"

#include <QKeySequence>

KeyChord KeyChord::fromHotKey(const KA_HotKey& hotKey)
{
    KeyChord chord;
    chord.keyCmd = hotKey.keyCmd;
    chord.keyOption = hotKey.keyOption;
    chord.keyCtrl = hotKey.keyCtrl;
    chord.keyShift = hotKey.keyShift;
    chord.qtKeyCode = hotKey.qtKeyCode;
    chord.nativeCode = hotKey.nativeCode;
    return chord;
}

void KeyChord::applyTo(KA_HotKey* hotKey) const
{
    if (!hotKey)
        return;
    hotKey->keyCmd = keyCmd;
    hotKey->keyOption = keyOption;
    hotKey->keyCtrl = keyCtrl;
    hotKey->keyShift = keyShift;
    hotKey->qtKeyCode = qtKeyCode;
    hotKey->nativeCode = nativeCode;
}

bool KeyChord::isEmpty() const
{
    return nativeCode == -1;
}

QString KeyChord::text() const
{
    if (isEmpty())
        return QString();
    int modifiers = 0;
    modifiers |= keyCtrl ? int(Qt::ControlModifier) : 0;
    modifiers |= keyOption ? int(Qt::AltModifier) : 0;
    modifiers |= keyShift ? int(Qt::ShiftModifier) : 0;
    modifiers |= keyCmd ? int(Qt::MetaModifier) : 0;
    return QKeySequence(qtKeyCode | modifiers).toString(QKeySequence::NativeText);
}
