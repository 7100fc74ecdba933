#pragma once

#include "keyactionabstr.h"

#include <QString>

// Launch a program or document, or open a web address: the owner item's
// type tells which.
class KA_Execute : public KeyActionAbstr
{
    Q_OBJECT
public:
    explicit KA_Execute(KeyItem* owner);

    KeyActionType getActionType() const override;
    bool isValid() const override;
    void reset() override;

    QString path;
    KeyItem* owner = nullptr;
};
