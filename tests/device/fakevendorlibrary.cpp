#include "fakevendorlibrary.h"

#include <chrono>
#include <cstring>
#include <mutex>
#include <thread>

namespace {
std::mutex mutex;
FakeVendorState state;
} // namespace

extern "C" {

__attribute__((visibility("default"))) FakeVendorState* fakeVendorState()
{
    return &state;
}

__attribute__((visibility("default"))) int vT_USB_open_device(uint16_t vid, uint16_t pid, int)
{
    std::lock_guard<std::mutex> lock(mutex);
    ++state.opens;
    state.openedVid = vid;
    state.openedPid = pid;
    return state.openResult;
}

__attribute__((visibility("default"))) int vT_USB_close_device()
{
    std::lock_guard<std::mutex> lock(mutex);
    ++state.closes;
    return 0;
}

__attribute__((visibility("default"))) int vT_USB_set_screen_brightness(int level, int)
{
    std::lock_guard<std::mutex> lock(mutex);
    state.brightness = level;
    return 0;
}

__attribute__((visibility("default"))) int vT_USB_get_device_serial_number(uint8_t* buffer, int length)
{
    std::strncpy(reinterpret_cast<char*>(buffer), "VENDOR-SERIAL-01", size_t(length));
    return 0;
}

__attribute__((visibility("default"))) int vT_USB_get_FW_infos(uint8_t* buffer, int)
{
    std::memcpy(buffer, "\x01\x02\x03\x04", 4);
    std::strcpy(reinterpret_cast<char*>(buffer + 4), "1.3.0.0");
    return 0;
}

__attribute__((visibility("default"))) int vT_USB_show_image_on_button(int key, const uint8_t* data, int size)
{
    std::lock_guard<std::mutex> lock(mutex);
    ++state.images;
    state.lastImageKey = key;
    state.lastImageSize = size;
    if (size > 0 && size <= int(sizeof state.lastImage))
        std::memcpy(state.lastImage, data, size_t(size));
    return 0;
}

__attribute__((visibility("default"))) int vT_USB_show_logo()
{
    std::lock_guard<std::mutex> lock(mutex);
    ++state.logos;
    return 0;
}

__attribute__((visibility("default"))) int vT_USB_wait_event(uint8_t* buffer, int timeoutMs)
{
    {
        std::lock_guard<std::mutex> lock(mutex);
        if (state.eventPending) {
            state.eventPending = false;
            std::memcpy(buffer, state.event, 8);
            return state.eventResult;
        }
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(timeoutMs / 10));
    return 7;
}

__attribute__((visibility("default"))) int vT_USB_update_FW(const uint8_t*, int size, int flag)
{
    std::lock_guard<std::mutex> lock(mutex);
    ++state.firmwareUpdates;
    state.firmwareSize = size;
    state.firmwareFlag = flag;
    return state.firmwareResult;
}
}
