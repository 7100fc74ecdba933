#include "simulatedkeypad.h"

#include "keypadprotocol.h"
#include "keypadtable.h"
#include "logging.h"

#include <QDeadlineTimer>
#include <QThread>

#include <algorithm>
#include <cstring>

namespace {

using namespace KeypadProtocol;

// Far beyond any image or firmware; bounds what a bad offset can allocate.
constexpr qint64 MaxObjectSize = 4 * 1024 * 1024;
constexpr int MaxBootPages = 1024;

// hidapi itself takes any length; this only stops a wild length from
// copying half the address space.
constexpr size_t MaxReportSize = 65536;

quint32 readU32(const QByteArray& bytes, int at)
{
    quint32 value = 0;
    for (int i = 3; i >= 0; --i)
        value = (value << 8) | quint8(bytes.at(at + i));
    return value;
}

quint16 readU16(const QByteArray& bytes, int at)
{
    return quint16(quint8(bytes.at(at)) | (quint8(bytes.at(at + 1)) << 8));
}

quint32 byteSum(const QByteArray& bytes, int from)
{
    quint32 sum = 0;
    for (int i = from; i < bytes.size(); ++i)
        sum += quint8(bytes.at(i));
    return sum;
}

QByteArray keyStateReport(quint64 mask)
{
    QByteArray report(InputReportSize, '\0');
    report[0] = char(KeyStateId);
    for (int byte = 0; byte < 8; ++byte)
        report[1 + byte] = char((mask >> (8 * byte)) & 0xFF);
    return report;
}

QByteArray acknowledgeReport()
{
    QByteArray report(InputReportSize, '\0');
    report[0] = char(AcknowledgeId);
    report[1] = char(AcknowledgeCode);
    return report;
}

QString hex(int value)
{
    return QStringLiteral("0x%1").arg(value, 2, 16, QLatin1Char('0'));
}

SimulatedKeypad::ReportKind classifyFeature(const QByteArray& report)
{
    using Kind = SimulatedKeypad::ReportKind;
    const auto at = [&report](int i) { return i < report.size() ? quint8(report.at(i)) : quint8(0); };
    switch (at(0)) {
    case BacklightId:
        return Kind::Backlight;
    case ImageCommandId:
        return at(1) == ShowImageSub ? Kind::ShowImage : at(1) == ShowLogoSub ? Kind::ShowLogo : Kind::Unknown;
    case FirmwareCommitId:
        return Kind::FirmwareCommit;
    case KeyCommandId:
        if (at(1) == ClearKeySub)
            return Kind::ClearKey;
        return at(1) == BootLoaderSub && at(2) == BootLoaderSub2 ? Kind::EnterBootLoader : Kind::Unknown;
    case SerialId:
        return Kind::WriteSerial;
    default:
        return Kind::Unknown;
    }
}

int featureReportSize(SimulatedKeypad::ReportKind kind)
{
    using Kind = SimulatedKeypad::ReportKind;
    switch (kind) {
    case Kind::Backlight:
        return BacklightReportSize;
    case Kind::ShowImage:
    case Kind::ShowLogo:
        return ImageCommandReportSize;
    case Kind::FirmwareCommit:
        return FirmwareCommitReportSize;
    case Kind::ClearKey:
    case Kind::EnterBootLoader:
        return KeyCommandReportSize;
    case Kind::WriteSerial:
        return SerialReportSize;
    default:
        return 0;
    }
}

} // namespace

SimulatedKeypad::SimulatedKeypad(unsigned short productId, QObject* parent)
    : QObject(parent), m_productId(productId), m_version(QByteArrayLiteral("VKP V1.0.170121")),
      m_serial(QByteArrayLiteral("VKPSIM0000000001"))
{
    m_clock.start();
}

SimulatedKeypad::~SimulatedKeypad()
{
    // A transport left installed would dangle; better a log line than a crash.
    if (HidTransport::instance() == this) {
        LOG_MSG(QStringLiteral("destroyed while installed as the transport; hidapi is back!!"));
        HidTransport::setInstance(nullptr);
    }
}

