#pragma once

#include "keyactionabstr.h"

// One key chord: up to four modifiers and a key. The only action with two
// features (toggling on successive presses).
class KA_HotKey : public KeyActionAbstr
{
    Q_OBJECT
public:
    explicit KA_HotKey(KeyItem* owner);

    void copyFrom(const KA_HotKey& src);

    KeyActionType getActionType() const override;
    bool doAction(int param) override;
    bool isValid() const override;
    void reset() override;

    bool keyCmd = false;    // Super
    bool keyOption = false; // Alt
    bool keyCtrl = false;
    bool keyShift = false;
    int qtKeyCode = -1;
    int nativeCode = -1; // Windows virtual-key code on every platform
    KeyItem* owner = nullptr;
};
