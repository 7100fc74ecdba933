#include "hid_comm.h"

#include "hidtransport.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "logging.h"
#include "vendordevicelibrary.h"

#include <QBuffer>
#include <QFile>
#include <QImageWriter>
#include <QPainter>
#include <QScopeGuard>

namespace {

constexpr int PollTimeoutMs = 100;
constexpr int IdlePollMs = 1000;
constexpr int EffectIconSize = 50;

std::atomic<bool> vendorLibraryInUse{false};

QImage composeKeyImage(const QImage& icon, bool effectIcon)
{
    const QSize keySize(Hid_Comm::KeyImageSize, Hid_Comm::KeyImageSize);
    if (!effectIcon) {
        if (icon.isNull())
            return KeyFaceRenderer::blankFace();
        QImage scaled =
            icon.size() == keySize ? icon : icon.scaled(keySize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        return scaled.convertToFormat(QImage::Format_RGBA8888);
    }
    QImage image = KeyFaceRenderer::blankFace();
    if (icon.isNull())
        return image;
    const QImage fitted = icon.scaled(EffectIconSize, EffectIconSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    painter.drawImage((keySize.width() - fitted.width()) / 2, (keySize.height() - fitted.height()) / 2, fitted);
    return image;
}

// Sets the flag for as long as the returned guard lives.
auto raised(std::atomic<bool>& flag)
{
    flag.store(true);
    return qScopeGuard([&flag] { flag.store(false); });
}

} // namespace

Hid_Comm::Hid_Comm(QObject* parent) : QThread(parent)
{
    setObjectName(QStringLiteral("Comm"));
    workBuffer.reserve(32768);
    start(QThread::HighPriority);
}

Hid_Comm::~Hid_Comm()
{
    onOS_suspend();
    QMutexLocker gate(&readGate);
    QMutexLocker locker(&deviceMutex);
    if (opened.load())
        closeDevice();
}

void Hid_Comm::setPaused(bool value)
{
    paused.store(value);
}

bool Hid_Comm::usesVendorLibrary()
{
    return vendorLibraryInUse.load();
}

int Hid_Comm::deviceKeyNumber(int layoutValue, int position)
{
    return KeypadTable::deviceKeyNumber(layoutValue, position);
}

QImage Hid_Comm::orientForLayout(const QImage& image, int layoutValue)
{
    return KeypadTable::turnedForDevice(image, layoutValue);
}

// ---- connection ---------------------------------------------------------

void Hid_Comm::closeDevice()
{
    if (vendorLibraryInUse.load())
        VendorDeviceLibrary::instance().closeDevice();
    else
        device.vT_DeviceClose();
    vendorLibraryInUse.store(false);
}

bool Hid_Comm::openSDKeyboard(uint32_t vid, uint32_t pid)
{
    // Checked before the gate too: arrival notices for an open keypad (one
    // per HID interface) must not wait for a read to end.
    if (opened.load())
        return false;
    QMutexLocker gate(&readGate);
    QMutexLocker locker(&deviceMutex);
    if (opened.load())
        return false;
    closeDevice();
    emit KeyboardStatusChange(false);

    const KeypadTable::ProductFacts* product = KeypadTable::product(pid);
    const bool viaLibrary = product && product->vendorLibrary;
    if (viaLibrary && ownProtocolOnly.load()) {
        LOG_MSG(QStringLiteral("Error: the maker's library is not used with a simulated keypad, pid:%1 !").arg(pid));
        return false;
    }
    const int result = viaLibrary ? VendorDeviceLibrary::instance().openDevice(uint16_t(vid & 0xFFFF), uint16_t(pid))
                                  : device.vT_DeviceOpen(vid, pid);
    if (result != 0) {
        LOG_MSG(QStringLiteral("Error: Device not found. vid: %1, pid:%2 !").arg(vid).arg(pid));
        return false;
    }
    vendorLibraryInUse.store(viaLibrary);
    opened.store(true);
    heldKey = -1;
    pressReported = false;
    LOG_MSG(QStringLiteral("Device opened. vid: 0x%1, pid: 0x%2%3")
                .arg(vid, 4, 16, QLatin1Char('0'))
                .arg(pid, 4, 16, QLatin1Char('0'))
                .arg(viaLibrary ? QStringLiteral(" (maker's library)") : QString()));
    emit KeyboardStatusChange(true);
    return true;
}

void Hid_Comm::openFirstSupportedKeyboard()
{
    for (quint32 pid : KeypadTable::productIds()) {
        if (openSDKeyboard(KeypadTable::VendorId, pid))
            return;
    }
}

void Hid_Comm::switchTransport(HidTransport* transport)
{
    // The polling loop holds the gate while it reads.
    if (!logMsgWhenRetFail(QThread::currentThread() != this, QStringLiteral("switchTransport on the device thread!!")))
        return;
    {
        // The gate keeps the polling loop out, the mutex every other device
        // call: nothing runs between closing the old handle and installing
        // the new transport, so no handle ever reaches the wrong transport.
        QMutexLocker gate(&readGate);
        QMutexLocker locker(&deviceMutex);
        closeDevice();
        opened.store(false);
        HidTransport::setInstance(transport);
        ownProtocolOnly.store(transport != nullptr);
    }
    LOG_MSG(QStringLiteral("transport switched to %1")
                .arg(transport ? QStringLiteral("another transport") : QStringLiteral("hidapi")));
    emit KeyboardStatusChange(false);
    openFirstSupportedKeyboard();
    // The loop may sleep for a second while nothing is open.
    QMutexLocker locker(&idleMutex);
    idleWake.wakeAll();
}

void Hid_Comm::onKeyboardWasAdded(uint32_t vid, uint32_t pid)
{
    openSDKeyboard(vid, pid);
}

// A removed keypad shows itself through the failing read in the polling
// loop, which closes it; nothing to do here.
void Hid_Comm::onKeyboardWasRemoved() {}

void Hid_Comm::onButtonLayoutChanged(KeyLayout keylayout)
{
    layout.store(int(keylayout));
}

void Hid_Comm::onOS_suspend()
{
    stopFlag.store(true);
    {
        QMutexLocker locker(&idleMutex);
        idleWake.wakeAll();
    }
    wait();
}

// The flag is cleared here rather than in run(): a stop that arrives before
// the new thread gets going must not be undone.
void Hid_Comm::onOS_resumes()
{
    if (isRunning())
        return;
    stopFlag.store(false);
    start();
}

// ---- polling loop ---------------------------------------------------------

void Hid_Comm::run()
{
    LOG_MSG(QStringLiteral("running."));
    if (!opened.load())
        openFirstSupportedKeyboard();
    while (!stopFlag.load()) {
        if (!opened.load()) {
            idleWait(IdlePollMs);
            continue;
        }
        if (vendorLibraryInUse.load())
            pollVendorLibrary();
        else
            pollOwnProtocol();
    }
    LOG_MSG(QStringLiteral("exit!"));
}

void Hid_Comm::idleWait(int milliseconds)
{
    QMutexLocker locker(&idleMutex);
    if (!stopFlag.load())
        idleWake.wait(&idleMutex, milliseconds);
}

void Hid_Comm::deviceLost()
{
    LOG_MSG(QStringLiteral("Unable to read keyboard."));
    {
        QMutexLocker locker(&deviceMutex);
        closeDevice();
        opened.store(false);
    }
    emit KeyboardStatusChange(false);
}

void Hid_Comm::pollOwnProtocol()
{
    KEYBUTTON_DATA keys;
    // The whole report is handled under the gate: opening a keypad forgets
    // the held key from another thread, and must not do so halfway through.
    QMutexLocker gate(&readGate);
    if (!opened.load() || vendorLibraryInUse.load())
        return;
    const int result = device.vT_ReadKeyButtonTimeout(&keys, PollTimeoutMs);
    if (result == Err_Timeout)
        return;
    if (result == Err_ParamInvalid) {
        LOG_MSG(QStringLiteral("read keyboard get Err_ParamInvalid!"));
        return;
    }
    // A read error, or a handle that vanished under us: either way the
    // keypad is gone until it arrives again. Closed under the gate, so a
    // transport switch cannot come between the failed read and the close.
    if (result != Err_Success) {
        deviceLost();
        return;
    }
    if (paused.load()) {
        heldKey = -1;
        pressReported = false;
        return;
    }
    handleKeyStates(keys);
}

// One key at a time: the lowest key down becomes the held key, chords and
// repeats report nothing, and the release names the held key.
void Hid_Comm::handleKeyStates(const KEYBUTTON_DATA& keys)
{
    const int layoutValue = layout.load();
    if (!KeypadTable::isValidLayout(layoutValue)) {
        LOG_MSG(QStringLiteral("layoutType out of range!!!"));
        return;
    }
    quint64 mask = 0;
    for (int n = 0; n < KeypadTable::keyCount(layoutValue); ++n) {
        if (keys.key[n])
            mask |= quint64(1) << n;
    }
    if (heldKey < 0 && mask != 0) {
        heldKey = qCountTrailingZeroBits(mask);
        pressReported = false;
    }
    const int heldId = heldKey < 0 ? -1 : heldKey + 1;
    if (mask == 0) {
        LOG_MSG(QStringLiteral("emit keyRelease: %1").arg(heldId));
        emit keyReleased(heldId);
        heldKey = -1;
        pressReported = false;
        return;
    }
    const bool otherKeysDown = (mask & ~(quint64(1) << heldKey)) != 0;
    if (otherKeysDown || pressReported) {
        LOG_MSG(QStringLiteral("multipKeyPress"));
        return;
    }
    pressReported = true;
    // Logged after the signal: the key action thread need not wait for it.
    emit keyPressed(heldId);
    LOG_MSG(QStringLiteral("emit keyPressed: %1").arg(heldId));
}

void Hid_Comm::pollVendorLibrary()
{
    uint8_t event[VendorDeviceLibrary::EventBufferSize] = {};
    int result;
    {
        QMutexLocker gate(&readGate);
        if (!opened.load() || !vendorLibraryInUse.load())
            return;
        result = VendorDeviceLibrary::instance().waitEvent(event, PollTimeoutMs);
        if (result == VendorDeviceLibrary::EventReadFailure) {
            deviceLost();
            return;
        }
    }
    if (result == VendorDeviceLibrary::EventNothing)
        return;
    if (result == VendorDeviceLibrary::EventParamInvalid) {
        LOG_MSG(QStringLiteral("read keyboard get Err_ParamInvalid!"));
        return;
    }
    if (paused.load()) {
        std::fill(std::begin(vendorKeyDown), std::end(vendorKeyDown), false);
        return;
    }
    const int count = VendorDeviceLibrary::eventKeyCount(event);
    bool pressSeen = false;
    for (int key = 0; key < count; ++key) {
        const bool down = VendorDeviceLibrary::eventKeyDown(event, key);
        if (down && !pressSeen) {
            pressSeen = true;
            if (!vendorKeyDown[key]) {
                vendorKeyDown[key] = true;
                emit keyPressed(key + 1);
                LOG_MSG(QStringLiteral("emit keyPressed: %1").arg(key + 1));
            }
        } else if (!down && vendorKeyDown[key]) {
            vendorKeyDown[key] = false;
            LOG_MSG(QStringLiteral("emit keyRelease: %1").arg(key + 1));
            emit keyReleased(key + 1);
        }
    }
}

// ---- key images -------------------------------------------------------------

void Hid_Comm::onUpdateContent(const KeyItem* keyItem)
{
    if (!logMsgWhenRetFail(keyItem != nullptr, QStringLiteral("keyItem is nullptr!!")))
        return;
    if (!logMsgWhenRetFail(keyItem->keyIdx >= 0 && keyItem->keyIdx < MaxKeys,
                           QStringLiteral("keyItem index out of range!!!")))
        return;
    const int layoutValue = layout.load();
    if (!logMsgWhenRetFail(KeypadTable::isValidLayout(layoutValue), QStringLiteral("currLayout is invalid!!!!")))
        return;
    const int deviceKey = deviceKeyNumber(layoutValue, keyItem->keyIdx);
    if (deviceKey < 0) {
        LOG_MSG(QStringLiteral("index out of range: %1").arg(keyItem->keyIdx));
        return;
    }
    sendIcon(deviceKey, KeyFaceRenderer::render(keyItem), false);
}

bool Hid_Comm::sendIcon(int devKeyIdx, QPixmap icon, bool effectIcon)
{
    return sendIcon(devKeyIdx, icon.toImage(), effectIcon);
}

bool Hid_Comm::sendIcon(int devKeyIdx, const QImage& icon, bool effectIcon)
{
    if (!opened.load())
        return false;
    const int layoutValue = layout.load();
    if (!logMsgWhenRetFail(KeypadTable::isValidLayout(layoutValue), QStringLiteral("currLayout is invalid!!!!")))
        return false;
    if (devKeyIdx < 0 || devKeyIdx > KeypadTable::keyCount(layoutValue)) {
        LOG_MSG(QStringLiteral("index out of range: %1").arg(devKeyIdx));
        return false;
    }
    const QImage image = orientForLayout(composeKeyImage(icon, effectIcon), layoutValue);
    const auto locker = lockDevice();
    if (!locker.owns_lock())
        return false;
    if (const int pause = KeypadTable::writePauseMs(layoutValue))
        QThread::msleep(pause);
    return writeKeyImage(layoutValue, devKeyIdx, image) != Err_Failure;
}

QByteArray Hid_Comm::encode(const QImage& image, const char* format, int quality)
{
    workBuffer.resize(0);
    QBuffer buffer(&workBuffer);
    buffer.open(QIODevice::WriteOnly);
    // The keypad decodes 24-bit pictures; BMP's writer drops alpha anyway.
    image.convertToFormat(QImage::Format_RGB888).save(&buffer, format, quality);
    return workBuffer;
}

int Hid_Comm::writeKeyImage(int layoutValue, int deviceKey, const QImage& image)
{
    if (vendorLibraryInUse.load()) {
        const QByteArray bytes = encode(image, "JPG", 100);
        return VendorDeviceLibrary::instance().showImage(deviceKey - 1, bytes) == 0 ? Err_Success : Err_Failure;
    }
    const QByteArray bytes = encode(image, "BMP", -1);
    const auto* data = reinterpret_cast<const uint8_t*>(bytes.constData());
    if (KeypadTable::usesSmallPackets(layoutValue))
        return device.vT_WriteImageNUC442(uint8_t(deviceKey), data, bytes.size());
    return device.vT_WriteImage(uint8_t(deviceKey), data, bytes.size());
}

bool Hid_Comm::sendIconArray(const QPixmap* icons)
{
    QImage images[MaxKeys];
    for (int i = 0; i < MaxKeys; ++i)
        images[i] = icons[i].toImage();
    return sendIconArray(images);
}

bool Hid_Comm::sendIconArray(const QImage* icons)
{
    const int layoutValue = layout.load();
    if (!opened.load() || !KeypadTable::isValidLayout(layoutValue))
        return false;
    const auto locker = lockDevice();
    if (!locker.owns_lock())
        return false;
    int result = Err_Failure;
    const int pause = KeypadTable::writePauseMs(layoutValue);
    for (int position = 0; position < KeypadTable::keyCount(layoutValue); ++position) {
        result = writeKeyImage(layoutValue, deviceKeyNumber(layoutValue, position), icons[position]);
        if (pause)
            VTHidDev::delayMs(pause);
    }
    return result == Err_Success;
}

// ---- other device calls -----------------------------------------------------

std::unique_lock<QMutex> Hid_Comm::lockDevice()
{
    // Polled: a call that began waiting just before an update took the
    // device must give up as well, not wait for the whole update.
    constexpr int PollMs = 50;
    while (!deviceMutex.tryLock(PollMs)) {
        if (firmwareUpdating.load()) {
            LOG_MSG(QStringLiteral("skipped: the firmware is being updated."));
            return {};
        }
    }
    return std::unique_lock<QMutex>(deviceMutex, std::adopt_lock);
}

void Hid_Comm::setBacklight(int val)
{
    const auto locker = lockDevice();
    if (!locker.owns_lock())
        return;
    if (vendorLibraryInUse.load())
        VendorDeviceLibrary::instance().setBrightness(val);
    else
        device.vT_SetBacklight(val);
}

bool Hid_Comm::readSerialNumber(QString& sn)
{
    const auto locker = lockDevice();
    if (!locker.owns_lock())
        return false;
    if (vendorLibraryInUse.load())
        return VendorDeviceLibrary::instance().serialNumber(sn) == 0;
    uint8_t serial[17] = {};
    if (device.vT_ReadSerialNo(serial) != Err_Success)
        return false;
    sn = QString::fromLatin1(reinterpret_cast<const char*>(serial));
    return true;
}

bool Hid_Comm::readFWVersion(QString& fwVer)
{
    const auto locker = lockDevice();
    if (!locker.owns_lock())
        return false;
    if (vendorLibraryInUse.load())
        return VendorDeviceLibrary::instance().firmwareVersion(fwVer) == 0;
    uint8_t version[13] = {};
    if (device.vT_ReadFirmwareVersion(version) != Err_Success)
        return false;
    fwVer = QString::fromLatin1(reinterpret_cast<const char*>(version));
    return true;
}

bool Hid_Comm::updateFW(QString fwPath)
{
    if (fwPath.isEmpty())
        return false;
    const auto updating = raised(firmwareUpdating);
    QMutexLocker gate(&readGate);
    QMutexLocker locker(&deviceMutex);
    return device.vT_FirmwareUpgrade(QFile::encodeName(fwPath).constData()) == Err_Success;
}

bool Hid_Comm::updateFW(QByteArray fwData)
{
    return updateFW(fwData, FirmwareProgress());
}

bool Hid_Comm::updateFW(const QByteArray& fwData, const FirmwareProgress& progress)
{
    if (fwData.isEmpty())
        return false;
    // Raised before the locks are taken, so that a call already waiting for
    // the device gives up too.
    const auto updating = raised(firmwareUpdating);
    QMutexLocker gate(&readGate);
    QMutexLocker locker(&deviceMutex);
    const bool bootLoader = KeypadTable::usesSmallPackets(layout.load());
    device.setFirmwareProgress(progress);
    const int result = bootLoader ? device.vT_FirmwareUpgradeNUC442(fwData) : device.vT_FirmwareUpgrade(fwData);
    device.setFirmwareProgress(FirmwareProgress());
    const bool flashed = result == Err_Success;
    if (!bootLoader)
        return flashed;
    // The handle now belongs to the boot loader; the keypad comes back under
    // its own product id and is opened again when it arrives.
    closeDevice();
    opened.store(false);
    locker.unlock();
    emit KeyboardStatusChange(false);
    return flashed;
}

int Hid_Comm::updateVendorFirmware(const QByteArray& image)
{
    const auto updating = raised(firmwareUpdating);
    QMutexLocker gate(&readGate);
    QMutexLocker locker(&deviceMutex);
    return VendorDeviceLibrary::instance().updateFirmware(image);
}

bool Hid_Comm::showLogo()
{
    const auto locker = lockDevice();
    if (!locker.owns_lock())
        return false;
    if (vendorLibraryInUse.load())
        return VendorDeviceLibrary::instance().showLogo() == 0;
    return device.vT_ShowLogo() == Err_Success;
}
