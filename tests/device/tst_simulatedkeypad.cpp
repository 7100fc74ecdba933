#include "logcapture.h"
#include "simulatedkeypad.h"
#include "testmain.h"

#include <QBuffer>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QImageWriter>
#include <QSignalSpy>
#include <QThread>

#include <memory>

// The simulated keypad is driven here exactly as the program's protocol code
// drives a keypad: through the HidTransport calls, with reports built by hand
// from the wire formats, so these tests pin the device side on its own.

namespace {

using Kind = SimulatedKeypad::ReportKind;

constexpr unsigned short Vendor = 0xFFFF;
constexpr unsigned short MainProduct = 0x1F41;
constexpr unsigned short Nuc442Product = 0x1F43;
constexpr unsigned short BootLoaderProduct = 0xFF00;
constexpr int LargeReport = 8017;
constexpr int SmallReport = 512;
constexpr int LargeCapacity = 8000;
constexpr int SmallCapacity = 495;
constexpr int PageSize = 2048;
constexpr int InputSize = 65;

// --- Little-endian fields -------------------------------------------------

void putU16(QByteArray& report, int at, quint16 value)
{
    report[at] = char(value & 0xFF);
    report[at + 1] = char(value >> 8);
}

void putU32(QByteArray& report, int at, quint32 value)
{
    for (int i = 0; i < 4; ++i)
        report[at + i] = char((value >> (8 * i)) & 0xFF);
}

quint32 sumFrom(const QByteArray& bytes, int from)
{
    quint32 sum = 0;
    for (int i = from; i < bytes.size(); ++i)
        sum += quint8(bytes.at(i));
    return sum;
}

// --- Reports as a host builds them -----------------------------------------

QByteArray dataChunk(int reportSize, quint32 offset, const QByteArray& data)
{
    QByteArray report(reportSize, '\0');
    report[0] = 0x02;
    putU32(report, 1, offset);
    putU32(report, 5, quint32(data.size()));
    putU32(report, 9, 0x55AAAA55);
    putU32(report, 13, 0x44332211);
    report.replace(17, data.size(), data);
    return report;
}

QVector<QByteArray> chunked(const QByteArray& object, int reportSize)
{
    const int capacity = reportSize == LargeReport ? LargeCapacity : SmallCapacity;
    QVector<QByteArray> chunks;
    for (int offset = 0; offset < object.size(); offset += capacity)
        chunks << dataChunk(reportSize, quint32(offset), object.mid(offset, capacity));
    return chunks;
}

QByteArray featureReport(int size, std::initializer_list<quint8> head)
{
    QByteArray report(size, '\0');
    int at = 0;
    for (const quint8 byte : head)
        report[at++] = char(byte);
    return report;
}

QByteArray showImageReport(quint32 key, quint32 size)
{
    QByteArray report = featureReport(33, {0x12, 0x01});
    putU32(report, 4, key);
    putU32(report, 16, size);
    return report;
}

QByteArray showLogoReport()
{
    QByteArray report = featureReport(33, {0x12, 0x02});
    putU32(report, 4, 999);
    putU32(report, 8, 9999);
    return report;
}

QByteArray commitReport(quint32 size, quint32 checksum)
{
    QByteArray report = featureReport(17, {0x13});
    putU32(report, 1, size);
    putU32(report, 5, checksum);
    return report;
}

QByteArray bootDataReport(int page, int offset, const QByteArray& data)
{
    QByteArray report(513, '\0');
    putU16(report, 1, quint16(page));
    putU16(report, 3, quint16(offset));
    putU16(report, 5, quint16(data.size()));
    report.replace(7, data.size(), data);
    return report;
}

QByteArray bootMarkerReport(int page, int marker)
{
    QByteArray report(513, '\0');
    putU16(report, 1, quint16(page));
    putU16(report, 3, quint16(marker));
    return report;
}

// --- Content ---------------------------------------------------------------

QImage patternImage(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x * 3 % 256, y * 4 % 256, (x + y) * 2 % 256));
    return image;
}

QByteArray encode(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, 100);
    return bytes;
}

QByteArray patternBytes(int size, int seed)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = char((i * 7 + seed) & 0xFF);
    return bytes;
}

// --- Transport calls on byte arrays -----------------------------------------

const unsigned char* bytesOf(const QByteArray& report)
{
    return reinterpret_cast<const unsigned char*>(report.constData());
}

int writeReport(SimulatedKeypad& pad, HidDeviceHandle* device, const QByteArray& report)
{
    return pad.write(device, bytesOf(report), size_t(report.size()));
}

int sendFeature(SimulatedKeypad& pad, HidDeviceHandle* device, const QByteArray& report)
{
    return pad.sendFeatureReport(device, bytesOf(report), size_t(report.size()));
}

QByteArray getFeature(SimulatedKeypad& pad, HidDeviceHandle* device, quint8 id, int length, int* result)
{
    QByteArray buffer(length, '\0');
    buffer[0] = char(id);
    *result = pad.getFeatureReport(device, reinterpret_cast<unsigned char*>(buffer.data()), size_t(length));
    return buffer.left(std::max(*result, 0));
}

QByteArray readReport(SimulatedKeypad& pad, HidDeviceHandle* device, int timeoutMs, int* result, int length = InputSize)
{
    QByteArray buffer(length, '\0');
    *result = pad.readTimeout(device, reinterpret_cast<unsigned char*>(buffer.data()), size_t(length), timeoutMs);
    return buffer.left(std::max(*result, 0));
}

