#include "facehints.h"
#include "ka_folder.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keypaddimmer.h"
#include "keypadfixture.h"
#include "livefacepainter.h"
#include "livefaceupdater.h"
#include "sysmonitor.h"
#include "systemreadings.h"
#include "testfiles.h"
#include "testmain.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

using FaceHints::LiveKind;
using Kind = SimulatedKeypad::ReportKind;

namespace {

constexpr int Patience = 30000;
constexpr int Hour = 3600 * 1000;
constexpr int CpuKey = 2;
constexpr int MemoryKey = 5;
constexpr int StaticKey = 7;

SystemReadings readings(double processor, double memory)
{
    SystemReadings values;
    values.processorPercent = processor;
    values.memoryPercent = memory;
    return values;
}

QImage asShown(const QImage& image)
{
    return image.convertToFormat(QImage::Format_RGB888);
}

} // namespace

Q_DECLARE_METATYPE(SystemReadings)

// Live keys on a simulated keypad: what is sent, when, and when the sampler
// runs. The sampler reads fixture files and samples once per activation (its
// interval is an hour); the tests publish the figures themselves.
class LiveFacesTest : public QObject
{
    Q_OBJECT

    KeypadFixture fx;
    QTemporaryDir procRoot;
    qint64 now = 0;
    std::unique_ptr<KeypadDimmer> dimmer;
    std::unique_ptr<SysMonitor> monitor;
    std::unique_ptr<LiveFaceUpdater> updater;

    KeyItem* liveKey(int keyIdx, LiveKind kind, QList<KeyItem*>* page = nullptr)
    {
        auto* item = new KeyItem(KAT_PASTE_STRING, keyIdx, H_Key_15);
        for (KeyRenderInfo& face : item->render)
            face.hintFlags = FaceHints::withLiveKind(face.hintFlags, kind);
        if (!page) {
            fx.model->beginUpdate();
            page = fx.model->getCurrentLayoutListHead();
            page->append(item);
            item->ownerList = page;
            fx.model->endUpdate(true, item);
        } else {
            page->append(item);
            item->ownerList = page;
        }
        return item;
    }

    void settle()
    {
        // The model's and the keypad's notices arrive queued.
        QCoreApplication::sendPostedEvents();
        updater->rescan();
    }

    void sendFigures(const SystemReadings& values)
    {
        SystemReadings::publish(values);
        updater->refresh();
    }

    void dim(bool dimmed)
    {
        DimmingSettings settings;
        settings.dimAfterMinutes = 1;
        settings.brightness = 80;
        settings.dimLevel = 10;
        dimmer->setSettings(settings); // lit, as any change
        if (dimmed) {
            now += KeypadDimmer::MsPerMinute;
            dimmer->checkIdle();
            QVERIFY(dimmer->isDimmed());
        }
    }

private slots:
    void initTestCase()
    {
        QVERIFY(TestFiles::write(procRoot.filePath("proc/stat"), "cpu 1 0 1 2 0 0 0 0 0 0\n"));
        QVERIFY(TestFiles::write(procRoot.filePath("proc/meminfo"), "MemTotal: 100 kB\nMemAvailable: 50 kB\n"));
        QVERIFY(TestFiles::write(procRoot.filePath("proc/net/dev"), "a|bytes\n b|\neth0: 1 2 3 4 5 6 7 8 9 10\n"));
    }

    void init()
    {
        SystemReadings::clear();
        fx.setUp();
        QTRY_VERIFY_WITH_TIMEOUT(fx.hid->isOpened(), Patience);
        fx.useLayout(H_Key_15);
        now = 1000;
        dimmer = std::make_unique<KeypadDimmer>([this] { return now; }, KeypadDimmer::MsPerMinute);
        monitor = std::make_unique<SysMonitor>(procRoot.path(), Hour);
        updater = std::make_unique<LiveFaceUpdater>(fx.model.get(), fx.hid.get(), monitor.get(), dimmer.get());
        dim(false);
    }

    void cleanup()
    {
        updater.reset();
        monitor.reset();
        dimmer.reset();
        fx.tearDown();
        SystemReadings::clear();
    }

