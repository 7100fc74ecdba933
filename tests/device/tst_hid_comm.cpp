#include "hid_comm.h"
#include "keyeventrecorder.h"
#include "logcapture.h"
#include "recordingtransport.h"
#include "simulatedkeypad.h"
#include "testmain.h"

#include <QPainter>
#include <QTemporaryFile>

namespace {
// A picture whose orientation can be read back: red, with a white block in
// its top-left corner.
QImage markedImage()
{
    QImage image(Hid_Comm::KeyImageSize, Hid_Comm::KeyImageSize, QImage::Format_RGBA8888);
    image.fill(Qt::red);
    QPainter(&image).fillRect(0, 0, image.width() / 4, image.height() / 4, Qt::white);
    return image;
}

// The corners where the white block shows.
QString whiteCorner(const QImage& image)
{
    const int far = image.width() - 4;
    const QMap<QString, QPoint> probes{
        {"top left", {4, 4}}, {"top right", {far, 4}}, {"bottom left", {4, far}}, {"bottom right", {far, far}}};
    QStringList white;
    for (auto probe = probes.begin(); probe != probes.end(); ++probe)
        if (qGreen(image.pixel(probe.value())) > 200)
            white << probe.key();
    return white.join(QStringLiteral(", "));
}
} // namespace

class TestHidComm : public QObject
{
    Q_OBJECT

private:
    SimulatedKeypad* keypad = nullptr;
    std::unique_ptr<Hid_Comm> hid;
    std::unique_ptr<KeyEventRecorder> recorder;
    // Transports a test switches to; they outlive the connection.
    std::unique_ptr<RecordingTransport> recording;
    std::unique_ptr<SimulatedKeypad> other;

    // The connection with a layout chosen (-1: none yet), once it has opened
    // the keypad.
    bool start(int layout = H_Key_15)
    {
        hid = std::make_unique<Hid_Comm>();
        if (layout >= 0)
            hid->onButtonLayoutChanged(KeyLayout(layout));
        recorder = std::make_unique<KeyEventRecorder>(hid.get());
        return QTest::qWaitFor([this] { return hid->isOpened(); });
    }

private slots:
    void init()
    {
        keypad = new SimulatedKeypad(0x1F41);
        HidTransport::setInstance(keypad);
    }

    void cleanup()
    {
        recorder.reset();
        hid.reset();
        recording.reset();
        HidTransport::setInstance(nullptr);
        other.reset();
        delete keypad;
    }

    void shouldOpenTheKeypadItFindsAtStartAndCloseItWhenDestroyed()
    {
        keypad->setProductId(0x1F40);
        QVERIFY(start(-1));
        QCOMPARE(keypad->openHandleCount(), 1);
        QVERIFY(!hid->openSDKeyboard(0xFFFF, 0x1F40)); // already open: left alone
        QCOMPARE(keypad->openHandleCount(), 1);
        recorder.reset();
        hid.reset();
        QCOMPARE(keypad->openHandleCount(), 0);
    }

    void shouldStayIdleWithoutAKeypad()
    {
        keypad->unplug();
        LogCapture capture;
        Hid_Comm idle;
        QTRY_COMPARE(capture.matching(QStringLiteral("Device not found")).size(), 7);
        QTest::qWait(1500);
        QVERIFY(!idle.isOpened());
        QCOMPARE(keypad->reportCount(SimulatedKeypad::ReportKind::KeyState), 0);
        QCOMPARE(capture.matching(QStringLiteral("Device not found")).size(), 7); // no reopening by itself
    }

