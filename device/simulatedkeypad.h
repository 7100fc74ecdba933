#pragma once

#include "hidtransport.h"
#include "keypadprotocol.h"
#include "keypadtable.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QImage>
#include <QList>
#include <QMap>
#include <QMutex>
#include <QObject>
#include <QQueue>
#include <QVector>
#include <QWaitCondition>

#include <array>
#include <deque>
#include <functional>
#include <memory>
#include <vector>

// A keypad made of software: the device end of the keypad's HID protocol,
// installed in place of hidapi with HidTransport::setInstance. The tests, the
// benchmarks and the editor's on-screen virtual keypad drive the program's
// real protocol code against it.
//
// It answers the way hidapi's libusb back end does on Linux: every byte count
// includes the report id; a get-feature call returns the length of the answer
// it copied (the requested length when the answer is complete, shorter when
// the buffer is larger than the report); a read returns 0 on timeout; any
// failure is -1. A report the device does not understand is counted as an
// error (errorCount, lastError) and logged, never a crash or a hang.
//
// Its firmware, as far as the host can tell: reports must have their exact
// lengths, or the transfer fails (-1, as a stall would). A 0x02 chunk at
// offset 0 begins a new object; a commit takes the object only when exactly
// the declared number of bytes arrived, and an image only when it decodes
// (BMP or JPEG). Only the NUC442 models (0x1F43, 0x1F42) have the boot loader;
// it acknowledges a page only when all of its 2048 bytes arrived. Entering or
// leaving the boot loader and unplugging reset the device: the display goes
// dark (no images, no logo, backlight -1).
//
// Threads: every call is safe from any thread. The program reads from its
// polling thread while the GUI thread writes, and a virtual keypad window
// presses keys from the GUI thread. Signals are emitted from the thread that
// caused the change, never while the internal lock is held, so receivers may
// call back into the keypad; connect them queued (or auto) across threads.
//
// Handles: every successful open() gives a new handle. A handle belongs to
// one enumeration of the device: it dies (calls give -1) when the keypad is
// unplugged, switches to its boot loader or comes back from it, or changes its
// product id; only close() frees it. Input reports are collected while at
// least one live handle is open, in one queue shared by all handles, at most
// InputQueueLimit of them (the oldest is dropped first), as hidapi does.
//
// Destroy it only when no call is in progress; a keypad destroyed while still
// installed as the transport puts hidapi back.
class SimulatedKeypad : public QObject, public HidTransport
{
    Q_OBJECT

public:
    static constexpr unsigned short VendorId = KeypadTable::VendorId;
    static constexpr unsigned short DefaultProductId = 0x1F41;
    static constexpr unsigned short BootLoaderProductId = KeypadTable::BootLoaderProductId;
    static constexpr int DefaultWedgeTimeoutMs = 1000;
    static constexpr int DefaultReportLogLimit = 1024;
    static constexpr int InputQueueLimit = 30;
    static constexpr int KeyCount = KeypadProtocol::KeyStateBits;
    static constexpr int SerialNumberLength = KeypadProtocol::SerialNumberLength;
    static constexpr int BootPageSize = KeypadProtocol::BootPageSize;

    // What the device made of one report. Output and feature reports are
    // logged when they arrive, input reports when a read hands them out.
    enum class ReportKind
    {
        DataChunkLarge,  // output 0x02, 8017 bytes
        DataChunkSmall,  // output 0x02, 512 bytes
        ShowImage,       // feature 0x12 sub 1
        ShowLogo,        // feature 0x12 sub 2
        Backlight,       // feature 0x11
        FirmwareCommit,  // feature 0x13
        ClearKey,        // feature 0x14 0xAC
        EnterBootLoader, // feature 0x14 0xDC 0xCD
        WriteSerial,     // feature 0x17
        ReadVersion,     // get feature 0x10
        ReadSerial,      // get feature 0x17
        BootPageData,    // boot loader output 0x00, page data
        BootPageEnd,     // boot loader output 0x00, offset field 0xFF00
        BootFinish,      // boot loader output 0x00, offset field 0xFE00
        KeyState,        // input 0x01
        PageAcknowledge, // input 0x02 0xB1
        RawInput,        // input queued with queueRawInputReport
        Unknown,         // anything the device did not understand
        Count
    };

