#include "firmwarepage.h"
#include "keypadfixture.h"
#include "testmain.h"
#include "userquestion.h"

#include <QDir>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>

namespace {
constexpr int UpdateTimeoutMs = 60000;
constexpr int ImagePages = 6;

// A boot loader image: whole 2048-byte pages with a pattern that shows
// misplaced bytes.
QByteArray firmwareBody()
{
    QByteArray body(ImagePages * SimulatedKeypad::BootPageSize, '\0');
    for (int i = 0; i < body.size(); ++i)
        body[i] = char(i * 7 + i / 2048);
    return body;
}
} // namespace

// The firmware page over the simulated six-key keypad and its boot loader.
class TestFirmwarePage : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        fixture.setUp(0x1F43);
        fixture.useLayout(H_Key_6);
        QTRY_VERIFY(fixture.hid->isOpened());
        const QString folder =
            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/firmware");
        QDir(folder).removeRecursively();
        QVERIFY(QDir().mkpath(folder));
        QFile file(folder + QStringLiteral("/F28B23P1F43_170200.bin"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(firmwareBody());
        asked = UserQuestion();
        UserQuestions::setHandler([this](const UserQuestion& question) {
            asked = question;
            return UserAnswer{answer, false};
        });
        answer = UserQuestion::Yes;
    }

    void cleanup()
    {
        UserQuestions::setHandler(nullptr);
        fixture.tearDown();
    }

    void shouldSayWhatItCanOffer_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<bool>("unplugged");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("statusText");
        QTest::newRow("image for the keypad")
            << int(H_Key_6) << false << int(FirmwareUpdater::Status::Ready) << QString();
        QTest::newRow("no image matches") << int(H_Key_15) << false << int(FirmwareUpdater::Status::NoImage)
                                          << QStringLiteral("no firmware for this keypad (VKP-15P)");
        QTest::newRow("no keypad") << int(H_Key_6) << true << int(FirmwareUpdater::Status::NoKeypad)
                                   << QStringLiteral("No keypad connected");
    }

    void shouldSayWhatItCanOffer()
    {
        QFETCH(int, layout);
        QFETCH(bool, unplugged);
        QFETCH(int, status);
        QFETCH(QString, statusText);
        fixture.useLayout(layout);
        if (unplugged) {
            fixture.keypad->unplug();
            QTRY_VERIFY(!fixture.hid->isOpened());
        }
        answer = UserQuestion::No;
        FirmwarePage page;
        QTRY_COMPARE(int(page.updater()->status()), status);
        QCOMPARE(page.updateButton()->isEnabled(), status == int(FirmwareUpdater::Status::Ready));
        if (statusText.isEmpty()) {
            QVERIFY(page.statusLabel()->isHidden());
            QCOMPARE(page.updater()->deviceInfo().currentVersion, QStringLiteral("0.170121"));
            QCOMPARE(page.updater()->deviceInfo().packagedVersion, QStringLiteral("1.0.170200"));
        } else {
            QVERIFY2(page.statusLabel()->text().contains(statusText), qPrintable(page.statusLabel()->text()));
        }
        // Only a keypad with an image of its own is asked about.
        QVERIFY(!page.updater()->offerUpdate());
        QCOMPARE(asked.title.isEmpty(), status != int(FirmwareUpdater::Status::Ready));
    }

    void shouldUpdateThroughTheBootLoaderWhileTheWindowKeepsRunning()
    {
        FirmwarePage page;
        QTRY_COMPARE(page.updater()->status(), FirmwareUpdater::Status::Ready);
        QSignalSpy flashed(fixture.keypad.get(), &SimulatedKeypad::firmwareFlashed);
        QVector<int> progress;
        connect(page.updater(), &FirmwareUpdater::progressChanged, this, [&](int percent) { progress << percent; });
        int ticks = 0;
        QTimer ticker;
        ticker.setInterval(20);
        connect(&ticker, &QTimer::timeout, this, [&] { ++ticks; });
        ticker.start();

        page.updateButton()->click();
        QCOMPARE(asked.title, QStringLiteral("Do you want to update firmware?"));
        QVERIFY(asked.text.contains(QStringLiteral("1.0.170200")));
        QVERIFY(page.updater()->isUpdating());
        QVERIFY(fixture.hid->isPaused());
        QString why;
        QVERIFY(!page.canClose(why));
        QVERIFY(why.contains(QStringLiteral("still running")));
        QVERIFY(!page.updateButton()->isEnabled());

        // Other device calls give way instead of waiting for the update.
        QTRY_VERIFY(fixture.keypad->isInBootLoader());
        QVERIFY(!fixture.hid->showLogo());
        QVERIFY(fixture.hid->isUpdatingFirmware());

        QTRY_VERIFY_WITH_TIMEOUT(!page.updater()->isUpdating(), UpdateTimeoutMs);
        ticker.stop();
        // The update takes seconds; a frozen GUI thread would not tick at all.
        QVERIFY2(ticks >= 10, qPrintable(QString::number(ticks)));
        QCOMPARE(page.updater()->outcome(), FirmwareUpdater::Outcome::Flashed);
        QCOMPARE(flashed.count(), 1);
        QCOMPARE(fixture.keypad->flashedFirmware(), firmwareBody());
        QVERIFY(progress.size() > 2);
        QVERIFY(std::is_sorted(progress.begin(), progress.end()));
        QCOMPARE(progress.last(), 100);
        QCOMPARE(page.progressBar()->value(), 100);
        QVERIFY(page.resultLabel()->text().contains(QStringLiteral("updated")));
        QVERIFY(page.canClose(why));
        QVERIFY(!fixture.hid->isPaused());
        // The keypad came back from its boot loader and was opened again.
        QVERIFY(fixture.hid->isOpened());
        QCOMPARE(page.updater()->status(), FirmwareUpdater::Status::Ready);
    }

    void shouldShowAFailedUpdate()
    {
        FirmwarePage page;
        QTRY_COMPARE(page.updater()->status(), FirmwareUpdater::Status::Ready);
        fixture.keypad->failAcknowledgeAtPage(2);
        QVERIFY(page.updater()->offerUpdate());
        QTRY_VERIFY_WITH_TIMEOUT(!page.updater()->isUpdating(), UpdateTimeoutMs);
        QCOMPARE(page.updater()->outcome(), FirmwareUpdater::Outcome::Failed);
        QCOMPARE(fixture.keypad->acknowledgedPages(), (QList<int>{0, 1}));
        QCOMPARE(page.progressBar()->value(), 100 * 2 / ImagePages);
        QVERIFY(!page.progressBar()->isHidden());
        QVERIFY(page.resultLabel()->text().contains(QStringLiteral("failed")));
        QString why;
        QVERIFY(page.canClose(why));
        QVERIFY(!fixture.hid->isPaused());
    }

private:
    KeypadFixture fixture;
    UserQuestion asked;
    UserQuestion::Button answer = UserQuestion::Yes;
};

KEYSTAGE_TEST_MAIN(TestFirmwarePage)
#include "tst_firmwarepage.moc"
