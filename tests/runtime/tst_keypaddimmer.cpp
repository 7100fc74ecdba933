#include "hid_comm.h"
#include "ka_hotkey.h"
#include "keyaction.h"
#include "keyitem.h"
#include "keypaddimmer.h"
#include "keypadfixture.h"
#include "recordingactionservices.h"
#include "settings.h"
#include "settingskeys.h"
#include "simulatedkeypad.h"
#include "testmain.h"

#include <QSignalSpy>

namespace {

constexpr int Patience = 30000;
constexpr int Minute = 60000;

} // namespace

// The dimmer's decisions on a clock of the test's own: when the keypad dims,
// which key events it takes, and the level the keypad gets.
class KeypadDimmerTest : public QObject
{
    Q_OBJECT

    qint64 now = 0;
    std::unique_ptr<KeypadDimmer> dimmer;
    int lastSent = -1;

    // One step of a script; see the data rows.
    void run(const QString& step)
    {
        const QStringList words = step.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const QString verb = words.value(0);
        const auto number = [&](int i) { return words.value(i).toInt(); };
        if (verb == "set") {
            DimmingSettings settings;
            settings.dimAfterMinutes = number(1);
            settings.dimLevel = number(2);
            settings.brightness = number(3);
            settings.offWhileLocked = number(4) != 0;
            dimmer->setSettings(settings);
        } else if (verb == "idle") {
            now += words.value(1).toLongLong();
            dimmer->checkIdle();
        } else if (verb == "press") {
            QCOMPARE(dimmer->takeKeyPress(number(1)), words.value(2) == "taken");
        } else if (verb == "release") {
            QCOMPARE(dimmer->takeKeyRelease(number(1)), words.value(2) == "taken");
        } else if (verb == "lock" || verb == "unlock") {
            dimmer->setLocked(verb == "lock");
        } else if (verb == "level") {
            QCOMPARE(dimmer->level(), number(1));
            // A wake reaches the GUI thread queued.
            QTRY_COMPARE_WITH_TIMEOUT(lastSent, number(1), Patience);
        } else if (verb == "dimmed") {
            QVERIFY(dimmer->isDimmed());
        } else {
            QFAIL(qPrintable("unknown step " + step));
        }
    }

private slots:
    void init()
    {
        now = 1000;
        lastSent = -1;
        dimmer = std::make_unique<KeypadDimmer>([this] { return now; }, Minute);
        connect(dimmer.get(), &KeypadDimmer::backlightChanged, this, [this](int level) { lastSent = level; });
    }

    void cleanup() { dimmer.reset(); }

    // set <dim after minutes> <dim level> <brightness> <off while locked>;
    // idle <ms>; press|release <key id> taken|passed; lock; unlock; level <n>; dimmed
    void shouldDecideTheBacklightAndWhatAKeyDoes_data()
    {
        QTest::addColumn<QString>("script");
        QTest::newRow("dims after the minutes, not before")
            << "set 2 10 80 0; level 80; idle 119999; level 80; idle 1; dimmed; level 10";
        QTest::newRow("the waking press and its release are taken")
            << "set 1 10 80 0; idle 60000; level 10; press 3 taken; level 80; release 3 taken; "
               "press 3 passed; release 3 passed";
        QTest::newRow("a press moves the moment")
            << "set 1 10 80 0; idle 50000; press 2 passed; release 2 passed; idle 50000; level 80; "
               "idle 10000; level 10";
        QTest::newRow("only the waking key's release is taken")
            << "set 1 10 80 0; idle 60000; press 3 taken; release 4 passed; release 3 taken; release 3 passed";
        QTest::newRow("locked: dark, every press taken, back when unlocked")
            << "set 0 10 80 1; lock; level 0; press 4 taken; release 4 taken; unlock; level 80; press 4 passed";
        QTest::newRow("locked without the option: nothing changes")
            << "set 0 10 80 0; lock; level 80; press 4 passed; unlock; level 80";
        QTest::newRow("unlocking a keypad dimmed before brings it back bright")
            << "set 1 10 80 1; idle 60000; level 10; lock; level 0; unlock; level 80; press 1 passed";
        QTest::newRow("a dim level above the brightness dims to the brightness")
            << "set 1 90 40 0; idle 60000; level 40";
        QTest::newRow("never dims when off") << "set 0 10 80 0; idle 100000000; level 80; press 1 passed";
        QTest::newRow("new settings show at once and wake")
            << "set 1 10 80 0; idle 60000; level 10; set 1 10 60 0; level 60; press 5 passed";
        QTest::newRow("turning dimming off wakes") << "set 1 10 80 0; idle 60000; level 10; set 0 10 80 0; level 80";
    }

