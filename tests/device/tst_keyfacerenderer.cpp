#include "bundledfonts.h"
#include "facetitle.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keylayout.h"
#include "logcapture.h"
#include "testmain.h"

#include <QDir>
#include <QFile>
#include <QFontInfo>
#include <QPainter>
#include <QPixmap>
#include <QThread>
#include <functional>
#include <memory>

namespace {

constexpr int Face = KeyFaceRenderer::FaceSize;
// Faces are compared with the stored ones per pixel and channel. Rendering
// is deterministic on one machine; the margin absorbs rounding differences
// between the CPU-specific paths of the raster engine.
constexpr int GoldenTolerance = 12;
// A pixel counts as lit when a channel is above this.
constexpr int LitThreshold = 40;

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
    return qRed(pixel) > LitThreshold || qGreen(pixel) > LitThreshold || qBlue(pixel) > LitThreshold;
}

bool isBlack(const QImage& image)
{
    const QImage rgb = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < rgb.height(); ++y)
        for (int x = 0; x < rgb.width(); ++x)
            if (rgb.pixel(x, y) != qRgba(0, 0, 0, 255))
                return false;
    return true;
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

std::function<bool(QRgb)> near(const QColor& colour, int tolerance = 24)
{
    return [colour, tolerance](QRgb pixel) {
        return qAbs(qRed(pixel) - colour.red()) <= tolerance && qAbs(qGreen(pixel) - colour.green()) <= tolerance &&
               qAbs(qBlue(pixel) - colour.blue()) <= tolerance;
    };
}

int largestChannelDelta(const QImage& a, const QImage& b, QPoint* worst)
{
    const QImage left = a.convertToFormat(QImage::Format_RGBA8888);
    const QImage right = b.convertToFormat(QImage::Format_RGBA8888);
    int largest = 0;
    for (int y = 0; y < left.height(); ++y) {
        const uchar* l = left.constScanLine(y);
        const uchar* r = right.constScanLine(y);
        for (int i = 0; i < left.width() * 4; ++i) {
            const int delta = qAbs(int(l[i]) - int(r[i]));
            if (delta > largest) {
                largest = delta;
                *worst = QPoint(i / 4, y);
            }
        }
    }
    return largest;
}

QString goldenDir()
{
    return QStringLiteral(KEYSTAGE_GOLDEN_DIR);
}

QString renderDir()
{
    return QStringLiteral(KEYSTAGE_RENDER_DIR);
}

bool updatingGoldens()
{
    return qEnvironmentVariable("KEYSTAGE_UPDATE_GOLDEN") == QLatin1String("1");
}

// The faces kept as golden files: one of each look a user meets. Items are
// made on the GUI thread (they may hold a QPixmap) and drawn anywhere.
struct GoldenFace
{
    const char* name;
    std::function<ItemPtr()> make;
    bool pressed = false;
};

ItemPtr titled(KeyActionType type, const QString& title, const std::function<void(KeyRenderInfo&)>& style)
{
    ItemPtr item = makeItem(type, title);
    style(item->render[0]);
    return item;
}

