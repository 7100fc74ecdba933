#include "testmain.h"

#include <QFile>
#include <QImage>
#include <QRegularExpression>

class IconResourcesTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldCompileInEveryListedIconAtItsSize_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSize>("size");
        QFile list(QStringLiteral(KEYSTAGE_ICON_LIST));
        QVERIFY(list.open(QIODevice::ReadOnly | QIODevice::Text));
        const QRegularExpression blanks(QStringLiteral("\\s+"));
        while (!list.atEnd()) {
            const QString line = QString::fromUtf8(list.readLine()).trimmed();
            if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
                continue;
            const QStringList fields = line.split(blanks);
            QCOMPARE(fields.size(), 3);
            QTest::newRow(qPrintable(fields[0])) << fields[0] << QSize(fields[1].toInt(), fields[2].toInt());
        }
    }

    // An SVG that QtSvg cannot draw still renders, but to an empty picture.
    void shouldCompileInEveryListedIconAtItsSize()
    {
        QFETCH(QString, name);
        QFETCH(QSize, size);
        const QImage image(QStringLiteral(":/image/%1.png").arg(name));
        QCOMPARE(image.size(), size);
        QImage transparent(size, QImage::Format_Alpha8);
        transparent.fill(0);
        QVERIFY2(image.convertToFormat(QImage::Format_Alpha8) != transparent, "the icon is fully transparent");
    }

    // The widgets build these names from the action types and cope with a
    // missing image silently, so nothing else would notice one going away.
    void shouldHaveEveryImageTheEditorAsksFor()
    {
        QStringList names = {QStringLiteral("atn_settings"),   QStringLiteral("atn_settings_press"),
                             QStringLiteral("atn_favorites"),  QStringLiteral("atn_favorites_press"),
                             QStringLiteral("icn_arrow_down"), QStringLiteral("icn_arrow_right"),
                             QStringLiteral("icn_fav"),        QStringLiteral("icn_home"),
                             QStringLiteral("icn_layout6"),    QStringLiteral("icn_layout15"),
                             QStringLiteral("icn_layout32")};
        for (const char* type : {"folder", "hotkey", "macro", "launch", "website", "textstring"})
            for (const char* pattern : {"atn_%1", "atn_%1_press", "dsp_%1", "icn_%1", "btn_%1"})
                names << QString::fromLatin1(pattern).arg(QLatin1String(type));
        for (const QString& name : names)
            QVERIFY2(QFile::exists(QStringLiteral(":/image/%1.png").arg(name)), qPrintable(name));
    }
};

KEYSTAGE_TEST_MAIN(IconResourcesTest)
#include "tst_iconresources.moc"