bool sendObject(SimulatedKeypad& pad, HidDeviceHandle* device, const QByteArray& object, int reportSize)
{
    for (const QByteArray& chunk : chunked(object, reportSize))
        if (writeReport(pad, device, chunk) != reportSize)
            return false;
    return true;
}

bool sendImage(SimulatedKeypad& pad, HidDeviceHandle* device, int key, const QByteArray& encoded)
{
    return sendObject(pad, device, encoded, LargeReport) &&
           sendFeature(pad, device, showImageReport(quint32(key), quint32(encoded.size()))) == 33;
}

// One boot loader page: four 506-byte reports, one of 24, then the page end.
bool sendBootPage(SimulatedKeypad& pad, HidDeviceHandle* device, int page, const QByteArray& data)
{
    for (int offset = 0; offset < PageSize; offset += 506)
        if (writeReport(pad, device, bootDataReport(page, offset, data.mid(offset, 506))) != 513)
            return false;
    return writeReport(pad, device, bootMarkerReport(page, 0xFF00)) == 513;
}

quint64 maskOf(const QByteArray& keyReport)
{
    quint64 mask = 0;
    for (int byte = 0; byte < 8; ++byte)
        mask |= quint64(quint8(keyReport.at(1 + byte))) << (8 * byte);
    return mask;
}

} // namespace

class SimulatedKeypadTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<SimulatedKeypad> m_pad;
    HidDeviceHandle* m_handle = nullptr;

    // Enters the boot loader of a NUC442 keypad and opens it.
    HidDeviceHandle* openBootLoader()
    {
        m_pad->setProductId(Nuc442Product);
        HidDeviceHandle* keypad = m_pad->open(Vendor, Nuc442Product);
        if (!keypad || sendFeature(*m_pad, keypad, featureReport(17, {0x14, 0xDC, 0xCD})) != 17)
            return nullptr;
        m_pad->close(keypad);
        return m_pad->open(Vendor, BootLoaderProduct);
    }

