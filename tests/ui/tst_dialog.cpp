#include "clicklabel.h"
#include "dialog.h"
#include "testmain.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTranslator>

namespace {

QStringList visibleButtonTexts(const Dialog& dialog)
{
    QStringList texts;
    for (int i = 0; i < 3; ++i) {
        if (dialog.buttonAt(i)->isVisibleTo(&dialog))
            texts << dialog.buttonAt(i)->text();
    }
    return texts;
}

void setUpDeleteQuestion(Dialog* dialog)
{
    dialog->setupDialog(QStringLiteral("Are you sure you want to delete this item?"),
                        QStringLiteral("You can't undo this action."), QString(), QStringLiteral("Cancel"),
                        QStringLiteral("Delete"), QStringLiteral("Don't ask me again"), Dialog::IconWarning,
                        Dialog::MidButton);
}

UserQuestion question(UserQuestion::Button mid, UserQuestion::Button right)
{
    UserQuestion asked;
    asked.subject = QStringLiteral("subject");
    asked.buttons[UserQuestion::MidSlot] = mid;
    asked.buttons[UserQuestion::RightSlot] = right;
    asked.defaultButton = right;
    return asked;
}

// Every text in another language; "Cancel" and "Reset" read alike.
class SameWordTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* sourceText, const char*, int) const override
    {
        const QString text = QString::fromUtf8(sourceText);
        return text == "Cancel" || text == "Reset" ? QStringLiteral("Annuler") : QStringLiteral("~") + text;
    }
};

// Runs exec() while the action acts on the shown dialog.
template <class Action>
void execWhileShown(Dialog* dialog, Action action)
{
    QTimer::singleShot(0, dialog, [dialog, action] {
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        action();
    });
    // A dialog that never closes fails the test instead of hanging it.
    QTimer::singleShot(60000, dialog, [dialog] { dialog->done(-1); });
    QVERIFY(dialog->exec() != -1);
}

} // namespace

class DialogTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Dialog::clearNextAnswers(); }

    // Only the parts given show; the mid button has the default look.
    void shouldShowOnlyThePartsGiven_data()
    {
        QTest::addColumn<QStringList>("given"); // subject, three buttons, check box
        QTest::addColumn<int>("icon");
        QTest::addColumn<bool>("iconShown");
        QTest::newRow("delete question") << QStringList{"s", "", "Cancel", "Delete", "Don't ask"} << 2 << true;
        QTest::newRow("three buttons, logo") << QStringList{"s", "A", "B", "C", ""} << 1 << true;
        QTest::newRow("left only, close icon") << QStringList{"s", "Only", "", "", ""} << 3 << true;
        QTest::newRow("no buttons, no icon") << QStringList{"s", "", "", "", ""} << 0 << false;
        QTest::newRow("no subject, unknown icon") << QStringList{"", "", "OK", "", ""} << 4 << false;
    }

    void shouldShowOnlyThePartsGiven()
    {
        QFETCH(QStringList, given);
        QFETCH(int, icon);
        QFETCH(bool, iconShown);
        Dialog dialog;
        dialog.setupDialog(given[0], QStringLiteral("text"), given[1], given[2], given[3], given[4], icon,
                           Dialog::MidButton);
        QStringList buttons = given.mid(1, 3);
        buttons.removeAll(QString());
        QCOMPARE(visibleButtonTexts(dialog), buttons);
        QCOMPARE(dialog.iconLabel()->isVisibleTo(&dialog), iconShown);
        QCOMPARE(!dialog.iconLabel()->pixmap(Qt::ReturnByValue).isNull(), iconShown);
        QCOMPARE(dialog.findChild<QLabel*>(QStringLiteral("DialogSubject"))->isVisibleTo(&dialog), !given[0].isEmpty());
        QVERIFY(dialog.findChild<QLabel*>(QStringLiteral("DialogText"))->isVisibleTo(&dialog));
        QCOMPARE(dialog.checkBox()->isVisibleTo(&dialog), !given[4].isEmpty());
        QVERIFY(!dialog.isChecked());
        for (int i = 0; i < 3; ++i)
            QCOMPARE(dialog.buttonAt(i)->property("default").toBool(), i == 1);
        QVERIFY(dialog.buttonAt(1)->isDefault());
    }

    // The clicked button and check box are the answer; a new question starts
    // unanswered, so closing by the title bar answers nothing rather than the last answer.
    void shouldAnswerTheClickAndNothingWhenClosedByTheTitleBar()
    {
        Dialog dialog;
        setUpDeleteQuestion(&dialog);
        QCOMPARE(dialog.answer(), QString());
        execWhileShown(&dialog, [&dialog] {
            QTest::mouseClick(dialog.checkBox(), Qt::LeftButton, {}, QPoint(4, dialog.checkBox()->height() / 2));
            QTest::mouseClick(dialog.buttonAt(2), Qt::LeftButton);
        });
        QCOMPARE(dialog.answer(), QStringLiteral("Delete"));
        QCOMPARE(dialog.answerButton(), UserQuestion::Delete);
        QVERIFY(dialog.isChecked());
        QVERIFY(!dialog.isVisible());
        setUpDeleteQuestion(&dialog);
        QVERIFY(!dialog.checkBox()->isChecked());
        execWhileShown(&dialog, [&dialog] { QTest::mouseClick(dialog.closeButton(), Qt::LeftButton); });
        QCOMPARE(dialog.answer(), QString());
        QCOMPARE(dialog.answerButton(), UserQuestion::NoButton);
        QVERIFY(!dialog.isChecked());
    }

    // Whatever has the focus, Esc is Cancel where a Cancel button shows and
    // an unanswered close elsewhere.
    void shouldAnswerEscAsCancel_data()
    {
        QTest::addColumn<int>("mid");
        QTest::addColumn<int>("right");
        QTest::addColumn<int>("focused");
        QTest::addColumn<int>("answer");
        const int cancel = UserQuestion::Cancel;
        QTest::newRow("delete, Delete focused") << cancel << int(UserQuestion::Delete) << 2 << cancel;
        QTest::newRow("delete, check box focused") << cancel << int(UserQuestion::Delete) << -1 << cancel;
        QTest::newRow("continue") << cancel << int(UserQuestion::Continue) << 2 << cancel;
        QTest::newRow("no and yes") << int(UserQuestion::No) << int(UserQuestion::Yes) << 2
                                    << int(UserQuestion::NoButton);
        QTest::newRow("ok only") << int(UserQuestion::NoButton) << int(UserQuestion::Ok) << 2
                                 << int(UserQuestion::NoButton);
    }

    void shouldAnswerEscAsCancel()
    {
        QFETCH(int, mid);
        QFETCH(int, right);
        QFETCH(int, focused);
        QFETCH(int, answer);
        UserQuestion asked = question(UserQuestion::Button(mid), UserQuestion::Button(right));
        asked.checkBoxText = QStringLiteral("Don't ask me again");
        Dialog dialog;
        dialog.setupQuestion(asked);
        execWhileShown(&dialog, [&dialog, focused] {
            QWidget* target = focused >= 0 ? static_cast<QWidget*>(dialog.buttonAt(focused)) : dialog.checkBox();
            target->setFocus();
            QTest::keyClick(target, Qt::Key_Escape);
        });
        QCOMPARE(int(dialog.answerButton()), answer);
        QCOMPARE(dialog.answer(), UserQuestion::buttonText(UserQuestion::Button(answer)));
        QVERIFY(!dialog.isVisible());
    }

    // A question's buttons mean what the question says, even where a
    // translation gives two of them the same text.
    void shouldAnswerWhatTheClickedButtonMeans()
    {
        SameWordTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        Dialog dialog;
        dialog.setupQuestion(question(UserQuestion::Cancel, UserQuestion::Reset));
        QCOMPARE(visibleButtonTexts(dialog), QStringList({"Annuler", "Annuler"}));
        QVERIFY(dialog.buttonAt(2)->isDefault());
        execWhileShown(&dialog, [&dialog] { QTest::mouseClick(dialog.buttonAt(2), Qt::LeftButton); });
        QCOMPARE(dialog.answerButton(), UserQuestion::Reset);
        dialog.setupQuestion(question(UserQuestion::Cancel, UserQuestion::Reset));
        execWhileShown(&dialog, [&dialog] { QTest::keyClick(&dialog, Qt::Key_Escape); });
        QCOMPARE(dialog.answerButton(), UserQuestion::Cancel);
        QCoreApplication::removeTranslator(&translator);
    }

    void shouldAnswerFromTheSeamWithoutShowing()
    {
        Dialog::setNextAnswer(UserQuestion::Delete, true);
        Dialog::setNextAnswer(UserQuestion::Cancel);
        Dialog first;
        setUpDeleteQuestion(&first);
        first.exec();
        QCOMPARE(first.answer(), QStringLiteral("Delete"));
        QCOMPARE(first.answerButton(), UserQuestion::Delete);
        QVERIFY(first.isChecked());
        QVERIFY(!first.isVisible());
        const UserAnswer second = Dialog::ask(question(UserQuestion::Cancel, UserQuestion::Delete));
        QCOMPARE(second.button, UserQuestion::Cancel);
        QVERIFY(!second.checked);
    }

    void shouldStyleTheTitleBarForActivityAndHover()
    {
        Dialog dialog;
        QWidget* titleBar = dialog.findChild<QWidget*>(QStringLiteral("TitleBar"));
        QVERIFY(titleBar);
        dialog.onAppStateChange(false);
        QCOMPARE(titleBar->property("active").toBool(), false);
        dialog.onAppStateChange(true);
        QCOMPARE(titleBar->property("active").toBool(), true);

        QEvent enter(QEvent::Enter);
        QEvent leave(QEvent::Leave);
        dialog.onTitleBarButtonMouseEvent(dialog.closeButton(), &enter);
        QCOMPARE(dialog.closeButton()->property("hover").toBool(), true);
        dialog.onTitleBarButtonMouseEvent(dialog.closeButton(), &leave);
        QCOMPARE(dialog.closeButton()->property("hover").toBool(), false);
    }
};

KEYSTAGE_TEST_MAIN(DialogTest)
#include "tst_dialog.moc"
