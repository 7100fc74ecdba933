#include "fakeuinputdevice.h"
#include "libevdevuinputdevice.h"
#include "logcapture.h"
#include "testmain.h"
#include "uinputkeystrokebackend.h"
#include "virtualkeytable.h"

#include <QDir>

#include <linux/input-event-codes.h>
#include <unistd.h>

namespace {

using Write = QPair<quint16, bool>;

std::unique_ptr<UinputKeystrokeBackend> backendOver(FakeUinputDevice::State* state)
{
    return std::make_unique<UinputKeystrokeBackend>(std::make_unique<FakeUinputDevice>(state));
}

const QString Denied = QStringLiteral("cannot open /dev/uinput: Permission denied");

} // namespace

class UinputKeystrokeBackendTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldCreateTheKeyboardOnTheFirstKeystrokeAndKeepIt()
    {
        FakeUinputDevice::State state;
        auto backend = backendOver(&state);
        QCOMPARE(state.createCalls, 0);
        QVERIFY(backend->keyDown(0x10));
        QCOMPARE(state.createCalls, 1);
        QVERIFY(backend->keyDown(0x41));
        QVERIFY(backend->keyUp(0x41));
        QVERIFY(backend->keyUp(0x10));
        QVERIFY(backend->isUsable());
        QCOMPARE(state.createCalls, 1);
        const QVector<Write> expected = {{KEY_LEFTSHIFT, true}, {KEY_A, true}, {KEY_A, false}, {KEY_LEFTSHIFT, false}};
        QCOMPARE(state.writes, expected);
        for (const VirtualKeyTable::Entry& entry : VirtualKeyTable::entries())
            QVERIFY(state.announced.contains(entry.evdevCode));
    }

    void shouldReportUnusableUntilAccessIsGranted()
    {
        FakeUinputDevice::State state;
        state.failure = Denied;
        auto backend = backendOver(&state);
        LogCapture log;
        QVERIFY(!backend->isUsable());
        QCOMPARE(backend->unusableReason(), Denied);
        QVERIFY(!backend->keyDown(0x41));
        QVERIFY(!backend->keyUp(0x41));
        QVERIFY(state.writes.isEmpty());
        // Tried again each time, told in the log once.
        QCOMPARE(state.createCalls, 3);
        QCOMPARE(log.matching(Denied).size(), 1);

        state.failure.clear();
        QVERIFY(backend->keyDown(0x41));
        QVERIFY(backend->isUsable());
        QVERIFY(backend->unusableReason().isEmpty());
        QCOMPARE(state.writes, QVector<Write>({{KEY_A, true}}));
    }

    void shouldRefuseAnUnknownVirtualKey()
    {
        FakeUinputDevice::State state;
        auto backend = backendOver(&state);
        LogCapture log;
        QVERIFY(!backend->keyDown(0x07));
        QVERIFY(!backend->keyUp(-1));
        QVERIFY(state.writes.isEmpty());
        QCOMPARE(log.matching(QStringLiteral("no evdev key for virtual key 0x7")).size(), 1);
    }

    // Whatever the node is, a clean refusal naming it instead of a hang or a crash.
    void shouldFailCleanlyOnANodeThatIsNoUinput_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("missing") << QDir::temp().filePath(QStringLiteral("no-such-dir/uinput"));
        QTest::newRow("character device") << QStringLiteral("/dev/null");
        QTest::newRow("directory") << QDir::tempPath();
    }

    void shouldFailCleanlyOnANodeThatIsNoUinput()
    {
        QFETCH(QString, path);
        LibevdevUinputDevice device(path);
        QString reason;
        QVERIFY(!device.create(VirtualKeyTable::evdevCodes(), &reason));
        QVERIFY2(reason.contains(path), qPrintable(reason));
        QVERIFY(!device.writeKey(KEY_A, true));
    }

    void shouldBeUnusableWithoutAccessToUinput()
    {
        if (::access("/dev/uinput", W_OK) == 0)
            QSKIP("this machine lets us write /dev/uinput; the refusal cannot be seen here");
        UinputKeystrokeBackend backend;
        QVERIFY(!backend.isUsable());
        QVERIFY2(backend.unusableReason().contains(QStringLiteral("/dev/uinput")),
                 qPrintable(backend.unusableReason()));
        QVERIFY(!backend.keyDown(0x41));
    }
};

KEYSTAGE_TEST_MAIN(UinputKeystrokeBackendTest)
#include "tst_uinputkeystrokebackend.moc"
