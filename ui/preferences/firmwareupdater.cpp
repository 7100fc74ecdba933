#include "firmwareupdater.h"

#include "buttonlayoutconfig.h"
#include "hid_comm.h"
#include "keypadpause.h"
#include "keypadtable.h"
#include "logging.h"
#include "objectregistry.h"

namespace {

// After a boot loader update the keypad resets and comes back under its own
// product id. Its arrival notice came while the connection still held the
// boot loader and was dropped, so the keypad is looked for here, for a few
// seconds.
void awaitKeypad(Hid_Comm* hid)
{
    constexpr int Attempts = 10;
    constexpr unsigned long PauseMs = 500;
    for (int attempt = 0; attempt < Attempts && !hid->isOpened(); ++attempt) {
        for (quint32 productId : KeypadTable::productIds()) {
            if (KeypadTable::hasBootLoader(productId) && hid->openSDKeyboard(KeypadTable::VendorId, productId))
                return;
        }
        QThread::msleep(PauseMs);
    }
}

} // namespace

FirmwareUpdater::FirmwareUpdater(QObject* parent) : QObject(parent), m_worker(std::make_unique<QObject>())
{
    m_thread.setObjectName(QStringLiteral("Firmware"));
    m_worker->moveToThread(&m_thread);
    m_thread.start();
    if (Hid_Comm* connection = hid())
        connect(connection, &Hid_Comm::KeyboardStatusChange, this, &FirmwareUpdater::onKeyboardStatusChange,
                Qt::QueuedConnection);
}

FirmwareUpdater::~FirmwareUpdater()
{
    if (m_updating)
        LOG_MSG(QStringLiteral("waiting for the firmware update to end."));
    m_thread.quit();
    m_thread.wait();
    m_worker.reset();
}

Hid_Comm* FirmwareUpdater::hid() const
{
    return qobject_cast<Hid_Comm*>(ObjectRegistry::find(ComponentId::HidComm));
}

int FirmwareUpdater::layout() const
{
    if (auto* layouts = qobject_cast<ButtonLayoutConfig*>(ObjectRegistry::find(ComponentId::ButtonLayoutConfig)))
        return layouts->currentLayout();
    Hid_Comm* connection = hid();
    return connection ? connection->currentLayout() : -1;
}

void FirmwareUpdater::runOnWorker(std::function<void()> work)
{
    QMetaObject::invokeMethod(m_worker.get(), std::move(work), Qt::QueuedConnection);
}

FirmwareUpdater::Reading FirmwareUpdater::read(Hid_Comm* hid, int layout)
{
    Reading reading;
    reading.result = Preference::readDeviceInfo(hid, layout, reading.info);
    return reading;
}

void FirmwareUpdater::refresh()
{
    if (m_updating)
        return;
    const int reading = ++m_readings;
    setStatus(Status::Reading);
    Hid_Comm* connection = hid();
    const int layoutValue = layout();
    runOnWorker([this, connection, layoutValue, reading] {
        const Reading result = read(connection, layoutValue);
        QMetaObject::invokeMethod(
            this,
            [this, result, reading] {
                if (reading == m_readings && !m_updating)
                    showReading(result);
            },
            Qt::QueuedConnection);
    });
}

void FirmwareUpdater::onKeyboardStatusChange(bool connected)
{
    Q_UNUSED(connected)
    // An update closes and reopens the keypad itself and reads it afterwards.
    if (!m_updating)
        refresh();
}

void FirmwareUpdater::showReading(const Reading& reading)
{
    m_info = reading.info;
    switch (reading.result) {
    case Preference::DeviceInfoResult::Ready:
        setStatus(Status::Ready);
        break;
    case Preference::DeviceInfoResult::NoKeypad:
        setStatus(Status::NoKeypad);
        break;
    case Preference::DeviceInfoResult::NoAnswer:
        setStatus(Status::NoAnswer);
        break;
    case Preference::DeviceInfoResult::UnknownDevice:
    case Preference::DeviceInfoResult::NoImage:
        setStatus(Status::NoImage);
        break;
    }
}

void FirmwareUpdater::setStatus(Status status)
{
    m_status = status;
    emit statusChanged(status);
}

bool FirmwareUpdater::offerUpdate()
{
    if (m_updating || m_status != Status::Ready)
        return false;
    LOG_MSG(QStringLiteral("show firmware updates dialog."));
    if (UserQuestions::ask(Preference::updateQuestion(m_info)).button != UserQuestion::Yes)
        return false;

    m_updating = true;
    m_outcome = Outcome::None;
    m_percent = 0;
    m_reportedPercent.store(0);
    ++m_readings; // a reading still on its way is out of date
    m_pause = std::make_unique<KeypadPause>();
    emit updateStarted();
    emit progressChanged(0);

    const QString path = Preference::imagePath(m_info);
    Hid_Comm* connection = hid();
    const int layoutValue = layout();
    LOG_MSG(QStringLiteral("updating the firmware from %1 to %2 with %3")
                .arg(m_info.currentVersion, m_info.packagedVersion, path));
    runOnWorker([this, connection, layoutValue, path] {
        const bool flashed =
            Preference::updateFW(connection, path, [this](int done, int total) { noteProgress(done, total); });
        if (flashed && connection)
            awaitKeypad(connection);
        const Reading after = read(connection, layoutValue);
        QMetaObject::invokeMethod(
            this, [this, flashed, after] { finishUpdate(flashed, after); }, Qt::QueuedConnection);
    });
    return true;
}

// On the worker thread.
void FirmwareUpdater::noteProgress(int done, int total)
{
    const int percent = total > 0 ? qBound(0, done * 100 / total, 100) : 0;
    if (m_reportedPercent.exchange(percent) == percent)
        return;
    QMetaObject::invokeMethod(
        this,
        [this, percent] {
            m_percent = percent;
            emit progressChanged(percent);
        },
        Qt::QueuedConnection);
}

void FirmwareUpdater::finishUpdate(bool flashed, const Reading& reading)
{
    LOG_MSG(flashed ? QStringLiteral("firmware updated.") : QStringLiteral("ERROR: firmware update failed!!"));
    m_updating = false;
    m_pause.reset();
    m_outcome = flashed ? Outcome::Flashed : Outcome::Failed;
    showReading(reading);
    emit updateFinished(flashed);
}