// ---------------------------------------------------------------------------
// HidTransport

int SimulatedKeypad::init()
{
    QMutexLocker locker(&m_mutex);
    ++m_initCount;
    return 0;
}

int SimulatedKeypad::exit()
{
    QMutexLocker locker(&m_mutex);
    ++m_exitCount;
    return 0;
}

HidDeviceHandle* SimulatedKeypad::open(unsigned short vendorId, unsigned short productId)
{
    QMutexLocker locker(&m_mutex);
    if (!m_plugged || vendorId != VendorId || productId != enumeratedProductId()) {
        m_lastError = QStringLiteral("no device %1:%2").arg(hex(vendorId), hex(productId));
        return nullptr;
    }
    if (m_permissionDenied) {
        m_lastError = QStringLiteral("access denied");
        return nullptr;
    }
    m_handles.push_back(std::make_unique<Handle>(Handle{m_enumeration}));
    return reinterpret_cast<HidDeviceHandle*>(m_handles.back().get());
}

void SimulatedKeypad::close(HidDeviceHandle* device)
{
    if (!device)
        return;
    QMutexLocker locker(&m_mutex);
    const auto found = std::find_if(m_handles.begin(), m_handles.end(), [device](const auto& handle) {
        return reinterpret_cast<HidDeviceHandle*>(handle.get()) == device;
    });
    if (found == m_handles.end()) {
        LOG_MSG(noteError(QStringLiteral("close of a handle that is not open!!")));
        return;
    }
    m_handles.erase(found);
    if (!hasLiveHandle())
        m_input.clear();
    m_inputChanged.wakeAll();
}

int SimulatedKeypad::write(HidDeviceHandle* device, const unsigned char* data, size_t length)
{
    const qint64 nsecs = m_clock.nsecsElapsed();
    return deviceCall(device, [&](Notices& notices) {
        if (!data || length == 0 || length > MaxReportSize) {
            LOG_MSG(noteError(QStringLiteral("write of %1 bytes refused!!").arg(length)));
            return -1;
        }
        const QByteArray report(reinterpret_cast<const char*>(data), int(length));
        return m_bootLoader ? acceptBootReport(report, nsecs, notices) : acceptOutput(report, nsecs, notices);
    });
}

int SimulatedKeypad::readTimeout(HidDeviceHandle* device, unsigned char* data, size_t length, int milliseconds)
{
    QMutexLocker locker(&m_mutex);
    if (!data || length == 0) {
        LOG_MSG(noteError(QStringLiteral("read into an empty buffer refused!!")));
        return -1;
    }
    const QDeadlineTimer deadline(milliseconds < 0 ? QDeadlineTimer(QDeadlineTimer::Forever)
                                                   : QDeadlineTimer(milliseconds));
    for (;;) {
        if (!usableHandle(device))
            return -1;
        if (!m_wedged && !m_input.isEmpty())
            return deliverInput(data, length);
        if (deadline.hasExpired())
            return 0;
        m_inputChanged.wait(&m_mutex, deadline);
    }
}

int SimulatedKeypad::sendFeatureReport(HidDeviceHandle* device, const unsigned char* data, size_t length)
{
    const qint64 nsecs = m_clock.nsecsElapsed();
    return deviceCall(device, [&](Notices& notices) {
        if (!data || length == 0 || length > MaxReportSize) {
            LOG_MSG(noteError(QStringLiteral("feature report of %1 bytes refused!!").arg(length)));
            return -1;
        }
        const QByteArray report(reinterpret_cast<const char*>(data), int(length));
        return acceptFeature(report, nsecs, notices);
    });
}

int SimulatedKeypad::getFeatureReport(HidDeviceHandle* device, unsigned char* data, size_t length)
{
    const qint64 nsecs = m_clock.nsecsElapsed();
    return deviceCall(device, [&](Notices&) {
        if (!data || length == 0) {
            LOG_MSG(noteError(QStringLiteral("get feature into an empty buffer refused!!")));
            return -1;
        }
        ReportKind kind = ReportKind::Unknown;
        const QByteArray answer = featureAnswer(data[0], kind);
        record(kind, answer.isEmpty() ? QByteArray(1, char(data[0])) : answer, nsecs);
        if (answer.isEmpty()) {
            LOG_MSG(noteError(QStringLiteral("get feature %1 not answered!!").arg(hex(data[0]))));
            return -1;
        }
        // A buffer shorter than the report takes the first bytes only, a
        // longer one the whole report: the control transfer's own rule.
        const int copied = int(std::min(length, size_t(answer.size())));
        std::memcpy(data, answer.constData(), size_t(copied));
        return copied;
    });
}

