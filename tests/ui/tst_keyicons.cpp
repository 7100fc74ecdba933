#include "choosersearchfield.h"
#include "emojicatalog.h"
#include "emojinames.h"
#include "faceeditor.h"
#include "formarea.h"
#include "formdialogs.h"
#include "hotkeyform.h"
#include "iconcatalog.h"
#include "iconchooser.h"
#include "icongridpage.h"
#include "iconlistmodel.h"
#include "iconthemeindex.h"
#include "imagecompare.h"
#include "keyiconimage.h"
#include "keyitem.h"
#include "keyitemeditor.h"
#include "keyitemgridview.h"
#include "keymodelfixture.h"
#include "logcapture.h"
#include "testmain.h"
#include "titlestyle.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QImageWriter>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUrl>

namespace {

constexpr int Key = 3;
const QSize KeySize(KeyIconImage::Size, KeyIconImage::Size);

QString dataFile(const QString& name)
{
    return QStringLiteral(KEYSTAGE_TEST_DATA "/") + name;
}

QImage centred(const QColor& color, const QSize& size)
{
    QImage image(60, 60, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    image.setPixelColor(0, 0, Qt::blue); // a corner that must not be cut
    for (int y = 30 - size.height() / 2; y < 30 + size.height() / 2; ++y)
        for (int x = 30 - size.width() / 2; x < 30 + size.width() / 2; ++x)
            image.setPixelColor(x, y, color);
    return image;
}

bool near(const QColor& a, const QColor& b)
{
    return qAbs(a.red() - b.red()) < 40 && qAbs(a.green() - b.green()) < 40 && qAbs(a.blue() - b.blue()) < 40;
}

// Saturated pixels: the colour emoji font drew in colour.
int colourfulPixels(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            count += c.alpha() > 200 && c.hsvSaturation() > 120 && c.value() > 120;
        }
    return count;
}

QImage comparable(const QImage& image)
{
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

class KeyIconsTest : public QObject, KeyModelFixture
{
    Q_OBJECT

    QTemporaryDir files;

    KeyItem* item(int idx = Key) const { return model->keyItemAt(idx); }

    QString file(const QString& name) const { return files.filePath(name); }

    void answerFileDialogWith(const QString& path)
    {
        FormDialogs::Runner runner;
        runner.chooseFile = [path](QWidget*, FormDialogs::FileKind kind) {
            return kind == FormDialogs::FileKind::Image ? path : QString();
        };
        FormDialogs::setRunner(runner);
    }

    // The icon a user picks in the chooser from a source, by the keyboard
    // where the source has a grid.
    void pickIcon(IconChooser::Source source, const QString& what, QImage* picked)
    {
        IconCatalog catalog(dataFile(QStringLiteral("emoji-test-sample.txt")));
        IconChooser chooser(item()->render[0], nullptr, &catalog);
        chooser.setSource(source);
        chooser.show();
        if (source == IconChooser::File) {
            answerFileDialogWith(what);
            chooser.fileButton()->setFocus();
            QTest::keyClick(chooser.fileButton(), Qt::Key_Space);
            QTest::mouseClick(chooser.okButton(), Qt::LeftButton);
        } else {
            IconGridPage* page = chooser.page(source);
            QTRY_VERIFY_WITH_TIMEOUT(page->shownCount() > 1, 30000);
            QTest::keyClicks(page->searchField(), what);
            QCOMPARE(page->shownCount(), 1);
            QTest::keyClick(page->searchField(), Qt::Key_Return);
        }
        QCOMPARE(chooser.result(), int(QDialog::Accepted));
        *picked = chooser.chosenImage();
    }

private slots:
    void initTestCase()
    {
        QIcon::setThemeSearchPaths({dataFile(QStringLiteral("icons"))});
        QIcon::setThemeName(QStringLiteral("KeystageTest"));
        QVERIFY(centred(Qt::red, QSize(40, 20)).save(file(QStringLiteral("wide.png"))));
        QVERIFY(centred(Qt::red, QSize(60, 60)).save(file(QStringLiteral("photo.jpg"))));
        if (QImageWriter::supportedImageFormats().contains("webp"))
            QVERIFY(centred(Qt::red, QSize(40, 20)).save(file(QStringLiteral("wide.webp"))));
        QFile notes(file(QStringLiteral("notes.txt")));
        QVERIFY(notes.open(QIODevice::WriteOnly) && notes.write("not an image") > 0);
        QFile fake(file(QStringLiteral("fake.png")));
        QVERIFY(fake.open(QIODevice::WriteOnly) && fake.write("not a png either") > 0);
    }

    void init()
    {
        setUp();
        model->changeLayoutButtonView(V_Key_15);
        for (int idx : {Key, Key + 1, Key + 2})
            model->deleteKeyItem(idx);
        put(Key, KAT_OPEN_WEBSITE);
    }

    void cleanup()
    {
        FormDialogs::setRunner({});
        tearDown();
    }

    // Emoji names in the user's language from CLDR annotations; what they
    // do not name keeps its English name, and English keeps every name.
    void shouldNameEmojiInTheUsersLanguage_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("Japanese") << QStringLiteral("ja")
                                  << QStringList({"にっこり笑う", "笑顔", "scientist", "親指を立てる: 薄い肌色"});
        QTest::newRow("English") << QStringLiteral("en")
                                 << QStringList({"grinning face", "smiling face", "scientist", "thumbs up: light"});
        QTest::newRow("no annotations") << QStringLiteral("it")
                                        << QStringList(
                                               {"grinning face", "smiling face", "scientist", "thumbs up: light"});
    }

    void shouldNameEmojiInTheUsersLanguage()
    {
        QFETCH(QString, locale);
        QFETCH(QStringList, names);
        QTemporaryDir cldr;
        auto write = [&cldr](const QString& file, const QByteArray& annotations) {
            QDir().mkpath(QFileInfo(cldr.filePath(file)).absolutePath());
            QFile out(cldr.filePath(file));
            QVERIFY(out.open(QIODevice::WriteOnly));
            out.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?><ldml><annotations>" + annotations +
                      "</annotations></ldml>");
        };
        // The smiling face is named without its presentation selector, as
        // the annotations do; the skin tone comes from the derived file.
        write(QStringLiteral("annotations/ja.xml"), u8"<annotation cp=\"😀\">笑顔 | 顔</annotation>"
                                                    u8"<annotation cp=\"😀\" type=\"tts\">にっこり笑う</annotation>"
                                                    u8"<annotation cp=\"☺\" type=\"tts\">笑顔</annotation>");
        write(QStringLiteral("annotationsDerived/ja.xml"),
              u8"<annotation cp=\"👍🏻\" type=\"tts\">親指を立てる: 薄い肌色</annotation>");
        EmojiList entries;
        for (const char* const emoji : {u8"😀", u8"☺️", u8"🧑‍🔬", u8"👍🏻"})
            entries << EmojiEntry{QString::fromUtf8(emoji), QString(), QString(), QString()};
        const QStringList english = {"grinning face", "smiling face", "scientist", "thumbs up: light"};
        for (int i = 0; i < entries.size(); ++i)
            entries[i].name = english.at(i);
        EmojiNames::translate(&entries, cldr.path(), locale);
        QStringList named;
        for (const EmojiEntry& entry : qAsConst(entries))
            named << entry.name;
        QCOMPARE(named, names);
    }