    void shouldDecideTheBacklightAndWhatAKeyDoes()
    {
        QFETCH(QString, script);
        for (const QString& step : script.split(QLatin1Char(';'))) {
            run(step.trimmed());
            if (QTest::currentTestFailed()) {
                qWarning().noquote() << "at step:" << step.trimmed();
                return;
            }
        }
    }

    void shouldLoadDamagedSettingsInRange()
    {
        Settings store;
        store.setValue(SettingsKeys::Brightness, 400);
        store.setValue(SettingsKeys::DimLevel, QStringLiteral("dark"));
        store.setValue(SettingsKeys::DimAfterMinutes, -2);
        const DimmingSettings loaded = DimmingSettings::load(&store);
        QCOMPARE(loaded.brightness, 100);
        QCOMPARE(loaded.dimLevel, DimmingSettings::DefaultDimLevel);
        QCOMPARE(loaded.dimAfterMinutes, 0);
    }

    // On the real clock with short minutes: the timer dims by itself.
    void shouldDimByItsOwnTimer()
    {
        KeypadDimmer fast({}, 20);
        QSignalSpy sent(&fast, &KeypadDimmer::backlightChanged);
        DimmingSettings settings;
        settings.dimAfterMinutes = 1;
        settings.dimLevel = 7;
        fast.setSettings(settings);
        QVERIFY(fast.isIdleTimerActive());
        QTRY_VERIFY_WITH_TIMEOUT(fast.isDimmed(), Patience);
        QCOMPARE(sent.last().at(0).toInt(), 7);
        QVERIFY(!fast.isIdleTimerActive());
    }

    // The whole road: a dimmed simulated keypad, a press on it that only
    // wakes it, and the next press that acts.
    void shouldWakeTheKeypadWithoutActing()
    {
        KeypadFixture fx;
        fx.setUp();
        auto services = std::make_unique<RecordingActionServices>();
        fx.useLayout(H_Key_15);
        QTRY_VERIFY_WITH_TIMEOUT(fx.hid->isOpened(), Patience);
        for (const auto& [button, code] : {std::pair{4, 0x41}, std::pair{3, 0x42}}) {
            if (fx.model->keyItemAt(button))
                fx.model->deleteKeyItem(button);
            fx.model->createKeyAction(button, KAT_HOTKEY);
            static_cast<KA_HotKey*>(fx.model->keyItemAt(button)->action[0])->nativeCode = code;
        }
        {
            KeyAction keyAction;
            keyAction.setKeyEventFilter(dimmer.get());
            connect(fx.hid.get(), &Hid_Comm::keyPressed, &keyAction, &KeyAction::onKeyPressed);
            connect(fx.hid.get(), &Hid_Comm::keyReleased, &keyAction, &KeyAction::onKeyRleased);
            connect(dimmer.get(), &KeypadDimmer::backlightChanged, fx.hid.get(), &Hid_Comm::setBacklight);

            run("set 1 10 80 0");
            QTRY_COMPARE_WITH_TIMEOUT(fx.keypad->backlight(), 80, Patience);
            run("idle 60000");
            QTRY_COMPARE_WITH_TIMEOUT(fx.keypad->backlight(), 10, Patience);

            fx.keypad->pressKey(0); // button 4: "A"
            fx.keypad->releaseKey(0);
            QTRY_COMPARE_WITH_TIMEOUT(fx.keypad->backlight(), 80, Patience);
            fx.keypad->pressKey(1); // button 3: "B"
            fx.keypad->releaseKey(1);
            // Had the waking press acted, "A" would come first.
            QTRY_COMPARE_WITH_TIMEOUT(services->calls(), QStringList{"key 66"}, Patience);
        }
        services.reset();
        fx.tearDown();
    }
};

KEYSTAGE_TEST_MAIN(KeypadDimmerTest)
#include "tst_keypaddimmer.moc"
