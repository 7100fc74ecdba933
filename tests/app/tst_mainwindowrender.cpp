#include "buttonlayoutconfig.h"
#include "imagecompare.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keyitemgridview.h"
#include "keyitemmodel.h"
#include "mainwindow.h"
#include "simulatedkeypad.h"
#include "startup.h"
#include "testmain.h"
#include "virtualkeypad.h"
#include "virtualkeypadwindow.h"

#include <QLabel>
#include <QSet>
#include <QSettings>

namespace {

// A blank or half-painted window has a handful of flat colours; the editor
// and the keypad show dozens of icon and text shades.
int distinctColours(const QImage& image)
{
    const QImage small = image.scaled(image.size() / 2).convertToFormat(QImage::Format_RGB32);
    QSet<QRgb> colours;
    for (int y = 0; y < small.height(); ++y)
        for (int x = 0; x < small.width(); ++x)
            colours.insert(small.pixel(x, y));
    return colours.size();
}

} // namespace

// The whole editor on a real X server, against the on-screen keypad: the
// renders are kept in the build tree (tests/app/renders) for a person to
// look at.
class MainWindowRenderTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Startup::applyStyleSheet(); }

    void shouldShowTheEditorAndTheVirtualKeypadInStep_data()
    {
        QTest::addColumn<int>("layout");
        // Both orientations and every key count; the grids are built from one table.
        for (int layout : {H_Key_6, V_Key_15, H_Key_32})
            QTest::newRow(qPrintable(ButtonLayoutConfig::layoutName(layout))) << layout;
    }

    void shouldShowTheEditorAndTheVirtualKeypadInStep()
    {
        QFETCH(int, layout);
        SimulatedKeypad keypad;
        HidTransport::setInstance(&keypad);
        {
            QSettings settings;
            MainWindow window(&settings, false);
            window.layoutConfig()->changeLayout(layout);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            VirtualKeypad* virtualKeypad = window.virtualKeypad();
            QVERIFY(virtualKeypad && virtualKeypad->isActive());
            VirtualKeypadWindow* keypadWindow = virtualKeypad->window();
            QVERIFY(keypadWindow && QTest::qWaitForWindowExposed(keypadWindow));

            // Every configured key of the page reaches the keypad and shows
            // there as in the editor's grid.
            KeyItemModel* model = window.keyItemModel();
            const int keys = ButtonLayoutConfig::keyCount(layout);
            QTRY_COMPARE_WITH_TIMEOUT(keypadWindow->keyCount(), keys, 30000);
            int configured = 0;
            for (int button = 0; button < keys; ++button) {
                const KeyItem* item = model->keyItemAt(button);
                if (!item || !item->isValid())
                    continue;
                ++configured;
                const QImage expected = KeyFaceRenderer::render(item);
                QTRY_VERIFY2_WITH_TIMEOUT(
                    !keypadWindow->key(button)->pixmap(Qt::ReturnByValue).isNull() &&
                        ImageCompare::meanDifference(keypadWindow->key(button)->pixmap(Qt::ReturnByValue).toImage(),
                                                     expected) < 12,
                    qPrintable(QStringLiteral("button %1").arg(button)), 30000);
            }
            QVERIFY(configured > 0);

            auto* status = window.findChild<QLabel*>(QStringLiteral("StatusLine"));
            QTRY_COMPARE_WITH_TIMEOUT(status->property("keypad").toString(), QStringLiteral("virtual"), 30000);
            // The first key selected, as a person working on it would see it.
            window.keyGrid()->cancelPreviousAndThenSelectKeyButton(0);
            const QImage editor = window.grab().toImage();
            const QImage keypadShot = keypadWindow->grab().toImage();
            const QString name = ButtonLayoutConfig::layoutName(layout);
            QVERIFY(editor.save(ImageCompare::renderDirectory() + QStringLiteral("/editor_%1.png").arg(name)));
            QVERIFY(keypadShot.save(ImageCompare::renderDirectory() + QStringLiteral("/keypad_%1.png").arg(name)));
            QVERIFY2(distinctColours(editor) > 200, qPrintable(QString::number(distinctColours(editor))));
            QVERIFY2(distinctColours(keypadShot) > 100, qPrintable(QString::number(distinctColours(keypadShot))));
            QCOMPARE(window.keyGrid()->keyButtonCount(), keys);
        }
        HidTransport::setInstance(nullptr);
    }
};

KEYSTAGE_TEST_MAIN(MainWindowRenderTest)
#include "tst_mainwindowrender.moc"
