#pragma once

#include <QLibrary>
#include <QMutex>
#include <QString>

#include <cstdint>

// The maker's own library for the keypad model with product id 0x110E. It is
// not part of the program: when a shared library exposing the vT_USB_*
// functions is installed ("vT_BD_x64" on the library path) it is loaded at
// run time; otherwise that model is reported as unsupported and left closed.
//
// Every call returns 0 on success and non-zero on failure, except waitEvent,
// which returns the library's event codes (see EventCode).
class VendorDeviceLibrary
{
public:
    static constexpr int EventBufferSize = 8;
    static constexpr int KeyCount = 15;

    enum EventCode
    {
        EventKeys = 0,
        EventParamInvalid = 5,
        EventReadFailure = 6,
        EventNothing = 7,
    };

    // The process-wide library, loaded on first use.
    static VendorDeviceLibrary& instance();
    // Where to look for it; tests point this at a library of their own.
    static void setLibraryName(const QString& name);

    bool isAvailable();

    int openDevice(uint16_t vid, uint16_t pid);
    int closeDevice();
    int setBrightness(int level);
    // Up to the first zero of the serial number text.
    int serialNumber(QString& serial);
    // The version text that starts 4 bytes into the firmware record.
    int firmwareVersion(QString& version);
    int showImage(int key, const QByteArray& encoded);
    int showLogo();
    int waitEvent(uint8_t* buffer, int timeoutMs);
    int updateFirmware(const QByteArray& image);

    // The event buffer: byte 0 holds how many key states follow, bytes 1-2
    // the states as bits, key n at bit n (least significant first).
    static int eventKeyCount(const uint8_t* buffer);
    static bool eventKeyDown(const uint8_t* buffer, int key);

private:
    VendorDeviceLibrary() = default;
    bool load();

    using OpenFn = int (*)(uint16_t, uint16_t, int);
    using VoidFn = int (*)();
    using BrightnessFn = int (*)(int, int);
    using BufferFn = int (*)(uint8_t*, int);
    using ImageFn = int (*)(int, const uint8_t*, int);
    using FirmwareFn = int (*)(const uint8_t*, int, int);

    QMutex mutex;
    QLibrary library;
    bool attempted = false;
    bool loaded = false;
    OpenFn open = nullptr;
    VoidFn close = nullptr;
    BrightnessFn brightness = nullptr;
    BufferFn serial = nullptr;
    BufferFn fwInfos = nullptr;
    ImageFn image = nullptr;
    VoidFn logo = nullptr;
    BufferFn wait = nullptr;
    FirmwareFn update = nullptr;
};
