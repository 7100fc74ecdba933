#include "buttonlayoutconfig.h"
#include "formarea.h"
#include "hotkeyform.h"
#include "imagecompare.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keyitemgridview.h"
#include "keyitemmodel.h"
#include "mainwindow.h"
#include "preferencedialog.h"
#include "preferencelauncher.h"
#include "simulatedkeypad.h"
#include "startup.h"
#include "testmain.h"
#include "virtualkeypad.h"
#include "virtualkeypadwindow.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QSet>
#include <QSettings>
#include <QTranslator>

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
        for (int layout = H_Key_6; layout <= V_Key_32; ++layout)
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

    // The editor, a key's form and the preference dialog in each language,
    // for a person to look over (renders/language_*.png).
    void shouldShowTheEditorInEveryLanguage_data()
    {
        QTest::addColumn<int>("language");
        const char* const names[] = {"en-us", "ja", "zh-TW", "it", "de", "fr"};
        for (int language = 0; language < int(std::size(names)); ++language)
            QTest::newRow(names[language]) << language;
    }

    void shouldShowTheEditorInEveryLanguage()
    {
        QFETCH(int, language);
        QTranslator translator;
        MainWindow::installTranslator(&translator, language);
        SimulatedKeypad keypad;
        HidTransport::setInstance(&keypad);
        {
            QSettings settings;
            MainWindow window(&settings, false);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            window.keyGrid()->cancelPreviousAndThenSelectKeyButton(0);
            const QString prefix =
                ImageCompare::renderDirectory() + QStringLiteral("/language_%1_").arg(QTest::currentDataTag());
            const QImage editor = window.grab().toImage();
            QVERIFY(editor.save(prefix + QStringLiteral("editor.png")));
            QVERIFY2(distinctColours(editor) > 200, qPrintable(QString::number(distinctColours(editor))));
            // The hotkey form with both features: the most texts of any form.
            int key = 0;
            while (key < window.keyGrid()->keyButtonCount() && window.keyItemModel()->keyItemAt(key))
                ++key;
            window.keyGrid()->createNewAction(KAT_HOTKEY, key);
            window.keyGrid()->cancelPreviousAndThenSelectKeyButton(key);
            auto* form = qobject_cast<HotkeyForm*>(window.formArea()->keyForm());
            QVERIFY(form);
            form->toggleBox()->setChecked(true);
            QCoreApplication::processEvents();
            QVERIFY(window.rightColumn()->grab().save(prefix + QStringLiteral("form.png")));
            PreferenceDialog* dialog = window.preferences()->open();
            QVERIFY(dialog && QTest::qWaitForWindowExposed(dialog));
            QVERIFY(dialog->grab().save(prefix + QStringLiteral("preferences.png")));
            dialog->close();
        }
        HidTransport::setInstance(nullptr);
        QCoreApplication::removeTranslator(&translator);
    }
};

KEYSTAGE_TEST_MAIN(MainWindowRenderTest)
#include "tst_mainwindowrender.moc"