    void shouldReadFullyQualifiedEmojiAndCountWhatIsMalformed()
    {
        LogCapture capture;
        const EmojiCatalog::Result result = EmojiCatalog::load(dataFile(QStringLiteral("emoji-test-sample.txt")));
        QStringList names;
        for (const EmojiEntry& entry : result.entries)
            names << entry.name;
        QCOMPARE(names, QStringList({"grinning face", "smiling face", "scientist", "thumbs up", "desktop computer"}));
        const uint scientist[] = {0x1F9D1, 0x200D, 0x1F52C};
        QCOMPARE(result.entries.at(2).emoji, QString::fromUcs4(scientist, 3));
        QCOMPARE(result.entries.at(1).emoji, QStringLiteral("\u263A\uFE0F"));
        QCOMPARE(result.entries.at(2).group, QStringLiteral("People & Body"));
        QCOMPARE(result.entries.at(4).subgroup, QStringLiteral("computer"));
        QCOMPARE(result.malformedLines, 5);
        QVERIFY(result.error.isEmpty());
        QCOMPARE(capture.matching(QStringLiteral("5 unreadable lines in the emoji list")).size(), 1);
    }

    void shouldTellWhyNoEmojiCanBeShown_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("logged");
        QTest::newRow("missing") << QString() << "Install the package unicode-data"
                                 << "cannot open the emoji list";
        QTest::newRow("no emoji") << "# group: Objects\n263A ; unqualified # x E0.6 smile\n"
                                  << "holds no emoji"
                                  << "no emoji in the list";
    }

    void shouldTellWhyNoEmojiCanBeShown()
    {
        QFETCH(QString, content);
        QFETCH(QString, message);
        QFETCH(QString, logged);
        const QString path = file(QStringLiteral("emoji-%1.txt").arg(QTest::currentDataTag()));
        if (!content.isNull()) {
            QFile data(path);
            QVERIFY(data.open(QIODevice::WriteOnly) && data.write(content.toUtf8()) > 0);
        }
        LogCapture capture;
        IconCatalog catalog(path);
        IconChooser chooser(item()->render[0], nullptr, &catalog);
        chooser.setSource(IconChooser::Emoji);
        QTRY_VERIFY_WITH_TIMEOUT(catalog.hasResult(IconCatalog::Emoji), 30000);
        QVERIFY2(chooser.page(IconChooser::Emoji)->statusLabel()->text().contains(message),
                 qPrintable(chooser.page(IconChooser::Emoji)->statusLabel()->text()));
        QVERIFY(!chooser.okButton()->isEnabled());
        QCOMPARE(capture.matching(logged).size(), 1);
    }

    void shouldListTheIconsOfTheThemeAndTheThemesItInherits()
    {
        const QStringList paths{dataFile(QStringLiteral("icons"))};
        QCOMPARE(IconThemeIndex::iconNames(QStringLiteral("KeystageTest"), paths),
                 QStringList({"base-mark-symbolic", "keystage-rocket", "tiny-arrow"}));
        QCOMPARE(IconThemeIndex::iconNames(QStringLiteral("KeystageBase"), paths), QStringList{"base-mark-symbolic"});
        QCOMPARE(IconThemeIndex::iconNames(QStringLiteral("NoSuchTheme"), paths), QStringList());
        QCOMPARE(IconThemeIndex::iconNames(QStringLiteral("../icons"), paths), QStringList());
    }

    void shouldFallBackToTheProgramsThemeOnlyWhenTheDesktopHasNone_data()
    {
        QTest::addColumn<QString>("desktop");
        QTest::addColumn<QString>("used");
        // clang-format off
        QTest::newRow("none")          << ""             << "Adwaita";
        QTest::newRow("bare hicolor")  << "hicolor"      << "Adwaita";
        QTest::newRow("not installed") << "NoSuchTheme"  << "Adwaita";
        QTest::newRow("installed")     << "KeystageTest" << "KeystageTest";
        // clang-format on
    }

    void shouldFallBackToTheProgramsThemeOnlyWhenTheDesktopHasNone()
    {
        QFETCH(QString, desktop);
        QFETCH(QString, used);
        QIcon::setThemeName(desktop);
        IconThemeIndex::applyFallbackTheme();
        QCOMPARE(QIcon::themeName(), used);
        QCOMPARE(QIcon::fallbackThemeName(), IconThemeIndex::fallbackTheme());
        QIcon::setThemeName(QStringLiteral("KeystageTest"));
    }

    // Tiles are drawn after the view asked, between events, and only once.
    void shouldDrawTheTilesTheViewAsksForLaterAndOnce()
    {
        int drawn = 0;
        IconListModel model(
            [&drawn](const QString&) {
                ++drawn;
                return centred(Qt::red, QSize(40, 40));
            },
            48);
        QVector<IconListModel::Entry> entries(500);
        model.setEntries(entries);
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        const QImage empty = model.index(0).data(Qt::DecorationRole).value<QPixmap>().toImage();
        for (int row = 1; row < 10; ++row)
            model.index(row).data(Qt::DecorationRole);
        QCOMPARE(drawn, 0);
        QTRY_COMPARE_WITH_TIMEOUT(changed.size(), 10, 30000);
        QVERIFY(!model.hasPendingTiles());
        QVERIFY(model.index(0).data(Qt::DecorationRole).value<QPixmap>().toImage() != empty);
        QCOMPARE(drawn, 10);

        // Asked for, then scrolled away before they were drawn.
        for (int row = 100; row < 110; ++row)
            model.index(row).data(Qt::DecorationRole);
        model.dropPendingTiles();
        QCoreApplication::processEvents();
        QCOMPARE(drawn, 10);
    }

    void shouldPutAnIconFromEverySourceOnTheKey_data()
    {
        QTest::addColumn<int>("source");
        QTest::addColumn<QString>("what");
        QTest::addColumn<QColor>("middle");
        QTest::addColumn<bool>("transparentTop");
        const QColor red(Qt::red);
        QTest::newRow("png") << int(IconChooser::File) << file("wide.png") << red << true;
        QTest::newRow("jpeg") << int(IconChooser::File) << file("photo.jpg") << red << false;
        QTest::newRow("webp") << int(IconChooser::File) << file("wide.webp") << red << true;
        QTest::newRow("svg") << int(IconChooser::File)
                             << dataFile("icons/KeystageTest/scalable/apps/keystage-rocket.svg")
                             << QColor(0x2e, 0xc2, 0x7e) << true;
        QTest::newRow("gif, first frame") << int(IconChooser::File) << dataFile("two-frames.gif") << red << true;
        QTest::newRow("theme icon") << int(IconChooser::Theme) << "rocket" << QColor(0x2e, 0xc2, 0x7e) << true;
        QTest::newRow("symbolic theme icon") << int(IconChooser::Theme) << "base mark" << QColor(Qt::white) << true;
        QTest::newRow("emoji") << int(IconChooser::Emoji) << "grinning" << QColor() << true;
    }

    void shouldPutAnIconFromEverySourceOnTheKey()
    {
        QFETCH(int, source);
        QFETCH(QString, what);
        QFETCH(QColor, middle);
        QFETCH(bool, transparentTop);
        if (what.endsWith(QLatin1String(".webp")) && !QFile::exists(what))
            QSKIP("no WebP image format plugin (qt5-image-formats-plugins)");
        QImage image;
        pickIcon(IconChooser::Source(source), what, &image);
        if (QTest::currentTestFailed())
            return;
        QCOMPARE(image.size(), KeySize);
        image.save(ImageCompare::renderDirectory() + QStringLiteral("/icon_%1.png").arg(QTest::currentDataTag()));
        if (middle.isValid())
            QVERIFY2(near(image.pixelColor(36, 36), middle), qPrintable(image.pixelColor(36, 36).name()));
        else
            QVERIFY(colourfulPixels(image) > 200);
        QCOMPARE(image.pixelColor(36, 0).alpha() == 0, transparentTop);

        KeyItemEditor editor(model.get(), Key);
        QVERIFY(editor.setIcon(0, image));
        QCOMPARE(comparable(item()->render[0].userImg.toImage()), comparable(image));
        QCOMPARE(comparable(item()->render[1].userImg.toImage()), comparable(image));
    }

    void shouldRefuseAFileThatIsNoImage()
    {
        IconCatalog catalog(dataFile(QStringLiteral("emoji-test-sample.txt")));
        IconChooser chooser(item()->render[0], nullptr, &catalog);
        chooser.setSource(IconChooser::File);
        QVERIFY(chooser.useFile(file(QStringLiteral("wide.png"))));
        LogCapture capture;
        QVERIFY(!chooser.useFile(file(QStringLiteral("fake.png"))));
        QVERIFY(chooser.fileStatus()->text().contains(QStringLiteral("cannot be read")));
        QVERIFY(!chooser.okButton()->isEnabled());
        QCOMPARE(capture.matching(QStringLiteral("cannot read the image")).size(), 1);
    }

    void shouldSetTheIconOfTheKeyAnImageFileIsDroppedOn_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("dropped");
        QTest::addColumn<bool>("entered");
        // The slots whose face has the icon afterwards.
        QTest::addColumn<QString>("iconSlots");
        // clang-format off
        QTest::newRow("website")                        << "website"        << "wide.png"  << true  << "01";
        QTest::newRow("hotkey showing its second face") << "toggled hotkey" << "photo.jpg" << true  << "1";
        QTest::newRow("empty key")                      << "empty"          << "wide.png"  << true  << "";
        QTest::newRow("back key")                       << "back"           << "wide.png"  << true  << "";
        QTest::newRow("text file")                      << "website"        << "notes.txt" << false << "";
        QTest::newRow("unreadable image")               << "website"        << "fake.png"  << true  << "";
        // clang-format on
    }

    void shouldSetTheIconOfTheKeyAnImageFileIsDroppedOn()
    {
        QFETCH(QString, target);
        QFETCH(QString, dropped);
        QFETCH(bool, entered);
        QFETCH(QString, iconSlots);
        QWidget window;
        auto* grid = new KeyItemGridView(&window);
        grid->changeLayoutButtonView(V_Key_15);
        int idx = Key;
        if (target == "toggled hotkey") {
            idx = Key + 1;
            put(idx, KAT_HOTKEY)->multiFeatureFlag = true;
            item(idx)->cfIdx = 1;
        } else if (target == "empty") {
            idx = Key + 2;
        } else if (target == "back") {
            put(Key + 2, KAT_FOLDER);
            open(Key + 2);
            idx = ButtonLayoutConfig::keyCount(V_Key_15) - 1;
        }
        const KeyItem* before = item(idx);
        const QPoint at = grid->keyButton(idx)->mapTo(grid, grid->keyButton(idx)->rect().center());
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(file(dropped))});
        QDragEnterEvent enter(at, Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(grid, &enter);
        QCOMPARE(enter.isAccepted(), entered);
        if (!entered)
            return;
        QCOMPARE(enter.dropAction(), Qt::CopyAction);
        QDragMoveEvent move(at, Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(grid, &move);
        QCOMPARE(move.dropAction(), Qt::CopyAction);
        QDropEvent drop(at, Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(grid, &drop);
        QCOMPARE(drop.dropAction(), Qt::CopyAction);
        QCOMPARE(item(idx), before);
        QCOMPARE(grid->dragHoverKeyIdx(), -1);
        for (int slot = 0; before && slot < KeyItem::SlotCount; ++slot)
            QCOMPARE(before->render[slot].userImg.isNull(), !iconSlots.contains(QString::number(slot)));
        if (!iconSlots.isEmpty())
            QCOMPARE(grid->selectedKeyIdx(), idx);
    }

    // The face controls of a form: each hotkey face on its own, other keys
    // with one face for both slots; titles may have line breaks.
    void shouldEditTheFacesFromTheForm()
    {
        const QImage icon = KeyIconImage::fitted(centred(Qt::red, QSize(40, 40)));
        TitleStyle style = TitleStyle::resetStyle();
        style.color = Qt::yellow;
        QStringList opened;
        FormDialogs::Runner runner;
        runner.chooseIcon = [&](QWidget*, const KeyRenderInfo& face, QImage* chosen) {
            opened << QStringLiteral("icon for \"%1\"").arg(face.text);
            *chosen = icon;
            return true;
        };
        runner.chooseTitleStyle = [&](QWidget*, const KeyRenderInfo& face, const QSize& grid, TitleStyle* chosen) {
            opened << QStringLiteral("style for \"%1\" at %2").arg(face.text).arg(grid.width());
            *chosen = style;
            return true;
        };
        FormDialogs::setRunner(runner);
        put(Key + 1, KAT_HOTKEY);
        FormArea area;
        area.show();
        QApplication::setActiveWindow(&area);
        area.showKeyForm(Key + 1);
        auto* hotkey = qobject_cast<HotkeyForm*>(area.keyForm());
        QVERIFY(hotkey);
        hotkey->toggleBox()->setChecked(true);
        FaceEditor* second = hotkey->secondFaceEditor();
        QTest::keyClicks(second->titleField(), QStringLiteral("Mic"));
        QTest::keyClick(second->titleField(), Qt::Key_Return);
        QTest::keyClicks(second->titleField(), QStringLiteral("off"));
        QCOMPARE(item(Key + 1)->render[1].text, QStringLiteral("Mic\noff"));
        QVERIFY(!second->defaultIconButton()->isEnabled());
        second->chooseIconButton()->click();
        second->styleButton()->click();
        const KeyItem* toggled = item(Key + 1);
        QVERIFY(toggled->render[0].userImg.isNull() && !toggled->render[1].userImg.isNull());
        QVERIFY(!style.isIn(toggled->render[0]) && style.isIn(toggled->render[1]));
        QVERIFY(second->defaultIconButton()->isEnabled());
        QVERIFY(hotkey->faceEditor()->iconPreview()->pixmap(Qt::ReturnByValue).toImage() !=
                second->iconPreview()->pixmap(Qt::ReturnByValue).toImage());
        second->defaultIconButton()->click();
        QVERIFY(toggled->render[1].userImg.isNull());
        QVERIFY(!second->defaultIconButton()->isEnabled());
        QCOMPARE(QApplication::focusWidget(), second->chooseIconButton());

        area.showKeyForm(Key);
        FaceEditor* face = area.keyForm()->faceEditor();
        face->chooseIconButton()->click();
        face->styleButton()->click();
        QVERIFY(!item()->render[0].userImg.isNull() && !item()->render[1].userImg.isNull());
        QVERIFY(style.isIn(item()->render[0]) && style.isIn(item()->render[1]));
        const int gridWidth = ButtonLayoutConfig::iconSize(V_Key_15).width();
        QCOMPARE(opened,
                 QStringList({"icon for \"Mic\noff\"", QStringLiteral("style for \"Mic\noff\" at %1").arg(gridWidth),
                              "icon for \"\"", QStringLiteral("style for \"\" at %1").arg(gridWidth)}));
    }
};

KEYSTAGE_TEST_MAIN(KeyIconsTest)
#include "tst_keyicons.moc"
