#pragma once

#include "marcokeyitem.h"

#include <QList>
#include <QString>

class KeyChord;

// Macro steps made from something other than a recording.
class StepBuilder
{
public:
    // The presses and releases that type the text on a US keyboard: each
    // character by the key at its place there, with Shift around it where a
    // US keyboard needs Shift; a line break is Enter. Characters a US
    // keyboard cannot type are left out and listed in skipped, each once.
    static QList<MarcoKeyItem> fromText(const QString& text, QString* skipped = nullptr);

    // The steps that type a chord as a hotkey does: Super, Alt, Ctrl, Shift
    // and the key down, then up in reverse; empty for a chord without a key.
    static QList<MarcoKeyItem> fromChord(const KeyChord& chord);

    static MarcoKeyItem step(int virtualKey, bool press);
};
