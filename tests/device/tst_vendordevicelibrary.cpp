#include "fakevendorlibrary.h"
#include "hid_comm.h"
#include "keyeventrecorder.h"
#include "logcapture.h"
#include "recordingtransport.h"
#include "testmain.h"
#include "vendordevicelibrary.h"

#include <QLibrary>

namespace {
constexpr uint32_t VendorId = 0xFFFF;
constexpr uint32_t ProductId = 0x110E;

void setEvent(FakeVendorState* state, int result, int count, unsigned bits)
{
    state->event[0] = uint8_t(count);
    state->event[1] = uint8_t(bits);
    state->event[2] = uint8_t(bits >> 8);
    state->eventResult = result;
    state->eventPending = true;
}
} // namespace

// The keypad model driven through its maker's library, with a stand-in
// library built for the tests.
class TestVendorDeviceLibrary : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        transport = new RecordingTransport;
        transport->openFails = true; // only the library path can open
    }

    void cleanup()
    {
        delete transport;
        VendorDeviceLibrary::setLibraryName(QStringLiteral("vT_BD_x64"));
    }

    void shouldReportTheModelUnsupportedWithoutTheLibrary()
    {
        VendorDeviceLibrary::setLibraryName(QStringLiteral("/nonexistent/libvT_BD_x64.so"));
        LogCapture capture;
        Hid_Comm hid;
        QTRY_VERIFY(!capture.matching(QStringLiteral("pid:%1 !").arg(ProductId)).isEmpty());
        QVERIFY(!capture.matching(QStringLiteral("this model is not supported on this system")).isEmpty());
        QVERIFY(!hid.isOpened());
        QVERIFY(!hid.openSDKeyboard(VendorId, ProductId));
    }

    void shouldDriveTheKeypadThroughTheLibrary()
    {
        FakeVendorState* state = loadFake();
        Hid_Comm hid;
        KeyEventRecorder recorder(&hid);
        QTRY_VERIFY(hid.isOpened());
        QVERIFY(Hid_Comm::usesVendorLibrary());
        QCOMPARE(state->openedVid, quint16(0xFFFF));
        QCOMPARE(state->openedPid, quint16(ProductId));

        hid.onButtonLayoutChanged(V_Key_15);
        QImage red(72, 72, QImage::Format_RGBA8888);
        red.fill(Qt::red);
        QVERIFY(hid.sendIcon(6, red, false));
        QCOMPARE(state->lastImageKey, 5); // the library counts keys from 0
        const QImage sent = QImage::fromData(state->lastImage, state->lastImageSize, "JPG");
        QCOMPARE(sent.size(), QSize(72, 72));
        QVERIFY(qRed(sent.pixel(36, 36)) > 240 && qGreen(sent.pixel(36, 36)) < 20);

        hid.setBacklight(42);
        QCOMPARE(state->brightness, 42);
        QString serial, version;
        QVERIFY(hid.readSerialNumber(serial));
        QCOMPARE(serial, QStringLiteral("VENDOR-SERIAL-01"));
        QVERIFY(hid.readFWVersion(version));
        QCOMPARE(version, QStringLiteral("1.3.0.0"));
        QVERIFY(hid.showLogo());
        QCOMPARE(state->logos, 1);

        setEvent(state, 0, 15, 1u << 4);
        QTRY_COMPARE(recorder.keyEvents(), QStringList{QStringLiteral("press 5")});
        setEvent(state, 0, 15, 0);
        QTRY_COMPARE(recorder.keyEvents().size(), 2);
        QCOMPARE(recorder.keyEvents().last(), QStringLiteral("release 5"));

        setEvent(state, 6, 0, 0); // the library lost the keypad
        QTRY_VERIFY(!hid.isOpened());
        QTRY_COMPARE(recorder.events.last(), QStringLiteral("disconnected"));
        QVERIFY(state->closes >= 1);
    }

    void shouldPassTheFirmwareResultAsTheLibraryGivesIt()
    {
        FakeVendorState* state = loadFake();
        Hid_Comm hid;
        QTRY_VERIFY(hid.isOpened());
        state->firmwareResult = 1;
        QCOMPARE(hid.updateVendorFirmware(QByteArray(300, 'f')), 1);
        QCOMPARE(state->firmwareSize, 300);
        QCOMPARE(state->firmwareFlag, 2);
    }

private:
    FakeVendorState* loadFake()
    {
        VendorDeviceLibrary::setLibraryName(QStringLiteral(FAKE_VENDOR_LIBRARY));
        auto stateOf = reinterpret_cast<FakeVendorStateFn>(
            QLibrary::resolve(QStringLiteral(FAKE_VENDOR_LIBRARY), "fakeVendorState"));
        FakeVendorState* state = stateOf();
        *state = FakeVendorState();
        return state;
    }

    RecordingTransport* transport = nullptr;
};

KEYSTAGE_TEST_MAIN(TestVendorDeviceLibrary)
#include "tst_vendordevicelibrary.moc"
