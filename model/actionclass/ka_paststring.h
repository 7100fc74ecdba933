#pragma once

#include "keyactionabstr.h"

#include <QString>

// Types a text by pasting it.
class KA_PastString : public KeyActionAbstr
{
    Q_OBJECT
public:
    KeyActionType getActionType() const override;
    bool doAction(int param) override;
    bool isValid() const override;
    void reset() override;

    QString strText;
};
