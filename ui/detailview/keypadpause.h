#pragma once

#include <QPointer>

class Hid_Comm;

// Holds the keypad's key reports back while a dialog of the editor is open:
// a key pressed meanwhile must not type into the dialog or start an action
// behind it. Pauses nest; the keypad resumes when the last one ends.
class KeypadPause
{
public:
    KeypadPause();
    ~KeypadPause();
    KeypadPause(const KeypadPause&) = delete;
    KeypadPause& operator=(const KeypadPause&) = delete;

private:
    QPointer<Hid_Comm> m_hid;
};