    // One key at a time: chords and repeats say nothing, and the release
    // names the key that was pressed first. Nothing is read while suspended.
    void shouldReportOneKeyAtATimeAndNothingWhileSuspended()
    {
        QVERIFY(start());
        keypad->pressKey(3);
        QTRY_COMPARE(recorder->keyEvents(), QStringList{"press 4"});
        keypad->pressKey(3); // the same state again
        keypad->pressKey(7); // a chord
        keypad->releaseKey(3);
        keypad->releaseKey(7);
        QTRY_COMPARE(recorder->keyEvents(), (QStringList{"press 4", "release 4"}));
        keypad->pressKey(0);
        keypad->releaseKey(0);
        QTRY_COMPARE(recorder->keyEvents().mid(2), (QStringList{"press 1", "release 1"}));

        hid->onOS_suspend();
        QVERIFY(hid->isFinished());
        keypad->pressKey(1);
        QTest::qWait(300);
        QCOMPARE(recorder->keyEvents().size(), 4);
        hid->onOS_resumes();
        QTRY_COMPARE(recorder->keyEvents().mid(4), QStringList{"press 2"});
    }

    // A key the layout does not have, a key pressed while paused, and a
    // report that is no key report are dropped; the keys after them count.
    void shouldDropKeysItCannotUse()
    {
        LogCapture capture;
        QVERIFY(start(H_Key_6));
        keypad->pressKey(10); // not a key of a six-key keypad
        QTRY_COMPARE(recorder->keyEvents(), QStringList{"release -1"});
        keypad->releaseKey(10);
        QTRY_COMPARE(recorder->keyEvents().size(), 2);
        hid->setPaused(true);
        keypad->pressKey(2);
        keypad->queueRawInputReport(QByteArray("\x05garbage", 8));
        keypad->queueRawInputReport(QByteArray(1, '\x01')); // a key report cut short
        // Logged after the press was read, so the press met the pause.
        QTRY_COMPARE(capture.matching(QStringLiteral("read keyboard get Err_ParamInvalid!")).size(), 2);
        hid->setPaused(false);
        keypad->releaseKey(2);
        keypad->pressKey(4);
        QTRY_COMPARE(recorder->keyEvents(), (QStringList{"release -1", "release -1", "release -1", "press 5"}));
        QVERIFY(hid->isOpened());
    }

    void shouldCloseAnUnpluggedKeypadAndOpenItWhenItArrives()
    {
        LogCapture capture;
        QVERIFY(start());
        keypad->unplug();
        QTRY_VERIFY(!hid->isOpened());
        QTRY_COMPARE(recorder->events.value(recorder->events.size() - 1), QStringLiteral("disconnected"));
        QVERIFY(!capture.matching(QStringLiteral("Unable to read keyboard.")).isEmpty());
        QCOMPARE(keypad->openHandleCount(), 0);

        keypad->plugIn();
        hid->onKeyboardWasAdded(0xFFFF, 0x1F41);
        QVERIFY(hid->isOpened());
        QTRY_COMPARE(recorder->events.value(recorder->events.size() - 1), QStringLiteral("connected"));
    }

    // Opening a keypad forgets the key held on the one before, whose release
    // never comes: it must not block the keys of the next. Each switch comes
    // while the polling loop may still be handling that key's report.
    void shouldForgetTheHeldKeyWhenAKeypadOpens()
    {
        QVERIFY(start());
        other = std::make_unique<SimulatedKeypad>(0x1F41);
        SimulatedKeypad* const keypads[] = {keypad, other.get()};
        for (int round = 0; round < 8; ++round) {
            SimulatedKeypad* from = keypads[round % 2];
            from->pressKey(3);
            hid->switchTransport(keypads[(round + 1) % 2]);
            QVERIFY(hid->isOpened());
            from->releaseKey(3);
        }
        keypad->pressKey(5);
        QTRY_COMPARE(recorder->keyEvents().value(recorder->keyEvents().size() - 1), QStringLiteral("press 6"));
    }

