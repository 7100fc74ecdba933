#include "encodingcache.h"
#include "samplevalues.h"
#include "testmain.h"
#include "variantstreamwriter.h"

#include <QCryptographicHash>
#include <QSettings>
#include <QTemporaryDir>

using Form = VariantStreamWriter::Form;

namespace {

QByteArray qtBytes(const QVariantMap& map, QDataStream::Version version)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(version);
    stream << map;
    return bytes;
}

QByteArray qtBytes(const QVariant& value, QDataStream::Version version)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(version);
    stream << value;
    return bytes;
}

QByteArray ourBytes(const QVariant& value, QDataStream::Version version, EncodingCache* cache,
                    Form form = Form::InMemory)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(version);
    VariantStreamWriter(&stream, cache, form).write(value);
    return bytes;
}

// What QSettings hands back for the map, read from a copy of its file so
// that no value it still holds in memory can stand in for it.
QVariantMap throughQSettings(const QVariantMap& map)
{
    QTemporaryDir dir;
    const QString written = dir.filePath(QStringLiteral("written.conf"));
    const QString copy = dir.filePath(QStringLiteral("copy.conf"));
    {
        QSettings settings(written, QSettings::NativeFormat);
        settings.setValue(QStringLiteral("inst"), map);
        settings.sync();
    }
    if (!QFile::copy(written, copy))
        return QVariantMap();
    return QSettings(copy, QSettings::NativeFormat).value(QStringLiteral("inst")).toMap();
}

// The stream versions the program writes: QSettings' and the checksum's.
const QList<QDataStream::Version> Versions{QDataStream::Qt_4_0, QDataStream::Qt_5_15};

} // namespace

class VariantStreamWriterTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldReproduceThePinnedReferenceBytes()
    {
        const QVariantMap map{{QStringLiteral("a"), 1}, {QStringLiteral("b"), QStringLiteral("x")}};
        EncodingCache cache;
        const QByteArray bytes = VariantStreamWriter::serialise(map, QDataStream::Qt_5_15, &cache);
        QCOMPARE(bytes.size(), 36);
        QCOMPARE(QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex(),
                 QByteArray("4854b2c425746cf07136304d1908225b"));
    }

    void shouldWriteWhatQDataStreamWrites_data()
    {
        QTest::addColumn<QVariant>("value");
        for (const auto& sample : SampleValues::everyValueType())
            QTest::newRow(sample.first) << sample.second;
    }

    void shouldWriteWhatQDataStreamWrites()
    {
        QFETCH(QVariant, value);
        const QVariantMap map = SampleValues::around(value);
        for (const QDataStream::Version version : Versions) {
            EncodingCache cache;
            const QByteArray expected = qtBytes(map, version);
            QCOMPARE(VariantStreamWriter::serialise(map, version, &cache), expected);
            // Again from the cache, and as a variant with its header.
            QCOMPARE(VariantStreamWriter::serialise(map, version, &cache), expected);
            QCOMPARE(ourBytes(QVariant(map), version, &cache), qtBytes(QVariant(map), version));
        }
    }

    // The checksum of a stored tree is checked against what QSettings reads back.
    void shouldWriteWhatQSettingsHandsBack_data() { shouldWriteWhatQDataStreamWrites_data(); }

    void shouldWriteWhatQSettingsHandsBack()
    {
        QFETCH(QVariant, value);
        const QVariantMap map = SampleValues::around(value);
        const QByteArray expected = qtBytes(throughQSettings(map), QDataStream::Qt_5_15);
        EncodingCache cache;
        QCOMPARE(VariantStreamWriter::serialise(map, QDataStream::Qt_5_15, &cache, Form::ReadBackFromSettingsFile),
                 expected);
        QCOMPARE(VariantStreamWriter::serialise(map, QDataStream::Qt_5_15, &cache, Form::ReadBackFromSettingsFile),
                 expected);
    }

    // What makes the second form necessary: fonts do not come back whole.
    void shouldTellTheReadBackFormFromTheInMemoryOne()
    {
        const QVariantMap map{{QStringLiteral("font"), SampleValues::styledFont()}};
        EncodingCache cache;
        QVERIFY(VariantStreamWriter::serialise(map, QDataStream::Qt_5_15, &cache) !=
                VariantStreamWriter::serialise(map, QDataStream::Qt_5_15, &cache, Form::ReadBackFromSettingsFile));
    }

    void shouldNeverWriteTheBytesOfAPixmapThatChangedSince()
    {
        QPixmap pixmap = SampleValues::opaquePixmap();
        const QVariantMap before{{QStringLiteral("img"), pixmap}};
        EncodingCache cache;
        const QByteArray first = VariantStreamWriter::serialise(before, QDataStream::Qt_5_15, &cache);
        QPainter painter(&pixmap);
        painter.fillRect(0, 0, 5, 5, Qt::red);
        painter.end();
        const QVariantMap after{{QStringLiteral("img"), pixmap}};
        for (const Form form : {Form::InMemory, Form::ReadBackFromSettingsFile}) {
            const QByteArray bytes = VariantStreamWriter::serialise(after, QDataStream::Qt_5_15, &cache, form);
            QVERIFY(bytes != first);
            QCOMPARE(bytes, qtBytes(after, QDataStream::Qt_5_15));
        }
    }

    void shouldHandImagesToTheImageWriter()
    {
        const QPixmap pixmap = SampleValues::semiTransparentPixmap();
        const QVariantMap map{{QStringLiteral("a"), pixmap}, {QStringLiteral("b"), QPixmap()}};
        EncodingCache cache;
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        VariantStreamWriter writer(&stream, &cache);
        QList<qint64> images;
        writer.setImageWriter([&](const QPixmap& image, const QByteArray& encoded) {
            images << image.cacheKey();
            stream.writeRawData(encoded.constData(), encoded.size());
        });
        writer.write(map);
        QCOMPARE(images, QList<qint64>{pixmap.cacheKey()});
        QCOMPARE(bytes, qtBytes(map, QDataStream::Qt_5_15));
    }
};

KEYSTAGE_TEST_MAIN(VariantStreamWriterTest)
#include "tst_variantstreamwriter.moc"
