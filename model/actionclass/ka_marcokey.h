#pragma once

#include "keyactionabstr.h"
#include "marcokeyitem.h"

#include <QList>

// A recorded sequence of key presses and releases.
class KA_MarcoKey : public KeyActionAbstr
{
    Q_OBJECT
public:
    KeyActionType getActionType() const override;
    bool doAction(int param) override;
    bool isValid() const override;
    void reset() override;

    QList<MarcoKeyItem> marcoKeyItemList;
};
