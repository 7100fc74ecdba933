#pragma once

#include "keylayout.h"
#include "keypadtable.h"
#include "vthiddev.h"

#include <QByteArray>
#include <QImage>
#include <QMutex>
#include <QPixmap>
#include <QThread>
#include <QWaitCondition>

#include <atomic>
#include <cstdint>
#include <mutex>

class HidTransport;
class KeyItem;

// The keypad connection: a thread that owns the one VTHidDev, polls the
// keypad for key reports and turns them into keyPressed/keyReleased, and the
// slots through which the rest of the program shows images, sets the
// backlight, reads the serial number and firmware version and updates the
// firmware. Those calls come from the GUI thread and take the device mutex;
// the polling loop reads without it, so an image write never waits for a
// read's 100 ms timeout.
class Hid_Comm : public QThread
{
    Q_OBJECT

public:
    static constexpr int KeyImageSize = KeypadTable::KeyImageSize;
    static constexpr int MaxKeys = KeypadTable::MaxKeys;

    explicit Hid_Comm(QObject* parent = nullptr);
    ~Hid_Comm() override;

    // While paused, key reports are read and dropped.
    void setPaused(bool paused);
    bool isPaused() const { return paused.load(); }
    bool isOpened() const { return opened.load(); }
    int currentLayout() const { return layout.load(); }
    bool openSDKeyboard(uint32_t vid, uint32_t pid);
    // Closes the keypad through the transport that opened it, installs
    // another (null: hidapi) and opens the first keypad it offers. Call it
    // from the GUI thread, as the other device calls. Through any transport
    // but hidapi the maker's library is never used: it bypasses transports
    // and would reach a real keypad.
    void switchTransport(HidTransport* transport);

    // The maker's library's own update call, its result as it gives it.
    int updateVendorFirmware(const QByteArray& image);
    // updateFW(QByteArray), telling progress how far it got, on the calling
    // thread. Meant for a worker thread: an update takes from seconds to
    // minutes, and meanwhile every other device call gives up at once
    // instead of waiting for it (see isUpdatingFirmware).
    bool updateFW(const QByteArray& fwData, const FirmwareProgress& progress);
    bool isUpdatingFirmware() const { return firmwareUpdating.load(); }

    bool sendIconArray(const QPixmap* icons);
    bool sendIconArray(const QImage* icons);
    bool sendIcon(int devKeyIdx, const QImage& icon, bool effectIcon);

    // Position in the editor's grid -> the key number the image reports
    // carry; -1 beyond the layout's keys or for an invalid layout.
    static int deviceKeyNumber(int layout, int position);
    // Turns a key image the way the layout's keypad is mounted.
    static QImage orientForLayout(const QImage& image, int layout);
    // Whether the open keypad is driven through its maker's library.
    static bool usesVendorLibrary();

signals:
    void KeyboardStatusChange(bool connected);
    void keyPressed(int keyId);
    void keyReleased(int keyId);

public slots:
    void onUpdateContent(const KeyItem* keyItem);
    bool sendIcon(int devKeyIdx, QPixmap icon, bool effectIcon);
    void setBacklight(int val);
    bool readSerialNumber(QString& sn);
    bool readFWVersion(QString& fwVer);
    bool updateFW(QString fwPath);
    bool updateFW(QByteArray fwData);
    bool showLogo();
    void onOS_suspend();
    void onOS_resumes();
    void onKeyboardWasAdded(uint32_t vid, uint32_t pid);
    void onKeyboardWasRemoved();
    void onButtonLayoutChanged(KeyLayout keylayout);

protected:
    void run() override;

private:
    void openFirstSupportedKeyboard();
    void closeDevice();
    void pollOwnProtocol();
    void pollVendorLibrary();
    void handleKeyStates(const KEYBUTTON_DATA& keys);
    void deviceLost();
    void idleWait(int milliseconds);
    QByteArray encode(const QImage& image, const char* format, int quality);
    int writeKeyImage(int layoutValue, int deviceKey, const QImage& image);
    // The device mutex, or no lock while a firmware update holds it.
    std::unique_lock<QMutex> lockDevice();

    std::atomic<bool> stopFlag{false};
    VTHidDev device;
    std::atomic<bool> opened{false};
    QByteArray workBuffer;
    QMutex deviceMutex;
    std::atomic<int> layout{-1};
    std::atomic<bool> paused{false};
    std::atomic<bool> ownProtocolOnly{false};
    std::atomic<bool> firmwareUpdating{false};

    // Held by the polling loop around each read, and by whatever replaces or
    // closes the handle from outside (opening, firmware updates): the handle
    // never changes under a read, and a boot loader's answers are never
    // taken for key reports.
    QMutex readGate;
    QMutex idleMutex;
    QWaitCondition idleWake;

    // The held key: the polling loop's, but forgotten when a keypad is
    // opened from the GUI thread; both sides touch it under the gate.
    int heldKey = -1;
    bool pressReported = false;
    bool vendorKeyDown[16] = {};
};