QString SimulatedKeypad::error(HidDeviceHandle*)
{
    QMutexLocker locker(&m_mutex);
    return m_lastError;
}

// ---------------------------------------------------------------------------
// Enumeration

unsigned short SimulatedKeypad::productId() const
{
    QMutexLocker locker(&m_mutex);
    return m_productId;
}

void SimulatedKeypad::setProductId(unsigned short productId)
{
    QMutexLocker locker(&m_mutex);
    if (productId == m_productId)
        return;
    m_productId = productId;
    if (!m_bootLoader)
        reenumerate();
}

bool SimulatedKeypad::hasBootLoader() const
{
    return KeypadTable::hasBootLoader(productId());
}

bool SimulatedKeypad::isPluggedIn() const
{
    QMutexLocker locker(&m_mutex);
    return m_plugged;
}

void SimulatedKeypad::unplug()
{
    Notices notices;
    {
        QMutexLocker locker(&m_mutex);
        if (!m_plugged)
            return;
        m_plugged = false;
        if (m_bootLoader) {
            m_bootLoader = false;
            notices << [this] { emit bootLoaderChanged(false); };
        }
        reenumerate();
        blankDisplay(notices);
        notices << [this] { emit connectionChanged(false); };
    }
    emitNotices(notices);
}

void SimulatedKeypad::plugIn()
{
    Notices notices;
    {
        QMutexLocker locker(&m_mutex);
        if (m_plugged)
            return;
        m_plugged = true;
        reenumerate();
        notices << [this] { emit connectionChanged(true); };
    }
    emitNotices(notices);
}

void SimulatedKeypad::setPermissionDenied(bool denied)
{
    QMutexLocker locker(&m_mutex);
    m_permissionDenied = denied;
}

int SimulatedKeypad::initCount() const
{
    QMutexLocker locker(&m_mutex);
    return m_initCount;
}

int SimulatedKeypad::exitCount() const
{
    QMutexLocker locker(&m_mutex);
    return m_exitCount;
}

int SimulatedKeypad::openHandleCount() const
{
    QMutexLocker locker(&m_mutex);
    return int(std::count_if(m_handles.begin(), m_handles.end(),
                             [this](const auto& handle) { return handle->enumeration == m_enumeration; }));
}

// ---------------------------------------------------------------------------
// Wedge

void SimulatedKeypad::setWedged(bool wedged)
{
    QMutexLocker locker(&m_mutex);
    m_wedged = wedged;
    m_inputChanged.wakeAll(); // a waiting read may deliver again
}

bool SimulatedKeypad::isWedged() const
{
    QMutexLocker locker(&m_mutex);
    return m_wedged;
}

void SimulatedKeypad::setWedgeTimeoutMs(int milliseconds)
{
    QMutexLocker locker(&m_mutex);
    m_wedgeTimeoutMs = std::max(0, milliseconds);
}

int SimulatedKeypad::wedgedCallCount() const
{
    QMutexLocker locker(&m_mutex);
    return m_wedgedCalls;
}

// ---------------------------------------------------------------------------
// Keys

void SimulatedKeypad::pressKey(int index)
{
    if (index < 0 || index >= KeyCount) {
        LOG_MSG(QStringLiteral("key %1 out of range!!").arg(index));
        return;
    }
    QMutexLocker locker(&m_mutex);
    m_keyMask |= quint64(1) << index;
    queueKeyState();
}

void SimulatedKeypad::releaseKey(int index)
{
    if (index < 0 || index >= KeyCount) {
        LOG_MSG(QStringLiteral("key %1 out of range!!").arg(index));
        return;
    }
    QMutexLocker locker(&m_mutex);
    m_keyMask &= ~(quint64(1) << index);
    queueKeyState();
}