    // The recording transport stands for hidapi. Each keypad refuses and
    // counts a call with a handle it did not give out.
    void shouldSwitchTransportsWithoutAHandleCrossingOver()
    {
        recording = std::make_unique<RecordingTransport>();
        QVERIFY(start());
        hid->switchTransport(keypad);
        QVERIFY(hid->isOpened());
        QCOMPARE(recording->closes, recording->opens);
        recording->clearCalls();
        QVERIFY(hid->sendIcon(3, markedImage(), false));

        other = std::make_unique<SimulatedKeypad>(0x1F44);
        hid->switchTransport(other.get());
        QVERIFY(hid->isOpened());
        QCOMPARE(keypad->openHandleCount(), 0);
        QCOMPARE(other->openHandleCount(), 1);
        QVERIFY(hid->sendIcon(5, markedImage(), false));
        other->pressKey(6);
        other->releaseKey(6);
        QTRY_COMPARE(recorder->keyEvents(), (QStringList{"press 7", "release 7"}));
        QCOMPARE(other->keysWithImages(), QList<int>{5});
        QCOMPARE(keypad->keysWithImages(), QList<int>{3});
        QVERIFY(recording->calls(RecordingTransport::Read).isEmpty()); // the polling loop moved on
        QVERIFY(recording->calls(RecordingTransport::Write).isEmpty());

        // A simulated keypad that is not there never leads to the maker's
        // library, which would reach a real keypad.
        LogCapture capture;
        other->unplug();
        hid->switchTransport(other.get());
        QVERIFY(!hid->isOpened());
        QVERIFY(!capture.matching(QStringLiteral("not used with a simulated keypad")).isEmpty());
        hid->switchTransport(keypad);
        QVERIFY(hid->isOpened());
        QCOMPARE(keypad->errorCount() + other->errorCount(), 0);
        QCOMPARE(other->openHandleCount(), 0);
    }

