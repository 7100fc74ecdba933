#include "stepbuilder.h"

#include "keychord.h"
#include "virtualkeytable.h"

namespace {

constexpr int VirtualShift = 0x10;

// The characters a US keyboard types with Shift, and beside each the
// character of the same key without it.
const QLatin1String ShiftedCharacters("~!@#$%^&*()_+{}|:\"<>?");
const QLatin1String UnshiftedCharacters("`1234567890-=[]\\;',./");

// The virtual key that types a character on a US keyboard, and whether
// Shift is needed; 0 when no key does.
int usKeyOf(QChar character, bool* shift)
{
    *shift = false;
    if (character == QLatin1Char('\n'))
        return 0x0D;
    if (character == QLatin1Char('\t'))
        return 0x09;
    const ushort code = character.unicode();
    if (code < 0x20 || code > 0x7E)
        return 0;
    if (code >= 'A' && code <= 'Z') {
        *shift = true;
        return code;
    }
    const int shifted = ShiftedCharacters.indexOf(character);
    if (shifted >= 0) {
        *shift = true;
        character = UnshiftedCharacters.at(shifted);
    }
    // Without Shift a key types its own keysym, which for these characters is
    // the character code.
    return VirtualKeyTable::virtualKeyFromKeysym(character.unicode());
}

} // namespace

MarcoKeyItem StepBuilder::step(int virtualKey, bool press)
{
    MarcoKeyItem item;
    item.qtKeyCode = VirtualKeyTable::qtKey(virtualKey);
    item.nativeKeyCode = quint16(virtualKey);
    item.isPress = press;
    return item;
}

QList<MarcoKeyItem> StepBuilder::fromText(const QString& text, QString* skipped)
{
    QList<MarcoKeyItem> steps;
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (const uint codePoint : lines.toUcs4()) {
        bool shift = false;
        const int key = codePoint < 0x10000 ? usKeyOf(QChar(char16_t(codePoint)), &shift) : 0;
        if (key == 0) {
            const QString character = QString::fromUcs4(&codePoint, 1);
            if (skipped && !skipped->contains(character))
                skipped->append(character);
            continue;
        }
        if (shift)
            steps << step(VirtualShift, true);
        steps << step(key, true) << step(key, false);
        if (shift)
            steps << step(VirtualShift, false);
    }
    return steps;
}

QList<MarcoKeyItem> StepBuilder::fromChord(const KeyChord& chord)
{
    if (!chord.hasKey())
        return {};
    QList<int> keys;
    if (chord.keyCmd)
        keys << 0x5B;
    if (chord.keyOption)
        keys << 0x12;
    if (chord.keyCtrl)
        keys << 0x11;
    if (chord.keyShift)
        keys << VirtualShift;
    QList<MarcoKeyItem> steps;
    for (const int key : qAsConst(keys))
        steps << step(key, true);
    MarcoKeyItem press = step(chord.nativeCode, true);
    if (chord.qtKeyCode > 0)
        press.qtKeyCode = chord.qtKeyCode;
    MarcoKeyItem release = press;
    release.isPress = false;
    steps << press << release;
    for (int i = keys.size() - 1; i >= 0; --i)
        steps << step(keys.at(i), false);
    return steps;
}
