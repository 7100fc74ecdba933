// The device thread's key report handling: Hid_Comm polls a transport that
// hands it the input cut into 65-byte input reports (a shorter rest is a
// report cut short). The first byte chooses the layout and whether the
// connection is paused. Every press and release it reports must name a key
// of the layout, one press at a time.

#include "fuzzsupport.h"
#include "hid_comm.h"
#include "hidtransport.h"
#include "keypadprotocol.h"
#include "keypadtable.h"

#include <QMutex>
#include <QWaitCondition>

#include <atomic>
#include <cstring>

namespace {

// Answers reads from the queued reports and waits on an empty queue, as a
// quiet keypad would. Everything else succeeds and says nothing.
class FuzzTransport : public HidTransport
{
public:
    int init() override { return 0; }
    int exit() override { return 0; }
    HidDeviceHandle* open(unsigned short, unsigned short) override
    {
        return reinterpret_cast<HidDeviceHandle*>(&m_token);
    }
    void close(HidDeviceHandle*) override {}
    int write(HidDeviceHandle*, const unsigned char*, size_t length) override { return int(length); }
    int sendFeatureReport(HidDeviceHandle*, const unsigned char*, size_t length) override { return int(length); }
    int getFeatureReport(HidDeviceHandle*, unsigned char*, size_t) override { return -1; }
    QString error(HidDeviceHandle*) override { return QString(); }

    int readTimeout(HidDeviceHandle*, unsigned char* data, size_t length, int milliseconds) override
    {
        QMutexLocker locker(&m_mutex);
        if (m_reports.isEmpty()) {
            // The report before this read has been handled completely.
            m_drained = true;
            m_changed.wakeAll();
            m_changed.wait(&m_mutex, ulong(milliseconds));
            if (m_reports.isEmpty())
                return 0;
        }
        const QByteArray report = m_reports.takeFirst();
        const size_t count = qMin(length, size_t(report.size()));
        std::memcpy(data, report.constData(), count);
        return int(count);
    }

    // Returns once the device thread has handled every report.
    void feed(const QList<QByteArray>& reports)
    {
        QMutexLocker locker(&m_mutex);
        m_reports = reports;
        m_drained = false;
        m_changed.wakeAll();
        while (!m_drained)
            m_changed.wait(&m_mutex);
    }

private:
    QMutex m_mutex;
    QWaitCondition m_changed;
    QList<QByteArray> m_reports;
    bool m_drained = false;
    int m_token = 0;
};

FuzzTransport* transport = nullptr;
Hid_Comm* hid = nullptr;
std::atomic<int> layout{0};
std::atomic<int> pressedId{0}; // 0: no press reported

void onPressed(int id)
{
    if (id < 1 || id > KeypadTable::keyCount(layout.load()))
        FuzzSupport::fail("a press of a key the layout does not have");
    if (pressedId.exchange(id) != 0)
        FuzzSupport::fail("a second press before the release");
}

void onReleased(int id)
{
    if (id != -1 && (id < 1 || id > KeypadTable::keyCount(layout.load())))
        FuzzSupport::fail("a release of a key the layout does not have");
    const int pressed = pressedId.exchange(0);
    if (pressed != 0 && pressed != id)
        FuzzSupport::fail("the release names another key than the press");
}

QByteArray noKeysDown()
{
    QByteArray report(KeypadProtocol::InputReportSize, '\0');
    report[0] = char(KeypadProtocol::KeyStateId);
    return report;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FuzzSupport::initApplication("fuzz_keyreports");
    transport = new FuzzTransport;
    hid = new Hid_Comm;
    QObject::connect(hid, &Hid_Comm::keyPressed, hid, &onPressed, Qt::DirectConnection);
    QObject::connect(hid, &Hid_Comm::keyReleased, hid, &onReleased, Qt::DirectConnection);
    hid->switchTransport(transport);
    if (!hid->isOpened())
        FuzzSupport::fail("the fuzz transport's keypad does not open");
    hid->start();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    // Every input starts from a keypad with no key down.
    hid->setPaused(false);
    transport->feed({noKeysDown()});
    layout.store(data[0] % KeypadTable::LayoutCount);
    hid->onButtonLayoutChanged(KeyLayout(layout.load()));
    hid->setPaused(data[0] & 0x80);
    QList<QByteArray> reports;
    for (size_t at = 1; at < size; at += KeypadProtocol::InputReportSize) {
        const size_t length = qMin(size - at, size_t(KeypadProtocol::InputReportSize));
        reports.append(QByteArray(reinterpret_cast<const char*>(data + at), int(length)));
    }
    transport->feed(reports);
    return 0;
}
