#pragma once

#include "keyactiontype.h"

#include <QObject>

class KeyItem;

// What one feature slot of a key does. A key item owns one object per slot,
// both of the class its action type calls for.
class KeyActionAbstr : public QObject
{
    Q_OBJECT
public:
    // The object for a type: null (with a log line) for an unknown type.
    static KeyActionAbstr* newActionObject(KeyItem* owner, KeyActionType type);

    ~KeyActionAbstr() override;

    // Copies nothing: key items copy their actions with copyKeyAction.
    virtual KeyActionAbstr& operator=(const KeyActionAbstr& other);
    // The foreground-application check of folder conditions.
    virtual bool doAction();
    // The key press.
    virtual bool doAction(int param);
    virtual KeyActionType getActionType() const = 0;
    virtual bool isFolder() const;
    virtual void auxAction();
    // Whether the action is configured enough to run.
    virtual bool isValid() const = 0;
    // Back to unconfigured.
    virtual void reset() = 0;

protected:
    KeyActionAbstr() = default;
};
