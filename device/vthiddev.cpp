#include "vthiddev.h"

#include "hidtransport.h"
#include "keypadprotocol.h"
#include "keypadtable.h"

#include <QDebug>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <ctime>
#include <new>
#include <vector>

namespace {

// The one device handle of the process; every VTHidDev works on it.
std::atomic<HidDeviceHandle*> sharedHandle{nullptr};

using namespace KeypadProtocol;

constexpr int KeyReportLength = 1 + KeyStateBits / 8; // id and 64 key bits

// The file overload of the main-model upgrade leaves the file's last 13 bytes
// out of its checksum; the array overload does not. Both are kept as they are.
constexpr int FirmwareFileTrailer = 13;

// hidapi's Linux back ends count the bytes of a feature answer including the
// report id, which is the buffer's length for a complete answer.
constexpr int CompleteAnswerExtra = 0;

void putU16(uint8_t* at, uint16_t value)
{
    at[0] = uint8_t(value);
    at[1] = uint8_t(value >> 8);
}

void putU32(uint8_t* at, uint32_t value)
{
    for (int i = 0; i < 4; ++i)
        at[i] = uint8_t(value >> (8 * i));
}

HidTransport* transport()
{
    return HidTransport::instance();
}

HidDeviceHandle* handle()
{
    return sharedHandle.load();
}

uint32_t byteSum(const char* data, qint64 count)
{
    uint32_t sum = 0;
    for (qint64 i = 0; i < count; ++i)
        sum += uint8_t(data[i]);
    return sum;
}

} // namespace

bool VTHidDev::isDeviceOpen()
{
    return handle() != nullptr;
}

// The keypad takes no shorter gap than asked for; the monotonic clock says
// when the gap is over. The thread sleeps meanwhile rather than spinning:
// Linux's high-resolution timers wake it within tens of microseconds, and a
// spinning thread would burn a core for every image a live key sends.
void VTHidDev::delayMs(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    const qint64 wanted = qint64(milliseconds) * 1000000;
    for (qint64 left = wanted; left > 0; left = wanted - timer.nsecsElapsed()) {
        const timespec pause{time_t(left / 1000000000), long(left % 1000000000)};
        nanosleep(&pause, nullptr);
    }
}

int VTHidDev::vT_DeviceOpen(unsigned vidValue, unsigned pidValue)
{
    if (transport()->init() != 0)
        return Err_DeviceOpen;
    HidDeviceHandle* device = transport()->open(uint16_t(vidValue), uint16_t(pidValue));
    if (!device)
        return Err_DeviceOpen;
    if (HidDeviceHandle* previous = sharedHandle.exchange(device))
        transport()->close(previous);
    vid = vidValue;
    pid = pidValue;
    return Err_Success;
}

int VTHidDev::vT_DeviceClose()
{
    if (HidDeviceHandle* device = sharedHandle.exchange(nullptr))
        transport()->close(device);
    transport()->exit();
    vid = 0;
    return Err_Success;
}

bool VTHidDev::vT_getDeviceInfo(int& vidOut, int& pidOut) const
{
    vidOut = int(vid);
    pidOut = int(pid);
    return vid != 0 && pid != 0;
}

int VTHidDev::sendChunk(const uint8_t* data, uint32_t offset, uint32_t length, int reportLength)
{
    std::vector<uint8_t> report(size_t(reportLength), 0);
    report[0] = DataChunkId;
    putU32(&report[1], offset);
    putU32(&report[5], length);
    putU32(&report[9], ChunkMagic);
    putU32(&report[13], ChunkMagicTail);
    std::memcpy(&report[ChunkHeaderSize], data + offset, length);
    return transport()->write(handle(), report.data(), report.size());
}

