#include "encodingcache.h"
#include "samplevalues.h"
#include "settingsfilewriter.h"
#include "testfiles.h"
#include "testmain.h"

#include <QLockFile>
#include <QSettings>
#include <QTemporaryDir>

namespace {

const QLatin1String Inst("inst");

// The file QSettings writes for the keys, each written once into a new file.
QByteArray writtenByQSettings(const QVariantMap& keys)
{
    static int files = 0; // a name QSettings has no cache for
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("settings%1.conf").arg(++files));
    {
        QSettings settings(path, QSettings::NativeFormat);
        for (auto it = keys.constBegin(); it != keys.constEnd(); ++it)
            settings.setValue(it.key(), it.value());
    }
    return TestFiles::read(path);
}

// Keys before and after "inst", in groups, and one in a group named like the general section.
QVariantMap otherKeys(bool any)
{
    if (!any)
        return {};
    return {{QStringLiteral("Alpha"), QStringLiteral("first")},
            {QStringLiteral("lang_idx"), 2},
            {QStringLiteral("window/pos"), QPoint(3, 4)},
            {QStringLiteral("General/odd"), QStringLiteral("a group named General")},
            {QStringLiteral("zz"), QStringList{QStringLiteral("x"), QStringLiteral("y")}}};
}

} // namespace

class SettingsFileWriterTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldEscapeAsQSettingsDoes_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("empty") << QVariant(QByteArray());
        QTest::newRow("plain") << QVariant(QByteArray("plain text"));
        QTest::newRow("hex digits after \\0") << QVariant(QByteArray(1, '\0') + "0aF9g");
        QTest::newRow("hex digits after \\x") << QVariant(QByteArray("\x1f") + "abc\x7f" + "1");
        QTest::newRow("hex digits after a letter escape") << QVariant(QByteArray("\n1\t2\"3\\4"));
        QTest::newRow("forces quotes") << QVariant(QByteArray("a;b"));
        QTest::newRow("comma") << QVariant(QByteArray(","));
        QTest::newRow("equals") << QVariant(QByteArray("="));
        QTest::newRow("every byte") << QVariant(SampleValues::everyByte());
        QRandomGenerator random(20240611);
        for (int round = 0; round < 20; ++round) {
            QByteArray bytes(int(random.bounded(1, 600)), Qt::Uninitialized);
            for (char& c : bytes)
                c = char(random.bounded(256));
            QTest::newRow(qPrintable(QStringLiteral("random %1").arg(round))) << QVariant(bytes);
        }
        // Written as text: quotes for spaces at the ends, none otherwise.
        for (const char* text : {" a", "a ", "a b", " "})
            QTest::newRow(qPrintable(QStringLiteral("text '%1'").arg(QLatin1String(text)))) << QVariant(text);
    }

    void shouldEscapeAsQSettingsDoes()
    {
        QFETCH(QVariant, value);
        const QByteArray text =
            value.type() == QVariant::String ? value.toString().toLatin1() : "@ByteArray(" + value.toByteArray() + ')';
        QCOMPARE("[General]\nk=" + SettingsFileWriter::escapedValue(text) + '\n',
                 writtenByQSettings({{QStringLiteral("k"), value}}));
    }

    void shouldWriteTheFileQSettingsWrites_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("others");
        for (const bool others : {false, true}) {
            for (const auto& sample : SampleValues::everyValueType()) {
                QTest::newRow(qPrintable(QStringLiteral("%1%2").arg(sample.first, others ? ", other keys" : "")))
                    << QVariant(SampleValues::around(sample.second)) << others;
            }
        }
    }

    void shouldWriteTheFileQSettingsWrites()
    {
        QFETCH(QVariant, value);
        QFETCH(bool, others);
        QVariantMap keys = otherKeys(others);
        keys.insert(Inst, value);
        const QByteArray expected = writtenByQSettings(keys);
        EncodingCache cache;
        SettingsFileWriter writer;
        const SettingsFileWriter::Content content = writer.fileContent(Inst, value, otherKeys(others), &cache);
        QCOMPARE(SettingsFileWriter::joined(content), expected);
        QVERIFY(SettingsFileWriter::holds(content, expected));
        QVERIFY(!SettingsFileWriter::holds(content, expected + '\n'));
        QVERIFY(!SettingsFileWriter::holds(content, expected.chopped(1)));
        // Again with everything kept from the first time.
        QCOMPARE(SettingsFileWriter::joined(writer.fileContent(Inst, value, otherKeys(others), &cache)), expected);

        // As the store writes it: the checksum's value is asked for on the way.
        const QString checksum = QStringLiteral("0123456789abcdef0123456789abcdef");
        QVariantMap map = value.toMap();
        map.insert(QStringLiteral("CHKSUM_TAG"), checksum);
        keys.insert(Inst, map);
        map.insert(QStringLiteral("CHKSUM_TAG"), QString());
        int asked = 0;
        const SettingsFileWriter::LateEntry late{QStringLiteral("CHKSUM_TAG"), [&] {
                                                     ++asked;
                                                     return QVariant(checksum);
                                                 }};
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("Keystage.conf"));
        QString error;
        QVERIFY(writer.writeMapFile(path, Inst, map, late, otherKeys(others), &cache, &error));
        QCOMPARE(asked, 1);
        QCOMPARE(TestFiles::read(path), writtenByQSettings(keys));
    }

    // Images are known by cacheKey(), which changes with the pixels; the
    // ones no longer in use are not kept.
    void shouldKeepOnlyTheImagesInUseAsTheyAreNow()
    {
        const QPixmap kept = SampleValues::noisePixmap(1);
        QPixmap changed = SampleValues::noisePixmap(2);
        EncodingCache cache;
        SettingsFileWriter writer;
        writer.fileContent(Inst, QVariantMap{{"a", kept}, {"b", changed}, {"c", kept}}, {}, &cache);
        writer.dropUnused();
        cache.dropUnused();
        QCOMPARE(writer.escapedImageCount(), 2);
        changed.fill(Qt::blue);
        for (const QVariantMap& now : {QVariantMap{{"a", kept}, {"b", changed}}, QVariantMap{{"a", kept}}}) {
            QCOMPARE(SettingsFileWriter::joined(writer.fileContent(Inst, now, {}, &cache)),
                     writtenByQSettings({{Inst, now}}));
            writer.dropUnused();
            cache.dropUnused();
            QCOMPARE(writer.escapedImageCount(), now.size());
            QCOMPARE(cache.imageCount(), now.size());
        }
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
        QCOMPARE(TestFiles::read(path), SettingsFileWriter::joined(pieces));
        QCOMPARE(QDir(QFileInfo(path).absolutePath()).entryList(QDir::Files),
                 QStringList{QStringLiteral("Keystage.conf")});
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