    void shouldSendOnlyTheKeysWhoseFaceChanged_data()
    {
        QTest::addColumn<SystemReadings>("next");
        QTest::addColumn<QList<int>>("sent");
        QTest::newRow("processor") << readings(55, 20) << QList<int>{CpuKey};
        QTest::newRow("memory") << readings(10, 21) << QList<int>{MemoryKey};
        QTest::newRow("both") << readings(99, 80) << QList<int>{CpuKey, MemoryKey};
        QTest::newRow("nothing") << readings(10, 20) << QList<int>{};
        QTest::newRow("a change too small to show") << readings(10.2, 19.9) << QList<int>{};
    }

    void shouldSendOnlyTheKeysWhoseFaceChanged()
    {
        QFETCH(SystemReadings, next);
        QFETCH(QList<int>, sent);
        liveKey(CpuKey, LiveKind::Processor);
        liveKey(MemoryKey, LiveKind::Memory);
        QVERIFY(fx.model->createKeyAction(StaticKey, KAT_HOTKEY));
        settle();
        QTRY_VERIFY_WITH_TIMEOUT(monitor->sampleCount() == 1, Patience); // the fixture's figures
        sendFigures(readings(10, 20));

        fx.keypad->clearReports();
        QSignalSpy redrawn(updater.get(), &LiveFaceUpdater::faceChanged);
        sendFigures(next);

        QCOMPARE(fx.keypad->reportCount(Kind::ShowImage), sent.size());
        QCOMPARE(redrawn.size(), sent.size());
        for (int keyIdx : sent) {
            const int deviceKey = Hid_Comm::deviceKeyNumber(H_Key_15, keyIdx);
            QCOMPARE(
                asShown(fx.keypad->keyImage(deviceKey)),
                asShown(Hid_Comm::orientForLayout(KeyFaceRenderer::render(fx.model->keyItemAt(keyIdx)), H_Key_15)));
        }
        sendFigures(next); // the same again: nothing more
        QCOMPARE(fx.keypad->reportCount(Kind::ShowImage), sent.size());
        QCOMPARE(fx.keypad->errorCount(), 0);
    }

    // A held live key changes its figure under the pressed look, and shows it
    // plainly again once let go.
    void shouldKeepAHeldKeysPressedLook()
    {
        liveKey(CpuKey, LiveKind::Processor);
        settle();
        QTRY_VERIFY_WITH_TIMEOUT(monitor->sampleCount() == 1, Patience);
        const int deviceKey = Hid_Comm::deviceKeyNumber(H_Key_15, CpuKey);
        const auto plainFace = [this] {
            return asShown(Hid_Comm::orientForLayout(KeyFaceRenderer::render(fx.model->keyItemAt(CpuKey)), H_Key_15));
        };
        updater->setPressedLook(CpuKey, true);
        sendFigures(readings(55, 0));
        QVERIFY(asShown(fx.keypad->keyImage(deviceKey)) != plainFace());
        updater->setPressedLook(CpuKey, false);
        sendFigures(readings(56, 0));
        QCOMPARE(asShown(fx.keypad->keyImage(deviceKey)), plainFace());
    }

    void shouldSendNothingWhileDimmedAndCatchUpOnWaking()
    {
        liveKey(CpuKey, LiveKind::Processor);
        settle();
        QTRY_VERIFY_WITH_TIMEOUT(monitor->sampleCount() == 1, Patience);
        dim(true);
        QVERIFY(!monitor->isActive()); // the editor is not shown either
        fx.keypad->clearReports();
        sendFigures(readings(42, 0));
        sendFigures(readings(43, 0));
        QCOMPARE(fx.keypad->reportCount(Kind::ShowImage), 0);
        // Drawn now: on waking the sampler publishes figures of its own.
        const QImage latest = KeyFaceRenderer::render(fx.model->keyItemAt(CpuKey));

        dim(false);
        QVERIFY(monitor->isActive());
        QCOMPARE(fx.keypad->reportCount(Kind::ShowImage), 1);
        QCOMPARE(asShown(fx.keypad->keyImage(Hid_Comm::deviceKeyNumber(H_Key_15, CpuKey))),
                 asShown(Hid_Comm::orientForLayout(latest, H_Key_15)));
    }