// Full 8000-byte chunks, each followed by 2 ms, then the remainder. The
// writes' results are not checked: the show or commit report that follows
// tells whether the device took the object.
int VTHidDev::sendLargeChunks(const uint8_t* data, int size, bool firmware)
{
    const int fullChunks = size / LargeChunkCapacity;
    const int rest = size % LargeChunkCapacity;
    const int chunks = fullChunks + (rest > 0 ? 1 : 0);
    if (firmware)
        reportProgress(0, chunks);
    for (int i = 0; i < fullChunks; ++i) {
        sendChunk(data, uint32_t(i * LargeChunkCapacity), LargeChunkCapacity, LargeChunkReportSize);
        delayMs(2);
        if (firmware)
            reportProgress(i + 1, chunks);
    }
    if (rest > 0) {
        sendChunk(data, uint32_t(fullChunks * LargeChunkCapacity), uint32_t(rest), LargeChunkReportSize);
        delayMs(2);
        if (firmware)
            reportProgress(chunks, chunks);
    }
    return Err_Success;
}

void VTHidDev::setFirmwareProgress(FirmwareProgress progress)
{
    firmwareProgress = std::move(progress);
}

void VTHidDev::reportProgress(int done, int total) const
{
    if (firmwareProgress)
        firmwareProgress(done, total);
}

int VTHidDev::sendSmallChunks(const uint8_t* data, int size)
{
    delayMs(1);
    const int fullChunks = size / SmallChunkCapacity;
    for (int i = 0; i < fullChunks; ++i)
        sendChunk(data, uint32_t(i * SmallChunkCapacity), SmallChunkCapacity, SmallChunkReportSize);
    delayMs(1);
    const int rest = size % SmallChunkCapacity;
    if (rest > 0) {
        sendChunk(data, uint32_t(fullChunks * SmallChunkCapacity), uint32_t(rest), SmallChunkReportSize);
        delayMs(1);
    }
    return Err_Success;
}

int VTHidDev::sendFeature(const uint8_t* report, int length)
{
    return transport()->sendFeatureReport(handle(), report, size_t(length));
}

int VTHidDev::sendShowImage(uint8_t key, int size)
{
    uint8_t report[ImageCommandReportSize] = {ImageCommandId, ShowImageSub};
    putU32(&report[4], key);
    putU32(&report[16], uint32_t(size));
    return sendFeature(report, ImageCommandReportSize) == ImageCommandReportSize ? Err_Success : Err_Failure;
}

int VTHidDev::sendClearKey(uint8_t key)
{
    delayMs(3);
    const uint8_t report[KeyCommandReportSize] = {KeyCommandId, ClearKeySub, key};
    return sendFeature(report, KeyCommandReportSize) == KeyCommandReportSize ? Err_Success : Err_Failure;
}

int VTHidDev::vT_WriteImage(uint8_t key, const uint8_t* data, int size)
{
    return writeImage(key, data, size, false);
}

int VTHidDev::vT_WriteImageNUC442(uint8_t key, const uint8_t* data, int size)
{
    return writeImage(key, data, size, true);
}

// The two image paths differ only in their packet size.
int VTHidDev::writeImage(uint8_t key, const uint8_t* data, int size, bool smallPackets)
{
    if (!handle())
        return Err_NoDevice;
    if (size >= MaxImageSize || size < 0 || (size > 0 && !data))
        return Err_ParamInvalid;
    if (size == 0)
        return sendClearKey(key);
    if (smallPackets)
        sendSmallChunks(data, size);
    else
        sendLargeChunks(data, size);
    return sendShowImage(key, size);
}

int VTHidDev::vT_SetBacklight(int level)
{
    if (!handle())
        return Err_NoDevice;
    const uint8_t report[BacklightReportSize] = {BacklightId, uint8_t(level)};
    return sendFeature(report, BacklightReportSize) == BacklightReportSize ? Err_Success : Err_Failure;
}

int VTHidDev::vT_GetBacklight(int*)
{
    return Err_NotSupported;
}

int VTHidDev::readFeature(uint8_t reportId, uint8_t* buffer, int length, const char* method, int expected)
{
    std::memset(buffer, 0, size_t(length));
    buffer[0] = reportId;
    const int got = transport()->getFeatureReport(handle(), buffer, size_t(length));
    if (got != expected) {
        qDebug() << method << "Err_Failure: extpect write:" << expected << "but:" << got;
        return Err_Failure;
    }
    return Err_Success;
}