void SimulatedKeypad::setKeyMask(quint64 mask)
{
    QMutexLocker locker(&m_mutex);
    m_keyMask = mask;
    queueKeyState();
}

quint64 SimulatedKeypad::keyMask() const
{
    QMutexLocker locker(&m_mutex);
    return m_keyMask;
}

void SimulatedKeypad::queueRawInputReport(const QByteArray& report)
{
    // An empty report would read as a timeout; no device sends one.
    if (report.isEmpty()) {
        LOG_MSG(QStringLiteral("empty input report not queued!!"));
        return;
    }
    QMutexLocker locker(&m_mutex);
    queueInput(ReportKind::RawInput, report);
}

int SimulatedKeypad::pendingInputReports() const
{
    QMutexLocker locker(&m_mutex);
    return m_input.size();
}

// ---------------------------------------------------------------------------
// Display and identity

QImage SimulatedKeypad::keyImage(int deviceKey) const
{
    QByteArray bytes;
    {
        QMutexLocker locker(&m_mutex);
        bytes = m_keys.value(deviceKey);
    }
    return bytes.isEmpty() ? QImage() : QImage::fromData(bytes);
}

QByteArray SimulatedKeypad::keyImageBytes(int deviceKey) const
{
    QMutexLocker locker(&m_mutex);
    return m_keys.value(deviceKey);
}

QList<int> SimulatedKeypad::keysWithImages() const
{
    QMutexLocker locker(&m_mutex);
    return m_keys.keys();
}

int SimulatedKeypad::backlight() const
{
    QMutexLocker locker(&m_mutex);
    return m_backlight;
}

bool SimulatedKeypad::isLogoShown() const
{
    QMutexLocker locker(&m_mutex);
    return m_logoShown;
}

int SimulatedKeypad::logoCount() const
{
    QMutexLocker locker(&m_mutex);
    return m_logoCount;
}

QByteArray SimulatedKeypad::firmwareVersionText() const
{
    QMutexLocker locker(&m_mutex);
    return m_version;
}

void SimulatedKeypad::setFirmwareVersionText(const QByteArray& text)
{
    QMutexLocker locker(&m_mutex);
    m_version = text.left(VersionReportSize - 1);
}

QByteArray SimulatedKeypad::serialNumber() const
{
    QMutexLocker locker(&m_mutex);
    return m_serial;
}

void SimulatedKeypad::setSerialNumber(const QByteArray& serial)
{
    QMutexLocker locker(&m_mutex);
    m_serial = serial.left(SerialNumberLength).leftJustified(SerialNumberLength, '\0');
}

// ---------------------------------------------------------------------------
// Firmware

SimulatedKeypad::FirmwareCommitRecord SimulatedKeypad::firmwareCommit() const
{
    QMutexLocker locker(&m_mutex);
    return m_commit;
}

bool SimulatedKeypad::isInBootLoader() const
{
    QMutexLocker locker(&m_mutex);
    return m_bootLoader;
}

void SimulatedKeypad::failAcknowledgeAtPage(int page)
{
    QMutexLocker locker(&m_mutex);
    m_withheldAckPage = page;
}

QList<int> SimulatedKeypad::acknowledgedPages() const
{
    QMutexLocker locker(&m_mutex);
    return m_ackedPages;
}

QByteArray SimulatedKeypad::flashedFirmware() const
{
    QMutexLocker locker(&m_mutex);
    return m_flashed;
}

// ---------------------------------------------------------------------------
// Traffic log

QVector<SimulatedKeypad::Report> SimulatedKeypad::reports() const
{
    QMutexLocker locker(&m_mutex);
    return QVector<Report>(m_log.begin(), m_log.end());
}

QVector<SimulatedKeypad::Report> SimulatedKeypad::reports(ReportKind kind) const
{
    QMutexLocker locker(&m_mutex);
    QVector<Report> matching;
    std::copy_if(m_log.begin(), m_log.end(), std::back_inserter(matching),
                 [kind](const Report& report) { return report.kind == kind; });
    return matching;
}