    struct Report
    {
        ReportKind kind = ReportKind::Unknown;
        QByteArray bytes;
        qint64 nsecs = 0; // monotonic, from the keypad's construction
    };

    // The last 0x13 commit as the host sent it, next to what the device saw.
    struct FirmwareCommitRecord
    {
        bool committed = false;
        QByteArray object;            // the reassembled 0x02 chunks
        quint32 declaredSize = 0;     // bytes 1-4 of the commit
        quint32 declaredChecksum = 0; // bytes 5-8 of the commit
        quint32 computedChecksum = 0; // sum of the object's bytes from 64 on
        bool checksumMatches = false; // computed == declared
        bool sizeMatches = false;     // object size == declared
    };

    explicit SimulatedKeypad(unsigned short productId = DefaultProductId, QObject* parent = nullptr);
    ~SimulatedKeypad() override;

    // HidTransport
    int init() override;
    int exit() override;
    HidDeviceHandle* open(unsigned short vendorId, unsigned short productId) override;
    void close(HidDeviceHandle* device) override;
    int write(HidDeviceHandle* device, const unsigned char* data, size_t length) override;
    int readTimeout(HidDeviceHandle* device, unsigned char* data, size_t length, int milliseconds) override;
    int sendFeatureReport(HidDeviceHandle* device, const unsigned char* data, size_t length) override;
    int getFeatureReport(HidDeviceHandle* device, unsigned char* data, size_t length) override;
    QString error(HidDeviceHandle* device) override;

    // Enumeration. Another product id is another keypad: open handles die.
    unsigned short productId() const;
    void setProductId(unsigned short productId);
    bool hasBootLoader() const; // the NUC442 models
    bool isPluggedIn() const;
    // Unplugging also blanks the display and leaves the boot loader; the
    // keypad comes back under its normal product id and needs a new open.
    void unplug();
    void plugIn();
    // Present on the bus, but open() fails as without access to the node.
    void setPermissionDenied(bool denied);
    int initCount() const;
    int exitCount() const;
    int openHandleCount() const; // live handles

    // A wedged keypad: writes and feature calls block for the wedge timeout
    // and give -1, as libusb's transfer timeout does; reads time out.
    void setWedged(bool wedged);
    bool isWedged() const;
    void setWedgeTimeoutMs(int milliseconds);
    int wedgedCallCount() const;

    // Keys, 0-based bit positions 0..63. Each call queues one 0x01 report
    // with the whole key mask, changed or not.
    void pressKey(int index);
    void releaseKey(int index);
    void setKeyMask(quint64 mask);
    quint64 keyMask() const;
    void queueRawInputReport(const QByteArray& report);
    int pendingInputReports() const;

    // What the keypad shows. An empty key has a null image and no bytes.
    QImage keyImage(int deviceKey) const;
    QByteArray keyImageBytes(int deviceKey) const;
    QList<int> keysWithImages() const;
    int backlight() const; // -1 until the host sets it
    bool isLogoShown() const;
    int logoCount() const;

    // Answers to the host's get-feature requests.
    QByteArray firmwareVersionText() const;
    void setFirmwareVersionText(const QByteArray& text);
    QByteArray serialNumber() const;
    void setSerialNumber(const QByteArray& serial); // padded or cut to 16 bytes

    // Firmware
    FirmwareCommitRecord firmwareCommit() const;
    bool isInBootLoader() const;
    // Withholds the acknowledgement of that page (-1: acknowledge every page).
    void failAcknowledgeAtPage(int page);
    QList<int> acknowledgedPages() const;
    // The pages of the last finished boot loader session, in page order.
    QByteArray flashedFirmware() const;

