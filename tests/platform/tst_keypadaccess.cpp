#include "keypadaccess.h"
#include "testmain.h"

using UsbDevice = KeypadAccess::UsbDevice;
using DeviceList = QVector<UsbDevice>;
Q_DECLARE_METATYPE(DeviceList)
Q_DECLARE_METATYPE(KeypadAccess::Status)

namespace {
// The caller says which keypads count; 0x1F46 and the boot loader do not.
const UsbIdFilter Keypads{0xFFFF, {0x1F43, 0x1F41, 0x1F44, 0x110E}};
} // namespace

class KeypadAccessTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldJudgeFirstKeypad_data()
    {
        QTest::addColumn<DeviceList>("devices");
        QTest::addColumn<QStringList>("writableNodes");
        QTest::addColumn<KeypadAccess::Status>("status");
        QTest::addColumn<QString>("node");
        QTest::addColumn<quint32>("pid");

        const UsbDevice keypad{"ffff", "1f43", "/dev/bus/usb/001/004"};
        const UsbDevice other{"ffff", "1f44", "/dev/bus/usb/002/007"};
        const UsbDevice mouse{"046d", "c077", "/dev/bus/usb/001/002"};
        const QString keypadNode = QStringLiteral("/dev/bus/usb/001/004");
        const QString otherNode = QStringLiteral("/dev/bus/usb/002/007");

        QTest::newRow("nothing") << DeviceList() << QStringList() << KeypadAccess::NoKeypad << QString() << quint32(0);
        QTest::newRow("only other vendors") << DeviceList{mouse} << QStringList{QStringLiteral("/dev/bus/usb/001/002")}
                                            << KeypadAccess::NoKeypad << QString() << quint32(0);
        QTest::newRow("accessible") << DeviceList{mouse, keypad} << QStringList{keypadNode} << KeypadAccess::Accessible
                                    << keypadNode << quint32(0x1F43);
        QTest::newRow("no permission") << DeviceList{keypad} << QStringList() << KeypadAccess::NoPermission
                                       << keypadNode << quint32(0x1F43);
        QTest::newRow("first keypad decides") << DeviceList{keypad, other} << QStringList{otherNode}
                                              << KeypadAccess::NoPermission << keypadNode << quint32(0x1F43);
        QTest::newRow("upper-case ids") << DeviceList{{"FFFF", "110E", "/dev/bus/usb/003/002"}}
                                        << QStringList{QStringLiteral("/dev/bus/usb/003/002")}
                                        << KeypadAccess::Accessible << QStringLiteral("/dev/bus/usb/003/002")
                                        << quint32(0x110E);
        QTest::newRow("boot loader is no keypad") << DeviceList{{"ffff", "ff00", "/dev/bus/usb/001/009"}}
                                                  << QStringList() << KeypadAccess::NoKeypad << QString() << quint32(0);
        QTest::newRow("unknown product") << DeviceList{{"ffff", "1f46", "/dev/bus/usb/001/009"}} << QStringList()
                                         << KeypadAccess::NoKeypad << QString() << quint32(0);
        QTest::newRow("no node skipped") << DeviceList{{"ffff", "1f41", ""}, other} << QStringList{otherNode}
                                         << KeypadAccess::Accessible << otherNode << quint32(0x1F44);
        QTest::newRow("garbage ids skipped")
            << DeviceList{{"0xff", "1f43", "/dev/a"},  {"ffff", "", "/dev/b"}, {"ffff", "1f4g", "/dev/c"},
                          {"ffff", "01f43", "/dev/d"}, {"", "", ""},           keypad}
            << QStringList{QStringLiteral("/dev/a"), QStringLiteral("/dev/b"), QStringLiteral("/dev/c"),
                           QStringLiteral("/dev/d"), keypadNode}
            << KeypadAccess::Accessible << keypadNode << quint32(0x1F43);
    }
    void shouldJudgeFirstKeypad()
    {
        QFETCH(DeviceList, devices);
        QFETCH(QStringList, writableNodes);
        QFETCH(KeypadAccess::Status, status);
        QFETCH(QString, node);
        QFETCH(quint32, pid);

        QStringList asked;
        const KeypadAccess::Result result = KeypadAccess::evaluate(Keypads, devices, [&](const QString& path) {
            asked.append(path);
            return writableNodes.contains(path);
        });
        QCOMPARE(result.status, status);
        QCOMPARE(result.nodePath, node);
        QCOMPARE(result.productId, pid);
        // Only the keypad's own node is ever tried.
        QCOMPARE(asked, node.isEmpty() ? QStringList() : QStringList{node});
    }

    void shouldNameRulesFileAndReloadInFix()
    {
        const QString fix = KeypadAccess::fixText();
        QVERIFY(fix.contains(QStringLiteral("70-keystage.rules")));
        QVERIFY(fix.contains(QStringLiteral("sudo udevadm control --reload && sudo udevadm trigger")));
        QVERIFY(fix.contains(QStringLiteral("replug")));
    }

    void shouldCheckThisMachineWithoutFailing()
    {
        // No keypad is expected here; the check must still come back whole.
        const KeypadAccess::Result result = KeypadAccess::check(Keypads);
        QCOMPARE(result.status == KeypadAccess::NoKeypad, result.nodePath.isEmpty());
        QCOMPARE(result.status == KeypadAccess::NoKeypad, result.productId == 0);
    }
};

KEYSTAGE_TEST_MAIN(KeypadAccessTest)
#include "tst_keypadaccess.moc"