QVector<GoldenFace> goldenFaces()
{
    const auto plain = [](KeyActionType type, const char* title) {
        return [type, title] { return makeItem(type, QString::fromUtf8(title)); };
    };
    return {
        {"folder_plain", plain(KAT_FOLDER, "")},
        {"folder_titled", plain(KAT_FOLDER, "Projects")},
        {"hotkey_copy", plain(KAT_HOTKEY, "Copy")},
        {"hotkey_toggled",
         [] {
             ItemPtr item = makeItem(KAT_HOTKEY);
             item->multiFeatureFlag = true;
             item->setTitle(0, QStringLiteral("Mic on"));
             item->setTitle(1, QStringLiteral("Mic off"));
             item->cfIdx = 1;
             return item;
         }},
        {"macro_two_lines", plain(KAT_MACROKEY, "Build and deploy")},
        {"launch_top",
         [] {
             return titled(KAT_EXE_APP_FILE, QStringLiteral("Terminal"),
                           [](KeyRenderInfo& face) { face.textAlign = Qt::AlignTop | Qt::AlignHCenter; });
         }},
        {"website_long", plain(KAT_OPEN_WEBSITE, "www.example.com/a/very/long/path")},
        {"text_centre_yellow",
         [] {
             return titled(KAT_PASTE_STRING, QStringLiteral("Sign"), [](KeyRenderInfo& face) {
                 face.textAlign = Qt::AlignCenter;
                 face.textColor = QColor(255, 214, 64);
                 face.textFont.setBold(true);
                 face.textFont.setPointSize(12);
             });
         }},
        {"back_key", plain(KAT_LINK_BUTTON, "Back")},
        {"user_photo_titled",
         [] {
             return titled(KAT_OPEN_WEBSITE, QStringLiteral("Holiday"),
                           [](KeyRenderInfo& face) { face.userImg = photoPixmap(); });
         }},
        {"user_photo_left_italic",
         [] {
             return titled(KAT_OPEN_WEBSITE, QStringLiteral("Sunset"), [](KeyRenderInfo& face) {
                 face.userImg = photoPixmap();
                 face.textAlign = Qt::AlignLeft | Qt::AlignVCenter;
                 face.textFont.setItalic(true);
             });
         }},
        {"hotkey_pressed", plain(KAT_HOTKEY, "Copy"), true},
    };
}

QImage renderFace(const GoldenFace& golden, const KeyItem* item)
{
    return golden.pressed ? KeyFaceRenderer::renderPressed(item) : KeyFaceRenderer::render(item);
}

QImage renderFace(const GoldenFace& golden)
{
    const ItemPtr item = golden.make();
    return renderFace(golden, item.get());
}

void writeContactSheet(const QVector<QImage>& faces, const QString& path)
{
    constexpr int Scale = 3;
    constexpr int Gap = 12;
    constexpr int Columns = 4;
    const int rows = (faces.size() + Columns - 1) / Columns;
    QImage sheet(Columns * (Face * Scale + Gap) + Gap, rows * (Face * Scale + Gap) + Gap, QImage::Format_RGB32);
    sheet.fill(QColor(48, 52, 60));
    QPainter painter(&sheet);
    for (int i = 0; i < faces.size(); ++i) {
        const QPoint at(Gap + (i % Columns) * (Face * Scale + Gap), Gap + (i / Columns) * (Face * Scale + Gap));
        painter.drawImage(at, faces[i].scaled(Face * Scale, Face * Scale));
    }
    painter.end();
    sheet.save(path);
}

} // namespace

class KeyFaceRendererTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QDir().mkpath(renderDir()); }

    // First, so the worker threads meet a cold image cache.
    void shouldRenderTheSameFacesOnWorkerThreads()
    {
        const QVector<GoldenFace> faces = goldenFaces();
        std::vector<ItemPtr> items;
        for (const GoldenFace& face : faces)
            items.push_back(face.make());
        constexpr int Workers = 3;
        std::vector<QVector<QImage>> results(Workers);
        std::vector<std::unique_ptr<QThread>> threads;
        for (int w = 0; w < Workers; ++w) {
            QVector<QImage>& mine = results[w];
            threads.emplace_back(QThread::create([&faces, &items, &mine] {
                for (int i = 0; i < faces.size(); ++i)
                    mine << renderFace(faces[i], items[i].get());
            }));
            threads.back()->start();
        }
        for (auto& thread : threads)
            QVERIFY(thread->wait());
        for (int i = 0; i < faces.size(); ++i) {
            const QImage onMain = renderFace(faces[i], items[i].get());
            for (const QVector<QImage>& fromWorker : results)
                QVERIFY2(fromWorker.value(i) == onMain, faces[i].name);
        }
    }

    void shouldRenderEmptyKeysBlack_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("nullItem");
        QTest::newRow("null item") << int(KAT_INVALID) << true;
        QTest::newRow("no action") << int(KAT_INVALID) << false;
        QTest::newRow("count of types") << int(KAT_NUM) << false;
        QTest::newRow("out of range") << 42 << false;
    }

    void shouldRenderEmptyKeysBlack()
    {
        QFETCH(int, type);
        QFETCH(bool, nullItem);
        KeyItem item;
        item.actionType = KeyActionType(type);
        item.render[0].defImgPath = QStringLiteral("btn_folder");
        item.render[0].text = QStringLiteral("ghost");
        for (const QImage& face : {KeyFaceRenderer::render(nullItem ? nullptr : &item),
                                   KeyFaceRenderer::renderPressed(nullItem ? nullptr : &item)}) {
            QCOMPARE(face.size(), QSize(Face, Face));
            QCOMPARE(face.format(), QImage::Format_RGBA8888);
            QVERIFY(isBlack(face));
        }
    }

    void shouldLogKeysThatCannotBeDrawn()
    {
        LogCapture capture;
        KeyFaceRenderer::render(nullptr);
        KeyItem unknown;
        unknown.actionType = KAT_NUM;
        KeyFaceRenderer::render(&unknown);
        ItemPtr badSlot = makeItem(KAT_MACROKEY);
        badSlot->cfIdx = 5;
        const QImage face = KeyFaceRenderer::render(badSlot.get());
        QCOMPARE(capture.matching(QStringLiteral("keyItem is nullptr!!")).size(), 1);
        QCOMPARE(capture.matching(QStringLiteral("unknown action type!! -> 7")).size(), 1);
        QCOMPARE(capture.matching(QStringLiteral("cfIdx out of range")).size(), 1);
        badSlot->cfIdx = 0;
        QCOMPARE(face, KeyFaceRenderer::render(badSlot.get()));
    }

    void shouldDrawOnlyTheTitleWhenTheDefaultImageIsMissing()
    {
        LogCapture capture;
        KeyRenderInfo face;
        face.defImgPath = QStringLiteral("btn_no_such_image");
        face.text = QStringLiteral("Alone");
        face.textColor = QColor(0, 255, 0);
        const QImage first = KeyFaceRenderer::render(face);
        const QImage second = KeyFaceRenderer::render(face);
        QCOMPARE(first, second);
        QVERIFY(!boundsOf(first, near(QColor(0, 255, 0), 60)).isNull());
        QVERIFY2(boundsOf(first, isLit).top() >= 48, "something besides the title was drawn");
        QCOMPARE(capture.matching(QStringLiteral("default image not found!! -> :/image/btn_no_such_image.png")).size(),
                 1);
    }

    void shouldDrawTheDefaultImageOfEveryType_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("slot");
        for (int type = KAT_FOLDER; type < KAT_NUM; ++type)
            QTest::addRow("%s", qPrintable(keyActionTypeToString(type))) << type << 0;
        QTest::newRow("KAT_HOTKEY second feature") << int(KAT_HOTKEY) << 1;
    }

    void shouldDrawTheDefaultImageOfEveryType()
    {
        QFETCH(int, type);
        QFETCH(int, slot);
        ItemPtr item = makeItem(KeyActionType(type));
        item->cfIdx = slot;
        const QString name = item->render[slot].defImgPath;
        QVERIFY(!KeyFaceRenderer::defaultImage(name).isNull());
        const QImage face = KeyFaceRenderer::render(item.get());
        QCOMPARE(face.size(), QSize(Face, Face));
        // Without a title the image takes the whole face less its margin.
        const QRect lit = boundsOf(face, isLit);
        QVERIFY2(lit.width() >= 48 || lit.height() >= 48, qPrintable(name));
        QVERIFY(QRect(4, 4, 64, 64).contains(lit));
    }

    void shouldShowTheFaceOfTheCurrentSlot()
    {
        ItemPtr item = makeItem(KAT_HOTKEY);
        item->multiFeatureFlag = true;
        const QImage first = KeyFaceRenderer::render(item.get());
        item->cfIdx = 1;
        const QImage second = KeyFaceRenderer::render(item.get());
        QVERIFY(first != second);
        QCOMPARE(second, KeyFaceRenderer::render(item->render[1]));
    }

    void shouldDrawTheUserImageInsteadOfTheDefault()
    {
        ItemPtr item = makeItem(KAT_FOLDER);
        item->render[0].userImg = solidPixmap(QColor(200, 30, 30));
        const QImage face = KeyFaceRenderer::render(item.get());
        QCOMPARE(boundsOf(face, isLit), QRect(4, 4, 64, 64));
        QCOMPARE(boundsOf(face, near(QColor(200, 30, 30), 2)), QRect(4, 4, 64, 64));
    }

    void shouldKeepTheAspectRatioOfUserImages()
    {
        ItemPtr item = makeItem(KAT_FOLDER);
        item->render[0].userImg = solidPixmap(QColor(30, 200, 30), 200, 100);
        const QRect image = boundsOf(KeyFaceRenderer::render(item.get()), isLit);
        QCOMPARE(image, QRect(4, 20, 64, 32));
    }

    void shouldPutTheImageAboveABottomTitle()
    {
        ItemPtr item = makeItem(KAT_FOLDER, QStringLiteral("Title"));
        item->render[0].userImg = solidPixmap(QColor(200, 30, 30));
        item->render[0].textColor = QColor(0, 255, 0);
        const QImage face = KeyFaceRenderer::render(item.get());
        const QRect image = boundsOf(face, near(QColor(200, 30, 30)));
        const QRect title = boundsOf(face, near(QColor(0, 255, 0), 60));
        QVERIFY(!title.isNull());
        QVERIFY2(image.bottom() < title.top(), "the title covers the image");
        QVERIFY(title.bottom() < Face);
        QCOMPARE(image.width(), image.height());
        QVERIFY(image.height() >= 40);
        QCOMPARE(image.center().x(), Face / 2 - 1); // centred across the face
    }

    void shouldDrawTheTitleInItsColour_data()
    {
        QTest::addColumn<QColor>("colour");
        QTest::newRow("green") << QColor(0, 255, 0);
        QTest::newRow("orange") << QColor(255, 140, 0);
        QTest::newRow("dark blue") << QColor(0, 0, 160);
    }

    void shouldDrawTheTitleInItsColour()
    {
        QFETCH(QColor, colour);
        KeyRenderInfo face;
        face.text = QStringLiteral("Hello");
        face.textColor = colour;
        QVERIFY(!boundsOf(KeyFaceRenderer::render(face), near(colour, 8)).isNull());
    }

    void shouldDrawNoTitleWhenItsHintIsCleared()
    {
        ItemPtr titled = makeItem(KAT_MACROKEY, QStringLiteral("Hidden"));
        titled->render[0].hintFlags = 0;
        ItemPtr untitled = makeItem(KAT_MACROKEY);
        QCOMPARE(KeyFaceRenderer::render(titled.get()), KeyFaceRenderer::render(untitled.get()));
    }

    void shouldPlaceTheTitleByItsAlignment_data()
    {
        QTest::addColumn<int>("align");
        QTest::addColumn<QRect>("region");
        QTest::newRow("bottom centre") << int(Qt::AlignBottom | Qt::AlignHCenter) << QRect(16, 48, 40, 24);
        QTest::newRow("top centre") << int(Qt::AlignTop | Qt::AlignHCenter) << QRect(16, 0, 40, 24);
        QTest::newRow("top left") << int(Qt::AlignTop | Qt::AlignLeft) << QRect(0, 0, 36, 24);
        QTest::newRow("bottom right") << int(Qt::AlignBottom | Qt::AlignRight) << QRect(36, 48, 36, 24);
        QTest::newRow("middle") << int(Qt::AlignCenter) << QRect(16, 24, 40, 24);
        QTest::newRow("no flags: bottom centre") << 0 << QRect(16, 48, 40, 24);
    }

    void shouldPlaceTheTitleByItsAlignment()
    {
        QFETCH(int, align);
        QFETCH(QRect, region);
        KeyRenderInfo face;
        face.text = QStringLiteral("Go");
        face.textAlign = align;
        face.textColor = QColor(0, 255, 0);
        face.defImgPath = QStringLiteral("btn_website");
        const QRect title = boundsOf(KeyFaceRenderer::render(face), near(QColor(0, 255, 0), 60));
        QVERIFY2(region.contains(title), qPrintable(QStringLiteral("title at %1,%2 %3x%4")
                                                        .arg(title.x())
                                                        .arg(title.y())
                                                        .arg(title.width())
                                                        .arg(title.height())));
    }

    void shouldPutTheImageBelowATopTitle()
    {
        KeyRenderInfo face;
        face.text = QStringLiteral("Top");
        face.textAlign = Qt::AlignTop | Qt::AlignHCenter;
        face.textColor = QColor(0, 255, 0);
        face.userImg = solidPixmap(QColor(200, 30, 30));
        const QImage rendered = KeyFaceRenderer::render(face);
        QVERIFY(boundsOf(rendered, near(QColor(0, 255, 0), 60)).bottom() <
                boundsOf(rendered, near(QColor(200, 30, 30))).top());
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
        face.textColor = QColor(0, 255, 0);
        face.userImg = solidPixmap(QColor(200, 30, 30));
        const QImage rendered = KeyFaceRenderer::render(face);
        const QRect title = boundsOf(rendered, near(QColor(0, 255, 0), 60));
        // A line running past its band would be cut at the face's edge.
        QVERIFY(QRect(2, 2, Face - 4, Face - 3).contains(title));
        QVERIFY(boundsOf(rendered, near(QColor(200, 30, 30))).height() >= 24);

        const FaceTitle layout(text, face.textFont, 66, 2);
        QVERIFY(layout.lines().size() <= 2);
        QVERIFY(layout.width() <= 66);
    }

    void shouldBreakTitlesIntoLines_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("short") << "Two words" << QStringList({"Two words"});
        QTest::newRow("at a blank") << "Build and deploy" << QStringList({"Build and", "deploy"});
        QTest::newRow("after a plus") << "Ctrl+Shift+Esc" << QStringList({"Ctrl+Shift+", "Esc"});
        QTest::newRow("after a slash") << "docs/manual" << QStringList({"docs/", "manual"});
        QTest::newRow("in a long word") << "Supercalifragilistic" << QStringList({"Supercalifra", "gilistic"});
        QTest::newRow("typed breaks") << "one\ntwo" << QStringList({"one", "two"});
        QTest::newRow("blanks around") << "  padded \n" << QStringList({"padded"});
        QTest::newRow("empty") << "" << QStringList();
        QTest::newRow("blank") << " \n " << QStringList();
    }

    void shouldBreakTitlesIntoLines()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, lines);
        QCOMPARE(FaceTitle(text, KeyRenderInfo::defaultFont(), 66, 2).lines(), lines);
    }

    void shouldEndCutTitlesWithAnEllipsis()
    {
        const QString text = QStringLiteral("Open the quarterly report in the spreadsheet");
        const FaceTitle two(text, KeyRenderInfo::defaultFont(), 66, 2);
        QCOMPARE(two.lines().size(), 2);
        QCOMPARE(two.lines().first(), QStringLiteral("Open the"));
        QVERIFY(two.lines().last().endsWith(QChar(0x2026)));
        const FaceTitle one(text, KeyRenderInfo::defaultFont(), 66, 1);
        QCOMPARE(one.lines().size(), 1);
        QVERIFY(one.lines().first().startsWith(QStringLiteral("Open")));
        QVERIFY(one.lines().first().endsWith(QChar(0x2026)));
        QVERIFY(one.width() <= 66);
    }

    void shouldMapPointSizesToFacePixels_data()
    {
        QTest::addColumn<QFont>("font");
        QTest::addColumn<int>("pixels");
        QTest::newRow("default 9 pt") << QFont("Arial", 9) << 12;
        QTest::newRow("12 pt") << QFont("Arial", 12) << 16;
        QTest::newRow("tiny, raised") << QFont("Arial", 2) << FaceTitle::MinPixelSize;
        QTest::newRow("huge, lowered") << QFont("Arial", 72) << FaceTitle::MaxPixelSize;
        QFont pixelFont("Arial");
        pixelFont.setPixelSize(14);
        QTest::newRow("pixel size kept") << pixelFont << 14;
    }

    void shouldMapPointSizesToFacePixels()
    {
        QFETCH(QFont, font);
        QFETCH(int, pixels);
        QCOMPARE(FaceTitle::pixelSizeFor(font), pixels);
        QCOMPARE(FaceTitle::faceFont(font).pixelSize(), pixels);
    }

    void shouldDrawArialWithTheBundledFont()
    {
        KeyFaceRenderer::ensureFontsLoaded();
        QVERIFY(BundledFonts::ensureLoaded()); // the faces came from the resources
        QVERIFY(QFile::exists(QStringLiteral(":/fonts/LiberationSans-Regular.ttf")));
        QVERIFY(QFile::exists(QStringLiteral(":/fonts/OFL.txt")));
        QCOMPARE(KeyRenderInfo::defaultFont().family(), QStringLiteral("Arial"));
        QCOMPARE(QFontInfo(KeyRenderInfo::defaultFont()).family(), QStringLiteral("Liberation Sans"));
        QCOMPARE(QFontInfo(FaceTitle::faceFont(KeyRenderInfo::defaultFont())).family(),
                 QStringLiteral("Liberation Sans"));
        QFont bold("Arial", 9, QFont::Bold);
        QVERIFY(QFontInfo(FaceTitle::faceFont(bold)).bold());
        QCOMPARE(FaceTitle::faceFont(QFont(QStringLiteral("No Such Family 7f3a"))).family(),
                 QStringLiteral("Liberation Sans"));
    }

    void shouldLookPushedInWhenPressed()
    {
        ItemPtr item = makeItem(KAT_FOLDER);
        item->render[0].userImg = solidPixmap(QColor(250, 100, 50));
        const QImage pressed = KeyFaceRenderer::renderPressed(item.get());
        QCOMPARE(pressed.size(), QSize(Face, Face));
        QCOMPARE(pressed.format(), QImage::Format_RGBA8888);
        const QRect lit = boundsOf(pressed, isLit);
        QVERIFY2(QRect(7, 7, 58, 58).contains(lit), "the pressed face is not smaller");
        const QRgb centre = pressed.pixel(Face / 2, Face / 2);
        QVERIFY(qRed(centre) < 250 && qRed(centre) > 150);
        QVERIFY(pressed != KeyFaceRenderer::render(item.get()));
    }

    void shouldMatchTheGoldenFaces_data()
    {
        QTest::addColumn<int>("index");
        const QVector<GoldenFace> faces = goldenFaces();
        for (int i = 0; i < faces.size(); ++i)
            QTest::newRow(faces[i].name) << i;
    }

    void shouldMatchTheGoldenFaces()
    {
        QFETCH(int, index);
        const GoldenFace golden = goldenFaces().at(index);
        const QImage face = renderFace(golden);
        const QString file = QString::fromLatin1(golden.name) + QStringLiteral(".png");
        QVERIFY(face.save(renderDir() + QLatin1Char('/') + file));
        const QString goldenPath = goldenDir() + QLatin1Char('/') + file;
        if (updatingGoldens()) {
            QVERIFY(face.save(goldenPath));
            return;
        }
        const QImage expected(goldenPath);
        QVERIFY2(!expected.isNull(), qPrintable(QStringLiteral("no golden file %1; run with "
                                                               "KEYSTAGE_UPDATE_GOLDEN=1 to write it")
                                                    .arg(goldenPath)));
        QCOMPARE(expected.size(), face.size());
        QPoint worst;
        const int delta = largestChannelDelta(face, expected, &worst);
        QVERIFY2(delta <= GoldenTolerance, qPrintable(QStringLiteral("%1 differs by %2 at %3,%4; see %5")
                                                          .arg(file)
                                                          .arg(delta)
                                                          .arg(worst.x())
                                                          .arg(worst.y())
                                                          .arg(renderDir())));
    }

    void cleanupTestCase()
    {
        QVector<QImage> faces;
        for (const GoldenFace& golden : goldenFaces())
            faces << renderFace(golden);
        writeContactSheet(faces, renderDir() + QStringLiteral("/contact_sheet.png"));
    }
};

KEYSTAGE_TEST_MAIN(KeyFaceRendererTest)
#include "tst_keyfacerenderer.moc"
