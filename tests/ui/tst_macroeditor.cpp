#include "addtextdialog.h"
#include "fakekeyboardlayout.h"
#include "hotkeyrecorder.h"
#include "insertkeydialog.h"
#include "keymapping.h"
#include "macroeditor.h"
#include "macrostepmodel.h"
#include "stepbuilder.h"
#include "testmain.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>

Q_DECLARE_METATYPE(QList<MarcoKeyItem>)

namespace {

// Steps as "Shift+ A+ A- Shift-" by key name, for readable comparisons.
QString render(const QList<MarcoKeyItem>& steps)
{
    QStringList parts;
    for (const MarcoKeyItem& step : steps)
        parts << KeyMapping::keyName(step.nativeKeyCode, step.qtKeyCode) + (step.isPress ? "+" : "-");
    return parts.join(QLatin1Char(' '));
}

QList<MarcoKeyItem> parse(const QString& text)
{
    static const QHash<QString, int> keys = {{"A", 0x41}, {"B", 0x42}, {"C", 0x43}, {"Ctrl", 0x11}, {"Shift", 0x10}};
    QList<MarcoKeyItem> steps;
    for (const QString& part : text.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        steps << StepBuilder::step(keys.value(part.chopped(1)), part.endsWith(QLatin1Char('+')));
    return steps;
}

} // namespace

class MacroEditorTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qRegisterMetaType<QList<MarcoKeyItem>>();
        KeyMapping::setLayout(std::make_unique<FakeKeyboardLayout>());
    }

    void init()
    {
        editor = std::make_unique<MacroEditor>();
        editor->show();
        editor->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(editor.get()));
        view = editor->findChild<QTableView*>();
        changes = std::make_unique<QSignalSpy>(editor.get(), &MacroEditor::stepsChanged);
    }

    void cleanup()
    {
        changes.reset();
        editor.reset();
    }

    void shouldRecordDownsAndUpsInOrderWithTheKeyboardGrabbed()
    {
        button("Record")->click();
        QVERIFY(editor->isRecording());
        QWidget* grabber = QWidget::keyboardGrabber();
        QCOMPARE(grabber, button("Stop"));
        // A release whose press came before the recording is not recorded.
        QTest::keyRelease(grabber, Qt::Key_Space);
        // One event each, as a keyboard sends them (QTest would add presses
        // and releases of the modifiers).
        send(grabber, QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier);
        send(grabber, QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier);
        send(grabber, QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier, true);
        send(grabber, QEvent::KeyRelease, Qt::Key_A, Qt::ShiftModifier);
        send(grabber, QEvent::KeyRelease, Qt::Key_Shift, Qt::ShiftModifier);
        // Esc with a modifier is a key of the macro; alone it ends the recording.
        send(grabber, QEvent::KeyPress, Qt::Key_Control, Qt::NoModifier);
        send(grabber, QEvent::KeyPress, Qt::Key_Escape, Qt::ControlModifier);
        send(grabber, QEvent::KeyRelease, Qt::Key_Escape, Qt::ControlModifier);
        send(grabber, QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier);
        QTest::keyClick(grabber, Qt::Key_VolumeMute);
        QTest::keyClick(grabber, Qt::Key_Escape);
        QVERIFY(!editor->isRecording());
        QCOMPARE(QWidget::keyboardGrabber(), nullptr);
        const QList<MarcoKeyItem> steps = editor->steps();
        QCOMPARE(render(steps), QStringLiteral("Shift+ A+ A- Shift- Ctrl+ Esc+ Esc- Ctrl- Volume Mute+ Volume Mute-"));
        QCOMPARE(steps.at(1).qtKeyCode, int(Qt::Key_A));
        QCOMPARE(steps.at(8).nativeKeyCode, quint16(0xAD));
        QCOMPARE(changes->last().first().value<QList<MarcoKeyItem>>(), steps);
    }

    void shouldStopRecordingWhenTheFocusLeaves()
    {
        button("Record")->click();
        QTest::keyPress(QWidget::keyboardGrabber(), Qt::Key_B);
        view->setFocus();
        QVERIFY(!editor->isRecording());
        QCOMPARE(QWidget::keyboardGrabber(), nullptr);
        QCOMPARE(render(editor->steps()), QStringLiteral("B+"));
    }

    void shouldEditTheListWithItsButtons_data()
    {
        QTest::addColumn<QString>("clicked");
        QTest::addColumn<int>("selectedRow");
        QTest::addColumn<QString>("steps");
        QTest::newRow("move up") << "Move up" << 2 << "A+ B+ A- B-";
        QTest::newRow("move down") << "Move down" << 1 << "A+ B+ A- B-";
        QTest::newRow("move the first up") << "Move up" << 0 << "A+ A- B+ B-";
        QTest::newRow("move the last down") << "Move down" << 3 << "A+ A- B+ B-";
        QTest::newRow("delete") << "Delete" << 1 << "A+ B+ B-";
        QTest::newRow("clear") << "Clear" << -1 << "";
    }

    void shouldEditTheListWithItsButtons()
    {
        QFETCH(QString, clicked);
        QFETCH(int, selectedRow);
        QFETCH(QString, steps);
        editor->setSteps(parse("A+ A- B+ B-"));
        QCOMPARE(changes->size(), 0);
        if (selectedRow >= 0)
            view->selectRow(selectedRow);
        const bool enabled = button(clicked)->isEnabled();
        button(clicked)->click();
        QCOMPARE(render(editor->steps()), render(parse(steps)));
        QCOMPARE(changes->size(), enabled && steps != "A+ A- B+ B-" ? 1 : 0);
    }

    void shouldFindTheKeysLeftHeld_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("fixed");
        // clang-format off
        QTest::newRow("balanced")                     << "Ctrl+ C+ C- Ctrl-"  << "Ctrl+ C+ C- Ctrl-";
        QTest::newRow("last pressed released first")  << "Ctrl+ Shift+ C+ C-" << "Ctrl+ Shift+ C+ C- Shift- Ctrl-";
        QTest::newRow("pressed twice, released once") << "A+ A+ A-"           << "A+ A+ A-";
        QTest::newRow("released, pressed again")      << "A+ A- A+"           << "A+ A- A+ A-";
        QTest::newRow("release without press")        << "B- A+"              << "B- A+ A-";
        // clang-format on
    }

    void shouldFindTheKeysLeftHeld()
    {
        QFETCH(QString, steps);
        QFETCH(QString, fixed);
        MacroStepModel model;
        model.setSteps(parse(steps));
        model.releaseHeldKeys();
        QCOMPARE(render(model.steps()), render(parse(fixed)));
        QVERIFY(model.heldKeys().isEmpty());
    }

    void shouldWarnOfAHeldKeyAndAddItsRelease()
    {
        editor->setSteps(parse("Ctrl+ C+ C-"));
        QPushButton* fix = button("Add the missing releases");
        QVERIFY(fix->isVisible());
        QVERIFY2(labelShowing("Ctrl held down"), "no warning");
        fix->click();
        QCOMPARE(render(editor->steps()), render(parse("Ctrl+ C+ C- Ctrl-")));
        QCOMPARE(changes->size(), 1);
        QVERIFY(!fix->isVisible());
    }

    void shouldTurnTextIntoUsKeystrokes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("skipped");
        // clang-format off
        QTest::newRow("letters")              << "aB"     << "A+ A- Shift+ B+ B- Shift-"   << "";
        QTest::newRow("shifted digit")        << "1!"     << "1+ 1- Shift+ 1+ 1- Shift-"   << "";
        QTest::newRow("punctuation")          << "<;"     << "Shift+ ,+ ,- Shift- ;+ ;-"   << "";
        QTest::newRow("line break")           << "a\r\nb" << "A+ A- Return+ Return- B+ B-" << "";
        QTest::newRow("not on a US keyboard") << "é€é😀"   << ""                            << "é€😀";
        // clang-format on
    }

    void shouldTurnTextIntoUsKeystrokes()
    {
        QFETCH(QString, text);
        QFETCH(QString, steps);
        QFETCH(QString, skipped);
        QString left;
        const QList<MarcoKeyItem> result = StepBuilder::fromText(text, &left);
        QStringList rendered;
        for (const MarcoKeyItem& step : result)
            rendered << KeyMapping::keyName(step.nativeKeyCode) + (step.isPress ? "+" : "-");
        QCOMPARE(rendered.join(' '), steps);
        QCOMPARE(left, skipped);
    }

    void shouldAddTextAfterTheSelection()
    {
        editor->setSteps(parse("A+ A- B+ B-"));
        view->selectRow(1);
        button("Add text…")->click();
        auto* dialog = editor->findChild<AddTextDialog*>();
        QVERIFY(dialog);
        QVERIFY2(labelShowing("US keyboard", dialog), "the dialog does not say how it types");
        dialog->setText(QStringLiteral("cé"));
        QVERIFY(labelShowing("Left out: é", dialog));
        dialog->accept();
        QCOMPARE(render(editor->steps()), render(parse("A+ A- C+ C- B+ B-")));
        QCOMPARE(changes->size(), 1);
    }

    void shouldInsertARecordedChord()
    {
        button("Insert key…")->click();
        auto* dialog = editor->findChild<InsertKeyDialog*>();
        QVERIFY(dialog);
        QTRY_VERIFY(dialog->recorder()->isRecording());
        QTest::keyClick(QWidget::keyboardGrabber(), Qt::Key_C, Qt::ControlModifier);
        dialog->accept();
        QCOMPARE(render(editor->steps()), render(parse("Ctrl+ C+ C- Ctrl-")));
        QCOMPARE(changes->size(), 1);
    }

    // Screen readers read a button by its accessible name.
    void shouldNameEveryButtonByItsText()
    {
        for (QAbstractButton* control : editor->findChildren<QAbstractButton*>())
            QCOMPARE(control->accessibleName(), control->text());
        QVERIFY(!view->accessibleName().isEmpty());
    }

private:
    static void send(QWidget* receiver, QEvent::Type type, int key, Qt::KeyboardModifiers modifiers,
                     bool autoRepeat = false)
    {
        QKeyEvent event(type, key, modifiers, QString(), autoRepeat);
        QApplication::sendEvent(receiver, &event);
    }

    QPushButton* button(const QString& text) const
    {
        for (QPushButton* candidate : editor->findChildren<QPushButton*>()) {
            if (candidate->text() == text)
                return candidate;
        }
        qFatal("no button %s", qPrintable(text));
    }

    bool labelShowing(const QString& part, QWidget* in = nullptr) const
    {
        for (QLabel* label : (in ? in : editor.get())->findChildren<QLabel*>()) {
            if (label->text().contains(part))
                return true;
        }
        return false;
    }

    std::unique_ptr<MacroEditor> editor;
    QTableView* view = nullptr;
    std::unique_ptr<QSignalSpy> changes;
};

KEYSTAGE_TEST_MAIN(MacroEditorTest)
#include "tst_macroeditor.moc"
