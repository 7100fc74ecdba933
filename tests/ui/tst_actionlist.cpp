#include "actionlist.h"
#include "testmain.h"

#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QSignalSpy>

namespace {

// Keeps the drag instead of running it, so the test sees what would be dragged.
class RecordingActionList : public ActionList
{
public:
    QStringList formats;
    QByteArray payload;
    QPoint hotSpot;
    int drags = 0;

protected:
    Qt::DropAction execDrag(QDrag* drag) override
    {
        ++drags;
        formats = drag->mimeData()->formats();
        payload = drag->mimeData()->data(QStringLiteral("VSE/ActionList-item"));
        hotSpot = drag->hotSpot();
        return Qt::MoveAction;
    }
};

} // namespace

class ActionListTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        list = std::make_unique<RecordingActionList>();
        list->show();
        QVERIFY(QTest::qWaitForWindowExposed(list.get()));
    }

    void cleanup() { list.reset(); }

    void shouldSelectAnEntryOnceWhenClickedTwice()
    {
        QSignalSpy selected(list.get(), &ActionList::actionItemSelected);
        click(3);
        click(3);
        QCOMPARE(selected.count(), 1);
        QCOMPARE(selected.at(0).at(0).toInt(), 3);
        click(5);
        QCOMPARE(stateOf(3), QStringLiteral("false"));
        QCOMPARE(stateOf(5), QStringLiteral("true"));
        list->cancelPreviousAndThenHoverKeyButton(5); // hovering never hides the selection
        QCOMPARE(stateOf(5), QStringLiteral("true"));
        list->cancelPreviousAndThenHoverKeyButton(2);
        QCOMPARE(stateOf(2), QStringLiteral("hover"));
        list->cancelSelectedIcon(true);
        QCOMPARE(selected.last().at(0).toInt(), -1);
    }

    void shouldDragTheActionTypeAndKeepTheSelection()
    {
        list->cancelPreviousAndThenSelectIcon(0);
        QSignalSpy selected(list.get(), &ActionList::actionItemSelected);
        QTest::mousePress(list.get(), Qt::LeftButton, {}, centreOf(4));
        moveWithLeftButton(centreOf(4) + QPoint(1, 0));
        QTest::mouseRelease(list.get(), Qt::LeftButton, {}, centreOf(4));

        QCOMPARE(list->drags, 1);
        QCOMPARE(list->formats, QStringList{"VSE/ActionList-item"});
        QDataStream stream(list->payload);
        qint32 type = -1;
        stream >> type;
        QCOMPARE(type, 4);
        QVERIFY(stream.atEnd());
        QCOMPARE(list->hotSpot, QPoint(21, 21));
        QCOMPARE(selected.count(), 0);
        QCOMPARE(list->selectedIndex(), 0);

        list->setEntryEnabled(2, false);
        QTest::mousePress(list.get(), Qt::LeftButton, {}, centreOf(2));
        moveWithLeftButton(centreOf(2));
        QTest::mouseRelease(list.get(), Qt::LeftButton, {}, centreOf(2));
        moveWithLeftButton(centreOf(3)); // no press: no drag
        QCOMPARE(list->drags, 1);
    }

private:
    QPoint centreOf(int idx) const { return list->entryLabel(idx)->geometry().center(); }
    QString stateOf(int idx) const { return list->entryLabel(idx)->property("state").toString(); }
    void click(int idx) { QTest::mouseClick(list.get(), Qt::LeftButton, {}, centreOf(idx)); }

    void moveWithLeftButton(const QPoint& pos)
    {
        QMouseEvent move(QEvent::MouseMove, pos, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(list.get(), &move);
    }

    std::unique_ptr<RecordingActionList> list;
};

KEYSTAGE_TEST_MAIN(ActionListTest)
#include "tst_actionlist.moc"
