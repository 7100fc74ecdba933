#include "actionlist.h"
#include "formarea.h"
#include "hid_comm.h"
#include "hotkeyform.h"
#include "hotkeyrecorder.h"
#include "imagecompare.h"
#include "keychord.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keyitemform.h"
#include "keyitemgridview.h"
#include "keyitemmodel.h"
#include "mainwindow.h"
#include "recordingkeystrokebackend.h"
#include "simulatedkeypad.h"
#include "startup.h"
#include "testmain.h"
#include "virtualkey.h"
#include "virtualkeypadwindow.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSettings>

namespace {

KeyChord chord(int qtKey, int virtualKey)
{
    KeyChord made;
    made.keyCtrl = true;
    made.qtKeyCode = qtKey;
    made.nativeCode = virtualKey;
    return made;
}

} // namespace

// The whole editor against a keypad made of software: what the forms change
// shows on the grid and on the keypad, and the keypad's toggling shows in
// the form.
class MainWindowFormsTest : public QObject
{
    Q_OBJECT

private:
    SimulatedKeypad keypad;
    RecordingKeystrokeBackend keystrokes;
    std::unique_ptr<QSettings> settings;
    std::unique_ptr<MainWindow> window;

    int layout() const { return window->keyItemModel()->currentLayout(); }

    QImage keypadImage(int key) const
    {
        return VirtualKeypadWindow::upright(keypad.keyImage(Hid_Comm::deviceKeyNumber(layout(), key)), layout());
    }

    bool keypadShows(int key) const
    {
        const QImage shown = keypadImage(key);
        const KeyItem* item = window->keyItemModel()->keyItemAt(key);
        return item && !shown.isNull() && ImageCompare::meanDifference(shown, KeyFaceRenderer::render(item)) < 12;
    }

    int emptyKey() const
    {
        for (int key = 0; key < window->keyGrid()->keyButtonCount(); ++key) {
            if (!window->keyItemModel()->keyItemAt(key) && VirtualKeypadWindow::deviceKeyId(layout(), key) > 0)
                return key;
        }
        return -1;
    }

    QString typedKeys() const
    {
        QStringList typed;
        for (const RecordingKeystrokeBackend::Event& event : keystrokes.events())
            typed << QStringLiteral("%1%2").arg(event.down ? QLatin1Char('v') : QLatin1Char('^')).arg(event.virtualKey);
        return typed.join(QLatin1Char(' '));
    }

    void pressOnKeypad(int key)
    {
        const int bit = VirtualKeypadWindow::deviceKeyId(layout(), key) - 1;
        keypad.pressKey(bit);
        keypad.releaseKey(bit);
    }

private slots:
    void initTestCase() { Startup::applyStyleSheet(); }

    void init()
    {
        HidTransport::setInstance(&keypad);
        VirtualKey::setBackend(&keystrokes);
        keystrokes.clear();
        settings = std::make_unique<QSettings>();
        window = std::make_unique<MainWindow>(settings.get(), false);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QTRY_COMPARE_WITH_TIMEOUT(keypad.openHandleCount(), 1, 30000);
    }

    void cleanup()
    {
        window.reset();
        settings.reset();
        VirtualKey::setBackend(nullptr);
        HidTransport::setInstance(nullptr);
    }

    void shouldShowFormEditsOnTheGridAndTheKeypadAndTheKeypadsToggleInTheForm()
    {
        const int key = emptyKey();
        QVERIFY(key >= 0);
        KeyItemGridView* grid = window->keyGrid();
        grid->createNewAction(KAT_HOTKEY, key);
        QTest::mouseClick(grid->keyButton(key), Qt::LeftButton);
        auto* form = qobject_cast<HotkeyForm*>(window->formArea()->keyForm());
        QVERIFY(form);
        QCOMPARE(window->formArea()->functionDescription(), nullptr);

        const QImage gridBefore = grid->keyButton(key)->pixmap(Qt::ReturnByValue).toImage();
        QTest::keyClicks(form->titleField(), QStringLiteral("One"));
        QTest::mouseClick(form->toggleBox(), Qt::LeftButton);
        emit form->recorder(0)->chordChanged(chord(Qt::Key_1, '1'));
        emit form->recorder(1)->chordChanged(chord(Qt::Key_2, '2'));
        QTest::keyClicks(form->secondTitleField(), QStringLiteral("Two"));
        const KeyItem* item = window->keyItemModel()->keyItemAt(key);
        QVERIFY(item->multiFeatureFlag && item->isValid());
        QCOMPARE(item->render[0].text, QStringLiteral("One"));
        QCOMPARE(item->render[1].text, QStringLiteral("Two"));
        QTRY_VERIFY_WITH_TIMEOUT(grid->keyButton(key)->pixmap(Qt::ReturnByValue).toImage() != gridBefore, 30000);
        QTRY_VERIFY_WITH_TIMEOUT(keypadShows(key), 30000);
        const QImage firstFace = keypadImage(key);

        // The key on the keypad performs the first chord and turns to the second.
        const QString firstNote = form->nextPressNote()->text();
        pressOnKeypad(key);
        QTRY_COMPARE_WITH_TIMEOUT(item->cfIdx, 1, 30000);
        QTRY_VERIFY_WITH_TIMEOUT(form->nextPressNote()->text() != firstNote, 30000);
        QTRY_VERIFY_WITH_TIMEOUT(keypadShows(key) && ImageCompare::meanDifference(keypadImage(key), firstFace) > 1,
                                 30000);
        pressOnKeypad(key);
        QTRY_COMPARE_WITH_TIMEOUT(item->cfIdx, 0, 30000);
        // Ctrl+1, then Ctrl+2, each down and up.
        QTRY_COMPARE_WITH_TIMEOUT(typedKeys(), QStringLiteral("v17 v49 ^49 ^17 v17 v50 ^50 ^17"), 30000);
        QTRY_COMPARE_WITH_TIMEOUT(form->nextPressNote()->text(), firstNote, 30000);

        // A palette entry replaces the form by its description.
        window->actionList()->cancelPreviousAndThenSelectIcon(KAT_MACROKEY);
        QCOMPARE(window->formArea()->keyForm(), nullptr);
        QCOMPARE(window->formArea()->shownActionType(), int(KAT_MACROKEY));
        QCOMPARE(grid->selectedKeyIdx(), -1);
    }
};

KEYSTAGE_TEST_MAIN(MainWindowFormsTest)
#include "tst_mainwindowforms.moc"
