#include "logcapture.h"
#include "simulatedkeypad.h"
#include "testmain.h"

#include <QBuffer>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QThread>

#include <algorithm>
#include <memory>

// The program's protocol tests drive the simulated keypad with well-formed
// traffic. Here the device side meets what they never send: chunks out of
// order, short or garbled reports, a blocked reader, a wedge, a boot loader
// that does not answer. Reports are built by hand from the wire formats.

namespace {

constexpr unsigned short Vendor = SimulatedKeypad::VendorId;
constexpr unsigned short Nuc442Product = 0x1F43;
constexpr int LargeReport = 8017;
constexpr int SmallReport = 512;
constexpr int ChunkHeader = 17;
constexpr int InputSize = 65;
constexpr int PageSize = SimulatedKeypad::BootPageSize;

// Little-endian field of `width` bytes.
void put(QByteArray& report, int at, quint32 value, int width = 4)
{
    for (int i = 0; i < width; ++i)
        report[at + i] = char((value >> (8 * i)) & 0xFF);
}

// A report of `size` bytes that begins with `head`.
QByteArray sized(const char* head, int size)
{
    return QByteArray(head).leftJustified(size, '\0');
}

QByteArray dataChunk(int reportSize, quint32 offset, const QByteArray& data)
{
    QByteArray chunk = sized("\x02", reportSize);
    put(chunk, 1, offset);
    put(chunk, 5, quint32(data.size()));
    put(chunk, 9, 0x55AAAA55);
    put(chunk, 13, 0x44332211);
    chunk.replace(ChunkHeader, data.size(), data);
    return chunk;
}

QVector<QByteArray> chunked(const QByteArray& object, int reportSize)
{
    const int capacity = reportSize - ChunkHeader;
    QVector<QByteArray> chunks;
    for (int offset = 0; offset < object.size(); offset += capacity)
        chunks << dataChunk(reportSize, quint32(offset), object.mid(offset, capacity));
    return chunks;
}

QByteArray showImage(quint32 key, quint32 size)
{
    QByteArray show = sized("\x12\x01", 33);
    put(show, 4, key);
    put(show, 16, size);
    return show;
}

// Boot loader output: page, offset (or a page marker) and length, 16 bits each.
QByteArray bootReport(int page, int offset, const QByteArray& data = QByteArray())
{
    QByteArray boot(513, '\0');
    put(boot, 1, quint32(page), 2);
    put(boot, 3, quint32(offset), 2);
    put(boot, 5, quint32(data.size()), 2);
    boot.replace(7, data.size(), data);
    return boot;
}

const unsigned char* bytesOf(const QByteArray& bytes)
{
    return reinterpret_cast<const unsigned char*>(bytes.constData());
}

QByteArray patternBytes(int size, int seed)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = char((i * 7 + seed) & 0xFF);
    return bytes;
}

// A BMP file of a patterned picture (rows of 3 * width bytes stay aligned).
QByteArray bmp(int width, int height)
{
    const QByteArray pixels = patternBytes(3 * width * height, width);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImage(bytesOf(pixels), width, height, QImage::Format_RGB888).save(&buffer, "BMP");
    return bytes;
}

} // namespace

class SimulatedKeypadTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<SimulatedKeypad> pad;
    HidDeviceHandle* handle = nullptr;

    int write(const QByteArray& bytes, HidDeviceHandle* device = nullptr)
    {
        return pad->write(device ? device : handle, bytesOf(bytes), size_t(bytes.size()));
    }

    int feature(const QByteArray& bytes, HidDeviceHandle* device = nullptr)
    {
        return pad->sendFeatureReport(device ? device : handle, bytesOf(bytes), size_t(bytes.size()));
    }

    int read(HidDeviceHandle* device, int timeoutMs, QByteArray* into = nullptr)
    {
        QByteArray buffer(InputSize, '\0');
        const int result = pad->readTimeout(device, reinterpret_cast<uchar*>(buffer.data()), InputSize, timeoutMs);
        if (into)
            *into = buffer.left(result);
        return result;
    }

    bool sendImage(int key, const QByteArray& encoded)
    {
        for (const QByteArray& chunk : chunked(encoded, LargeReport))
            write(chunk);
        return feature(showImage(quint32(key), quint32(encoded.size()))) == 33;
    }