int SimulatedKeypad::reportCount(ReportKind kind) const
{
    QMutexLocker locker(&m_mutex);
    return m_counts.at(size_t(kind));
}

void SimulatedKeypad::clearReports()
{
    QMutexLocker locker(&m_mutex);
    m_log.clear();
    m_counts.fill(0);
}

void SimulatedKeypad::setReportLogLimit(int limit)
{
    QMutexLocker locker(&m_mutex);
    m_logLimit = std::max(0, limit);
    while (int(m_log.size()) > m_logLimit)
        m_log.pop_front();
}

int SimulatedKeypad::errorCount() const
{
    QMutexLocker locker(&m_mutex);
    return m_errors;
}

QString SimulatedKeypad::lastError() const
{
    QMutexLocker locker(&m_mutex);
    return m_lastError;
}

// ---------------------------------------------------------------------------
// Internals, all with m_mutex held

unsigned short SimulatedKeypad::enumeratedProductId() const
{
    return m_bootLoader ? BootLoaderProductId : m_productId;
}

bool SimulatedKeypad::usableHandle(HidDeviceHandle* device)
{
    const auto found = std::find_if(m_handles.begin(), m_handles.end(), [device](const auto& handle) {
        return reinterpret_cast<HidDeviceHandle*>(handle.get()) == device;
    });
    if (found == m_handles.end()) {
        LOG_MSG(noteError(QStringLiteral("call on a handle that is not open!!")));
        return false;
    }
    // A handle of an earlier enumeration is what the host holds after an
    // unplug; failing with -1 is the expected answer, not a fault.
    if ((*found)->enumeration != m_enumeration) {
        m_lastError = QStringLiteral("device gone");
        return false;
    }
    return true;
}

bool SimulatedKeypad::hasLiveHandle() const
{
    return std::any_of(m_handles.begin(), m_handles.end(),
                       [this](const auto& handle) { return handle->enumeration == m_enumeration; });
}

void SimulatedKeypad::reenumerate()
{
    ++m_enumeration;
    m_input.clear();
    m_pending.clear();
    m_pendingReceived = 0;
    m_inputChanged.wakeAll();
}

void SimulatedKeypad::blankDisplay(Notices& notices)
{
    for (const int key : m_keys.keys())
        notices << [this, key] { emit keyImageChanged(key); };
    m_keys.clear();
    m_logoShown = false;
    if (m_backlight != -1) {
        m_backlight = -1;
        notices << [this] { emit backlightChanged(-1); };
    }
}

void SimulatedKeypad::queueInput(ReportKind kind, const QByteArray& bytes)
{
    // hidapi collects reports only for an open handle.
    if (!m_plugged || !hasLiveHandle())
        return;
    m_input.enqueue({kind, bytes});
    while (m_input.size() > InputQueueLimit)
        m_input.dequeue();
    m_inputChanged.wakeAll();
}

void SimulatedKeypad::queueKeyState()
{
    if (!m_bootLoader)
        queueInput(ReportKind::KeyState, keyStateReport(m_keyMask));
}

int SimulatedKeypad::deliverInput(unsigned char* data, size_t length)
{
    const QueuedInput input = m_input.dequeue();
    record(input.kind, input.bytes, m_clock.nsecsElapsed());
    const int copied = int(std::min(length, size_t(input.bytes.size())));
    std::memcpy(data, input.bytes.constData(), size_t(copied));
    return copied;
}

void SimulatedKeypad::record(ReportKind kind, const QByteArray& bytes, qint64 nsecs)
{
    ++m_counts[size_t(kind)];
    if (m_logLimit == 0)
        return;
    m_log.push_back({kind, bytes, nsecs});
    while (int(m_log.size()) > m_logLimit)
        m_log.pop_front();
}

QString SimulatedKeypad::noteError(const QString& message)
{
    ++m_errors;
    m_lastError = message;
    return message;
}

