#include "hidid.h"
#include "testmain.h"

Q_DECLARE_METATYPE(std::optional<HidId>)

namespace {

std::optional<HidId> id(quint32 bus, quint32 vendorId, quint32 productId)
{
    return HidId{bus, vendorId, productId};
}

void compareIds(const std::optional<HidId>& actual, const std::optional<HidId>& expected)
{
    QCOMPARE(actual.has_value(), expected.has_value());
    if (!expected)
        return;
    QCOMPARE(actual->bus, expected->bus);
    QCOMPARE(actual->vendorId, expected->vendorId);
    QCOMPARE(actual->productId, expected->productId);
}

} // namespace

class HidIdTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldParseUdevHidId_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<std::optional<HidId>>("expected");

        QTest::newRow("keypad") << QByteArray("0003:0000FFFF:00001F43") << id(3, 0xFFFF, 0x1F43);
        QTest::newRow("lower case") << QByteArray("0003:0000ffff:0000110e") << id(3, 0xFFFF, 0x110E);
        QTest::newRow("bluetooth") << QByteArray("0005:0000046D:0000B023") << id(5, 0x046D, 0xB023);
        QTest::newRow("short fields") << QByteArray("3:FFFF:1F43") << id(3, 0xFFFF, 0x1F43);
        QTest::newRow("full 32 bits") << QByteArray("FFFFFFFF:FFFFFFFF:FFFFFFFF")
                                      << id(0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF);

        const std::optional<HidId> none;
        QTest::newRow("empty") << QByteArray() << none;
        QTest::newRow("two fields") << QByteArray("0003:0000FFFF") << none;
        QTest::newRow("four fields") << QByteArray("0003:0000FFFF:00001F43:0001") << none;
        QTest::newRow("empty field") << QByteArray("0003::00001F43") << none;
        QTest::newRow("trailing colon") << QByteArray("0003:0000FFFF:00001F43:") << none;
        QTest::newRow("not hex") << QByteArray("0003:0000FFFG:00001F43") << none;
        QTest::newRow("0x prefix") << QByteArray("0003:0x00FFFF:00001F43") << none;
        QTest::newRow("sign") << QByteArray("0003:+000FFFF:00001F43") << none;
        QTest::newRow("blank") << QByteArray("0003: 000FFFF:00001F43") << none;
        QTest::newRow("over 32 bits") << QByteArray("0003:10000FFFF:00001F43") << none;
        QTest::newRow("newline") << QByteArray("0003:0000FFFF:00001F43\n") << none;
        QTest::newRow("kernel name") << QByteArray("0003:FFFF:1F43.0001") << none;
        QTest::newRow("binary") << QByteArray("\x00\x01:\xff:\x80", 7) << none;
    }
    void shouldParseUdevHidId()
    {
        QFETCH(QByteArray, text);
        QFETCH(std::optional<HidId>, expected);
        compareIds(HidId::parse(text), expected);
    }

    void shouldFindHidDeviceInDevicePath_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<std::optional<HidId>>("expected");

        QTest::newRow("hidraw node") << QByteArray("/devices/pci0000:00/0000:00:14.0/usb1/1-2/1-2:1.0/"
                                                   "0003:FFFF:1F43.0007/hidraw/hidraw3")
                                     << id(3, 0xFFFF, 0x1F43);
        QTest::newRow("lower case") << QByteArray("/devices/usb1/1-2/1-2:1.0/0003:ffff:110e.000a/hidraw/hidraw0")
                                    << id(3, 0xFFFF, 0x110E);
        QTest::newRow("nearest wins") << QByteArray("/devices/0003:1111:2222.0001/0003:FFFF:1F42.0002/hidraw/hidraw1")
                                      << id(3, 0xFFFF, 0x1F42);

        const std::optional<HidId> none;
        QTest::newRow("empty") << QByteArray() << none;
        QTest::newRow("no HID device") << QByteArray("/devices/virtual/misc/uhid/hidraw/hidraw0") << none;
        QTest::newRow("pci address only") << QByteArray("/devices/pci0000:00/0000:00:14.0/hidraw/hidraw0") << none;
        QTest::newRow("no instance") << QByteArray("/devices/usb1/0003:FFFF:1F43/hidraw/hidraw0") << none;
        QTest::newRow("long field") << QByteArray("/devices/usb1/0003:0FFFF:1F43.0001/hidraw/hidraw0") << none;
        QTest::newRow("bad instance") << QByteArray("/devices/usb1/0003:FFFF:1F43.00x1/hidraw/hidraw0") << none;
        QTest::newRow("only slashes") << QByteArray("////") << none;
    }
    void shouldFindHidDeviceInDevicePath()
    {
        QFETCH(QByteArray, path);
        QFETCH(std::optional<HidId>, expected);
        compareIds(HidId::fromDevicePath(path), expected);
    }
};

KEYSTAGE_TEST_MAIN(HidIdTest)
#include "tst_hidid.moc"
