#include "firmwarecatalog.h"
#include "keypadtable.h"
#include "testmain.h"

#include <QDir>
#include <QStandardPaths>
#include <QtEndian>

class TestFirmwareCatalog : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/firmware");
        QDir(folder).removeRecursively();
        QVERIFY(QDir().mkpath(folder));
    }

    // Even with an image whose name holds the words, an unknown keypad is
    // never offered one.
    void shouldOfferNothingForAnUnknownDevice()
    {
        put("Unknown Device_170121.bin");
        const QString id = KeypadTable::firmwareId(-1, false);
        QVERIFY(!FirmwareCatalog::isKnownDevice(id));
        FirmwareCatalog::Entry entry;
        QVERIFY(!FirmwareCatalog::packagedVersion(id, false, entry));
        QVERIFY(!FirmwareCatalog::packagedVersion(id, true, entry));
    }

    void shouldReadTheVersionFromTheImageName()
    {
        put("F43B35P1F41_170124.bin");
        put("VKP15-01-0_V1.3.0.0.sys");
        FirmwareCatalog::Entry entry;
        QVERIFY(FirmwareCatalog::packagedVersion(QStringLiteral("F43B35P1F41"), false, entry));
        QCOMPARE(entry.version, QStringLiteral("1.0.170124"));
        QCOMPARE(FirmwareCatalog::imagePath(QStringLiteral("F43B35P1F41"), entry, false),
                 folder + QStringLiteral("/F43B35P1F41_170124.bin"));

        QVERIFY(FirmwareCatalog::packagedVersion(QStringLiteral("VKP15-01-0"), true, entry));
        QCOMPARE(entry.version, QStringLiteral("1.3.0.0"));
        QCOMPARE(FirmwareCatalog::imagePath(QStringLiteral("VKP15-01-0"), entry, true),
                 folder + QStringLiteral("/VKP15-01-0_V1.3.0.0.sys"));
    }

    void shouldNeverChooseAnImageForAnotherKeypad()
    {
        put("F70B48P1F45_170125.bin");
        put("f43b35p1f41_170124.bin"); // the id is matched case-sensitively
        FirmwareCatalog::Entry entry;
        QVERIFY(!FirmwareCatalog::packagedVersion(QStringLiteral("F70B48P1F44"), false, entry));
        QVERIFY(!FirmwareCatalog::packagedVersion(QStringLiteral("F43B35P1F41"), false, entry));
        QVERIFY(!FirmwareCatalog::packagedVersion(QString(), false, entry));
    }

    void shouldPutTheHostHeaderInFront()
    {
        const QByteArray image = QByteArray("\x01\x02\xFF", 3) + QByteArray(1000, '\x10');
        const QByteArray header = FirmwareCatalog::hostHeader(image);
        QCOMPARE(header.size(), 64);
        QCOMPARE(header.left(27), QByteArray("kelvaris industrial product"));
        QCOMPARE(header.mid(27, 5), QByteArray(5, '\0'));
        QCOMPARE(header.mid(32, 7), QByteArray("version"));
        QCOMPARE(header.mid(39, 17), QByteArray(17, '\0'));
        const auto* raw = reinterpret_cast<const uchar*>(header.constData());
        QCOMPARE(qFromBigEndian<quint32>(raw + 56), quint32(image.size()));
        QCOMPARE(qFromBigEndian<quint32>(raw + 60), quint32(1 + 2 + 255 + 1000 * 16));
    }

private:
    void put(const char* name)
    {
        QFile file(folder + QLatin1Char('/') + QLatin1String(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(4096, '\x5A'));
    }

    QString folder;
};

KEYSTAGE_TEST_MAIN(TestFirmwareCatalog)
#include "tst_firmwarecatalog.moc"