int SimulatedKeypad::deviceCall(HidDeviceHandle* device, const std::function<int(Notices&)>& call)
{
    Notices notices;
    int result = -1;
    int wedgeMs = -1;
    {
        QMutexLocker locker(&m_mutex);
        if (!usableHandle(device))
            return -1;
        if (m_wedged) {
            ++m_wedgedCalls;
            wedgeMs = m_wedgeTimeoutMs;
        } else {
            result = call(notices);
        }
    }
    if (wedgeMs >= 0) {
        // Outside the lock: a wedged transfer must not stop the reader.
        QThread::msleep(ulong(wedgeMs));
        return -1;
    }
    emitNotices(notices);
    return result;
}

void SimulatedKeypad::emitNotices(const Notices& notices)
{
    for (const auto& notice : notices)
        notice();
}

// ---------------------------------------------------------------------------
// Keypad reports

int SimulatedKeypad::acceptOutput(const QByteArray& report, qint64 nsecs, Notices&)
{
    const bool chunk = quint8(report.at(0)) == DataChunkId;
    if (chunk && report.size() == LargeChunkReportSize) {
        record(ReportKind::DataChunkLarge, report, nsecs);
        return acceptDataChunk(report, LargeChunkCapacity);
    }
    if (chunk && report.size() == SmallChunkReportSize) {
        record(ReportKind::DataChunkSmall, report, nsecs);
        return acceptDataChunk(report, SmallChunkCapacity);
    }
    record(ReportKind::Unknown, report, nsecs);
    LOG_MSG(noteError(QStringLiteral("output report %1 of %2 bytes not understood!!")
                          .arg(hex(quint8(report.at(0))))
                          .arg(report.size())));
    return -1;
}

// The transfer itself succeeds whatever the chunk holds; a bad chunk is
// dropped by the device, so the later commit finds the object short.
int SimulatedKeypad::acceptDataChunk(const QByteArray& report, int capacity)
{
    const qint64 offset = readU32(report, 1);
    const qint64 length = readU32(report, 5);
    if (readU32(report, 9) != ChunkMagic || readU32(report, 13) != ChunkMagicTail) {
        LOG_MSG(noteError(QStringLiteral("data chunk without its magic numbers!!")));
        return report.size();
    }
    if (length == 0 || length > capacity || offset + length > MaxObjectSize) {
        LOG_MSG(noteError(QStringLiteral("data chunk of %1 bytes at %2 refused!!").arg(length).arg(offset)));
        return report.size();
    }
    // A chunk at offset 0 begins the next object; whatever came before and
    // was never committed is forgotten.
    if (offset == 0) {
        m_pending.clear();
        m_pendingReceived = 0;
    }
    const qint64 end = offset + length;
    if (m_pending.size() < end)
        m_pending.append(QByteArray(int(end - m_pending.size()), '\0'));
    std::memcpy(m_pending.data() + offset, report.constData() + ChunkHeaderSize, size_t(length));
    m_pendingReceived += length;
    return report.size();
}

int SimulatedKeypad::acceptFeature(const QByteArray& report, qint64 nsecs, Notices& notices)
{
    const ReportKind kind = m_bootLoader ? ReportKind::Unknown : classifyFeature(report);
    record(kind, report, nsecs);
    // A real device stalls a request it does not know: -1, nothing changes.
    if (kind == ReportKind::Unknown) {
        LOG_MSG(noteError(QStringLiteral("feature report %1 not understood%2!!")
                              .arg(hex(quint8(report.at(0))))
                              .arg(m_bootLoader ? QStringLiteral(" by the boot loader") : QString())));
        return -1;
    }
    if (report.size() != featureReportSize(kind)) {
        LOG_MSG(noteError(QStringLiteral("feature report %1 has %2 bytes instead of %3!!")
                              .arg(hex(quint8(report.at(0))))
                              .arg(report.size())
                              .arg(featureReportSize(kind))));
        return -1;
    }
    switch (kind) {
    case ReportKind::Backlight:
        setBacklightLevel(report, notices);
        break;
    case ReportKind::ShowImage:
        showImage(report, notices);
        break;
    case ReportKind::ShowLogo:
        showLogo(report, notices);
        break;
    case ReportKind::FirmwareCommit:
        commitFirmware(report, notices);
        break;
    case ReportKind::ClearKey:
        clearKey(report, notices);
        break;
    case ReportKind::EnterBootLoader:
        enterBootLoader(notices);
        break;
    case ReportKind::WriteSerial:
        m_serial = report.mid(1, SerialNumberLength);
        break;
    default:
        break;
    }
    return report.size();
}

