#include "encodingcache.h"
#include "samplevalues.h"
#include "testmain.h"
#include "variantstreamwriter.h"

#include <QSettings>
#include <QTemporaryDir>

using Form = VariantStreamWriter::Form;

namespace {

template <typename T>
QByteArray qtBytes(const T& value, QDataStream::Version version)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(version);
    stream << value;
    return bytes;
}

QByteArray ourVariantBytes(const QVariant& value, QDataStream::Version version, EncodingCache* cache)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(version);
    VariantStreamWriter(&stream, cache).write(value);
    return bytes;
}

// What QSettings hands back for the map, read from a copy of its file so
// that no value it still holds in memory can stand in for it.
QVariantMap throughQSettings(const QVariantMap& map)
{
    QTemporaryDir dir;
    const QString written = dir.filePath(QStringLiteral("written.conf"));
    const QString copy = dir.filePath(QStringLiteral("copy.conf"));
    QSettings(written, QSettings::NativeFormat).setValue(QStringLiteral("inst"), map);
    if (!QFile::copy(written, copy))
        return QVariantMap();
    return QSettings(copy, QSettings::NativeFormat).value(QStringLiteral("inst")).toMap();
}

} // namespace

class VariantStreamWriterTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldWriteWhatQtWrites_data()
    {
        QTest::addColumn<QVariant>("value");
        for (const auto& sample : SampleValues::everyValueType())
            QTest::newRow(sample.first) << sample.second;
    }

    // At QSettings' stream version and the checksum's, the second time from
    // the cache; and for the checksum of a stored tree, as QSettings reads it back.
    void shouldWriteWhatQtWrites()
    {
        QFETCH(QVariant, value);
        const QVariantMap map = SampleValues::around(value);
        EncodingCache cache;
        for (const QDataStream::Version version : {QDataStream::Qt_4_0, QDataStream::Qt_5_15}) {
            for (int pass = 0; pass < 2; ++pass) {
                QCOMPARE(VariantStreamWriter::serialise(map, version, &cache), qtBytes(map, version));
                QCOMPARE(ourVariantBytes(map, version, &cache), qtBytes(QVariant(map), version));
            }
        }
        const QByteArray readBack = qtBytes(throughQSettings(map), QDataStream::Qt_5_15);
        for (int pass = 0; pass < 2; ++pass) {
            QCOMPARE(VariantStreamWriter::serialise(map, QDataStream::Qt_5_15, &cache, Form::ReadBackFromSettingsFile),
                     readBack);
        }
    }
};

KEYSTAGE_TEST_MAIN(VariantStreamWriterTest)
#include "tst_variantstreamwriter.moc"
