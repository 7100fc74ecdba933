#include "bundledfonts.h"
#include "facetitle.h"
#include "imagecompare.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keylayout.h"
#include "testmain.h"

#include <QDir>
#include <QFile>
#include <QFontInfo>
#include <QPainter>
#include <QPixmap>
#include <QThread>
#include <functional>
#include <iterator>
#include <memory>

namespace {

constexpr int Face = KeyFaceRenderer::FaceSize;
// Faces are compared with the stored ones per pixel and channel. Rendering
// is deterministic on one machine; the margin absorbs rounding differences
// between the CPU-specific paths of the raster engine.
constexpr int GoldenTolerance = 12;
const QColor Green(0, 255, 0);
const QColor Red(200, 30, 30);

using ItemPtr = std::unique_ptr<KeyItem>;

ItemPtr makeItem(KeyActionType type, const QString& title = QString())
{
    ItemPtr item(new KeyItem(type, 0, H_Key_15));
    if (!title.isEmpty())
        item->setTitle(0, title);
    return item;
}

QPixmap solidPixmap(const QColor& color, int width = Face, int height = Face)
{
    QPixmap pixmap(width, height);
    pixmap.fill(color);
    return pixmap;
}

// A picture with soft colours and detail, standing in for a user's photo.
QPixmap photoPixmap()
{
    QImage image(96, 96, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, 96);
    sky.setColorAt(0, QColor(40, 90, 170));
    sky.setColorAt(1, QColor(250, 190, 120));
    painter.fillRect(image.rect(), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 236, 150));
    painter.drawEllipse(QPointF(62, 40), 14, 14);
    painter.setBrush(QColor(30, 60, 50));
    painter.drawPolygon(QPolygonF({QPointF(0, 96), QPointF(0, 70), QPointF(30, 50), QPointF(60, 78), QPointF(80, 62),
                                   QPointF(96, 72), QPointF(96, 96)}));
    painter.end();
    return QPixmap::fromImage(image);
}

bool isLit(QRgb pixel)
{
    return qRed(pixel) > 40 || qGreen(pixel) > 40 || qBlue(pixel) > 40;
}

std::function<bool(QRgb)> near(const QColor& colour, int tolerance)
{
    return [colour, tolerance](QRgb pixel) {
        return qAbs(qRed(pixel) - colour.red()) <= tolerance && qAbs(qGreen(pixel) - colour.green()) <= tolerance &&
               qAbs(qBlue(pixel) - colour.blue()) <= tolerance;
    };
}

// Bounding box of the pixels the predicate accepts; null when none does.
QRect boundsOf(const QImage& image, const std::function<bool(QRgb)>& accept)
{
    const QImage rgb = image.convertToFormat(QImage::Format_ARGB32);
    QRect bounds;
    for (int y = 0; y < rgb.height(); ++y)
        for (int x = 0; x < rgb.width(); ++x)
            if (accept(rgb.pixel(x, y)))
                bounds |= QRect(x, y, 1, 1);
    return bounds;
}

// The faces kept as golden files: one of each look a user meets, and the
// fallbacks for what a face may lack. Items are made on the GUI thread (they
// may hold a QPixmap) and drawn anywhere.
struct GoldenFace
{
    const char* name;
    KeyActionType type;
    const char* title;
    void (*tweak)(KeyRenderInfo& face, KeyItem& item);
    bool pressed = false;

    ItemPtr make() const
    {
        ItemPtr item = makeItem(type, QString::fromUtf8(title));
        if (tweak)
            tweak(item->render[0], *item);
        return item;
    }

    QImage render(const KeyItem* item) const
    {
        return pressed ? KeyFaceRenderer::renderPressed(item) : KeyFaceRenderer::render(item);
    }
};