void SimulatedKeypad::showImage(const QByteArray& report, Notices& notices)
{
    const quint32 key = readU32(report, 4);
    const quint32 size = readU32(report, 16);
    const QByteArray object = m_pending;
    const qint64 received = m_pendingReceived;
    m_pending.clear();
    m_pendingReceived = 0;
    if (key >= quint32(KeyCount)) {
        LOG_MSG(noteError(QStringLiteral("image for key %1 out of range!!").arg(key)));
        return;
    }
    if (size == 0 || object.size() != qint64(size) || received != qint64(size)) {
        LOG_MSG(noteError(
            QStringLiteral("image of %1 bytes for key %2, but %3 bytes received!!").arg(size).arg(key).arg(received)));
        return;
    }
    if (QImage::fromData(object).isNull()) {
        LOG_MSG(noteError(QStringLiteral("image for key %1 cannot be decoded!!").arg(key)));
        return;
    }
    // Kept as sent, decoded when asked for: half the memory of a decoded copy.
    m_keys.insert(int(key), object);
    m_logoShown = false;
    notices << [this, key] { emit keyImageChanged(int(key)); };
}

void SimulatedKeypad::showLogo(const QByteArray& report, Notices& notices)
{
    if (readU32(report, 4) != LogoMarker || readU32(report, 8) != LogoMarkerTail) {
        LOG_MSG(noteError(QStringLiteral("show logo without its markers!!")));
        return;
    }
    m_logoShown = true;
    ++m_logoCount;
    notices << [this] { emit logoShown(); };
}

void SimulatedKeypad::setBacklightLevel(const QByteArray& report, Notices& notices)
{
    const int level = quint8(report.at(1));
    m_backlight = level;
    notices << [this, level] { emit backlightChanged(level); };
}

void SimulatedKeypad::commitFirmware(const QByteArray& report, Notices& notices)
{
    FirmwareCommitRecord commit;
    commit.committed = true;
    commit.object = m_pending;
    commit.declaredSize = readU32(report, 1);
    commit.declaredChecksum = readU32(report, 5);
    commit.computedChecksum = byteSum(m_pending, FirmwareHeaderSize);
    commit.checksumMatches = commit.computedChecksum == commit.declaredChecksum;
    commit.sizeMatches =
        m_pending.size() == qint64(commit.declaredSize) && m_pendingReceived == qint64(commit.declaredSize);
    m_commit = commit;
    m_pending.clear();
    m_pendingReceived = 0;
    if (!commit.checksumMatches || !commit.sizeMatches)
        LOG_MSG(QStringLiteral("firmware commit of %1 bytes, checksum 0x%2; received %3 bytes, checksum 0x%4")
                    .arg(commit.declaredSize)
                    .arg(commit.declaredChecksum, 8, 16, QLatin1Char('0'))
                    .arg(commit.object.size())
                    .arg(commit.computedChecksum, 8, 16, QLatin1Char('0')));
    notices << [this] { emit firmwareFlashed(); };
}

void SimulatedKeypad::clearKey(const QByteArray& report, Notices& notices)
{
    const int key = quint8(report.at(2));
    if (key >= KeyCount) {
        LOG_MSG(noteError(QStringLiteral("clear of key %1 out of range!!").arg(key)));
        return;
    }
    m_keys.remove(key);
    m_logoShown = false;
    notices << [this, key] { emit keyImageChanged(key); };
}

void SimulatedKeypad::enterBootLoader(Notices& notices)
{
    if (!KeypadTable::hasBootLoader(m_productId)) {
        LOG_MSG(noteError(QStringLiteral("product %1 has no boot loader!!").arg(hex(m_productId))));
        return;
    }
    m_bootLoader = true;
    m_bootPages.clear();
    m_bootPageReceived.clear();
    m_ackedPages.clear();
    reenumerate();
    blankDisplay(notices);
    notices << [this] { emit bootLoaderChanged(true); };
}

