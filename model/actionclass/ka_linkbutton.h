#pragma once

#include "keyactionabstr.h"

// The back key in the last position of every folder page.
class KA_LinkButton : public KeyActionAbstr
{
    Q_OBJECT
public:
    KeyActionType getActionType() const override;
    bool doAction(int param) override;
    bool isValid() const override;
    void reset() override;
};
