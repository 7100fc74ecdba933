#include "encodingcache.h"
#include "samplevalues.h"
#include "testmain.h"

namespace {

QByteArray streamed(const QPixmap& pixmap)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << pixmap;
    return bytes;
}

QPixmap readBack(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    QPixmap pixmap;
    stream >> pixmap;
    return pixmap;
}

} // namespace

class EncodingCacheTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldGiveWhatQDataStreamWritesForAPixmap_data()
    {
        QTest::addColumn<QPixmap>("pixmap");
        QTest::newRow("semi-transparent") << SampleValues::semiTransparentPixmap();
        QTest::newRow("opaque") << SampleValues::opaquePixmap();
        QTest::newRow("noise") << SampleValues::noisePixmap(3);
        QTest::newRow("null") << QPixmap();
    }

    void shouldGiveWhatQDataStreamWritesForAPixmap()
    {
        QFETCH(QPixmap, pixmap);
        EncodingCache cache;
        QCOMPARE(cache.pixmap(pixmap), streamed(pixmap));
        QCOMPARE(cache.pixmap(pixmap), streamed(pixmap));
        QCOMPARE(cache.reloadedPixmap(pixmap), streamed(readBack(streamed(pixmap))));
        QCOMPARE(cache.imageCount(), pixmap.isNull() ? 0 : 1);
    }

    void shouldKeepAnImageForEveryCopyOfAPixmap()
    {
        const QPixmap pixmap = SampleValues::opaquePixmap();
        const QPixmap copy = pixmap;
        EncodingCache cache;
        const QByteArray bytes = cache.pixmap(pixmap);
        QCOMPARE(cache.pixmap(copy).constData(), bytes.constData());
        QCOMPARE(cache.imageCount(), 1);
    }

    void shouldEncodeAPixmapAgainOnceItChanged()
    {
        QPixmap pixmap = SampleValues::opaquePixmap();
        EncodingCache cache;
        const QByteArray before = cache.pixmap(pixmap);
        const QByteArray reloadedBefore = cache.reloadedPixmap(pixmap);
        pixmap.fill(Qt::green);
        QVERIFY(cache.pixmap(pixmap) != before);
        QCOMPARE(cache.pixmap(pixmap), streamed(pixmap));
        QVERIFY(cache.reloadedPixmap(pixmap) != reloadedBefore);
    }

    void shouldTakeTheWordOfACallerThatSawTheImageComeBack()
    {
        const QPixmap loaded = readBack(streamed(SampleValues::semiTransparentPixmap()));
        EncodingCache cache;
        cache.markReloadStable(loaded);
        QCOMPARE(cache.reloadedPixmap(loaded), cache.pixmap(loaded));
        QCOMPARE(cache.reloadedPixmap(loaded), streamed(readBack(streamed(loaded))));
    }

    void shouldDropWhatWasNotAskedForSinceTheLastCall()
    {
        const QPixmap kept = SampleValues::opaquePixmap();
        const QPixmap left = SampleValues::semiTransparentPixmap();
        const QFont font = SampleValues::styledFont();
        EncodingCache cache;
        cache.pixmap(kept);
        cache.reloadedPixmap(left);
        cache.reloadedValue(font, QDataStream::Qt_4_0, QDataStream::Qt_5_15);
        cache.dropUnused();
        QCOMPARE(cache.imageCount(), 2);
        cache.pixmap(kept);
        cache.dropUnused();
        QCOMPARE(cache.imageCount(), 1);
        cache.dropUnused();
        QCOMPARE(cache.imageCount(), 0);
    }

    void shouldGiveAValueAsItComesBackFromAnOlderStream()
    {
        const QFont font = SampleValues::styledFont();
        QByteArray old;
        {
            QDataStream stream(&old, QIODevice::WriteOnly);
            stream.setVersion(QDataStream::Qt_4_0);
            stream << QVariant(font);
        }
        QVariant back;
        {
            QDataStream stream(old);
            stream.setVersion(QDataStream::Qt_4_0);
            stream >> back;
        }
        QByteArray expected;
        {
            QDataStream stream(&expected, QIODevice::WriteOnly);
            stream << back;
        }
        EncodingCache cache;
        QCOMPARE(cache.reloadedValue(font, QDataStream::Qt_4_0, QDataStream::Qt_5_15), expected);
        QCOMPARE(cache.reloadedValue(font, QDataStream::Qt_4_0, QDataStream::Qt_5_15), expected);
    }
};

KEYSTAGE_TEST_MAIN(EncodingCacheTest)
#include "tst_encodingcache.moc"