QByteArray SimulatedKeypad::featureAnswer(unsigned char reportId, ReportKind& kind) const
{
    if (m_bootLoader)
        return QByteArray();
    if (reportId == VersionId) {
        kind = ReportKind::ReadVersion;
        QByteArray answer = QByteArray(1, char(VersionId)) + m_version;
        return answer.leftJustified(VersionReportSize, '\0', true);
    }
    if (reportId == SerialId) {
        kind = ReportKind::ReadSerial;
        return QByteArray(1, char(SerialId)) + m_serial;
    }
    return QByteArray();
}

// ---------------------------------------------------------------------------
// Boot loader reports

int SimulatedKeypad::acceptBootReport(const QByteArray& report, qint64 nsecs, Notices& notices)
{
    if (report.size() != BootReportSize || report.at(0) != 0) {
        record(ReportKind::Unknown, report, nsecs);
        LOG_MSG(noteError(QStringLiteral("boot loader report %1 of %2 bytes not understood!!")
                              .arg(hex(quint8(report.at(0))))
                              .arg(report.size())));
        return -1;
    }
    const int page = readU16(report, 1);
    const int offset = readU16(report, 3);
    if (offset == BootPageEndMarker) {
        record(ReportKind::BootPageEnd, report, nsecs);
        endBootPage(page);
    } else if (offset == BootFinishMarker) {
        record(ReportKind::BootFinish, report, nsecs);
        finishBootLoader(notices);
    } else {
        record(ReportKind::BootPageData, report, nsecs);
        storeBootData(page, offset, readU16(report, 5), report);
    }
    return report.size();
}

void SimulatedKeypad::storeBootData(int page, int offset, int length, const QByteArray& report)
{
    if (page >= MaxBootPages || length == 0 || length > BootDataCapacity || offset + length > BootPageSize) {
        LOG_MSG(noteError(
            QStringLiteral("boot data of %1 bytes at %2 of page %3 refused!!").arg(length).arg(offset).arg(page)));
        return;
    }
    // Offset 0 begins the page again; flash that was never written reads 0xFF.
    if (offset == 0 || !m_bootPages.contains(page)) {
        m_bootPages.insert(page, QByteArray(BootPageSize, char(0xFF)));
        m_bootPageReceived.insert(page, 0);
    }
    std::memcpy(m_bootPages[page].data() + offset, report.constData() + BootDataHeaderSize, size_t(length));
    m_bootPageReceived[page] += length;
}

// Only a page that arrived whole is acknowledged.
void SimulatedKeypad::endBootPage(int page)
{
    const int received = m_bootPageReceived.value(page, 0);
    if (received != BootPageSize) {
        LOG_MSG(noteError(QStringLiteral("page %1 ended after %2 bytes; not acknowledged!!").arg(page).arg(received)));
        return;
    }
    if (page == m_withheldAckPage) {
        LOG_MSG(QStringLiteral("acknowledgement of page %1 withheld as configured").arg(page));
        return;
    }
    m_ackedPages.append(page);
    queueInput(ReportKind::PageAcknowledge, acknowledgeReport());
}

void SimulatedKeypad::finishBootLoader(Notices& notices)
{
    m_flashed.clear();
    if (m_bootPages.isEmpty())
        LOG_MSG(noteError(QStringLiteral("boot loader finished without any page!!")));
    const int lastPage = m_bootPages.isEmpty() ? -1 : m_bootPages.lastKey();
    for (int page = 0; page <= lastPage; ++page) {
        if (!m_bootPages.contains(page))
            LOG_MSG(noteError(QStringLiteral("page %1 never arrived!!").arg(page)));
        m_flashed += m_bootPages.value(page, QByteArray(BootPageSize, char(0xFF)));
    }
    m_bootLoader = false;
    reenumerate();
    notices << [this] { emit bootLoaderChanged(false); };
    notices << [this] { emit firmwareFlashed(); };
}
