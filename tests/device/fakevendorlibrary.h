#pragma once

#include <cstdint>

// The state of the stand-in for the maker's keypad library, built only for
// the tests. The test reaches the same instance the program loaded by
// resolving fakeVendorState from the same file.
struct FakeVendorState
{
    int opens = 0;
    int closes = 0;
    uint16_t openedVid = 0;
    uint16_t openedPid = 0;
    int brightness = -1;
    int images = 0;
    int lastImageKey = -1;
    int lastImageSize = 0;
    unsigned char lastImage[32768] = {};
    int logos = 0;
    int firmwareUpdates = 0;
    int firmwareSize = 0;
    int firmwareFlag = 0;
    int firmwareResult = 1;
    int openResult = 0;
    // The next event wait_event hands out, and its result code.
    bool eventPending = false;
    int eventResult = 0;
    unsigned char event[8] = {};
};

using FakeVendorStateFn = FakeVendorState* (*)();
