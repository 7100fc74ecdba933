#include "uinputdevice.h"

UinputDevice::~UinputDevice() = default;
