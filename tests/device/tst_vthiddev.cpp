#include "recordingtransport.h"
#include "testmain.h"
#include "vthiddev.h"

#include <QTemporaryFile>
#include <cstring>

namespace {
// A little-endian field of `width` bytes.
QByteArray le(quint32 value, int width = 4)
{
    QByteArray field(width, '\0');
    for (int i = 0; i < width; ++i)
        field[i] = char((value >> (8 * i)) & 0xFF);
    return field;
}

// A report of `length` bytes: `head`, then zeros.
QByteArray report(const QByteArray& head, int length)
{
    return head.leftJustified(length, '\0');
}

QByteArray patterned(int size, int seed = 0)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = char((i * 7 + seed) & 0xFF);
    return bytes;
}

quint32 sumOf(const QByteArray& bytes)
{
    quint32 sum = 0;
    for (const char byte : bytes)
        sum += quint8(byte);
    return sum;
}

const uint8_t* bytesOf(const QByteArray& data)
{
    return reinterpret_cast<const uint8_t*>(data.constData());
}
} // namespace

class TestVTHidDev : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        transport = new RecordingTransport;
        QCOMPARE(device.vT_DeviceOpen(0xFFFF, 0x1F41), 0);
        transport->clearCalls();
    }

    void cleanup()
    {
        device.vT_DeviceClose();
        delete transport;
    }

    void shouldShareOneHandleAndRefuseEverythingWithoutIt()
    {
        int vid = 0, pid = 0;
        QVERIFY(device.vT_getDeviceInfo(vid, pid));
        QCOMPARE(vid, 0xFFFF);
        QCOMPARE(pid, 0x1F41);
        VTHidDev other;
        QCOMPARE(other.vT_SetBacklight(3), 0); // another object, the same handle
        QVERIFY(!other.vT_getDeviceInfo(vid, pid));

        QCOMPARE(device.vT_DeviceClose(), 0);
        QVERIFY(!device.vT_getDeviceInfo(vid, pid));
        QVERIFY(!VTHidDev::isDeviceOpen());
        transport->clearCalls();
        uint8_t buffer[16] = {};
        KEYBUTTON_DATA keys;
        QCOMPARE(device.vT_WriteImage(1, buffer, 10), int(Err_NoDevice));
        QCOMPARE(device.vT_WriteImageNUC442(1, buffer, 10), int(Err_NoDevice));
        QCOMPARE(device.vT_SetBacklight(50), int(Err_NoDevice));
        QCOMPARE(device.vT_ReadSerialNo(buffer), int(Err_NoDevice));
        QCOMPARE(device.vT_ReadFirmwareVersion(buffer), int(Err_NoDevice));
        QCOMPARE(device.vT_ReadKeyButtonTimeout(&keys, 10), int(Err_NoDevice));
        QCOMPARE(device.vT_ShowLogo(), int(Err_NoDevice));
        QCOMPARE(device.vT_FirmwareUpgrade(QByteArray(100, 'x')), int(Err_NoDevice));
        QCOMPARE(device.vT_FirmwareUpgradeNUC442(QByteArray(100, 'x')), int(Err_NoDevice));
        QVERIFY(transport->calls(RecordingTransport::Write).isEmpty());
        QVERIFY(transport->calls(RecordingTransport::Feature).isEmpty());

        transport->openFails = true;
        QCOMPARE(device.vT_DeviceOpen(0xFFFF, 0x1F41), int(Err_DeviceOpen));
        transport->openFails = false;
        transport->initResult = -1;
        QCOMPARE(device.vT_DeviceOpen(0xFFFF, 0x1F41), int(Err_DeviceOpen));
    }

    void shouldSendImagesInChunks_data()
    {
        QTest::addColumn<bool>("small");
        QTest::addColumn<int>("size");
        QTest::addColumn<QList<int>>("chunkLengths"); // none: refused
        QTest::newRow("one byte") << false << 1 << QList<int>{1};
        QTest::newRow("exactly one chunk") << false << 8000 << QList<int>{8000};
        QTest::newRow("one byte over a chunk") << false << 8001 << QList<int>{8000, 1};
        QTest::newRow("largest image") << false << 16366 << QList<int>{8000, 8000, 366};
        QTest::newRow("one byte too large") << false << 16367 << QList<int>{};
        QTest::newRow("six-key path") << true << 1000 << QList<int>{495, 495, 10};
        QTest::newRow("six-key path, too large") << true << 16367 << QList<int>{};
    }

    // The device needs a pause after each large chunk, and on the six-key
    // path before the last small packet, before it takes the next report.
    void shouldSendImagesInChunks()
    {
        QFETCH(bool, small);
        QFETCH(int, size);
        QFETCH(QList<int>, chunkLengths);
        const QByteArray image = patterned(size);
        const int result =
            small ? device.vT_WriteImageNUC442(7, bytesOf(image), size) : device.vT_WriteImage(7, bytesOf(image), size);
        QCOMPARE(result, chunkLengths.isEmpty() ? int(Err_ParamInvalid) : 0);

        const auto writes = transport->calls(RecordingTransport::Write);
        QCOMPARE(writes.size(), chunkLengths.size());
        const int capacity = small ? 495 : 8000;
        const qint64 pauseNs = small ? 1'000'000 : 2'000'000;
        int offset = 0;
        for (int i = 0; i < writes.size(); ++i) {
            const QByteArray data = image.mid(offset, chunkLengths[i]);
            const QByteArray head = "\x02" + le(offset) + le(data.size()) + le(0x55AAAA55) + le(0x44332211);
            QCOMPARE(writes[i].bytes, report(head + data, 17 + capacity));
            offset += data.size();
            if (i > 0 && (!small || i == writes.size() - 1))
                QVERIFY(writes[i].atNs - writes[i - 1].atNs >= pauseNs);
        }
        QCOMPARE(offset, writes.isEmpty() ? 0 : size);

        const auto features = transport->calls(RecordingTransport::Feature);
        QCOMPARE(features.size(), writes.isEmpty() ? 0 : 1);
        if (writes.isEmpty())
            return;
        QCOMPARE(features[0].bytes,
                 report("\x12\x01" + QByteArray(2, '\0') + le(7) + QByteArray(8, '\0') + le(size), 33));
        QVERIFY(features[0].atNs - writes.last().atNs >= pauseNs);
    }

    void shouldSendClearBacklightAndLogoWholeOrFail()
    {
        QCOMPARE(device.vT_WriteImage(9, nullptr, 0), 0);
        QCOMPARE(device.vT_SetBacklight(77), 0);
        QCOMPARE(device.vT_ShowLogo(), 0);
        int level = 5;
        QCOMPARE(device.vT_GetBacklight(&level), int(Err_NotSupported));
        QCOMPARE(level, 5);
        QVERIFY(transport->calls(RecordingTransport::Write).isEmpty());
        const auto features = transport->calls(RecordingTransport::Feature);
        QCOMPARE(features.size(), 3);
        QCOMPARE(features[0].bytes, report("\x14\xAC\x09", 17));
        QCOMPARE(features[1].bytes, QByteArray("\x11\x4D"));
        QCOMPARE(features[2].bytes, report("\x12\x02" + QByteArray(2, '\0') + le(999) + le(9999), 33));

        transport->featureSendShortBy = 1;
        const QByteArray image = patterned(100);
        QCOMPARE(device.vT_WriteImage(1, bytesOf(image), image.size()), int(Err_Failure));
        QCOMPARE(device.vT_WriteImage(1, nullptr, 0), int(Err_Failure));
        QCOMPARE(device.vT_SetBacklight(10), int(Err_Failure));
        QCOMPARE(device.vT_ShowLogo(), int(Err_Failure));
    }

    // A report of another id, or a key report cut short, leaves the keys as
    // they were and the device open.
    void shouldExpandOnlyWholeKeyReportsAndCloseOnlyOnAnError()
    {
        const QByteArray keys0And9And63("\x01\x01\x02\0\0\0\0\0\x80", 9);
        transport->inputReports = {keys0And9And63.leftJustified(65, '\0'),
                                   QByteArray("\x02\xFF").leftJustified(65, '\0'), QByteArray("\x01\xFF", 2)};
        KEYBUTTON_DATA keys;
        QCOMPARE(device.vT_ReadKeyButtonTimeout(&keys, 100), 0);
        for (int n = 0; n < 64; ++n)
            QCOMPARE(int(keys.key[n]), (n == 0 || n == 9 || n == 63) ? 1 : 0);
        QCOMPARE(device.vT_ReadKeyButtonTimeout(nullptr, 100), int(Err_ParamInvalid));
        std::memset(keys.key, 0x5A, sizeof keys.key);
        QCOMPARE(device.vT_ReadKeyButtonTimeout(&keys, 100), int(Err_ParamInvalid));
        QCOMPARE(device.vT_ReadKeyButtonTimeout(&keys, 100), int(Err_ParamInvalid));
        QCOMPARE(int(keys.key[0]), 0x5A);
        QVERIFY(VTHidDev::isDeviceOpen());

        transport->readResult = 0; // a timeout keeps the device, an error closes it
        QCOMPARE(device.vT_ReadKeyButtonTimeout(&keys, 10), int(Err_Timeout));
        QVERIFY(VTHidDev::isDeviceOpen());
        transport->readResult = -1;
        QCOMPARE(device.vT_ReadKeyButtonTimeout(&keys, 10), int(Err_DeviceOpen));
        QVERIFY(!VTHidDev::isDeviceOpen());
        QCOMPARE(transport->closes, 1);
    }

    void shouldReadTheSerialNumberOnlyFromAWholeAnswer()
    {
        transport->featureAnswer = QByteArray("\x17") + "SN-0123456789ABC";
        uint8_t serial[16] = {};
        QCOMPARE(device.vT_ReadSerialNo(serial), 0);
        QCOMPARE(QByteArray(reinterpret_cast<char*>(serial), 16), QByteArray("SN-0123456789ABC"));
        const QByteArray asked = transport->calls(RecordingTransport::GetFeature)[0].bytes;
        QCOMPARE(asked, QByteArray("\x17").leftJustified(17, '\0'));

        transport->featureAnswer = QByteArray("\x17") + "SN";
        QCOMPARE(device.vT_ReadSerialNo(serial), int(Err_Failure));
        transport->featureAnswerCount = -1;
        uint8_t version[12] = {};
        QCOMPARE(device.vT_ReadFirmwareVersion(version), int(Err_Failure));
    }

    void shouldReadTheFirmwareVersionAfterItsFirstDot_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<int>("result");
        QTest::addColumn<QByteArray>("version");
        QTest::newRow("usual") << QByteArray("VKP V1.0.170121") << 0 << QByteArray("0.170121");
        QTest::newRow("long") << QByteArray("X.123456789012345") << 0 << QByteArray("123456789012");
        QTest::newRow("fills the report") << QByteArray(31, 'A') + "." << 0 << QByteArray();
        QTest::newRow("no dot") << QByteArray("VKP V1") << int(Err_Failure) << QByteArray();
    }

    void shouldReadTheFirmwareVersionAfterItsFirstDot()
    {
        QFETCH(QByteArray, answer);
        QFETCH(int, result);
        QFETCH(QByteArray, version);
        transport->featureAnswer = (QByteArray("\x10") + answer).leftJustified(33, '\0');
        uint8_t out[12] = {};
        QCOMPARE(device.vT_ReadFirmwareVersion(out), result);
        QCOMPARE(QByteArray(reinterpret_cast<char*>(out), 12), version.leftJustified(12, '\0'));
    }

    // The array is summed after its 64-byte header; the file leaves its last
    // 13 bytes out too.
    void shouldCommitMainFirmwareWithItsChecksum()
    {
        const QByteArray image = patterned(64 + 20000, 3);
        QCOMPARE(device.vT_FirmwareUpgrade(image), 0);
        auto features = transport->calls(RecordingTransport::Feature);
        QCOMPARE(features.size(), 1);
        QCOMPARE(features[0].bytes, report("\x13" + le(image.size()) + le(sumOf(image.mid(64))), 17));
        QCOMPARE(transport->calls(RecordingTransport::Write).size(), 3);

        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(image);
        file.close();
        transport->clearCalls();
        QCOMPARE(device.vT_FirmwareUpgrade(QFile::encodeName(file.fileName()).constData()), 0);
        features = transport->calls(RecordingTransport::Feature);
        QCOMPARE(features[0].bytes,
                 report("\x13" + le(image.size()) + le(sumOf(image.mid(64, image.size() - 77))), 17));
        QCOMPARE(device.vT_FirmwareUpgrade("/nonexistent/firmware.bin"), int(Err_FileOpen));
    }

    void shouldWriteTheSixKeyFirmwarePageByPage()
    {
        const QByteArray body = patterned(2048 + 100, 5);
        const QByteArray ack = QByteArray("\x02\xB1", 2) + QByteArray(63, '\0');
        transport->inputReports = {ack, ack};
        QCOMPARE(device.vT_FirmwareUpgradeNUC442(QByteArray(64, 'H') + body), 0);

        QCOMPARE(transport->openedProduct, quint16(0xFF00));
        int vid = 0, pid = 0;
        device.vT_getDeviceInfo(vid, pid);
        QCOMPARE(pid, 0xFF00);
        QCOMPARE(transport->calls(RecordingTransport::Feature)[0].bytes.left(3), QByteArray("\x14\xDC\xCD"));

        // Per page: four packets of 506 bytes, one of 24, the page end; then
        // the finish. The last page is padded with zeros.
        const QByteArray padded = body.leftJustified(2 * 2048, '\0');
        QList<QByteArray> expected;
        for (int page = 0; page < 2; ++page) {
            for (int offset = 0; offset < 2048; offset += 506) {
                const QByteArray data = padded.mid(page * 2048 + offset, qMin(506, 2048 - offset));
                expected << report('\0' + le(page, 2) + le(offset, 2) + le(data.size(), 2) + data, 513);
            }
            expected << report('\0' + le(page, 2) + le(0xFF00, 2), 513);
        }
        expected << report('\0' + le(0, 2) + le(0xFE00, 2), 513);
        QList<QByteArray> written;
        for (const auto& call : transport->calls(RecordingTransport::Write))
            written << call.bytes;
        QCOMPARE(written, expected);
    }

private:
    RecordingTransport* transport = nullptr;
    VTHidDev device;
};

KEYSTAGE_TEST_MAIN(TestVTHidDev)
#include "tst_vthiddev.moc"