private slots:
    void init()
    {
        pad = std::make_unique<SimulatedKeypad>();
        handle = pad->open(Vendor, SimulatedKeypad::DefaultProductId);
        QVERIFY(handle);
    }

    void cleanup() { pad.reset(); }

    void shouldShowAnImageOnlyWhenItsObjectIsWhole_data()
    {
        QTest::addColumn<int>("reportSize");
        QTest::addColumn<int>("declaredDelta");
        QTest::addColumn<int>("skippedChunk");
        QTest::addColumn<bool>("isImage");
        QTest::newRow("large chunks out of order") << LargeReport << 0 << -1 << true;
        QTest::newRow("small chunks out of order") << SmallReport << 0 << -1 << true;
        QTest::newRow("declared one byte short") << LargeReport << -1 << -1 << true;
        QTest::newRow("declared one byte long") << LargeReport << 1 << -1 << true;
        QTest::newRow("middle chunk lost") << LargeReport << 0 << 1 << true;
        QTest::newRow("first chunk lost") << LargeReport << 0 << 0 << true;
        QTest::newRow("bytes that are no image") << LargeReport << 0 << -1 << false;
    }

    // Only the first chunk has to lead: it begins the object. Anything less
    // than a whole image leaves the old one. The observer reads the image back
    // in its slot, as the virtual keypad window does; that deadlocks if the
    // signal is sent under the keypad's lock.
    void shouldShowAnImageOnlyWhenItsObjectIsWhole()
    {
        QFETCH(int, reportSize);
        QFETCH(int, declaredDelta);
        QFETCH(int, skippedChunk);
        QFETCH(bool, isImage);
        const bool whole = declaredDelta == 0 && skippedChunk < 0 && isImage;
        const QByteArray old = bmp(20, 20);
        QVERIFY(sendImage(4, old));
        const QByteArray object = isImage ? bmp(100, 60) : patternBytes(18000, 5);
        QVector<QByteArray> chunks = chunked(object, reportSize);
        if (skippedChunk >= 0)
            chunks.remove(skippedChunk);
        std::reverse(chunks.begin() + 1, chunks.end());
        QImage seen;
        connect(pad.get(), &SimulatedKeypad::keyImageChanged, this, [&](int key) { seen = pad->keyImage(key); });
        LogCapture log;

        for (const QByteArray& chunk : chunks)
            QCOMPARE(write(chunk), reportSize);
        QCOMPARE(feature(showImage(4, quint32(object.size() + declaredDelta))), 33);

        QCOMPARE(pad->errorCount(), whole ? 0 : 1);
        QCOMPARE(log.matching(QStringLiteral("!!")).size(), whole ? 0 : 1);
        QCOMPARE(pad->keyImageBytes(4), whole ? object : old);
        QCOMPARE(seen, whole ? QImage::fromData(object) : QImage());
    }

    void shouldCountMalformedReportsAsErrors_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("isFeature");
        QTest::addColumn<int>("result");
        QByteArray badMagic = dataChunk(LargeReport, 0, "abc");
        badMagic[9] = 0;
        QByteArray overlong = dataChunk(SmallReport, 0, "abc");
        put(overlong, 5, SmallReport - ChunkHeader + 1);
        const QByteArray farOff = dataChunk(LargeReport, 0xFFFFFF00, QByteArray(200, 'x'));
        QTest::newRow("chunk without magic") << badMagic << false << LargeReport;
        QTest::newRow("chunk longer than its packet") << overlong << false << SmallReport;
        QTest::newRow("chunk far beyond any object") << farOff << false << LargeReport;
        QTest::newRow("empty chunk") << dataChunk(LargeReport, 0, QByteArray()) << false << LargeReport;
        QTest::newRow("odd report size") << QByteArray(100, 0x02) << false << -1;
        QTest::newRow("empty report") << QByteArray() << false << -1;
        QTest::newRow("unknown feature id") << sized("\x33", 17) << true << -1;
        QTest::newRow("backlight too long") << sized("\x11\x05", 3) << true << -1;
        QTest::newRow("logo without its markers") << sized("\x12\x02", 33) << true << 33;
        QTest::newRow("boot loader on a model without") << sized("\x14\xDC\xCD", 17) << true << 17;
    }

    void shouldCountMalformedReportsAsErrors()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, isFeature);
        QFETCH(int, result);
        LogCapture log;
        QCOMPARE(isFeature ? feature(bytes) : write(bytes), result);
        QCOMPARE(pad->errorCount(), 1);
        QCOMPARE(log.matching(QStringLiteral("!!")).size(), 1);
        QCOMPARE(pad->backlight(), -1);
        QVERIFY(!pad->isLogoShown() && !pad->isInBootLoader());
        feature(showImage(0, 3)); // nothing half-received may turn into an image
        QVERIFY(pad->keysWithImages().isEmpty());
    }

    // The program's polling thread may be inside a read when the keypad goes.
    void shouldWakeABlockedReaderWhenUnplugged()
    {
        int result = 0;
        std::unique_ptr<QThread> reader(QThread::create([&] { result = read(handle, 60000); }));
        reader->start();
        QThread::msleep(20); // waiting or not yet, the reader must end with -1
        pad->unplug();
        QVERIFY(reader->wait(30000));
        QCOMPARE(result, -1);
    }

    // Lower bounds only: each of the three calls blocks for the wedge time.
    void shouldBlockWedgedCallsAtLeastTheWedgeTimeThenFail()
    {
        pad->setWedgeTimeoutMs(50);
        pad->setWedged(true);
        QByteArray version = sized("\x10", 33);
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(write(dataChunk(LargeReport, 0, "x")), -1);
        QCOMPARE(feature(sized("\x11\x01", 2)), -1);
        QCOMPARE(pad->getFeatureReport(handle, reinterpret_cast<uchar*>(version.data()), 33), -1);
        QVERIFY(timer.elapsed() >= 3 * 50);
        QCOMPARE(pad->wedgedCallCount(), 3);
        QVERIFY(pad->reports().isEmpty());

        pad->pressKey(1);
        QCOMPARE(read(handle, 20), 0); // reads time out instead
        pad->setWedged(false);
        QCOMPARE(read(handle, 0), InputSize);
    }

    void shouldNotAcknowledgeABootLoaderPage_data()
    {
        QTest::addColumn<bool>("complete");
        QTest::newRow("acknowledgement withheld") << true;
        QTest::newRow("page incomplete") << false;
    }

    void shouldNotAcknowledgeABootLoaderPage()
    {
        QFETCH(bool, complete);
        if (complete)
            pad->failAcknowledgeAtPage(1);
        pad->setProductId(Nuc442Product);
        HidDeviceHandle* keypad = pad->open(Vendor, Nuc442Product);
        QCOMPARE(feature(sized("\x14\xDC\xCD", 17), keypad), 17);
        pad->close(keypad);
        HidDeviceHandle* loader = pad->open(Vendor, SimulatedKeypad::BootLoaderProductId);
        QVERIFY(loader);
        // 506-byte packets, the page end, then the page's acknowledgement.
        const auto sendPage = [&](int page, int length) {
            const QByteArray data = patternBytes(PageSize, page);
            for (int offset = 0; offset < length; offset += 506)
                write(bootReport(page, offset, data.mid(offset, 506)), loader);
            write(bootReport(page, 0xFF00), loader);
        };
        sendPage(0, PageSize);
        QCOMPARE(read(loader, 10000), InputSize);
        sendPage(1, complete ? PageSize : 506);
        QCOMPARE(read(loader, 20), 0);
        QCOMPARE(pad->acknowledgedPages(), QList<int>{0});
        QVERIFY(pad->isInBootLoader());
        QCOMPARE(pad->errorCount(), complete ? 0 : 1);
    }

    // Key reports read on one thread while another presses keys and sends
    // images: none lost, none reordered, no error.
    void shouldServeAReaderWhileAnotherThreadWrites()
    {
        constexpr int Presses = SimulatedKeypad::KeyCount;
        QVector<QByteArray> received;
        std::unique_ptr<QThread> reader(QThread::create([&] {
            const QDeadlineTimer guard(60000);
            for (QByteArray got; received.size() < 2 * Presses && !guard.hasExpired();)
                if (read(handle, 100, &got) > 0)
                    received << got;
        }));
        reader->start();
        const QByteArray encoded = bmp(72, 72);
        for (int key = 0; key < Presses; ++key) {
            // Stay below the queue limit so no report is dropped.
            while (pad->pendingInputReports() > SimulatedKeypad::InputQueueLimit - 5 && reader->isRunning())
                QThread::msleep(1);
            pad->pressKey(key);
            sendImage(key % 16, encoded);
            pad->releaseKey(key);
        }
        QVERIFY(reader->wait(90000));

        QCOMPARE(received.size(), 2 * Presses);
        for (int i = 0; i < received.size(); ++i) {
            QByteArray expected = sized("\x01", InputSize);
            if (i % 2 == 0)
                expected[1 + i / 16] = char(1 << (i / 2 % 8));
            QCOMPARE(received.at(i), expected);
        }
        QCOMPARE(pad->keysWithImages().size(), 16);
        QCOMPARE(pad->errorCount(), 0);
    }
};

KEYSTAGE_TEST_MAIN(SimulatedKeypadTest)
#include "tst_simulatedkeypad.moc"