int VTHidDev::vT_ReadSerialNo(uint8_t* serialNumber16)
{
    if (!handle())
        return Err_NoDevice;
    uint8_t buffer[SerialReportSize];
    const int result = readFeature(SerialId, buffer, SerialReportSize, "VTHidDev::vT_ReadSerialNo",
                                   SerialReportSize + CompleteAnswerExtra);
    if (result != Err_Success)
        return result;
    std::memcpy(serialNumber16, buffer + 1, SerialNumberLength);
    return Err_Success;
}

int VTHidDev::vT_WriteSerialNo(const uint8_t* serialNumber16)
{
    if (!handle())
        return Err_NoDevice;
    uint8_t report[SerialReportSize] = {SerialId};
    std::memcpy(report + 1, serialNumber16, SerialNumberLength);
    return sendFeature(report, SerialReportSize) == SerialReportSize ? Err_Success : Err_Failure;
}

int VTHidDev::vT_ReadFirmwareVersion(uint8_t* version12)
{
    if (!handle())
        return Err_NoDevice;
    uint8_t buffer[VersionReportSize + 1] = {};
    const int result = readFeature(VersionId, buffer, VersionReportSize, "VTHidDev::vT_ReadFirmwareVersion",
                                   VersionReportSize + CompleteAnswerExtra);
    if (result != Err_Success)
        return result;
    // The text starts at byte 1 and may fill the buffer: the extra zero byte
    // above terminates it either way.
    const char* text = reinterpret_cast<const char*>(buffer + 1);
    const char* dot = std::strchr(text, '.');
    if (!dot)
        return Err_Failure;
    const char* end = reinterpret_cast<const char*>(buffer + sizeof buffer);
    std::memset(version12, 0, 12);
    std::memcpy(version12, dot + 1, size_t(std::min<std::ptrdiff_t>(12, end - (dot + 1))));
    return Err_Success;
}

int VTHidDev::vT_ShowLogo()
{
    if (!handle())
        return Err_NoDevice;
    uint8_t report[ImageCommandReportSize] = {ImageCommandId, ShowLogoSub};
    putU32(&report[4], LogoMarker);
    putU32(&report[8], LogoMarkerTail);
    return sendFeature(report, ImageCommandReportSize) == ImageCommandReportSize ? Err_Success : Err_Failure;
}

int VTHidDev::vT_ReadKeyButtonTimeout(KEYBUTTON_DATA* keys, int timeoutMs)
{
    if (!handle())
        return Err_NoDevice;
    if (!keys)
        return Err_ParamInvalid;
    std::memset(inputReport, 0, sizeof inputReport);
    const int got = transport()->readTimeout(handle(), inputReport, InputReportSize, timeoutMs);
    if (got == 0)
        return Err_Timeout;
    if (got < 0) {
        vT_DeviceClose();
        return Err_DeviceOpen;
    }
    // A key report cut short would leave key bits undefined: refuse it too.
    if (inputReport[0] != KeyStateId || got < KeyReportLength)
        return Err_ParamInvalid;
    for (int n = 0; n < KeyStateBits; ++n)
        keys->key[n] = (inputReport[1 + n / 8] >> (n % 8)) & 1;
    return Err_Success;
}

int VTHidDev::sendFirmwareCommit(const QByteArray& image, uint32_t checksum)
{
    sendLargeChunks(reinterpret_cast<const uint8_t*>(image.constData()), image.size(), true);
    uint8_t report[FirmwareCommitReportSize] = {FirmwareCommitId};
    putU32(&report[1], uint32_t(image.size()));
    putU32(&report[5], checksum);
    return sendFeature(report, FirmwareCommitReportSize) == FirmwareCommitReportSize ? Err_Success : Err_Failure;
}