    // Inspection of the traffic: the last reports (bounded), counters of all.
    QVector<Report> reports() const;
    QVector<Report> reports(ReportKind kind) const;
    int reportCount(ReportKind kind) const;
    void clearReports(); // the log and the counters
    void setReportLogLimit(int limit);
    int errorCount() const;
    QString lastError() const;

signals:
    void keyImageChanged(int deviceKey);
    void backlightChanged(int level);
    void logoShown();
    void connectionChanged(bool pluggedIn);
    void bootLoaderChanged(bool active);
    void firmwareFlashed();

private:
    struct Handle
    {
        quint64 enumeration = 0;
    };
    struct QueuedInput
    {
        ReportKind kind = ReportKind::Unknown;
        QByteArray bytes;
    };
    // Signals to emit once the lock is released.
    using Notices = QVector<std::function<void()>>;

    // Everything below runs with m_mutex held.
    unsigned short enumeratedProductId() const;
    // Checks the handle; a stale one gives false quietly, an unknown one is
    // logged as the host's mistake.
    bool usableHandle(HidDeviceHandle* device);
    bool hasLiveHandle() const;
    void reenumerate();
    void blankDisplay(Notices& notices);
    void queueInput(ReportKind kind, const QByteArray& bytes);
    void queueKeyState();
    int deliverInput(unsigned char* data, size_t length);
    void record(ReportKind kind, const QByteArray& bytes, qint64 nsecs);
    // Counts a protocol error and returns the message for the log.
    QString noteError(const QString& message);

    int acceptOutput(const QByteArray& report, qint64 nsecs, Notices& notices);
    int acceptDataChunk(const QByteArray& report, int capacity);
    int acceptFeature(const QByteArray& report, qint64 nsecs, Notices& notices);
    void showImage(const QByteArray& report, Notices& notices);
    void showLogo(const QByteArray& report, Notices& notices);
    void setBacklightLevel(const QByteArray& report, Notices& notices);
    void commitFirmware(const QByteArray& report, Notices& notices);
    void clearKey(const QByteArray& report, Notices& notices);
    void enterBootLoader(Notices& notices);
    QByteArray featureAnswer(unsigned char reportId, ReportKind& kind) const;

    int acceptBootReport(const QByteArray& report, qint64 nsecs, Notices& notices);
    void storeBootData(int page, int offset, int length, const QByteArray& report);
    void endBootPage(int page);
    void finishBootLoader(Notices& notices);

    // The transport calls share this: handle check, wedge, lock, notices.
    int deviceCall(HidDeviceHandle* device, const std::function<int(Notices&)>& call);
    void emitNotices(const Notices& notices);

    mutable QMutex m_mutex;
    QWaitCondition m_inputChanged;
    QElapsedTimer m_clock;

    // Enumeration and handles
    unsigned short m_productId;
    bool m_plugged = true;
    bool m_permissionDenied = false;
    bool m_bootLoader = false;
    quint64 m_enumeration = 1;
    std::vector<std::unique_ptr<Handle>> m_handles;
    int m_initCount = 0;
    int m_exitCount = 0;

    // Wedge
    bool m_wedged = false;
    int m_wedgeTimeoutMs = DefaultWedgeTimeoutMs;
    int m_wedgedCalls = 0;

    // Input
    quint64 m_keyMask = 0;
    QQueue<QueuedInput> m_input;

    // Object being received through 0x02 chunks
    QByteArray m_pending;
    qint64 m_pendingReceived = 0;

    // Display and identity
    QMap<int, QByteArray> m_keys; // by device key, the image as sent
    int m_backlight = -1;
    bool m_logoShown = false;
    int m_logoCount = 0;
    QByteArray m_version;
    QByteArray m_serial;

    // Firmware
    FirmwareCommitRecord m_commit;
    QMap<int, QByteArray> m_bootPages;
    QMap<int, int> m_bootPageReceived;
    int m_withheldAckPage = -1;
    QList<int> m_ackedPages;
    QByteArray m_flashed;

    // Traffic log
    std::deque<Report> m_log;
    int m_logLimit = DefaultReportLogLimit;
    std::array<int, int(ReportKind::Count)> m_counts{};
    int m_errors = 0;
    QString m_lastError;
};
