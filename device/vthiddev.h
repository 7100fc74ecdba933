#pragma once

#include "keypadprotocol.h"

#include <QByteArray>
#include <QtGlobal>

#include <cstdint>
#include <functional>

// The key states read from the keypad: byte n is 1 while key n is held down.
struct KEYBUTTON_DATA
{
    uint8_t key[KeypadProtocol::KeyStateBits];
};

// Result codes of the device operations.
enum VTHidResult : int
{
    Err_Success = 0,
    Err_Failure = -1,       // a report went out short, or the device answered wrongly
    Err_ParamInvalid = -5,  // image too large, no key buffer, or an input report that is not a key report
    Err_FileOpen = -6,      // the firmware file cannot be opened
    Err_NoDevice = -8,      // nothing is open
    Err_DeviceOpen = -9,    // hidapi failed to start or open, or a read failed (the device is closed then)
    Err_NotSupported = -12, // the keypad has no such operation
    Err_Timeout = -13,      // no input report arrived in time
    Err_NoMemory = -14,     // no memory for the firmware copy
};

// How far a firmware upgrade got: steps done of all steps (data chunks sent,
// or boot loader pages acknowledged). Called on the thread that runs the
// upgrade, once with 0 before the first step and once after each step.
using FirmwareProgress = std::function<void(int done, int total)>;

// The keypad protocol: every device operation as the reports that carry it.
// All objects share one process-wide device handle, so calls must come from
// one thread at a time; Hid_Comm serialises them. The operations are exported
// from the executable so that tools can drive a keypad through them.
class Q_DECL_EXPORT VTHidDev
{
public:
    // Images must be smaller than this many bytes.
    static constexpr int MaxImageSize = 16367;

    int vT_DeviceOpen(unsigned vid, unsigned pid);
    int vT_DeviceClose();
    bool vT_getDeviceInfo(int& vid, int& pid) const;

    int vT_WriteImage(uint8_t key, const uint8_t* data, int size);
    int vT_WriteImageNUC442(uint8_t key, const uint8_t* data, int size);
    int vT_SetBacklight(int level);
    int vT_GetBacklight(int* level);
    int vT_ReadSerialNo(uint8_t* serialNumber16);
    int vT_WriteSerialNo(const uint8_t* serialNumber16);
    int vT_ReadFirmwareVersion(uint8_t* version12);
    int vT_ReadKeyButtonTimeout(KEYBUTTON_DATA* keys, int timeoutMs);
    int vT_ShowLogo();

    int vT_FirmwareUpgrade(const char* path);
    int vT_FirmwareUpgrade(const QByteArray& image);
    int vT_FirmwareUpgradeNUC442(const QByteArray& image);

    // Told about the steps of every firmware upgrade until replaced; an empty
    // function tells nobody. Set it under the same lock as the upgrade calls.
    void setFirmwareProgress(FirmwareProgress progress);

    // True while the shared handle is open (whichever object opened it).
    static bool isDeviceOpen();

    // The protocol's pauses: at least this long, never shorter, as the
    // keypad tolerates no shorter gap.
    static void delayMs(int milliseconds);

    unsigned vid = 0;
    unsigned pid = 0;

private:
    int writeImage(uint8_t key, const uint8_t* data, int size, bool smallPackets);
    int sendLargeChunks(const uint8_t* data, int size, bool firmware = false);
    int sendSmallChunks(const uint8_t* data, int size);
    int sendChunk(const uint8_t* data, uint32_t offset, uint32_t length, int reportLength);
    int sendFeature(const uint8_t* report, int length);
    int sendShowImage(uint8_t key, int size);
    int sendClearKey(uint8_t key);
    int sendFirmwareCommit(const QByteArray& image, uint32_t checksum);
    int sendBootLoaderPage(const QByteArray& body, int page);
    int sendBootLoaderControl(uint16_t page, uint16_t marker);
    bool bootLoaderAcknowledged();
    int readFeature(uint8_t reportId, uint8_t* buffer, int length, const char* method, int expected);
    void reportProgress(int done, int total) const;

    FirmwareProgress firmwareProgress;

    uint8_t inputReport[KeypadProtocol::InputReportSize] = {};
};
