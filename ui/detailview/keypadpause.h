#pragma once

// Drops the keypad's key presses for as long as it lives, so that keys
// pressed while a chooser or file dialog is open do nothing behind it.
// Without a keypad connection it does nothing.
class KeypadPause
{
public:
    KeypadPause();
    ~KeypadPause();
    KeypadPause(const KeypadPause&) = delete;
    KeypadPause& operator=(const KeypadPause&) = delete;
};
