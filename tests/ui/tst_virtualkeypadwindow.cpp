#include "keyeventrecorder.h"
#include "keypadfixture.h"
#include "keypadtable.h"
#include "testmain.h"
#include "virtualkeypadwindow.h"

#include <QLabel>
#include <QPainter>

namespace {
// Blue with the button in its red channel and a white bar along the left
// half of the top edge, so place and orientation (mirrors too) can be read back.
QImage markedImage(int button)
{
    QImage image(72, 72, QImage::Format_RGBA8888);
    image.fill(QColor(7 * button, 40, 160));
    QPainter(&image).fillRect(0, 0, 36, 12, Qt::white);
    return image;
}

bool showsMarkUpright(const QImage& image)
{
    const auto white = [&image](double x, double y) {
        return qGreen(image.pixel(int(x * image.width()), int(y * image.height()))) > 200;
    };
    return white(0.05, 0.05) && white(0.4, 0.05) && !white(0.05, 0.4) && !white(0.95, 0.05) && !white(0.05, 0.95);
}

// "press 5" -> "press <the button the program acts on for id 5>".
QStringList asButtons(const QStringList& keyEvents, int layout)
{
    QStringList buttons;
    for (const QString& event : keyEvents) {
        const QStringList parts = event.split(QLatin1Char(' '));
        buttons << parts[0] + QLatin1Char(' ') + QString::number(KeypadTable::buttonIndex(layout, parts[1].toInt()));
    }
    return buttons;
}
} // namespace

class VirtualKeypadWindowTest : public QObject
{
    Q_OBJECT

private:
    KeypadFixture fixture;
    std::unique_ptr<VirtualKeypadWindow> window;

    // The window follows the layout change that comes after it.
    void openLayout(int layout)
    {
        window = std::make_unique<VirtualKeypadWindow>(fixture.keypad.get(), fixture.layouts.get());
        fixture.useLayout(layout);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QTRY_VERIFY(fixture.hid->isOpened());
    }

    static void addLayouts()
    {
        QTest::addColumn<int>("layout");
        for (int layout = H_Key_6; layout <= V_Key_32; ++layout)
            QTest::newRow(qPrintable(ButtonLayoutConfig::layoutName(layout))) << layout;
    }

private slots:
    void init() { fixture.setUp(); }

    void cleanup()
    {
        window.reset();
        fixture.tearDown();
    }

    void shouldShowWhatTheProgramSendsUprightInItsPlace_data() { addLayouts(); }

    void shouldShowWhatTheProgramSendsUprightInItsPlace()
    {
        QFETCH(int, layout);
        openLayout(layout);
        QCOMPARE(window->keyCount(), ButtonLayoutConfig::keyCount(layout));
        QCOMPARE(window->minimumSize(), window->maximumSize()); // fixed for the layout
        for (int button = 0; button < window->keyCount(); ++button)
            QVERIFY(fixture.hid->sendIcon(Hid_Comm::deviceKeyNumber(layout, button), markedImage(button), false));
        // Changes arrive in the order they were made.
        QLabel* last = window->key(window->keyCount() - 1);
        QTRY_VERIFY(showsMarkUpright(last->pixmap(Qt::ReturnByValue).toImage()));

        const int edge = ButtonLayoutConfig::iconSize(layout).width();
        const QSize pitch =
            window->key(0)->size() + QSize(VirtualKeypadWindow::KeySpacing, VirtualKeypadWindow::KeySpacing);
        const int columns = VirtualKeypadWindow::gridShape(layout).width();
        const QPoint origin = window->key(0)->mapTo(window.get(), QPoint());
        for (int button = 0; button < window->keyCount(); ++button) {
            QLabel* key = window->key(button);
            const QImage shown = key->pixmap(Qt::ReturnByValue).toImage();
            QVERIFY2(showsMarkUpright(shown), qPrintable(QString::number(button)));
            QVERIFY2(qAbs(qRed(shown.pixel(edge / 2, edge / 2)) - 7 * button) <= 2,
                     qPrintable(QString::number(button)));
            const QPoint offset = key->mapTo(window.get(), QPoint()) - origin;
            QCOMPARE(offset, QPoint(button % columns * pitch.width(), button / columns * pitch.height()));
        }
    }

    void shouldPressTheKeyTheProgramMapsToTheClickedButton_data() { addLayouts(); }

    void shouldPressTheKeyTheProgramMapsToTheClickedButton()
    {
        QFETCH(int, layout);
        openLayout(layout);
        KeyEventRecorder recorder(fixture.hid.get());
        auto* body = window->findChild<QWidget*>(QStringLiteral("VirtualKeypadBody"));
        QStringList expected;
        for (int button = 0; button < window->keyCount(); ++button) {
            QLabel* key = window->key(button);
            QTest::mousePress(key, Qt::LeftButton);
            if (VirtualKeypadWindow::deviceKeyId(layout, button) < 0) {
                // No key id of this model reaches its last button.
                QVERIFY(layout == V_Key_32 && button == 31);
                QCOMPARE(key->property("pressed").toString(), QStringLiteral("false"));
                continue;
            }
            QCOMPARE(key->property("pressed").toString(), QStringLiteral("true"));
            // Let go on the key or beside it.
            QTest::mouseRelease(button % 2 ? body : key, Qt::LeftButton);
            QCOMPARE(key->property("pressed").toString(), QStringLiteral("false"));
            expected << QStringLiteral("press %1").arg(button) << QStringLiteral("release %1").arg(button);
            // One key at a time, as fingers do; the keypad's report queue is short.
            QTRY_COMPARE(asButtons(recorder.keyEvents(), layout), expected);
        }
    }
};

KEYSTAGE_TEST_MAIN(VirtualKeypadWindowTest)
#include "tst_virtualkeypadwindow.moc"
