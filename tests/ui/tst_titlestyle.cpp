#include "imagecompare.h"
#include "keybuttonimage.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keyitemeditor.h"
#include "keymodelfixture.h"
#include "testmain.h"
#include "titlestyle.h"
#include "titlestyledialog.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFontComboBox>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int Key = 3;
// The golden faces were drawn by this program; another build draws them
// again up to antialiasing.
constexpr int GoldenTolerance = 12;

QString goldenPath(const QString& name)
{
    return QStringLiteral(KEYSTAGE_GOLDEN_DIR "/") + name + QStringLiteral(".png");
}

} // namespace

class TitleStyleTest : public QObject, KeyModelFixture
{
    Q_OBJECT

    KeyItem* item() const { return model->keyItemAt(Key); }
    QSize gridIconSize() const { return ButtonLayoutConfig::iconSize(model->currentLayout()); }

private slots:
    void init()
    {
        setUp();
        model->changeLayoutButtonView(V_Key_15);
        model->deleteKeyItem(Key);
        put(Key, KAT_OPEN_WEBSITE);
        item()->setTitle(0, QStringLiteral("Mail"));
    }

    void cleanup() { tearDown(); }

    void shouldDrawTheDialogsChoicesOnTheKey_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<QColor>("color");
        QTest::addColumn<int>("points");
        QTest::addColumn<QString>("looks");
        QTest::addColumn<QString>("family");
        QTest::newRow("title_bottom_left_red_bold")
            << int(TitleStyle::Bottom) << int(TitleStyle::Left) << QColor(230, 40, 40) << 12 << "bold"
            << "";
        QTest::newRow("title_top_right_yellow_italic_large")
            << int(TitleStyle::Top) << int(TitleStyle::Right) << QColor(255, 214, 64) << 16 << "italic"
            << "";
        QTest::newRow("title_middle_translucent_green_underlined_small")
            << int(TitleStyle::Middle) << int(TitleStyle::Centre) << QColor(80, 220, 120, 128) << 7 << "underline"
            << "";
        QTest::newRow("title_top_left_serif")
            << int(TitleStyle::Top) << int(TitleStyle::Left) << QColor(Qt::white) << 10 << ""
            << "DejaVu Serif";
    }

    // As a user picks them in the dialog; the face on the key is the preview
    // and the golden file.
    void shouldDrawTheDialogsChoicesOnTheKey()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(QColor, color);
        QFETCH(int, points);
        QFETCH(QString, looks);
        QFETCH(QString, family);
        const QImage before = KeyFaceRenderer::render(item());
        TitleStyleDialog dialog(item()->render[0], gridIconSize());
        dialog.positionButton(row, column)->click();
        dialog.sizeBox()->setCurrentIndex(dialog.sizeBox()->findData(points));
        dialog.boldBox()->setChecked(looks == "bold");
        dialog.italicBox()->setChecked(looks == "italic");
        dialog.underlineBox()->setChecked(looks == "underline");
        dialog.setColor(color);
        if (!family.isEmpty())
            dialog.familyBox()->setCurrentFont(QFont(family));

        KeyItemEditor editor(model.get(), Key);
        QVERIFY(editor.setTitleStyle(0, dialog.style()));
        const KeyRenderInfo& face = item()->render[0];
        QCOMPARE(face.textAlign, TitleStyle::alignment(row, column));
        QCOMPARE(face.textColor, color);
        QCOMPARE(face.textFont.pointSize(), points);
        QCOMPARE(face.textFont.bold(), looks == "bold");
        QCOMPARE(face.textFont.italic(), looks == "italic");
        QCOMPARE(face.textFont.underline(), looks == "underline");
        QCOMPARE(face.textFont.family(), family.isEmpty() ? QStringLiteral("Arial") : family);
        QCOMPARE(face.text, QStringLiteral("Mail"));

        const QImage rendered = KeyFaceRenderer::render(item());
        QCOMPARE(rendered, dialog.previewFace());
        QVERIFY(ImageCompare::meanDifference(rendered, before) > 0.5);
        const QPixmap grid = dialog.gridPreview()->pixmap(Qt::ReturnByValue);
        QCOMPARE(grid.size(), gridIconSize());
        QCOMPARE(grid.toImage(), KeyButtonImage::compose(QPixmap::fromImage(rendered), gridIconSize()).toImage());

        const QString name = QString::fromLatin1(QTest::currentDataTag());
        QVERIFY(rendered.save(ImageCompare::renderDirectory() + QLatin1Char('/') + name + QStringLiteral(".png")));
        if (qEnvironmentVariable("KEYSTAGE_UPDATE_GOLDEN") == QLatin1String("1")) {
            QVERIFY(rendered.save(goldenPath(name)));
            return;
        }
        const QImage golden(goldenPath(name));
        QVERIFY2(!golden.isNull(), qPrintable(goldenPath(name) + QStringLiteral(" is missing")));
        const int delta = ImageCompare::largestChannelDelta(rendered, golden);
        QVERIFY2(delta <= GoldenTolerance, qPrintable(QStringLiteral("%1 differs by %2").arg(name).arg(delta)));
    }

    void shouldResetTheStyleAndKeepTheTitle()
    {
        TitleStyle styled = TitleStyle::of(item()->render[0]);
        styled.setPosition(TitleStyle::Top, TitleStyle::Right);
        styled.color = Qt::red;
        styled.setPointSize(15);
        styled.font.setItalic(true);
        KeyItemEditor editor(model.get(), Key);
        QVERIFY(editor.setTitleStyle(0, styled));

        TitleStyleDialog dialog(item()->render[0], gridIconSize());
        QVERIFY(dialog.positionButton(TitleStyle::Top, TitleStyle::Right)->isChecked());
        QCOMPARE(dialog.sizeBox()->currentData().toInt(), 15);
        QTest::mouseClick(dialog.resetButton(), Qt::LeftButton);
        QVERIFY(dialog.positionButton(TitleStyle::Bottom, TitleStyle::Centre)->isChecked());
        QVERIFY(!dialog.italicBox()->isChecked());
        QVERIFY(editor.setTitleStyle(0, dialog.style()));
        const KeyRenderInfo& face = item()->render[0];
        const KeyRenderInfo fresh;
        QCOMPARE(face.textAlign, 0x44);
        QCOMPARE(face.textFont, fresh.textFont);
        QCOMPARE(face.textColor, QColor(255, 255, 255, 255));
        QCOMPARE(face.text, QStringLiteral("Mail"));
    }

    // OK without a change is no edit: the stored "Arial" is not replaced by
    // the font it is drawn with.
    void shouldChangeNothingWhenNothingWasPicked()
    {
        TitleStyleDialog dialog(item()->render[0], gridIconSize());
        dialog.boldBox()->setChecked(true);
        dialog.boldBox()->setChecked(false);
        dialog.familyBox()->setCurrentFont(QFont(dialog.style().shownFamily()));
        KeyItemEditor editor(model.get(), Key);
        QVERIFY(!editor.setTitleStyle(0, dialog.style()));
        QCOMPARE(item()->render[0].textFont.family(), QStringLiteral("Arial"));
    }

    void shouldMoveTheTitleWithTheArrowKeys()
    {
        TitleStyleDialog dialog(item()->render[0], gridIconSize());
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QAbstractButton* start = dialog.positionButton(TitleStyle::Bottom, TitleStyle::Centre);
        start->setFocus();
        QTest::keyClick(start, Qt::Key_Up);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
        QCOMPARE(QApplication::focusWidget(), dialog.positionButton(TitleStyle::Middle, TitleStyle::Left));
        QCOMPARE(dialog.style().align, int(Qt::AlignVCenter | Qt::AlignLeft));
        QCOMPARE(QApplication::focusWidget()->accessibleName(), QStringLiteral("Middle left"));
    }
};

KEYSTAGE_TEST_MAIN(TitleStyleTest)
#include "tst_titlestyle.moc"