const GoldenFace Goldens[] = {
    {"folder_plain", KAT_FOLDER, "", nullptr},
    {"folder_titled", KAT_FOLDER, "Projects", nullptr},
    {"hotkey_copy", KAT_HOTKEY, "Copy", nullptr},
    {"hotkey_toggled", KAT_HOTKEY, "Mic on",
     [](KeyRenderInfo&, KeyItem& item) {
         item.multiFeatureFlag = true;
         item.setTitle(1, QStringLiteral("Mic off"));
         item.cfIdx = 1;
     }},
    {"macro_two_lines", KAT_MACROKEY, "Build and deploy", nullptr},
    {"launch_top", KAT_EXE_APP_FILE, "Terminal",
     [](KeyRenderInfo& face, KeyItem&) { face.textAlign = Qt::AlignTop | Qt::AlignHCenter; }},
    {"website_long", KAT_OPEN_WEBSITE, "www.example.com/a/very/long/path", nullptr},
    {"text_centre_yellow", KAT_PASTE_STRING, "Sign",
     [](KeyRenderInfo& face, KeyItem&) {
         face.textAlign = Qt::AlignCenter;
         face.textColor = QColor(255, 214, 64);
         face.textFont.setBold(true);
         face.textFont.setPointSize(12);
     }},
    {"back_key", KAT_LINK_BUTTON, "Back", nullptr},
    {"user_photo_titled", KAT_OPEN_WEBSITE, "Holiday",
     [](KeyRenderInfo& face, KeyItem&) { face.userImg = photoPixmap(); }},
    {"user_photo_left_italic", KAT_OPEN_WEBSITE, "Sunset",
     [](KeyRenderInfo& face, KeyItem&) {
         face.userImg = photoPixmap();
         face.textAlign = Qt::AlignLeft | Qt::AlignVCenter;
         face.textFont.setItalic(true);
     }},
    {"hotkey_pressed", KAT_HOTKEY, "Copy", nullptr, true},
    {"user_image_wide", KAT_FOLDER, "",
     [](KeyRenderInfo& face, KeyItem&) { face.userImg = solidPixmap(Qt::red, 200, 100); }},
    {"title_bottom_right", KAT_OPEN_WEBSITE, "Go",
     [](KeyRenderInfo& face, KeyItem&) { face.textAlign = Qt::AlignBottom | Qt::AlignRight; }},
    {"title_without_alignment", KAT_OPEN_WEBSITE, "Go", [](KeyRenderInfo& face, KeyItem&) { face.textAlign = 0; }},
    {"title_hidden", KAT_MACROKEY, "Hidden", [](KeyRenderInfo& face, KeyItem&) { face.hintFlags = 0; }},
    {"default_image_missing", KAT_MACROKEY, "Alone",
     [](KeyRenderInfo& face, KeyItem&) { face.defImgPath = QStringLiteral("btn_no_such_image"); }},
    {"slot_out_of_range", KAT_MACROKEY, "Slot",
     [](KeyRenderInfo&, KeyItem& item) {
         item.render[1].text = QStringLiteral("Wrong");
         item.cfIdx = 5;
     }},
};

QString renderPath(const QString& file)
{
    return QStringLiteral(KEYSTAGE_RENDER_DIR "/") + file;
}

} // namespace

class KeyFaceRendererTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QDir().mkpath(renderPath(QString())); }

    // First, so the worker threads meet a cold image cache.
    void shouldRenderTheSameFacesOnWorkerThreads()
    {
        std::vector<ItemPtr> items;
        for (const GoldenFace& face : Goldens)
            items.push_back(face.make());
        std::vector<QVector<QImage>> results(3);
        std::vector<std::unique_ptr<QThread>> threads;
        for (QVector<QImage>& mine : results) {
            threads.emplace_back(QThread::create([&items, &mine] {
                for (size_t i = 0; i < items.size(); ++i)
                    mine << Goldens[i].render(items[i].get());
            }));
            threads.back()->start();
        }
        for (auto& thread : threads)
            QVERIFY(thread->wait());
        for (size_t i = 0; i < items.size(); ++i)
            for (const QVector<QImage>& fromWorker : results)
                QVERIFY2(fromWorker.value(int(i)) == Goldens[i].render(items[i].get()), Goldens[i].name);
    }

    void shouldMatchTheGoldenFaces_data()
    {
        QTest::addColumn<int>("index");
        for (size_t i = 0; i < std::size(Goldens); ++i)
            QTest::newRow(Goldens[i].name) << int(i);
    }

    // KEYSTAGE_UPDATE_GOLDEN=1 rewrites the golden files from the renders.
    void shouldMatchTheGoldenFaces()
    {
        QFETCH(int, index);
        const GoldenFace& golden = Goldens[index];
        const QImage face = golden.render(golden.make().get());
        const QString file = QString::fromLatin1(golden.name) + QStringLiteral(".png");
        QVERIFY(face.save(renderPath(file)));
        const QString goldenPath = QStringLiteral(KEYSTAGE_GOLDEN_DIR "/") + file;
        if (qEnvironmentVariable("KEYSTAGE_UPDATE_GOLDEN") == QLatin1String("1")) {
            QVERIFY(face.save(goldenPath));
            return;
        }
        const QImage expected(goldenPath);
        QVERIFY2(!expected.isNull(), qPrintable(goldenPath + QStringLiteral(" is missing")));
        QCOMPARE(expected.size(), face.size());
        const int delta = ImageCompare::largestChannelDelta(face, expected);
        QVERIFY2(delta <= GoldenTolerance, qPrintable(QStringLiteral("%1 differs by %2").arg(file).arg(delta)));
    }

    void shouldRenderEmptyKeysBlack()
    {
        QImage black(Face, Face, QImage::Format_RGBA8888);
        black.fill(Qt::black);
        QCOMPARE(KeyFaceRenderer::render(nullptr), black);
        QCOMPARE(KeyFaceRenderer::renderPressed(nullptr), black);
        for (const int type : {int(KAT_INVALID), int(KAT_NUM), 42}) {
            ItemPtr item = makeItem(KAT_FOLDER, QStringLiteral("ghost"));
            item->actionType = KeyActionType(type);
            QCOMPARE(KeyFaceRenderer::render(item.get()), black);
            QCOMPARE(KeyFaceRenderer::renderPressed(item.get()), black);
        }
    }

    void shouldKeepLongTitlesInsideTheFace_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("pointSize");
        QTest::newRow("long word") << "Supercalifragilisticexpialidocious" << 9;
        QTest::newRow("sentence") << "Open the quarterly report in the spreadsheet" << 9;
        QTest::newRow("line breaks") << "one\ntwo\nthree\nfour" << 9;
        QTest::newRow("large font") << "Screenshot region" << 18;
        QTest::newRow("largest font") << "Record" << 40;
    }

    void shouldKeepLongTitlesInsideTheFace()
    {
        QFETCH(QString, text);
        QFETCH(int, pointSize);
        KeyRenderInfo face;
        face.text = text;
        face.textFont.setPointSize(pointSize);
        face.textColor = Green;
        face.userImg = solidPixmap(Red);
        const QImage rendered = KeyFaceRenderer::render(face);
        // A line running past its band would be cut at the face's edge.
        QVERIFY(QRect(2, 2, Face - 4, Face - 3).contains(boundsOf(rendered, near(Green, 60))));
        QVERIFY(boundsOf(rendered, near(Red, 24)).height() >= 24);
        const FaceTitle layout(text, face.textFont, 66, 2);
        QVERIFY(layout.lines().size() <= 2);
        QVERIFY(layout.width() <= 66);
    }

    void shouldBreakTitlesIntoLines_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("maxLines");
        QTest::addColumn<QStringList>("lines");
        const QString sentence = QStringLiteral("Open the quarterly report in the spreadsheet");
        QTest::newRow("after a plus") << "Ctrl+Shift+Esc" << 2 << QStringList({"Ctrl+Shift+", "Esc"});
        QTest::newRow("in a long word") << "Supercalifragilistic" << 2 << QStringList({"Supercalifra", "gilistic"});
        QTest::newRow("typed breaks") << "one\ntwo" << 2 << QStringList({"one", "two"});
        QTest::newRow("blanks around") << "  padded \n" << 2 << QStringList({"padded"});
        QTest::newRow("blank") << " \n " << 2 << QStringList();
        QTest::newRow("cut after two lines") << sentence << 2 << QStringList({"Open the", "quarterly r…"});
    }

    void shouldBreakTitlesIntoLines()
    {
        QFETCH(QString, text);
        QFETCH(int, maxLines);
        QFETCH(QStringList, lines);
        QCOMPARE(FaceTitle(text, KeyRenderInfo::defaultFont(), 66, maxLines).lines(), lines);
    }

    // Japanese and Chinese titles fall back from the bundled Latin face to a
    // CJK font of the system. Missing glyphs would all draw as the same box,
    // so the two orders of the same characters would render alike.
    void shouldDrawJapaneseAndChineseTitles_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("reversed");
        QTest::newRow("ja") << QStringLiteral("設定を開く") << QStringLiteral("く開を定設");
        QTest::newRow("zh-TW") << QStringLiteral("資料夾") << QStringLiteral("夾料資");
    }

    void shouldDrawJapaneseAndChineseTitles()
    {
        QFETCH(QString, text);
        QFETCH(QString, reversed);
        KeyRenderInfo face;
        face.textColor = Green;
        face.text = text;
        const QImage forward = KeyFaceRenderer::render(face);
        face.text = reversed;
        const QImage backward = KeyFaceRenderer::render(face);
        QVERIFY(boundsOf(forward, near(Green, 60)).width() >= 20);
        QVERIFY(ImageCompare::meanDifference(forward, backward) > 0);
    }

    void shouldDrawArialWithTheBundledFont()
    {
        QVERIFY(BundledFonts::ensureLoaded());
        QVERIFY(QFile::exists(QStringLiteral(":/fonts/OFL.txt")));
        const QFont arial = KeyRenderInfo::defaultFont();
        QCOMPARE(arial.family(), QStringLiteral("Arial"));
        QCOMPARE(QFontInfo(FaceTitle::faceFont(arial)).family(), QStringLiteral("Liberation Sans"));
        QVERIFY(QFontInfo(FaceTitle::faceFont(QFont("Arial", 9, QFont::Bold))).bold());
        QCOMPARE(FaceTitle::faceFont(QFont(QStringLiteral("No Such Family 7f3a"))).family(),
                 QStringLiteral("Liberation Sans"));
        // Point sizes beyond what the face can show are clamped; pixel sizes are kept.
        QCOMPARE(FaceTitle::faceFont(QFont("Arial", 2)).pixelSize(), FaceTitle::MinPixelSize);
        QCOMPARE(FaceTitle::faceFont(QFont("Arial", 72)).pixelSize(), FaceTitle::MaxPixelSize);
        QFont pixelFont(arial);
        pixelFont.setPixelSize(14);
        QCOMPARE(FaceTitle::faceFont(pixelFont).pixelSize(), 14);
    }

    void shouldLookPushedInWhenPressed()
    {
        ItemPtr item = makeItem(KAT_FOLDER);
        item->render[0].userImg = solidPixmap(QColor(250, 100, 50));
        const QImage pressed = KeyFaceRenderer::renderPressed(item.get());
        QCOMPARE(pressed.size(), QSize(Face, Face));
        QVERIFY2(QRect(7, 7, 58, 58).contains(boundsOf(pressed, isLit)), "the pressed face is not smaller");
        const int centre = qRed(pressed.pixel(Face / 2, Face / 2));
        QVERIFY(centre < 250 && centre > 150);
    }
};

KEYSTAGE_TEST_MAIN(KeyFaceRendererTest)
#include "tst_keyfacerenderer.moc"