    // Each turn once, and both packet sizes; the table's own test has every layout.
    void shouldShowEveryKeyNumberedAndTurnedForItsLayout_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<QString>("corner"); // where the top-left corner ends up
        QTest::newRow("6 keys, horizontal") << 0 << "top right";
        QTest::newRow("6 keys, vertical") << 1 << "bottom left";
        QTest::newRow("15 keys, horizontal") << 2 << "bottom right";
        QTest::newRow("15 keys, vertical") << 3 << "bottom left";
        QTest::newRow("32 keys, horizontal") << 4 << "bottom right";
    }

    void shouldShowEveryKeyNumberedAndTurnedForItsLayout()
    {
        QFETCH(int, layout);
        QFETCH(QString, corner);
        QVERIFY(start(layout));
        QList<int> deviceKeys;
        for (int position = 0; position < KeypadTable::keyCount(layout); ++position)
            deviceKeys << KeypadTable::deviceKeyNumber(layout, position);
        for (int position = 0; position < deviceKeys.size(); ++position) {
            QVERIFY(hid->sendIcon(deviceKeys[position], markedImage(), false));
            const QImage shown = keypad->keyImage(deviceKeys[position]);
            QCOMPARE(shown.size(), QSize(72, 72));
            QCOMPARE(whiteCorner(shown), corner);
        }

        QImage page[Hid_Comm::MaxKeys]; // a whole page in one go
        for (int position = 0; position < Hid_Comm::MaxKeys; ++position) {
            page[position] = QImage(72, 72, QImage::Format_RGBA8888);
            page[position].fill(QColor(7 * position, 100, 0));
        }
        QVERIFY(hid->sendIconArray(page));
        for (int position = 0; position < deviceKeys.size(); ++position)
            QCOMPARE(qRed(keypad->keyImage(deviceKeys[position]).pixel(36, 36)), 7 * position);
        QCOMPARE(keypad->errorCount(), 0);
    }

    void shouldFitAnEffectIconIntoTheMiddle()
    {
        QVERIFY(start(H_Key_32));
        QImage wide(100, 50, QImage::Format_RGBA8888);
        wide.fill(Qt::green);
        QVERIFY(hid->sendIcon(1, wide, true));
        const QImage shown = keypad->keyImage(1);
        QCOMPARE(shown.pixelColor(36, 36), QColor(Qt::green));
        QCOMPARE(shown.pixelColor(36, 5), QColor(Qt::black)); // 50 x 25, centred
        QCOMPARE(shown.pixelColor(5, 36), QColor(Qt::black));
    }

    // No layout yet, a key beyond the layout, no item, a wedged keypad.
    void shouldRefuseWhatItCannotSend()
    {
        QVERIFY(start(-1));
        QVERIFY(!hid->sendIcon(1, markedImage(), false));
        hid->onButtonLayoutChanged(H_Key_15);
        QVERIFY(!hid->sendIcon(16, markedImage(), false));
        hid->onUpdateContent(nullptr);
        keypad->setWedgeTimeoutMs(100);
        keypad->setWedged(true);
        QVERIFY(!hid->sendIcon(1, markedImage(), false));
        QVERIFY(!hid->showLogo());
        keypad->setWedged(false);
        QVERIFY(hid->sendIcon(1, markedImage(), false));
        QVERIFY(keypad->keysWithImages() == QList<int>{1});
    }

    void shouldAnswerSerialVersionBacklightAndLogo()
    {
        keypad->setSerialNumber("KS-SIM-000000007");
        keypad->setFirmwareVersionText("VKP V1.0.170121");
        QVERIFY(start(-1));
        QString serial, version;
        QVERIFY(hid->readSerialNumber(serial));
        QCOMPARE(serial, QStringLiteral("KS-SIM-000000007"));
        QVERIFY(hid->readFWVersion(version));
        QCOMPARE(version, QStringLiteral("0.170121"));
        hid->setBacklight(64);
        QCOMPARE(keypad->backlight(), 64);
        QVERIFY(hid->showLogo());
        QVERIFY(keypad->isLogoShown());
    }

    // Flashed through its boot loader, the keypad comes back under its own id
    // and is opened again only when it arrives. (The firmware page test flashes
    // the horizontal model and stops at an unacknowledged page.)
    void shouldFlashTheSixKeyKeypadThroughItsBootLoader()
    {
        keypad->setProductId(0x1F42);
        QVERIFY(start(V_Key_6));
        QByteArray body(3 * 2048, '\0');
        for (int i = 0; i < body.size(); ++i)
            body[i] = char(i * 13);
        QVERIFY(hid->updateFW(QByteArray(64, 'h') + body));
        QCOMPARE(keypad->acknowledgedPages(), (QList<int>{0, 1, 2}));
        QCOMPARE(keypad->flashedFirmware(), body);
        QVERIFY(!hid->isOpened());
        QVERIFY(!keypad->isInBootLoader());
        hid->onKeyboardWasAdded(0xFFFF, 0x1F42);
        QVERIFY(hid->isOpened());
    }

    void shouldCommitMainFirmwareFromAFileOrBytes()
    {
        QVERIFY(start(H_Key_15));
        const QByteArray image = QByteArray(64, 'h') + QByteArray(20000, '\x03');
        QVector<QPair<int, int>> steps;
        QVERIFY(hid->updateFW(image, [&](int done, int total) { steps.append({done, total}); }));
        // 20064 bytes: two full chunks and the rest.
        QCOMPARE(steps, (QVector<QPair<int, int>>{{0, 3}, {1, 3}, {2, 3}, {3, 3}}));
        QVERIFY(keypad->firmwareCommit().committed);
        QVERIFY(keypad->firmwareCommit().checksumMatches);
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(image);
        file.close();
        QVERIFY(hid->updateFW(file.fileName()));
        QCOMPARE(keypad->firmwareCommit().declaredChecksum, quint32(3 * (20000 - 13)));
        QVERIFY(!hid->updateFW(QString()));
        QVERIFY(!hid->updateFW(QByteArray()));
    }
};

KEYSTAGE_TEST_MAIN(TestHidComm)
#include "tst_hid_comm.moc"
