#pragma once

// Consulted by KeyAction before it handles a key event, on the key action
// thread: a filter may take an event for itself (the press that wakes a
// dimmed keypad, and its release), which is then not performed.
class KeyEventFilter
{
public:
    virtual ~KeyEventFilter() = default;

    // True: the event is taken and KeyAction does nothing with it.
    virtual bool takeKeyPress(int devKeyId) = 0;
    virtual bool takeKeyRelease(int devKeyId) = 0;
};
