#pragma once

#include "buttonlayoutconfig.h"
#include "hid_comm.h"
#include "keyitemmodel.h"
#include "settings.h"
#include "simulatedkeypad.h"

#include <memory>

// The program's keypad side around a simulated keypad: a fresh settings
// store, the layouts, the key model and the device connection, registered as
// the main window registers them. Call setUp() in a test's init() and
// tearDown() in its cleanup().
class KeypadFixture
{
public:
    void setUp(unsigned short productId = SimulatedKeypad::DefaultProductId);
    void tearDown();
    // The layout in force for the layouts, the model and the connection.
    void useLayout(int layout);

    std::unique_ptr<SimulatedKeypad> keypad;
    std::unique_ptr<Settings> settings;
    std::unique_ptr<ButtonLayoutConfig> layouts;
    std::unique_ptr<KeyItemModel> model;
    std::unique_ptr<Hid_Comm> hid;
};
