#include "logcapture.h"
#include "recordingtransport.h"
#include "testmain.h"
#include "vthiddev.h"

#include <QTemporaryFile>
#include <QtEndian>
#include <cstring>

namespace {
quint32 u32At(const QByteArray& bytes, int at)
{
    return qFromLittleEndian<quint32>(reinterpret_cast<const uchar*>(bytes.constData() + at));
}

quint16 u16At(const QByteArray& bytes, int at)
{
    return qFromLittleEndian<quint16>(reinterpret_cast<const uchar*>(bytes.constData() + at));
}

QByteArray patterned(int size, int seed = 0)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = char((i * 7 + seed) & 0xFF);
    return bytes;
}

quint32 sumFrom(const QByteArray& bytes, int from, int count)
{
    quint32 sum = 0;
    for (int i = from; i < from + count; ++i)
        sum += quint8(bytes.at(i));
    return sum;
}

QByteArray keyReport(quint64 bits, char id = 0x01)
{
    QByteArray report(65, '\0');
    report[0] = id;
    for (int i = 0; i < 8; ++i)
        report[1 + i] = char((bits >> (8 * i)) & 0xFF);
    return report;
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
        transport = nullptr;
    }

    void shouldRefuseEveryOperationWithoutADevice()
    {
        device.vT_DeviceClose();
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
    }

    void shouldKeepTheOpenDeviceInOneSharedHandle()
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

        transport->openFails = true;
        QCOMPARE(device.vT_DeviceOpen(0xFFFF, 0x1F41), int(Err_DeviceOpen));
        transport->openFails = false;
        transport->initResult = -1;
        QCOMPARE(device.vT_DeviceOpen(0xFFFF, 0x1F41), int(Err_DeviceOpen));
    }

    void shouldSendImagesInChunks_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<QList<int>>("chunkLengths");
        QTest::newRow("one byte") << 1 << QList<int>{1};
        QTest::newRow("exactly one chunk") << 8000 << QList<int>{8000};
        QTest::newRow("one byte over a chunk") << 8001 << QList<int>{8000, 1};
        QTest::newRow("largest image") << 16366 << QList<int>{8000, 8000, 366};
    }

    void shouldSendImagesInChunks()
    {
        QFETCH(int, size);
        QFETCH(QList<int>, chunkLengths);
        const QByteArray image = patterned(size);
        QCOMPARE(device.vT_WriteImage(7, bytesOf(image), size), 0);

        const auto writes = transport->calls(RecordingTransport::Write);
        QCOMPARE(writes.size(), chunkLengths.size());
        QByteArray reassembled;
        for (int i = 0; i < writes.size(); ++i) {
            const QByteArray& report = writes[i].bytes;
            QCOMPARE(report.size(), 8017);
            QCOMPARE(quint8(report[0]), quint8(0x02));
            QCOMPARE(u32At(report, 1), quint32(reassembled.size()));
            QCOMPARE(u32At(report, 5), quint32(chunkLengths[i]));
            QCOMPARE(u32At(report, 9), 0x55AAAA55u);
            QCOMPARE(u32At(report, 13), 0x44332211u);
            reassembled += report.mid(17, chunkLengths[i]);
            QVERIFY(report.mid(17 + chunkLengths[i]).count('\0') == 8000 - chunkLengths[i]);
        }
        QCOMPARE(reassembled, image);
        // The device pauses 2 ms after each chunk before it takes the next.
        for (int i = 1; i < writes.size(); ++i)
            QVERIFY(writes[i].atNs - writes[i - 1].atNs >= 2'000'000);

        const auto features = transport->calls(RecordingTransport::Feature);
        QCOMPARE(features.size(), 1);
        const QByteArray& show = features[0].bytes;
        QCOMPARE(show.size(), 33);
        QCOMPARE(quint8(show[0]), quint8(0x12));
        QCOMPARE(quint8(show[1]), quint8(0x01));
        QCOMPARE(u32At(show, 4), 7u);
        QCOMPARE(u32At(show, 16), quint32(size));
        QVERIFY(features[0].atNs - writes.last().atNs >= 2'000'000);
    }

    void shouldRefuseImagesOfTheLimitOrMore()
    {
        const QByteArray image = patterned(VTHidDev::MaxImageSize);
        QCOMPARE(device.vT_WriteImage(1, bytesOf(image), image.size()), int(Err_ParamInvalid));
        QCOMPARE(device.vT_WriteImageNUC442(1, bytesOf(image), image.size()), int(Err_ParamInvalid));
        QVERIFY(transport->calls(RecordingTransport::Write).isEmpty());
        QVERIFY(transport->calls(RecordingTransport::Feature).isEmpty());
    }

    void shouldSendSmallPacketsOnTheSixKeyPath()
    {
        const QByteArray image = patterned(1000);
        QCOMPARE(device.vT_WriteImageNUC442(3, bytesOf(image), image.size()), 0);
        const auto writes = transport->calls(RecordingTransport::Write);
        QCOMPARE(writes.size(), 3);
        const QList<int> lengths{495, 495, 10};
        QByteArray reassembled;
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(writes[i].bytes.size(), 512);
            QCOMPARE(u32At(writes[i].bytes, 1), quint32(reassembled.size()));
            QCOMPARE(u32At(writes[i].bytes, 5), quint32(lengths[i]));
            reassembled += writes[i].bytes.mid(17, lengths[i]);
        }
        QCOMPARE(reassembled, image);
        QVERIFY(writes[2].atNs - writes[1].atNs >= 1'000'000);
    }

    void shouldClearAKeyWhenTheImageIsEmpty()
    {
        QCOMPARE(device.vT_WriteImage(9, nullptr, 0), 0);
        QVERIFY(transport->calls(RecordingTransport::Write).isEmpty());
        const auto features = transport->calls(RecordingTransport::Feature);
        QCOMPARE(features.size(), 1);
        QCOMPARE(features[0].bytes, QByteArray("\x14\xAC\x09", 3) + QByteArray(14, '\0'));
    }

    void shouldFailWhenAFeatureReportGoesOutShort()
    {
        transport->featureSendShortBy = 1;
        const QByteArray image = patterned(100);
        QCOMPARE(device.vT_WriteImage(1, bytesOf(image), image.size()), int(Err_Failure));
        QCOMPARE(device.vT_WriteImage(1, nullptr, 0), int(Err_Failure));
        QCOMPARE(device.vT_SetBacklight(10), int(Err_Failure));
        QCOMPARE(device.vT_ShowLogo(), int(Err_Failure));
    }

    void shouldSetTheBacklightAndShowTheLogo()
    {
        QCOMPARE(device.vT_SetBacklight(77), 0);
        QCOMPARE(device.vT_ShowLogo(), 0);
        int level = 5;
        QCOMPARE(device.vT_GetBacklight(&level), int(Err_NotSupported));
        QCOMPARE(level, 5);
        const auto features = transport->calls(RecordingTransport::Feature);
        QCOMPARE(features[0].bytes, QByteArray("\x11\x4D", 2));
        const QByteArray& logo = features[1].bytes;
        QCOMPARE(logo.size(), 33);
        QCOMPARE(logo.left(4), QByteArray("\x12\x02\0\0", 4));
        QCOMPARE(u32At(logo, 4), 999u);
        QCOMPARE(u32At(logo, 8), 9999u);
        QCOMPARE(logo.mid(12).count('\0'), 21);
    }

    void shouldExpandKeyReports()
    {
        transport->inputReports = {keyReport((quint64(1) << 0) | (quint64(1) << 9) | (quint64(1) << 63))};
        KEYBUTTON_DATA keys;
        QCOMPARE(device.vT_ReadKeyButtonTimeout(&keys, 100), 0);
        for (int n = 0; n < 64; ++n)
            QCOMPARE(int(keys.key[n]), (n == 0 || n == 9 || n == 63) ? 1 : 0);
        QCOMPARE(device.vT_ReadKeyButtonTimeout(nullptr, 100), int(Err_ParamInvalid));
    }

    void shouldLeaveKeysAloneOnAReportOfAnotherKind()
    {
        transport->inputReports = {keyReport(0xFF, 0x02), QByteArray("\x01\xFF", 2)};
        KEYBUTTON_DATA keys;
        std::memset(keys.key, 0x5A, sizeof keys.key);
        QCOMPARE(device.vT_ReadKeyButtonTimeout(&keys, 100), int(Err_ParamInvalid));
        QCOMPARE(device.vT_ReadKeyButtonTimeout(&keys, 100), int(Err_ParamInvalid)); // cut short
        QCOMPARE(int(keys.key[0]), 0x5A);
        QVERIFY(VTHidDev::isDeviceOpen());
    }

    void shouldKeepTheDeviceOpenOnTimeoutAndCloseItOnError()
    {
        KEYBUTTON_DATA keys;
        transport->readResult = 0;
        QCOMPARE(device.vT_ReadKeyButtonTimeout(&keys, 10), int(Err_Timeout));
        QVERIFY(VTHidDev::isDeviceOpen());
        transport->readResult = -1;
        QCOMPARE(device.vT_ReadKeyButtonTimeout(&keys, 10), int(Err_DeviceOpen));
        QVERIFY(!VTHidDev::isDeviceOpen());
        QCOMPARE(transport->closes, 1);
    }

    void shouldReadTheSerialNumber()
    {
        transport->featureAnswer = QByteArray("\x17") + "SN-0123456789ABC";
        uint8_t serial[16] = {};
        QCOMPARE(device.vT_ReadSerialNo(serial), 0);
        QCOMPARE(QByteArray(reinterpret_cast<char*>(serial), 16), QByteArray("SN-0123456789ABC"));
        const auto asked = transport->calls(RecordingTransport::GetFeature);
        QCOMPARE(asked[0].bytes.size(), 17);
        QCOMPARE(quint8(asked[0].bytes[0]), quint8(0x17));
    }

    void shouldLogAnIncompleteAnswer()
    {
        LogCapture capture;
        transport->featureAnswer = QByteArray("\x17") + "SN";
        uint8_t serial[16] = {};
        QCOMPARE(device.vT_ReadSerialNo(serial), int(Err_Failure));
        QCOMPARE(
            capture.matching(QStringLiteral("VTHidDev::vT_ReadSerialNo Err_Failure: extpect write: 17 but: 3")).size(),
            1);
        transport->featureAnswerCount = -1;
        uint8_t version[12] = {};
        QCOMPARE(device.vT_ReadFirmwareVersion(version), int(Err_Failure));
        QCOMPARE(capture.matching(QStringLiteral("VTHidDev::vT_ReadFirmwareVersion Err_Failure")).size(), 1);
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
        QByteArray report = QByteArray("\x10") + answer;
        report.append(QByteArray(33 - report.size(), '\0'));
        transport->featureAnswer = report;
        uint8_t out[12] = {};
        QCOMPARE(device.vT_ReadFirmwareVersion(out), result);
        if (result == 0)
            QCOMPARE(QByteArray(reinterpret_cast<char*>(out), int(qstrnlen(reinterpret_cast<char*>(out), 12))),
                     version);
    }

    // The array is summed after its 64-byte header; the file leaves its last
    // 13 bytes out too.
    void shouldCommitMainFirmwareWithItsChecksum()
    {
        const QByteArray image = patterned(64 + 20000, 3);
        QCOMPARE(device.vT_FirmwareUpgrade(image), 0);
        auto features = transport->calls(RecordingTransport::Feature);
        QCOMPARE(features.size(), 1);
        QCOMPARE(features[0].bytes.size(), 17);
        QCOMPARE(quint8(features[0].bytes[0]), quint8(0x13));
        QCOMPARE(u32At(features[0].bytes, 1), quint32(image.size()));
        QCOMPARE(u32At(features[0].bytes, 5), sumFrom(image, 64, image.size() - 64));
        QCOMPARE(transport->calls(RecordingTransport::Write).size(), 3);

        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(image);
        file.close();
        transport->clearCalls();
        QCOMPARE(device.vT_FirmwareUpgrade(QFile::encodeName(file.fileName()).constData()), 0);
        features = transport->calls(RecordingTransport::Feature);
        QCOMPARE(u32At(features[0].bytes, 1), quint32(image.size()));
        QCOMPARE(u32At(features[0].bytes, 5), sumFrom(image, 64, image.size() - 77));
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

        const auto writes = transport->calls(RecordingTransport::Write);
        QCOMPARE(writes.size(), 2 * 6 + 1);
        QByteArray flashed;
        for (int page = 0; page < 2; ++page) {
            for (int packet = 0; packet < 5; ++packet) {
                const QByteArray& report = writes[page * 6 + packet].bytes;
                QCOMPARE(report.size(), 513);
                QCOMPARE(u16At(report, 1), quint16(page));
                QCOMPARE(u16At(report, 3), quint16(packet * 506));
                const int length = packet < 4 ? 506 : 24;
                QCOMPARE(u16At(report, 5), quint16(length));
                flashed += report.mid(7, length);
            }
            const QByteArray& end = writes[page * 6 + 5].bytes;
            QCOMPARE(u16At(end, 1), quint16(page));
            QCOMPARE(u16At(end, 3), quint16(0xFF00));
        }
        QCOMPARE(flashed.left(body.size()), body);
        QCOMPARE(flashed.mid(body.size()), QByteArray(4096 - body.size(), '\0'));
        QCOMPARE(u16At(writes.last().bytes, 3), quint16(0xFE00));
    }

    void shouldStopTheSixKeyUpgradeWithoutAnAcknowledgement()
    {
        transport->inputReports = {QByteArray("\x02\xB0", 2)};
        QCOMPARE(device.vT_FirmwareUpgradeNUC442(QByteArray(64, 'H') + patterned(3 * 2048)), int(Err_Failure));
        QCOMPARE(transport->calls(RecordingTransport::Write).size(), 6); // the first page only
    }

private:
    RecordingTransport* transport = nullptr;
    VTHidDev device;
};

KEYSTAGE_TEST_MAIN(TestVTHidDev)
#include "tst_vthiddev.moc"
