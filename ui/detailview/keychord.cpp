#include "keychord.h"

#include "ka_hotkey.h"
#include "keymapping.h"

#include <QStringList>

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
    hotKey->keyCmd = keyCmd;
    hotKey->keyOption = keyOption;
    hotKey->keyCtrl = keyCtrl;
    hotKey->keyShift = keyShift;
    hotKey->qtKeyCode = qtKeyCode;
    hotKey->nativeCode = nativeCode;
}

bool KeyChord::isEmpty() const
{
    return !hasKey() && modifiers() == Qt::NoModifier;
}

bool KeyChord::hasKey() const
{
    return nativeCode != -1;
}

Qt::KeyboardModifiers KeyChord::modifiers() const
{
    Qt::KeyboardModifiers result;
    result.setFlag(Qt::MetaModifier, keyCmd);
    result.setFlag(Qt::AltModifier, keyOption);
    result.setFlag(Qt::ControlModifier, keyCtrl);
    result.setFlag(Qt::ShiftModifier, keyShift);
    return result;
}

void KeyChord::setModifiers(Qt::KeyboardModifiers modifiers)
{
    keyCmd = modifiers.testFlag(Qt::MetaModifier);
    keyOption = modifiers.testFlag(Qt::AltModifier);
    keyCtrl = modifiers.testFlag(Qt::ControlModifier);
    keyShift = modifiers.testFlag(Qt::ShiftModifier);
}

QString KeyChord::text() const
{
    // Qt's own names and order for the modifiers, so "Strg" in German.
    QStringList parts;
    if (keyCtrl)
        parts << QCoreApplication::translate("QShortcut", "Ctrl");
    if (keyOption)
        parts << QCoreApplication::translate("QShortcut", "Alt");
    if (keyShift)
        parts << QCoreApplication::translate("QShortcut", "Shift");
    if (keyCmd)
        parts << tr("Super");
    parts << (hasKey() ? KeyMapping::keyName(nativeCode, qtKeyCode) : QString());
    return parts.size() == 1 ? parts.first() : parts.join(QLatin1Char('+'));
}

bool KeyChord::operator==(const KeyChord& other) const
{
    return keyCmd == other.keyCmd && keyOption == other.keyOption && keyCtrl == other.keyCtrl &&
           keyShift == other.keyShift && qtKeyCode == other.qtKeyCode && nativeCode == other.nativeCode;
}
