#include "encodingcache.h"
#include "samplevalues.h"
#include "settingsfilewriter.h"
#include "testmain.h"

#include <QLockFile>
#include <QSettings>
#include <QTemporaryDir>

namespace {

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The file QSettings writes for the keys, each written once into a new file.
QByteArray writtenByQSettings(const QVariantMap& keys)
{
    static int files = 0;
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("settings%1.conf").arg(++files));
    {
        QSettings settings(path, QSettings::NativeFormat);
        for (auto it = keys.constBegin(); it != keys.constEnd(); ++it)
            settings.setValue(it.key(), it.value());
        settings.sync();
    }
    return readFile(path);
}

// The text QSettings writes for a byte array value: its escaping of the value's text.
QByteArray qsettingsEscaped(const QByteArray& bytes)
{
    const QByteArray file = writtenByQSettings({{QStringLiteral("k"), bytes}});
    const QByteArray prefix = "[General]\nk=";
    if (!file.startsWith(prefix) || !file.endsWith('\n'))
        return QByteArray();
    return file.mid(prefix.size(), file.size() - prefix.size() - 1);
}

QVariantMap otherKeys(int variant)
{
    switch (variant) {
    case 1:
        return {{QStringLiteral("lang_idx"), 2}, {QStringLiteral("Alpha"), QStringLiteral("first")}};
    case 2:
        return {{QStringLiteral("lang_idx"), 2},
                {QStringLiteral("window/pos"), QPoint(3, 4)},
                {QStringLiteral("General/odd"), QStringLiteral("a group named General")},
                {QStringLiteral("zz"), QStringList{QStringLiteral("x"), QStringLiteral("y")}}};
    default:
        return {};
    }
}

} // namespace

class SettingsFileWriterTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldEscapeAsQSettingsDoes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("plain") << QByteArray("plain text");
        QTest::newRow("hex digits after \\0") << QByteArray("\0"
                                                            "0aF9g",
                                                            6);
        QTest::newRow("hex digits after \\x") << QByteArray("\x1f"
                                                            "abc\x7f"
                                                            "1",
                                                            6);
        QTest::newRow("hex digits after a letter escape") << QByteArray("\n1\t2\"3\\4");
        QTest::newRow("forces quotes") << QByteArray("a;b");
        QTest::newRow("comma") << QByteArray(",");
        QTest::newRow("equals") << QByteArray("=");
        QTest::newRow("every byte") << SampleValues::everyByte();
        QRandomGenerator random(20240611);
        for (int round = 0; round < 20; ++round) {
            QByteArray bytes(int(random.bounded(1, 600)), Qt::Uninitialized);
            for (char& c : bytes)
                c = char(random.bounded(256));
            QTest::newRow(qPrintable(QStringLiteral("random %1").arg(round))) << bytes;
        }
    }

    void shouldEscapeAsQSettingsDoes()
    {
        QFETCH(QByteArray, bytes);
        QCOMPARE(SettingsFileWriter::escapedValue("@ByteArray(" + bytes + ')'), qsettingsEscaped(bytes));
    }

    // QSettings writes these as text: quotes for spaces at the ends, none otherwise.
    void shouldQuoteTextAsQSettingsDoes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("leading space") << QStringLiteral(" a");
        QTest::newRow("trailing space") << QStringLiteral("a ");
        QTest::newRow("inner space") << QStringLiteral("a b");
        QTest::newRow("only a space") << QStringLiteral(" ");
    }

    void shouldQuoteTextAsQSettingsDoes()
    {
        QFETCH(QString, text);
        const QByteArray file = writtenByQSettings({{QStringLiteral("k"), text}});
        QCOMPARE("[General]\nk=" + SettingsFileWriter::escapedValue(text.toLatin1()) + '\n', file);
    }

    void shouldWriteTheFileQSettingsWrites_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("others");
        for (int others = 0; others < 3; ++others) {
            for (const auto& sample : SampleValues::everyValueType()) {
                const QVariant value = SampleValues::around(sample.second);
                QTest::newRow(qPrintable(QStringLiteral("%1, other keys %2").arg(sample.first).arg(others)))
                    << value << others;
            }
        }
    }

    void shouldWriteTheFileQSettingsWrites()
    {
        QFETCH(QVariant, value);
        QFETCH(int, others);
        QVariantMap keys = otherKeys(others);
        keys.insert(QStringLiteral("inst"), value);
        const QByteArray expected = writtenByQSettings(keys);
        EncodingCache cache;
        SettingsFileWriter writer;
        const SettingsFileWriter::Content content =
            writer.fileContent(QLatin1String("inst"), value, otherKeys(others), &cache);
        QCOMPARE(SettingsFileWriter::joined(content), expected);
        QVERIFY(SettingsFileWriter::holds(content, expected));
        QVERIFY(!SettingsFileWriter::holds(content, expected + '\n'));
        QVERIFY(!SettingsFileWriter::holds(content, expected.chopped(1)));
        // Again with everything kept from the first time.
        QCOMPARE(
            SettingsFileWriter::joined(writer.fileContent(QLatin1String("inst"), value, otherKeys(others), &cache)),
            expected);
    }

    void shouldWriteAMapWhoseEntryComesLate_data()
    {
        QTest::addColumn<QVariantMap>("map");
        QTest::addColumn<QString>("lateKey");
        QTest::addColumn<int>("others");
        const QVariantMap plain{{QStringLiteral("a"), 1}, {QStringLiteral("m"), QStringLiteral("x")}};
        const QVariantMap images = SampleValues::keyItemMap();
        for (const QString& late :
             {QStringLiteral("zz late"), QStringLiteral("b late"), QStringLiteral("CHKSUM_TAG")}) {
            for (int others = 0; others < 2; ++others) {
                QTest::newRow(qPrintable(QStringLiteral("no quotes, %1, %2").arg(late).arg(others)))
                    << plain << late << others;
                QTest::newRow(qPrintable(QStringLiteral("images, %1, %2").arg(late).arg(others)))
                    << images << late << others;
            }
        }
    }

    void shouldWriteAMapWhoseEntryComesLate()
    {
        QFETCH(QVariantMap, map);
        QFETCH(QString, lateKey);
        QFETCH(int, others);
        const QString lateValue = QStringLiteral("0123456789abcdef0123456789abcdef");
        QVariantMap complete = map;
        complete.insert(lateKey, lateValue);
        QVariantMap keys = otherKeys(others);
        keys.insert(QStringLiteral("inst"), complete);

        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("Keystage.conf"));
        map.insert(lateKey, QString());
        int asked = 0;
        const SettingsFileWriter::LateEntry late{lateKey, [&] {
                                                     ++asked;
                                                     return QVariant(lateValue);
                                                 }};
        EncodingCache cache;
        SettingsFileWriter writer;
        QString error;
        QVERIFY(writer.writeMapFile(path, QLatin1String("inst"), map, late, otherKeys(others), &cache, &error));
        QCOMPARE(asked, 1);
        QCOMPARE(readFile(path), writtenByQSettings(keys));
    }

    void shouldEscapeAnImageAgainOnceItChanged()
    {
        QPixmap pixmap = SampleValues::noisePixmap(5);
        EncodingCache cache;
        SettingsFileWriter writer;
        writer.fileContent(QLatin1String("inst"), QVariantMap{{QStringLiteral("img"), pixmap}}, {}, &cache);
        pixmap.fill(Qt::blue);
        const QVariantMap changed{{QStringLiteral("img"), pixmap}};
        QCOMPARE(SettingsFileWriter::joined(writer.fileContent(QLatin1String("inst"), changed, {}, &cache)),
                 writtenByQSettings({{QStringLiteral("inst"), changed}}));
    }

    void shouldKeepOneEscapedImageForEachImageInUse()
    {
        const QPixmap kept = SampleValues::noisePixmap(1);
        const QPixmap left = SampleValues::noisePixmap(2);
        EncodingCache cache;
        SettingsFileWriter writer;
        const QVariantMap both{{QStringLiteral("a"), kept}, {QStringLiteral("b"), left}, {QStringLiteral("c"), kept}};
        writer.fileContent(QLatin1String("inst"), both, {}, &cache);
        writer.dropUnused();
        QCOMPARE(writer.escapedImageCount(), 2);
        const QVariantMap one{{QStringLiteral("a"), kept}};
        QCOMPARE(SettingsFileWriter::joined(writer.fileContent(QLatin1String("inst"), one, {}, &cache)),
                 writtenByQSettings({{QStringLiteral("inst"), one}}));
        writer.dropUnused();
        QCOMPARE(writer.escapedImageCount(), 1);
    }

    void shouldReplaceTheFileAndLeaveNoLockBehind()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("new/deeper/Keystage.conf"));
        QString error;
        QVERIFY(SettingsFileWriter::writeFile(path, {"first"}, &error));
        // Pieces larger and smaller than one write.
        const QByteArray large(3 * 1024 * 1024 + 5, 'L');
        const SettingsFileWriter::Content pieces{"a", large, "b", large, QByteArray(1024 * 1024 - 1, 's'), "c"};
        QVERIFY(SettingsFileWriter::writeFile(path, pieces, &error));
        QCOMPARE(readFile(path), SettingsFileWriter::joined(pieces));
        QCOMPARE(QDir(QFileInfo(path).absolutePath()).entryList(QDir::Files),
                 QStringList{QStringLiteral("Keystage.conf")});
    }

    void shouldReportAFileThatCannotBeWritten()
    {
        QTemporaryDir dir;
        const QString notADirectory = dir.filePath(QStringLiteral("plain-file"));
        QFile file(notADirectory);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QString error;
        QVERIFY(!SettingsFileWriter::writeFile(notADirectory + QStringLiteral("/Keystage.conf"), {"x"}, &error));
        QVERIFY(!error.isEmpty());
    }

    void shouldNotWriteWhileAnotherWriterHoldsTheLock()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("Keystage.conf"));
        QLockFile other(path + QStringLiteral(".lock"));
        QVERIFY(other.lock());
        QString error;
        QVERIFY(!SettingsFileWriter::writeFile(path, {"x"}, &error, 0));
        QVERIFY(error.contains(QStringLiteral("lock")));
        QVERIFY(!QFile::exists(path));
    }
};

KEYSTAGE_TEST_MAIN(SettingsFileWriterTest)
#include "tst_settingsfilewriter.moc"