private slots:
    void init()
    {
        m_pad = std::make_unique<SimulatedKeypad>();
        m_handle = m_pad->open(Vendor, MainProduct);
        QVERIFY(m_handle);
    }

    void cleanup()
    {
        m_pad.reset();
        m_handle = nullptr;
    }

    // --- Enumeration and open -------------------------------------------------

    void shouldOpenOnlyTheMatchingKeypad_data()
    {
        QTest::addColumn<int>("vendor");
        QTest::addColumn<int>("product");
        QTest::addColumn<bool>("opens");
        QTest::newRow("its own ids") << 0xFFFF << 0x1F41 << true;
        QTest::newRow("another supported product") << 0xFFFF << 0x1F43 << false;
        QTest::newRow("another vendor") << 0x1234 << 0x1F41 << false;
        QTest::newRow("the boot loader while running") << 0xFFFF << 0xFF00 << false;
    }

    void shouldOpenOnlyTheMatchingKeypad()
    {
        QFETCH(int, vendor);
        QFETCH(int, product);
        QFETCH(bool, opens);
        QCOMPARE(m_pad->open(quint16(vendor), quint16(product)) != nullptr, opens);
    }

    void shouldGiveEveryOpenItsOwnHandle()
    {
        HidDeviceHandle* second = m_pad->open(Vendor, MainProduct);
        QVERIFY(second);
        QVERIFY(second != m_handle);
        QCOMPARE(m_pad->openHandleCount(), 2);
        m_pad->close(m_handle);
        QCOMPARE(m_pad->openHandleCount(), 1);
        QCOMPARE(sendFeature(*m_pad, second, featureReport(2, {0x11, 10})), 2);
    }

    void shouldCountInitAndExit()
    {
        QCOMPARE(m_pad->init(), 0);
        QCOMPARE(m_pad->init(), 0);
        QCOMPARE(m_pad->exit(), 0);
        QCOMPARE(m_pad->initCount(), 2);
        QCOMPARE(m_pad->exitCount(), 1);
    }

    void shouldRefuseToOpenWithoutPermission()
    {
        m_pad->setPermissionDenied(true);
        QVERIFY(!m_pad->open(Vendor, MainProduct));
        QVERIFY(!m_pad->error(nullptr).isEmpty());
        m_pad->setPermissionDenied(false);
        QVERIFY(m_pad->open(Vendor, MainProduct));
    }

    void shouldFailCallsOnHandlesThatAreNotOpen()
    {
        LogCapture log;
        HidDeviceHandle* closed = m_pad->open(Vendor, MainProduct);
        m_pad->close(closed);
        for (HidDeviceHandle* device : {static_cast<HidDeviceHandle*>(nullptr), closed}) {
            int result = 0;
            QCOMPARE(sendFeature(*m_pad, device, featureReport(2, {0x11, 10})), -1);
            QCOMPARE(writeReport(*m_pad, device, dataChunk(LargeReport, 0, "x")), -1);
            getFeature(*m_pad, device, 0x10, 33, &result);
            QCOMPARE(result, -1);
            readReport(*m_pad, device, 0, &result);
            QCOMPARE(result, -1);
        }
        QCOMPARE(m_pad->errorCount(), 8);
        QCOMPARE(m_pad->backlight(), -1);
        QVERIFY(!log.matching(QStringLiteral("handle that is not open")).isEmpty());
    }

    // --- Key images ---------------------------------------------------------------

    void shouldReassembleAndDecodeAnImage_data()
    {
        QTest::addColumn<int>("reportSize");
        QTest::addColumn<QSize>("imageSize");
        QTest::addColumn<bool>("middleLast"); // the first chunk must lead: it begins the object
        QTest::addColumn<int>("chunkCount");
        QTest::newRow("one large chunk") << LargeReport << QSize(40, 40) << false << 1;
        QTest::newRow("two large chunks") << LargeReport << QSize(72, 72) << false << 2;
        QTest::newRow("three large chunks") << LargeReport << QSize(100, 60) << false << 3;
        QTest::newRow("three large chunks, middle one last") << LargeReport << QSize(100, 60) << true << 3;
        QTest::newRow("small packets") << SmallReport << QSize(72, 72) << false << 32;
    }

    void shouldReassembleAndDecodeAnImage()
    {
        QFETCH(int, reportSize);
        QFETCH(QSize, imageSize);
        QFETCH(bool, middleLast);
        QFETCH(int, chunkCount);
        const QImage source = patternImage(imageSize.width(), imageSize.height());
        const QByteArray encoded = encode(source, "BMP");
        QVector<QByteArray> chunks = chunked(encoded, reportSize);
        QCOMPARE(chunks.size(), chunkCount);
        if (middleLast)
            chunks.move(1, chunks.size() - 1);
        QSignalSpy changed(m_pad.get(), &SimulatedKeypad::keyImageChanged);

        for (const QByteArray& chunk : chunks)
            QCOMPARE(writeReport(*m_pad, m_handle, chunk), reportSize);
        QCOMPARE(sendFeature(*m_pad, m_handle, showImageReport(7, quint32(encoded.size()))), 33);

        QCOMPARE(m_pad->errorCount(), 0);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.at(0).at(0).toInt(), 7);
        QCOMPARE(m_pad->keyImageBytes(7), encoded);
        QCOMPARE(m_pad->keyImage(7).convertToFormat(QImage::Format_RGB32), source);
        QCOMPARE(m_pad->reportCount(reportSize == LargeReport ? Kind::DataChunkLarge : Kind::DataChunkSmall),
                 chunkCount);
    }

    void shouldDecodeJpegImages()
    {
        if (!QImageWriter::supportedImageFormats().contains("jpg"))
            QSKIP("no JPEG support in this Qt installation");
        const QByteArray encoded = encode(patternImage(72, 72), "JPG");
        QVERIFY(sendImage(*m_pad, m_handle, 2, encoded));
        QCOMPARE(m_pad->keyImage(2).size(), QSize(72, 72));
        QCOMPARE(m_pad->errorCount(), 0);
    }

    void shouldKeepTheOldImageWhenTheSizeDoesNotMatch_data()
    {
        QTest::addColumn<int>("declaredDelta");
        QTest::addColumn<int>("skippedChunk");
        QTest::newRow("declared one byte short") << -1 << -1;
        QTest::newRow("declared one byte long") << 1 << -1;
        QTest::newRow("middle chunk lost") << 0 << 1;
        QTest::newRow("first chunk lost") << 0 << 0;
    }

    void shouldKeepTheOldImageWhenTheSizeDoesNotMatch()
    {
        QFETCH(int, declaredDelta);
        QFETCH(int, skippedChunk);
        const QByteArray old = encode(patternImage(20, 20), "BMP");
        QVERIFY(sendImage(*m_pad, m_handle, 4, old));
        const QByteArray encoded = encode(patternImage(100, 60), "BMP");
        QSignalSpy changed(m_pad.get(), &SimulatedKeypad::keyImageChanged);
        LogCapture log;

        const QVector<QByteArray> chunks = chunked(encoded, LargeReport);
        for (int i = 0; i < chunks.size(); ++i)
            if (i != skippedChunk)
                writeReport(*m_pad, m_handle, chunks.at(i));
        QCOMPARE(sendFeature(*m_pad, m_handle, showImageReport(4, quint32(encoded.size() + declaredDelta))), 33);

        QCOMPARE(m_pad->errorCount(), 1);
        QCOMPARE(changed.size(), 0);
        QCOMPARE(m_pad->keyImageBytes(4), old);
        QCOMPARE(log.matching(QStringLiteral("bytes received!!")).size(), 1);
    }

    void shouldRefuseBytesThatAreNoImage()
    {
        QVERIFY(sendImage(*m_pad, m_handle, 1, patternBytes(3000, 5)));
        QCOMPARE(m_pad->errorCount(), 1);
        QVERIFY(m_pad->keyImage(1).isNull());
        QVERIFY(m_pad->keysWithImages().isEmpty());
    }

    void shouldForgetAnUncommittedObjectWhenTheNextBegins()
    {
        const QByteArray abandoned = encode(patternImage(100, 60), "BMP");
        writeReport(*m_pad, m_handle, chunked(abandoned, LargeReport).first());
        const QByteArray encoded = encode(patternImage(30, 30), "BMP");
        QVERIFY(sendImage(*m_pad, m_handle, 3, encoded));
        QCOMPARE(m_pad->errorCount(), 0);
        QCOMPARE(m_pad->keyImageBytes(3), encoded);
    }

    void shouldClearAKey()
    {
        QVERIFY(sendImage(*m_pad, m_handle, 3, encode(patternImage(30, 30), "BMP")));
        QVERIFY(sendImage(*m_pad, m_handle, 5, encode(patternImage(30, 30), "BMP")));
        QSignalSpy changed(m_pad.get(), &SimulatedKeypad::keyImageChanged);

        QCOMPARE(sendFeature(*m_pad, m_handle, featureReport(17, {0x14, 0xAC, 3})), 17);

        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.at(0).at(0).toInt(), 3);
        QVERIFY(m_pad->keyImage(3).isNull());
        QVERIFY(m_pad->keyImageBytes(3).isEmpty());
        QCOMPARE(m_pad->keysWithImages(), QList<int>{5});
        QCOMPARE(m_pad->reportCount(Kind::ClearKey), 1);
    }

    void shouldLetObserversCallBackFromTheirSlots()
    {
        // The virtual keypad window reads the image in its slot; a signal sent
        // under the keypad's lock would deadlock here.
        QImage seen;
        connect(m_pad.get(), &SimulatedKeypad::keyImageChanged, this,
                [this, &seen](int key) { seen = m_pad->keyImage(key); });
        QVERIFY(sendImage(*m_pad, m_handle, 6, encode(patternImage(30, 30), "BMP")));
        QCOMPARE(seen.size(), QSize(30, 30));
    }

    // --- Backlight, logo, version, serial ---------------------------------------

    void shouldSetTheBacklight()
    {
        QSignalSpy changed(m_pad.get(), &SimulatedKeypad::backlightChanged);
        QCOMPARE(sendFeature(*m_pad, m_handle, featureReport(2, {0x11, 77})), 2);
        QCOMPARE(sendFeature(*m_pad, m_handle, featureReport(2, {0x11, 200})), 2);
        QCOMPARE(m_pad->backlight(), 200);
        QCOMPARE(changed.size(), 2);
        QCOMPARE(changed.at(0).at(0).toInt(), 77);
        QCOMPARE(m_pad->reportCount(Kind::Backlight), 2);
    }

    void shouldShowTheLogoUntilAnImageReplacesIt()
    {
        QSignalSpy shown(m_pad.get(), &SimulatedKeypad::logoShown);
        QCOMPARE(sendFeature(*m_pad, m_handle, showLogoReport()), 33);
        QCOMPARE(shown.size(), 1);
        QVERIFY(m_pad->isLogoShown());
        QCOMPARE(m_pad->logoCount(), 1);
        QVERIFY(sendImage(*m_pad, m_handle, 1, encode(patternImage(10, 10), "BMP")));
        QVERIFY(!m_pad->isLogoShown());
        QCOMPARE(m_pad->logoCount(), 1);
    }

    void shouldRefuseALogoReportWithoutItsMarkers()
    {
        QCOMPARE(sendFeature(*m_pad, m_handle, featureReport(33, {0x12, 0x02})), 33);
        QVERIFY(!m_pad->isLogoShown());
        QCOMPARE(m_pad->errorCount(), 1);
    }

    void shouldAnswerTheFirmwareVersion_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("bufferLength");
        QTest::addColumn<int>("answered");
        QTest::newRow("default text, report length") << QByteArray() << 33 << 33;
        QTest::newRow("larger buffer gets the report") << QByteArray() << 48 << 33;
        QTest::newRow("shorter buffer gets its length") << QByteArray() << 8 << 8;
        QTest::newRow("text without a dot") << QByteArray("VKP V1-170121") << 33 << 33;
    }

    void shouldAnswerTheFirmwareVersion()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, bufferLength);
        QFETCH(int, answered);
        if (text.isEmpty())
            QVERIFY(m_pad->firmwareVersionText().contains('.'));
        else
            m_pad->setFirmwareVersionText(text);
        const QByteArray expected = (QByteArray(1, 0x10) + m_pad->firmwareVersionText()).leftJustified(33, '\0');

        int result = 0;
        const QByteArray answer = getFeature(*m_pad, m_handle, 0x10, bufferLength, &result);

        QCOMPARE(result, answered);
        QCOMPARE(answer, expected.left(answered));
        QCOMPARE(m_pad->reportCount(Kind::ReadVersion), 1);
    }

    void shouldAnswerAndStoreTheSerialNumber()
    {
        int result = 0;
        QByteArray answer = getFeature(*m_pad, m_handle, 0x17, 17, &result);
        QCOMPARE(result, 17);
        QCOMPARE(answer.mid(1), m_pad->serialNumber());
        QCOMPARE(m_pad->serialNumber().size(), 16);

        QByteArray write = featureReport(17, {0x17});
        write.replace(1, 16, "ABCDEFGHIJKLMNOP");
        QCOMPARE(sendFeature(*m_pad, m_handle, write), 17);

        answer = getFeature(*m_pad, m_handle, 0x17, 17, &result);
        QCOMPARE(answer, write);
        QCOMPARE(m_pad->reportCount(Kind::ReadSerial), 2);
        QCOMPARE(m_pad->reportCount(Kind::WriteSerial), 1);
    }

    void shouldStallFeatureReportsItDoesNotKnow_data()
    {
        QTest::addColumn<QByteArray>("report");
        QTest::newRow("unknown id") << featureReport(17, {0x33});
        QTest::newRow("unknown 0x14 command") << featureReport(17, {0x14, 0x01});
        QTest::newRow("unknown 0x12 command") << featureReport(33, {0x12, 0x07});
        QTest::newRow("backlight too long") << featureReport(3, {0x11, 5});
        QTest::newRow("show image too short") << featureReport(17, {0x12, 0x01});
        QTest::newRow("commit too long") << featureReport(33, {0x13});
    }

    void shouldStallFeatureReportsItDoesNotKnow()
    {
        QFETCH(QByteArray, report);
        LogCapture log;
        QCOMPARE(sendFeature(*m_pad, m_handle, report), -1);
        QCOMPARE(m_pad->errorCount(), 1);
        QCOMPARE(m_pad->backlight(), -1);
        QCOMPARE(log.matching(QStringLiteral("!!")).size(), 1);
    }

    void shouldNotAnswerUnknownGetFeatureRequests()
    {
        int result = 0;
        getFeature(*m_pad, m_handle, 0x42, 33, &result);
        QCOMPARE(result, -1);
        QCOMPARE(m_pad->reportCount(Kind::Unknown), 1);
    }

    // --- Key reports ---------------------------------------------------------------

    void shouldReportKeysLeastSignificantBitFirst_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("byte");
        QTest::addColumn<int>("value");
        QTest::newRow("key 0") << 0 << 1 << 0x01;
        QTest::newRow("key 5") << 5 << 1 << 0x20;
        QTest::newRow("key 7") << 7 << 1 << 0x80;
        QTest::newRow("key 8") << 8 << 2 << 0x01;
        QTest::newRow("key 14") << 14 << 2 << 0x40;
        QTest::newRow("key 31") << 31 << 4 << 0x80;
        QTest::newRow("key 63") << 63 << 8 << 0x80;
    }

    void shouldReportKeysLeastSignificantBitFirst()
    {
        QFETCH(int, key);
        QFETCH(int, byte);
        QFETCH(int, value);
        QByteArray expected(InputSize, '\0');
        expected[0] = 0x01;
        expected[byte] = char(value);

        m_pad->pressKey(key);
        int result = 0;
        const QByteArray pressed = readReport(*m_pad, m_handle, 1000, &result);
        QCOMPARE(result, InputSize);
        QCOMPARE(pressed, expected);

        m_pad->releaseKey(key);
        const QByteArray released = readReport(*m_pad, m_handle, 1000, &result);
        QCOMPARE(released, QByteArray(1, 0x01) + QByteArray(InputSize - 1, '\0'));
    }

    void shouldReportTheWholeMaskWithEveryChange()
    {
        m_pad->pressKey(2);
        m_pad->pressKey(9);
        m_pad->releaseKey(2);
        m_pad->setKeyMask(0x8000000000000001ULL);
        m_pad->setKeyMask(0x8000000000000001ULL);

        QVector<quint64> masks;
        int result = 0;
        for (QByteArray report; !(report = readReport(*m_pad, m_handle, 0, &result)).isEmpty();)
            masks << maskOf(report);
        const QVector<quint64> expected{1ULL << 2, (1ULL << 2) | (1ULL << 9), 1ULL << 9, 0x8000000000000001ULL,
                                        0x8000000000000001ULL};
        QCOMPARE(masks, expected);
        QCOMPARE(m_pad->keyMask(), 0x8000000000000001ULL);
        QCOMPARE(m_pad->reportCount(Kind::KeyState), 5);
    }

    void shouldIgnoreKeysOutOfRange()
    {
        LogCapture log;
        m_pad->pressKey(64);
        m_pad->pressKey(-1);
        m_pad->releaseKey(64);
        QCOMPARE(m_pad->pendingInputReports(), 0);
        QCOMPARE(m_pad->keyMask(), 0ULL);
        QCOMPARE(log.matching(QStringLiteral("out of range")).size(), 3);
    }

    void shouldPassRawInputReportsThrough()
    {
        const QByteArray garbage("\x05\xAA\xBB", 3);
        m_pad->queueRawInputReport(garbage);
        m_pad->queueRawInputReport(patternBytes(100, 1));
        int result = 0;
        QCOMPARE(readReport(*m_pad, m_handle, 0, &result), garbage);
        QCOMPARE(result, 3);
        QCOMPARE(readReport(*m_pad, m_handle, 0, &result), patternBytes(100, 1).left(InputSize));
        QCOMPARE(result, InputSize);
        QCOMPARE(m_pad->reportCount(Kind::RawInput), 2);
    }

    void shouldTimeOutAReadWithoutInput()
    {
        int result = -1;
        readReport(*m_pad, m_handle, 20, &result);
        QCOMPARE(result, 0);
    }

    void shouldCollectInputOnlyWhileAHandleIsOpen()
    {
        m_pad->close(m_handle);
        m_pad->pressKey(1);
        m_handle = m_pad->open(Vendor, MainProduct);
        int result = -1;
        readReport(*m_pad, m_handle, 0, &result);
        QCOMPARE(result, 0);
    }

    void shouldKeepOnlyTheNewestInputReports()
    {
        for (int i = 0; i < SimulatedKeypad::InputQueueLimit + 10; ++i)
            m_pad->setKeyMask(quint64(i));
        QCOMPARE(m_pad->pendingInputReports(), SimulatedKeypad::InputQueueLimit);
        int result = 0;
        QCOMPARE(maskOf(readReport(*m_pad, m_handle, 0, &result)), 10ULL);
    }

    // --- Unplug, permission, wedge ---------------------------------------------

    void shouldFailEverythingWhileUnpluggedAndNeedANewOpenAfter()
    {
        QVERIFY(sendImage(*m_pad, m_handle, 1, encode(patternImage(10, 10), "BMP")));
        QSignalSpy connection(m_pad.get(), &SimulatedKeypad::connectionChanged);
        m_pad->pressKey(3);

        m_pad->unplug();
        int result = 0;
        readReport(*m_pad, m_handle, 0, &result);
        QCOMPARE(result, -1);
        QCOMPARE(writeReport(*m_pad, m_handle, dataChunk(LargeReport, 0, "x")), -1);
        QCOMPARE(sendFeature(*m_pad, m_handle, featureReport(2, {0x11, 1})), -1);
        getFeature(*m_pad, m_handle, 0x17, 17, &result);
        QCOMPARE(result, -1);
        QVERIFY(!m_pad->open(Vendor, MainProduct));
        QVERIFY(!m_pad->isPluggedIn());

        m_pad->plugIn();
        QCOMPARE(sendFeature(*m_pad, m_handle, featureReport(2, {0x11, 1})), -1);
        HidDeviceHandle* reopened = m_pad->open(Vendor, MainProduct);
        QVERIFY(reopened);
        QCOMPARE(sendFeature(*m_pad, reopened, featureReport(2, {0x11, 1})), 2);

        QCOMPARE(connection.size(), 2);
        QCOMPARE(connection.at(0).at(0).toBool(), false);
        QCOMPARE(connection.at(1).at(0).toBool(), true);
        QVERIFY(m_pad->keysWithImages().isEmpty()); // the display went dark
        QCOMPARE(m_pad->errorCount(), 0);           // a dead handle is no protocol fault
        m_pad->close(m_handle);
    }

    void shouldWakeAWaitingReaderWhenUnplugged()
    {
        int result = 0;
        std::unique_ptr<QThread> reader(QThread::create([&] { readReport(*m_pad, m_handle, 60000, &result); }));
        reader->start();
        // The reader may not have begun to wait yet; either way it must end
        // with -1 and well before its own timeout.
        QThread::msleep(20);
        m_pad->unplug();
        QVERIFY(reader->wait(30000));
        QCOMPARE(result, -1);
    }

    void shouldBlockWedgedCallsForTheConfiguredTimeThenFail()
    {
        m_pad->setWedgeTimeoutMs(50);
        m_pad->setWedged(true);
        QElapsedTimer timer;
        int result = 0;

        timer.start();
        QCOMPARE(writeReport(*m_pad, m_handle, dataChunk(LargeReport, 0, "x")), -1);
        QVERIFY(timer.elapsed() >= 50);
        timer.restart();
        QCOMPARE(sendFeature(*m_pad, m_handle, featureReport(2, {0x11, 1})), -1);
        QVERIFY(timer.elapsed() >= 50);
        timer.restart();
        getFeature(*m_pad, m_handle, 0x10, 33, &result);
        QCOMPARE(result, -1);
        QVERIFY(timer.elapsed() >= 50);

        QCOMPARE(m_pad->wedgedCallCount(), 3);
        QCOMPARE(m_pad->backlight(), -1);
        QVERIFY(m_pad->reports().isEmpty());
    }

    void shouldTimeOutReadsWhileWedged()
    {
        m_pad->pressKey(1);
        m_pad->setWedged(true);
        int result = -1;
        readReport(*m_pad, m_handle, 20, &result);
        QCOMPARE(result, 0);
        m_pad->setWedged(false);
        readReport(*m_pad, m_handle, 0, &result);
        QCOMPARE(result, InputSize);
    }

    // --- Firmware, main models -----------------------------------------------------

    void shouldStoreTheFirmwareCommitAsSent_data()
    {
        QTest::addColumn<int>("summedTail"); // bytes left out at the end
        QTest::addColumn<bool>("matches");
        QTest::newRow("checksum over everything after the header") << 0 << true;
        QTest::newRow("checksum leaving the last 13 bytes out") << 13 << false;
    }

    void shouldStoreTheFirmwareCommitAsSent()
    {
        QFETCH(int, summedTail);
        QFETCH(bool, matches);
        const QByteArray image = patternBytes(64 + 20000, 3);
        const quint32 checksum = sumFrom(image.left(image.size() - summedTail), 64);
        QSignalSpy flashed(m_pad.get(), &SimulatedKeypad::firmwareFlashed);

        QVERIFY(sendObject(*m_pad, m_handle, image, LargeReport));
        QCOMPARE(sendFeature(*m_pad, m_handle, commitReport(quint32(image.size()), checksum)), 17);

        const SimulatedKeypad::FirmwareCommitRecord commit = m_pad->firmwareCommit();
        QVERIFY(commit.committed);
        QCOMPARE(commit.object, image);
        QCOMPARE(commit.declaredSize, quint32(image.size()));
        QCOMPARE(commit.declaredChecksum, checksum);
        QCOMPARE(commit.computedChecksum, sumFrom(image, 64));
        QCOMPARE(commit.checksumMatches, matches);
        QVERIFY(commit.sizeMatches);
        QCOMPARE(flashed.size(), 1);
        QCOMPARE(m_pad->reportCount(Kind::DataChunkLarge), 3);
    }

    // --- Boot loader ------------------------------------------------------------------

    void shouldFlashThroughTheBootLoader()
    {
        m_pad->setProductId(Nuc442Product);
        HidDeviceHandle* keypad = m_pad->open(Vendor, Nuc442Product);
        QVERIFY(keypad);
        QSignalSpy bootLoader(m_pad.get(), &SimulatedKeypad::bootLoaderChanged);
        QSignalSpy flashed(m_pad.get(), &SimulatedKeypad::firmwareFlashed);

        QCOMPARE(sendFeature(*m_pad, keypad, featureReport(17, {0x14, 0xDC, 0xCD})), 17);
        QVERIFY(m_pad->isInBootLoader());
        int result = 0;
        readReport(*m_pad, keypad, 0, &result);
        QCOMPARE(result, -1);
        QVERIFY(!m_pad->open(Vendor, Nuc442Product));
        HidDeviceHandle* loader = m_pad->open(Vendor, BootLoaderProduct);
        QVERIFY(loader);

        const QByteArray firmware = patternBytes(2 * PageSize, 9);
        QByteArray acknowledge(InputSize, '\0');
        acknowledge[0] = 0x02;
        acknowledge[1] = char(0xB1);
        for (int page = 0; page < 2; ++page) {
            QVERIFY(sendBootPage(*m_pad, loader, page, firmware.mid(page * PageSize, PageSize)));
            QCOMPARE(readReport(*m_pad, loader, 1000, &result), acknowledge);
        }
        QCOMPARE(writeReport(*m_pad, loader, bootMarkerReport(0, 0xFE00)), 513);

        QCOMPARE(m_pad->flashedFirmware(), firmware);
        QCOMPARE(m_pad->acknowledgedPages(), (QList<int>{0, 1}));
        QVERIFY(!m_pad->isInBootLoader());
        QCOMPARE(flashed.size(), 1);
        QCOMPARE(bootLoader.size(), 2);
        QCOMPARE(writeReport(*m_pad, loader, bootMarkerReport(0, 0xFE00)), -1);
        QVERIFY(!m_pad->open(Vendor, BootLoaderProduct));
        QVERIFY(m_pad->open(Vendor, Nuc442Product));
        QCOMPARE(m_pad->reportCount(Kind::BootPageData), 10);
        QCOMPARE(m_pad->reportCount(Kind::BootPageEnd), 2);
        QCOMPARE(m_pad->errorCount(), 0);
    }

    void shouldWithholdTheConfiguredAcknowledgement()
    {
        m_pad->failAcknowledgeAtPage(1);
        HidDeviceHandle* loader = openBootLoader();
        QVERIFY(loader);
        int result = 0;
        QVERIFY(sendBootPage(*m_pad, loader, 0, patternBytes(PageSize, 1)));
        readReport(*m_pad, loader, 1000, &result);
        QCOMPARE(result, InputSize);
        QVERIFY(sendBootPage(*m_pad, loader, 1, patternBytes(PageSize, 2)));
        readReport(*m_pad, loader, 20, &result);
        QCOMPARE(result, 0);
        QCOMPARE(m_pad->acknowledgedPages(), QList<int>{0});
        QVERIFY(m_pad->isInBootLoader());
    }

    void shouldNotAcknowledgeAnIncompletePage()
    {
        HidDeviceHandle* loader = openBootLoader();
        QVERIFY(loader);
        writeReport(*m_pad, loader, bootDataReport(0, 0, patternBytes(506, 1)));
        writeReport(*m_pad, loader, bootMarkerReport(0, 0xFF00));
        int result = -1;
        readReport(*m_pad, loader, 20, &result);
        QCOMPARE(result, 0);
        QCOMPARE(m_pad->errorCount(), 1);
    }

    void shouldOfferTheBootLoaderOnlyOnNuc442Models()
    {
        QCOMPARE(sendFeature(*m_pad, m_handle, featureReport(17, {0x14, 0xDC, 0xCD})), 17);
        QVERIFY(!m_pad->isInBootLoader());
        QVERIFY(!m_pad->open(Vendor, BootLoaderProduct));
        QCOMPARE(m_pad->errorCount(), 1);
    }

    void shouldRefuseKeypadReportsInTheBootLoader()
    {
        HidDeviceHandle* loader = openBootLoader();
        QVERIFY(loader);
        int result = 0;
        QCOMPARE(sendFeature(*m_pad, loader, featureReport(2, {0x11, 3})), -1);
        QCOMPARE(writeReport(*m_pad, loader, dataChunk(LargeReport, 0, "x")), -1);
        getFeature(*m_pad, loader, 0x10, 33, &result);
        QCOMPARE(result, -1);
        m_pad->pressKey(0);
        QCOMPARE(m_pad->pendingInputReports(), 0);
        QCOMPARE(m_pad->errorCount(), 3);
    }

    // --- Traffic log and bad input ----------------------------------------------

    void shouldLogReportsInOrderWithTimestamps()
    {
        const QByteArray chunk = dataChunk(SmallReport, 0, "abc");
        sendFeature(*m_pad, m_handle, featureReport(2, {0x11, 9}));
        writeReport(*m_pad, m_handle, chunk);
        sendFeature(*m_pad, m_handle, showLogoReport());
        m_pad->pressKey(4);
        int result = 0;
        readReport(*m_pad, m_handle, 0, &result);

        const QVector<SimulatedKeypad::Report> reports = m_pad->reports();
        QCOMPARE(reports.size(), 4);
        QCOMPARE(reports.at(0).kind, Kind::Backlight);
        QCOMPARE(reports.at(1).kind, Kind::DataChunkSmall);
        QCOMPARE(reports.at(1).bytes, chunk);
        QCOMPARE(reports.at(2).kind, Kind::ShowLogo);
        QCOMPARE(reports.at(3).kind, Kind::KeyState);
        for (int i = 1; i < reports.size(); ++i)
            QVERIFY(reports.at(i).nsecs >= reports.at(i - 1).nsecs);
        QCOMPARE(m_pad->reports(Kind::ShowLogo).size(), 1);
    }

    void shouldKeepOnlyTheLastReportsButCountThemAll()
    {
        m_pad->setReportLogLimit(3);
        for (quint8 level = 1; level <= 5; ++level)
            sendFeature(*m_pad, m_handle, featureReport(2, {0x11, level}));
        const QVector<SimulatedKeypad::Report> reports = m_pad->reports();
        QCOMPARE(reports.size(), 3);
        QCOMPARE(int(reports.first().bytes.at(1)), 3);
        QCOMPARE(int(reports.last().bytes.at(1)), 5);
        QCOMPARE(m_pad->reportCount(Kind::Backlight), 5);
        m_pad->clearReports();
        QCOMPARE(m_pad->reportCount(Kind::Backlight), 0);
        QVERIFY(m_pad->reports().isEmpty());
    }

    void shouldRejectMalformedOutputReports_data()
    {
        QByteArray badMagic = dataChunk(LargeReport, 0, "abc");
        badMagic[9] = 0;
        QByteArray overlong = dataChunk(SmallReport, 0, "abc");
        overlong[5] = char(0xF0); // 496 bytes claimed in a 495-byte packet
        overlong[6] = 0x01;

        QTest::addColumn<QByteArray>("report");
        QTest::addColumn<int>("result");
        QTest::newRow("chunk without magic") << badMagic << LargeReport;
        QTest::newRow("chunk longer than its packet") << overlong << SmallReport;
        QTest::newRow("chunk far beyond any object")
            << dataChunk(LargeReport, 0xFFFFFF00, QByteArray(200, 'x')) << LargeReport;
        QTest::newRow("empty chunk") << dataChunk(LargeReport, 0, QByteArray()) << LargeReport;
        QTest::newRow("odd report size") << QByteArray(100, 0x02) << -1;
        QTest::newRow("boot loader report to the keypad") << bootMarkerReport(0, 0xFE00) << -1;
        QTest::newRow("empty report") << QByteArray() << -1;
    }

    void shouldRejectMalformedOutputReports()
    {
        QFETCH(QByteArray, report);
        QFETCH(int, result);
        LogCapture log;
        QCOMPARE(writeReport(*m_pad, m_handle, report), result);
        QCOMPARE(m_pad->errorCount(), 1);
        QCOMPARE(log.matching(QStringLiteral("!!")).size(), 1);
        // Nothing half-received may turn into an image.
        sendFeature(*m_pad, m_handle, showImageReport(0, 3));
        QVERIFY(m_pad->keysWithImages().isEmpty());
    }

    // --- Threads ---------------------------------------------------------------------

    void shouldServeAReaderWhileAnotherThreadWrites()
    {
        constexpr int Presses = 100;
        QVector<QByteArray> received;
        std::unique_ptr<QThread> reader(QThread::create([&] {
            const QDeadlineTimer guard(60000);
            int result = 0;
            while (received.size() < 2 * Presses && !guard.hasExpired()) {
                const QByteArray report = readReport(*m_pad, m_handle, 100, &result);
                if (result > 0)
                    received << report;
            }
        }));
        reader->start();

        const QByteArray encoded = encode(patternImage(72, 72), "BMP");
        const QDeadlineTimer guard(60000);
        for (int i = 0; i < Presses && !guard.hasExpired(); ++i) {
            // Stay below the queue limit so no report is dropped.
            while (m_pad->pendingInputReports() > SimulatedKeypad::InputQueueLimit - 5 && !guard.hasExpired())
                QThread::msleep(1);
            m_pad->pressKey(i % 64);
            QVERIFY(sendImage(*m_pad, m_handle, i % 16, encoded));
            m_pad->releaseKey(i % 64);
        }
        QVERIFY(reader->wait(90000));

        QCOMPARE(received.size(), 2 * Presses);
        for (int i = 0; i < received.size(); ++i) {
            QCOMPARE(received.at(i).size(), InputSize);
            QCOMPARE(maskOf(received.at(i)), i % 2 ? 0ULL : 1ULL << (i / 2 % 64));
        }
        QCOMPARE(m_pad->keysWithImages().size(), 16);
        QCOMPARE(m_pad->errorCount(), 0);
    }
};

KEYSTAGE_TEST_MAIN(SimulatedKeypadTest)
#include "tst_simulatedkeypad.moc"