int VTHidDev::vT_FirmwareUpgrade(const char* path)
{
    if (!handle())
        return Err_NoDevice;
    if (!path)
        return Err_FileOpen;
    QFile file(QFile::decodeName(path));
    if (!file.open(QIODevice::ReadOnly))
        return Err_FileOpen;
    QByteArray image;
    try {
        image = file.readAll();
    } catch (const std::bad_alloc&) {
        return Err_NoMemory;
    }
    const qint64 summed = image.size() - FirmwareHeaderSize - FirmwareFileTrailer;
    const uint32_t checksum = summed > 0 ? byteSum(image.constData() + FirmwareHeaderSize, summed) : 0;
    return sendFirmwareCommit(image, checksum);
}

int VTHidDev::vT_FirmwareUpgrade(const QByteArray& image)
{
    if (!handle())
        return Err_NoDevice;
    const qint64 summed = image.size() - FirmwareHeaderSize;
    const uint32_t checksum = summed > 0 ? byteSum(image.constData() + FirmwareHeaderSize, summed) : 0;
    return sendFirmwareCommit(image, checksum);
}

int VTHidDev::sendBootLoaderControl(uint16_t page, uint16_t marker)
{
    uint8_t report[BootReportSize] = {0x00};
    putU16(&report[1], page);
    putU16(&report[3], marker);
    const int written = transport()->write(handle(), report, sizeof report);
    delayMs(2);
    return written;
}

// One 2048-byte page as four 506-byte packets and one of 24, then the page
// end. A short last page is padded with zeros.
int VTHidDev::sendBootLoaderPage(const QByteArray& body, int page)
{
    for (int offset = 0; offset < BootPageSize; offset += BootDataCapacity) {
        const int length = std::min(BootDataCapacity, BootPageSize - offset);
        uint8_t report[BootReportSize] = {0x00};
        putU16(&report[1], uint16_t(page));
        putU16(&report[3], uint16_t(offset));
        putU16(&report[5], uint16_t(length));
        const int start = page * BootPageSize + offset;
        const int available = std::clamp(body.size() - start, 0, length);
        std::memcpy(&report[7], body.constData() + start, size_t(available));
        transport()->write(handle(), report, sizeof report);
        delayMs(2);
    }
    return sendBootLoaderControl(uint16_t(page), BootPageEndMarker);
}

bool VTHidDev::bootLoaderAcknowledged()
{
    uint8_t answer[InputReportSize] = {};
    const int got = transport()->readTimeout(handle(), answer, sizeof answer, 1000);
    return got >= 2 && answer[0] == AcknowledgeId && answer[1] == AcknowledgeCode;
}

int VTHidDev::vT_FirmwareUpgradeNUC442(const QByteArray& image)
{
    if (!handle())
        return Err_NoDevice;
    const uint8_t enterBootLoader[KeyCommandReportSize] = {KeyCommandId, BootLoaderSub, BootLoaderSub2};
    sendFeature(enterBootLoader, KeyCommandReportSize);
    delayMs(1000);

    // The keypad is gone; its boot loader enumerates as a device of its own.
    if (HidDeviceHandle* keypad = sharedHandle.exchange(nullptr))
        transport()->close(keypad);
    if (transport()->init() != 0)
        return Err_DeviceOpen;
    HidDeviceHandle* bootLoader = transport()->open(KeypadTable::VendorId, KeypadTable::BootLoaderProductId);
    if (!bootLoader)
        return Err_DeviceOpen;
    sharedHandle.store(bootLoader);
    vid = KeypadTable::VendorId;
    pid = KeypadTable::BootLoaderProductId;

    const QByteArray body = image.mid(FirmwareHeaderSize);
    const int pages = (body.size() + BootPageSize - 1) / BootPageSize;
    reportProgress(0, pages);
    for (int page = 0; page < pages; ++page) {
        sendBootLoaderPage(body, page);
        if (!bootLoaderAcknowledged())
            return Err_Failure;
        reportProgress(page + 1, pages);
        delayMs(100);
    }
    sendBootLoaderControl(0, BootFinishMarker);
    delayMs(1000);
    return Err_Success;
}
