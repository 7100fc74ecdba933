#include "hid_comm.h"
#include "keyeventrecorder.h"
#include "logcapture.h"
#include "simulatedkeypad.h"
#include "testmain.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QTemporaryFile>

namespace {
// A picture whose orientation can be read back: red, with a white block in
// its top-left corner.
QImage markedImage(int size = Hid_Comm::KeyImageSize)
{
    QImage image(size, size, QImage::Format_RGBA8888);
    image.fill(Qt::red);
    QPainter painter(&image);
    painter.fillRect(0, 0, size / 4, size / 4, Qt::white);
    return image;
}

enum Corner
{
    TopLeft,
    TopRight,
    BottomLeft,
    BottomRight
};

Corner whiteCorner(const QImage& image)
{
    const int far = image.width() - 4;
    const QPoint probes[] = {{4, 4}, {far, 4}, {4, far}, {far, far}};
    for (int corner = 0; corner < 4; ++corner) {
        if (qGreen(image.pixel(probes[corner])) > 200)
            return Corner(corner);
    }
    return Corner(-1);
}
} // namespace

class TestHidComm : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        keypad = new SimulatedKeypad(0x1F41);
        HidTransport::setInstance(keypad);
    }

    void cleanup()
    {
        HidTransport::setInstance(nullptr);
        delete keypad;
    }

    void shouldOpenTheKeypadItFindsAtStart()
    {
        keypad->setProductId(0x1F40);
        Hid_Comm hid;
        QTRY_VERIFY(hid.isOpened());
        QCOMPARE(keypad->openHandleCount(), 1);
        QVERIFY(!hid.openSDKeyboard(0xFFFF, 0x1F40)); // already open: left alone
        QCOMPARE(keypad->openHandleCount(), 1);
    }

    void shouldStayIdleWithoutAKeypad()
    {
        keypad->unplug();
        LogCapture capture;
        Hid_Comm hid;
        QTRY_COMPARE(capture.matching(QStringLiteral("Device not found")).size(), 7);
        QTest::qWait(1500);
        QVERIFY(!hid.isOpened());
        QCOMPARE(keypad->reportCount(SimulatedKeypad::ReportKind::KeyState), 0);
        QCOMPARE(capture.matching(QStringLiteral("Device not found")).size(), 7); // no reopening by itself
    }

    // One key at a time: chords and repeats say nothing, and the release
    // names the key that was pressed first.
    void shouldReportOneKeyAtATime()
    {
        Hid_Comm hid;
        hid.onButtonLayoutChanged(H_Key_15);
        KeyEventRecorder recorder(&hid);
        QTRY_VERIFY(hid.isOpened());
        keypad->pressKey(3);
        QTRY_COMPARE(recorder.keyEvents(), QStringList{"press 4"});
        keypad->pressKey(3); // the same state again
        keypad->pressKey(7); // a chord
        keypad->releaseKey(3);
        keypad->releaseKey(7);
        QTRY_COMPARE(recorder.keyEvents(), (QStringList{"press 4", "release 4"}));
        keypad->pressKey(0);
        keypad->releaseKey(0);
        QTRY_COMPARE(recorder.keyEvents().mid(2), (QStringList{"press 1", "release 1"}));
    }

    void shouldOnlySeeTheLayoutsKeys()
    {
        Hid_Comm hid;
        hid.onButtonLayoutChanged(H_Key_6);
        KeyEventRecorder recorder(&hid);
        QTRY_VERIFY(hid.isOpened());
        keypad->pressKey(10); // not a key of a six-key keypad
        QTRY_COMPARE(recorder.keyEvents(), QStringList{"release -1"});
    }

    void shouldDropKeysWhilePaused()
    {
        Hid_Comm hid;
        hid.onButtonLayoutChanged(H_Key_15);
        KeyEventRecorder recorder(&hid);
        QTRY_VERIFY(hid.isOpened());
        hid.setPaused(true);
        keypad->pressKey(2);
        QTRY_COMPARE(keypad->pendingInputReports(), 0);
        hid.setPaused(false);
        keypad->releaseKey(2);
        keypad->pressKey(4);
        QTRY_COMPARE(recorder.keyEvents(), (QStringList{"release -1", "press 5"}));
    }

    void shouldSurviveGarbageReports()
    {
        LogCapture capture;
        Hid_Comm hid;
        hid.onButtonLayoutChanged(H_Key_15);
        KeyEventRecorder recorder(&hid);
        QTRY_VERIFY(hid.isOpened());
        keypad->queueRawInputReport(QByteArray("\x05garbage", 8));
        keypad->queueRawInputReport(QByteArray(1, '\x01')); // a key report cut short
        QTRY_VERIFY(!capture.matching(QStringLiteral("read keyboard get Err_ParamInvalid!")).isEmpty());
        keypad->pressKey(1);
        QTRY_VERIFY(recorder.keyEvents().contains(QStringLiteral("press 2")));
        QVERIFY(hid.isOpened());
    }

    void shouldCloseAnUnpluggedKeypadAndOpenItWhenItArrives()
    {
        LogCapture capture;
        Hid_Comm hid;
        KeyEventRecorder recorder(&hid);
        QTRY_VERIFY(hid.isOpened());
        keypad->unplug();
        QTRY_VERIFY(!hid.isOpened());
        QTRY_COMPARE(recorder.events.last(), QStringLiteral("disconnected"));
        QVERIFY(!capture.matching(QStringLiteral("Unable to read keyboard.")).isEmpty());
        QCOMPARE(keypad->openHandleCount(), 0);

        keypad->plugIn();
        hid.onKeyboardWasAdded(0xFFFF, 0x1F41);
        QVERIFY(hid.isOpened());
        QTRY_COMPARE(recorder.events.last(), QStringLiteral("connected"));
    }

    void shouldStopPollingWhileSuspended()
    {
        Hid_Comm hid;
        hid.onButtonLayoutChanged(H_Key_15);
        KeyEventRecorder recorder(&hid);
        QTRY_VERIFY(hid.isOpened());
        hid.onOS_suspend();
        QVERIFY(hid.isFinished());
        keypad->pressKey(1);
        QTest::qWait(300);
        QVERIFY(recorder.keyEvents().isEmpty());
        hid.onOS_resumes();
        QTRY_COMPARE(recorder.keyEvents(), QStringList{"press 2"});
    }

    void shouldShowEveryKeyNumberedAndTurnedForItsLayout_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<QList<int>>("deviceKeys");
        QTest::addColumn<int>("corner");
        QTest::newRow("6 keys, horizontal") << 0 << QList<int>{0, 1, 2, 3, 4, 5} << int(TopRight);
        QTest::newRow("6 keys, vertical") << 1 << QList<int>{4, 1, 5, 2, 6, 3} << int(BottomLeft);
        QTest::newRow("15 keys, horizontal")
            << 2 << QList<int>{5, 4, 3, 2, 1, 10, 9, 8, 7, 6, 15, 14, 13, 12, 11} << int(BottomRight);
        QTest::newRow("15 keys, vertical")
            << 3 << QList<int>{1, 6, 11, 2, 7, 12, 3, 8, 13, 4, 9, 14, 5, 10, 15} << int(BottomLeft);
        QList<int> oneBased, zeroBased;
        for (int i = 0; i < 32; ++i) {
            oneBased << i + 1;
            zeroBased << i;
        }
        QTest::newRow("32 keys, horizontal") << 4 << oneBased << int(BottomRight);
        QTest::newRow("32 keys, vertical") << 5 << zeroBased << int(BottomLeft);
    }

    void shouldShowEveryKeyNumberedAndTurnedForItsLayout()
    {
        QFETCH(int, layout);
        QFETCH(QList<int>, deviceKeys);
        QFETCH(int, corner);
        Hid_Comm hid;
        hid.onButtonLayoutChanged(KeyLayout(layout));
        QTRY_VERIFY(hid.isOpened());
        for (int position = 0; position < deviceKeys.size(); ++position) {
            QImage face = markedImage();
            face.setPixelColor(40, 40, QColor(position, 0, 0)); // which position this is
            QVERIFY(hid.sendIcon(deviceKeys[position], face, false));
            const QImage shown = keypad->keyImage(deviceKeys[position]);
            QCOMPARE(shown.size(), QSize(72, 72));
            QCOMPARE(int(whiteCorner(shown)), corner);
            QCOMPARE(Hid_Comm::deviceKeyNumber(layout, position), deviceKeys[position]);
        }
        QCOMPARE(Hid_Comm::deviceKeyNumber(layout, deviceKeys.size()), -1);
        QCOMPARE(keypad->errorCount(), 0);
    }

    void shouldSendAPageOfImagesInOneGo()
    {
        Hid_Comm hid;
        hid.onButtonLayoutChanged(V_Key_6);
        QTRY_VERIFY(hid.isOpened());
        QImage images[Hid_Comm::MaxKeys];
        for (int position = 0; position < Hid_Comm::MaxKeys; ++position) {
            images[position] = QImage(72, 72, QImage::Format_RGBA8888);
            images[position].fill(QColor(10 * position, 100, 0));
        }
        QVERIFY(hid.sendIconArray(images));
        const QList<int> deviceKeys{4, 1, 5, 2, 6, 3};
        for (int position = 0; position < 6; ++position)
            QCOMPARE(qRed(keypad->keyImage(deviceKeys[position]).pixel(36, 36)), 10 * position);
        QCOMPARE(keypad->keysWithImages().size(), 6);
        QCOMPARE(keypad->reportCount(SimulatedKeypad::ReportKind::DataChunkSmall) % 6, 0);
    }

    void shouldFitAnEffectIconIntoTheMiddle()
    {
        Hid_Comm hid;
        hid.onButtonLayoutChanged(H_Key_32);
        QTRY_VERIFY(hid.isOpened());
        QImage wide(100, 50, QImage::Format_RGBA8888);
        wide.fill(Qt::green);
        QVERIFY(hid.sendIcon(1, wide, true));
        const QImage shown = keypad->keyImage(1);
        QCOMPARE(shown.pixelColor(36, 36), QColor(Qt::green));
        QCOMPARE(shown.pixelColor(36, 5), QColor(Qt::black)); // 50 x 25, centred
        QCOMPARE(shown.pixelColor(5, 36), QColor(Qt::black));
    }

    void shouldRefuseKeysAndLayoutsItDoesNotHave()
    {
        LogCapture capture;
        Hid_Comm hid;
        QTRY_VERIFY(hid.isOpened());
        QVERIFY(!hid.sendIcon(1, markedImage(), false));
        QVERIFY(!capture.matching(QStringLiteral("ERROR: currLayout is invalid!!!!")).isEmpty());
        hid.onButtonLayoutChanged(H_Key_15);
        QVERIFY(!hid.sendIcon(16, markedImage(), false));
        QVERIFY(!capture.matching(QStringLiteral("index out of range: 16")).isEmpty());
        hid.onUpdateContent(nullptr);
        QVERIFY(!capture.matching(QStringLiteral("ERROR: keyItem is nullptr!!")).isEmpty());
    }

    void shouldGiveUpOnAWedgedKeypad()
    {
        Hid_Comm hid;
        hid.onButtonLayoutChanged(H_Key_15);
        QTRY_VERIFY(hid.isOpened());
        keypad->setWedgeTimeoutMs(100);
        keypad->setWedged(true);
        QVERIFY(!hid.sendIcon(1, markedImage(), false));
        QVERIFY(!hid.showLogo());
        keypad->setWedged(false);
        QVERIFY(hid.sendIcon(1, markedImage(), false));
    }

    void shouldAnswerSerialVersionBacklightAndLogo()
    {
        keypad->setSerialNumber("KS-SIM-000000007");
        keypad->setFirmwareVersionText("VKP V1.0.170121");
        Hid_Comm hid;
        QTRY_VERIFY(hid.isOpened());
        QString serial, version;
        QVERIFY(hid.readSerialNumber(serial));
        QCOMPARE(serial, QStringLiteral("KS-SIM-000000007"));
        QVERIFY(hid.readFWVersion(version));
        QCOMPARE(version, QStringLiteral("0.170121"));
        hid.setBacklight(64);
        QCOMPARE(keypad->backlight(), 64);
        QVERIFY(hid.showLogo());
        QVERIFY(keypad->isLogoShown());
    }

    void shouldFlashTheSixKeyKeypadThroughItsBootLoader()
    {
        keypad->setProductId(0x1F43);
        Hid_Comm hid;
        hid.onButtonLayoutChanged(H_Key_6);
        KeyEventRecorder recorder(&hid);
        QTRY_VERIFY(hid.isOpened());
        QByteArray body(3 * 2048, '\0');
        for (int i = 0; i < body.size(); ++i)
            body[i] = char(i * 13);
        QVERIFY(hid.updateFW(QByteArray(64, 'h') + body));
        QCOMPARE(keypad->acknowledgedPages(), (QList<int>{0, 1, 2}));
        QCOMPARE(keypad->flashedFirmware(), body);
        QVERIFY(!hid.isOpened()); // back under its own id, to be opened on arrival
        QVERIFY(!keypad->isInBootLoader());
        hid.onKeyboardWasAdded(0xFFFF, 0x1F43);
        QVERIFY(hid.isOpened());
    }

    void shouldFailTheUpgradeOnAMissingAcknowledgement()
    {
        keypad->setProductId(0x1F42);
        Hid_Comm hid;
        hid.onButtonLayoutChanged(V_Key_6);
        QTRY_VERIFY(hid.isOpened());
        keypad->failAcknowledgeAtPage(1);
        QVERIFY(!hid.updateFW(QByteArray(64, 'h') + QByteArray(3 * 2048, 'b')));
        QCOMPARE(keypad->acknowledgedPages(), QList<int>{0});
        QVERIFY(!hid.updateFW(QByteArray()));
    }

    void shouldCommitMainFirmwareFromAFileOrBytes()
    {
        Hid_Comm hid;
        hid.onButtonLayoutChanged(H_Key_15);
        QTRY_VERIFY(hid.isOpened());
        const QByteArray image = QByteArray(64, 'h') + QByteArray(20000, '\x03');
        QVERIFY(hid.updateFW(image));
        QVERIFY(keypad->firmwareCommit().committed);
        QVERIFY(keypad->firmwareCommit().checksumMatches);
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(image);
        file.close();
        QVERIFY(hid.updateFW(file.fileName()));
        QCOMPARE(keypad->firmwareCommit().declaredChecksum, quint32(3 * (20000 - 13)));
        QVERIFY(!hid.updateFW(QString()));
    }

    void shouldCloseTheKeypadWhenDestroyed()
    {
        {
            Hid_Comm hid;
            QTRY_VERIFY(hid.isOpened());
        }
        QCOMPARE(keypad->openHandleCount(), 0);
    }

private:
    SimulatedKeypad* keypad = nullptr;
};

KEYSTAGE_TEST_MAIN(TestHidComm)
#include "tst_hid_comm.moc"