    void shouldSampleOnlyWhileALiveKeyIsShown()
    {
        QVERIFY(fx.model->createKeyAction(1, KAT_FOLDER));
        auto* folder = static_cast<KA_Folder*>(fx.model->keyItemAt(1)->action[0]);
        liveKey(0, LiveKind::Network, &folder->childList);
        updater->setEditorVisible(true);
        settle();
        QVERIFY(!monitor->isActive());
        QVERIFY(!updater->isClockRunning());

        fx.model->changeListHead(folder, &folder->childList);
        settle();
        QVERIFY(monitor->isActive());
        QTRY_VERIFY_WITH_TIMEOUT(monitor->sampleCount() == 1, Patience);
        QCOMPARE(monitor->fileReads(), 3);

        fx.model->changeListToRoot();
        settle();
        QVERIFY(!monitor->isActive());

        // The time needs no sampler; nobody looking needs nothing.
        liveKey(4, LiveKind::Clock);
        settle();
        QVERIFY(!monitor->isActive());
        QVERIFY(updater->isClockRunning());
        updater->setEditorVisible(false);
        fx.keypad->unplug();
        QTRY_VERIFY_WITH_TIMEOUT(!fx.hid->isOpened(), Patience);
        settle();
        QVERIFY(!updater->isClockRunning());
        QCOMPARE(monitor->sampleCount(), 1);
    }

    void shouldDrawTheFigureOrElseTheStaticFace_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<SystemReadings>("values");
        QTest::addColumn<QString>("text"); // empty: the static face
        const auto network = [](double received, double sent) {
            SystemReadings values = readings(-1, -1);
            values.receiveBytesPerSecond = received;
            values.sendBytesPerSecond = sent;
            return values;
        };
        QTest::newRow("processor") << int(LiveKind::Processor) << readings(37.4, -1) << "37%";
        QTest::newRow("memory") << int(LiveKind::Memory) << readings(-1, 99.6) << "100%";
        QTest::newRow("network") << int(LiveKind::Network) << network(1234567, 999) << "1.2M/999";
        QTest::newRow("network, rounded up a unit") << int(LiveKind::Network) << network(999.7, 9999999) << "1.0K/10M";
        QTest::newRow("network, fast") << int(LiveKind::Network) << network(125e9, 12345) << "125G/12K";
        QTest::newRow("processor not known yet") << int(LiveKind::Processor) << readings(-1, 50) << "";
        QTest::newRow("network not known yet") << int(LiveKind::Network) << readings(5, 5) << "";
    }

    void shouldDrawTheFigureOrElseTheStaticFace()
    {
        QFETCH(int, kind);
        QFETCH(SystemReadings, values);
        QFETCH(QString, text);
        QCOMPARE(LiveFacePainter::valueText(LiveKind(kind), values, QDateTime()), text);
        KeyRenderInfo face;
        face.text = QStringLiteral("Static");
        const QImage staticFace = KeyFaceRenderer::render(face);
        face.hintFlags = FaceHints::withGraph(FaceHints::withLiveKind(face.hintFlags, LiveKind(kind)), true);
        SystemReadings::publish(values);
        QCOMPARE(KeyFaceRenderer::render(face) == staticFace, text.isEmpty());
    }

    void shouldShowTheTimeAsTheLocaleWritesIt_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("clock");
        QTest::newRow("24 hours") << "de_DE"
                                  << "14:05";
        QTest::newRow("12 hours") << "en_US"
                                  << "2:05 PM";
    }

    void shouldShowTheTimeAsTheLocaleWritesIt()
    {
        QFETCH(QString, locale);
        QFETCH(QString, clock);
        const QDateTime at(QDate(2026, 11, 23), QTime(14, 5, 59));
        QCOMPARE(LiveFacePainter::valueText(LiveKind::Clock, SystemReadings(), at, QLocale(locale)), clock);
    }
};

KEYSTAGE_TEST_MAIN(LiveFacesTest)
#include "tst_livefaces.moc"
