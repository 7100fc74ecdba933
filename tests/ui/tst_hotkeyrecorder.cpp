#include "fakekeyboardlayout.h"
#include "hotkeyrecorder.h"
#include "keymapping.h"
#include "keypickermenu.h"
#include "testmain.h"
#include "virtualkeytable.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

KeyChord chordOf(Qt::KeyboardModifiers modifiers, int virtualKey, int qtKey)
{
    KeyChord chord;
    chord.setModifiers(modifiers);
    chord.nativeCode = virtualKey;
    chord.qtKeyCode = qtKey;
    return chord;
}

} // namespace

class HotkeyRecorderTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qRegisterMetaType<KeyChord>();
        KeyMapping::setLayout(std::make_unique<FakeKeyboardLayout>());
    }

    void init()
    {
        window = std::make_unique<QWidget>();
        recorder = new HotkeyRecorder(window.get());
        other = new QLineEdit(window.get());
        auto* layout = new QVBoxLayout(window.get());
        layout->addWidget(recorder);
        layout->addWidget(other);
        window->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        field = recorder->findChild<QPushButton*>();
        QVERIFY(field);
        changes = std::make_unique<QSignalSpy>(recorder, &HotkeyRecorder::chordChanged);
    }

    void cleanup()
    {
        changes.reset();
        window.reset();
    }

    void shouldRecordTheNextChordWithTheKeyboardGrabbed_data()
    {
        QTest::addColumn<int>("qtKey");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("virtualKey");
        QTest::addColumn<QString>("text");
        const int ctrlAlt = Qt::ControlModifier | Qt::AltModifier;
        QTest::newRow("Ctrl+Alt+T") << int(Qt::Key_T) << ctrlAlt << 0x54 << "Ctrl+Alt+T";
        // The window's own focus keys and shortcuts are recorded too.
        QTest::newRow("Alt+Tab") << int(Qt::Key_Tab) << int(Qt::AltModifier) << 0x09 << "Alt+Tab";
        QTest::newRow("Super+E") << int(Qt::Key_E) << int(Qt::MetaModifier) << 0x45 << "Super+E";
        QTest::newRow("play/pause") << int(Qt::Key_MediaPlay) << 0 << 0xB3 << "Toggle Media Play/Pause";
        QTest::newRow("Shift+Print") << int(Qt::Key_Print) << int(Qt::ShiftModifier) << 0x2C << "Shift+Print";
        QTest::newRow("Ctrl+Esc") << int(Qt::Key_Escape) << int(Qt::ControlModifier) << 0x1B << "Ctrl+Esc";
        QTest::newRow("Enter") << int(Qt::Key_Return) << 0 << 0x0D << "Return";
        QTest::newRow("Ctrl+Backspace") << int(Qt::Key_Backspace) << int(Qt::ControlModifier) << 0x08
                                        << "Ctrl+Backspace";
    }

    void shouldRecordTheNextChordWithTheKeyboardGrabbed()
    {
        QFETCH(int, qtKey);
        QFETCH(int, modifiers);
        QFETCH(int, virtualKey);
        QFETCH(QString, text);
        QSignalSpy recording(recorder, &HotkeyRecorder::recordingChanged);
        QTest::mouseClick(field, Qt::LeftButton);
        QVERIFY(recorder->isRecording());
        QCOMPARE(QWidget::keyboardGrabber(), field);
        QCOMPARE(field->text(), QStringLiteral("Press a key combination"));

        QTest::keyClick(QWidget::keyboardGrabber(), Qt::Key(qtKey), Qt::KeyboardModifiers(modifiers));
        const KeyChord expected = chordOf(Qt::KeyboardModifiers(modifiers), virtualKey, qtKey);
        QVERIFY(!recorder->isRecording());
        QCOMPARE(QWidget::keyboardGrabber(), nullptr);
        QCOMPARE(recorder->chord(), expected);
        QCOMPARE(changes->size(), 1);
        QCOMPARE(changes->first().first().value<KeyChord>(), expected);
        QCOMPARE(field->text(), text);
        QCOMPARE(recording.size(), 2);
        QCOMPARE(focusWidget(), field); // Tab did not move on
    }

    void shouldShowHeldModifiersWithoutFinishing()
    {
        recorder->startRecording();
        // One event each, as a keyboard sends them (QTest would add presses
        // and releases of the modifiers).
        QWidget* grabber = QWidget::keyboardGrabber();
        send(grabber, QEvent::KeyPress, Qt::Key_Control, Qt::NoModifier);
        QCOMPARE(field->text(), QStringLiteral("Ctrl+"));
        send(grabber, QEvent::KeyPress, Qt::Key_Alt, Qt::ControlModifier);
        QCOMPARE(field->text(), QStringLiteral("Ctrl+Alt+"));
        send(grabber, QEvent::KeyRelease, Qt::Key_Alt, Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(field->text(), QStringLiteral("Ctrl+"));
        QVERIFY(recorder->isRecording());
        QCOMPARE(changes->size(), 0);
        QTest::keyClick(grabber, Qt::Key_F13, Qt::ControlModifier);
        QCOMPARE(recorder->chord(), chordOf(Qt::ControlModifier, 0x7C, Qt::Key_F13));
    }

    void shouldEndWithoutRecordingAndKeepOrClear_data()
    {
        QTest::addColumn<int>("qtKey");
        QTest::addColumn<bool>("cleared");
        QTest::newRow("Esc cancels") << int(Qt::Key_Escape) << false;
        QTest::newRow("Backspace clears") << int(Qt::Key_Backspace) << true;
    }

    void shouldEndWithoutRecordingAndKeepOrClear()
    {
        QFETCH(int, qtKey);
        QFETCH(bool, cleared);
        const KeyChord old = chordOf(Qt::ControlModifier, 0x43, Qt::Key_C);
        recorder->setChord(old);
        QTest::keyClick(field, Qt::Key_Space);
        QVERIFY(recorder->isRecording());
        QTest::keyClick(QWidget::keyboardGrabber(), Qt::Key(qtKey));
        QVERIFY(!recorder->isRecording());
        QCOMPARE(QWidget::keyboardGrabber(), nullptr);
        QCOMPARE(recorder->chord(), cleared ? KeyChord() : old);
        QCOMPARE(changes->size(), cleared ? 1 : 0);
        QCOMPARE(field->text(), cleared ? QStringLiteral("Not set") : QStringLiteral("Ctrl+C"));
    }

    void shouldCancelWhenTheFocusLeaves()
    {
        const KeyChord old = chordOf(Qt::AltModifier, 0x41, Qt::Key_A);
        recorder->setChord(old);
        QTest::keyClick(field, Qt::Key_Return);
        QVERIFY(recorder->isRecording());
        QTest::keyPress(QWidget::keyboardGrabber(), Qt::Key_Shift);
        other->setFocus();
        QVERIFY(!recorder->isRecording());
        QCOMPARE(QWidget::keyboardGrabber(), nullptr);
        QCOMPARE(recorder->chord(), old);
        QCOMPARE(changes->size(), 0);
    }

    void shouldTellScreenReadersItListens()
    {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(field);
        QVERIFY(accessible);
        recorder->startRecording();
        QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Press a key combination"));
        QCOMPARE(accessible->text(QAccessible::Description), QStringLiteral("Press a key combination"));
        QVERIFY(accessible->state().checked);
        recorder->cancelRecording();
        QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Not set"));
        QVERIFY(!accessible->state().checked);
    }

    void shouldPickAKeyAKeyboardMayLackKeepingTheModifiers()
    {
        recorder->setChord(chordOf(Qt::ControlModifier | Qt::ShiftModifier, 0x41, Qt::Key_A));
        QCOMPARE(changes->size(), 0);
        auto* pick = recorder->findChild<QToolButton*>();
        QVERIFY(pick);
        QCOMPARE(pick->accessibleName(), QStringLiteral("Keys a keyboard may lack"));
        QCOMPARE(pick->toolTip(), pick->accessibleName());
        QAction* volumeUp = actionNamed(pick->menu(), QStringLiteral("Volume Up"));
        QVERIFY(volumeUp);
        volumeUp->trigger();
        QCOMPARE(recorder->chord(), chordOf(Qt::ControlModifier | Qt::ShiftModifier, 0xAF, Qt::Key_VolumeUp));
        QCOMPARE(changes->size(), 1);
    }

    // Every key of the list can be typed and has a name of its own.
    void shouldOfferTypableKeysByDistinctNames()
    {
        QStringList names;
        for (const int key : KeyPickerMenu::offeredKeys()) {
            QVERIFY2(VirtualKeyTable::contains(key), qPrintable(QString::number(key, 16)));
            names << KeyMapping::keyName(key);
        }
        QVERIFY(!names.contains(QStringLiteral("Unknown key")));
        QCOMPARE(QSet<QString>(names.cbegin(), names.cend()).size(), names.size());
        const QString expected = QStringLiteral("Toggle Media Play/Pause|Media Next|Media Previous|Media Stop|"
                                                "Volume Down|Volume Mute|Back|Forward|Refresh|Home Page|Search|"
                                                "Launch Mail|Calculator|F13|F24|Print|ScrollLock|Pause|Ins|Menu|Esc|"
                                                "Backspace");
        for (const QString& name : expected.split(QLatin1Char('|')))
            QVERIFY2(names.contains(name), qPrintable(name));
    }

private:
    static QAction* actionNamed(QMenu* menu, const QString& text)
    {
        for (QAction* action : menu->actions()) {
            if (action->text() == text)
                return action;
            if (action->menu()) {
                if (QAction* found = actionNamed(action->menu(), text))
                    return found;
            }
        }
        return nullptr;
    }

    static void send(QWidget* receiver, QEvent::Type type, int key, Qt::KeyboardModifiers modifiers)
    {
        QKeyEvent event(type, key, modifiers);
        QApplication::sendEvent(receiver, &event);
    }

    QWidget* focusWidget() const { return QApplication::focusWidget(); }

    std::unique_ptr<QWidget> window;
    HotkeyRecorder* recorder = nullptr;
    QLineEdit* other = nullptr;
    QPushButton* field = nullptr;
    std::unique_ptr<QSignalSpy> changes;
};

KEYSTAGE_TEST_MAIN(HotkeyRecorderTest)
#include "tst_hotkeyrecorder.moc"
