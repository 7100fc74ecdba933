#include "dimmingpage.h"
#include "dimmingsettings.h"
#include "fakescreenlockmonitor.h"
#include "keypaddimmer.h"
#include "settings.h"
#include "settingskeys.h"
#include "testmain.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QSettings>
#include <QSpinBox>

class DimmingPageTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Settings> store;
    std::unique_ptr<KeypadDimmer> dimmer;
    std::unique_ptr<FakeScreenLockMonitor> locks;

private slots:
    void init()
    {
        QFile::remove(Settings().fileName());
        store = std::make_unique<Settings>();
        dimmer = std::make_unique<KeypadDimmer>();
        locks = std::make_unique<FakeScreenLockMonitor>(true);
    }

    void cleanup()
    {
        locks.reset();
        dimmer.reset();
        store.reset();
    }

    void shouldShowWhatTheDimmerDoes()
    {
        DimmingSettings settings;
        settings.dimAfterMinutes = 7;
        settings.dimLevel = 15;
        settings.offWhileLocked = true;
        dimmer->setSettings(settings);
        DimmingPage page(dimmer.get(), locks.get(), store.get());
        QCOMPARE(page.title(), QStringLiteral("Dimming"));
        QVERIFY(page.dimCheck()->isChecked());
        QCOMPARE(page.minutesBox()->value(), 7);
        QCOMPARE(page.levelBox()->value(), 15);
        QVERIFY(page.lockCheck()->isChecked());
        QVERIFY(page.lockCheck()->isEnabled());
        QVERIFY(page.lockNote()->isHidden());
        // Controls without a label of their own are named by their tool tips.
        for (QSpinBox* box : {page.minutesBox(), page.levelBox()})
            QCOMPARE(box->accessibleName(), box->toolTip());
    }

    // Changes reach the dimmer at once and the settings file a moment later.
    void shouldApplyAndStoreChanges()
    {
        {
            DimmingPage page(dimmer.get(), locks.get(), store.get());
            QVERIFY(!page.dimCheck()->isChecked());
            QVERIFY(!page.minutesBox()->isEnabled());
            page.dimCheck()->setChecked(true);
            QVERIFY(page.minutesBox()->isEnabled());
            page.minutesBox()->setValue(3);
            page.levelBox()->setValue(20);
            page.lockCheck()->setChecked(true);

            const DimmingSettings applied = dimmer->settings();
            QCOMPARE(applied.dimAfterMinutes, 3);
            QCOMPARE(applied.dimLevel, 20);
            QVERIFY(applied.offWhileLocked);
            QVERIFY(dimmer->isIdleTimerActive());
            QCOMPARE(store->value(SettingsKeys::DimAfterMinutes).toInt(), 3);

            page.dimCheck()->setChecked(false);
            QCOMPARE(dimmer->settings().dimAfterMinutes, 0);
            QVERIFY(!dimmer->isIdleTimerActive());
        } // closing the page writes what is pending
        Settings reloaded;
        const DimmingSettings stored = DimmingSettings::load(&reloaded);
        QCOMPARE(stored.dimAfterMinutes, 0);
        QCOMPARE(stored.dimLevel, 20);
        QVERIFY(stored.offWhileLocked);
    }

    void shouldSayWhatIsUnavailable_data()
    {
        QTest::addColumn<bool>("withDimmer");
        QTest::addColumn<bool>("withMonitor");
        QTest::addColumn<bool>("locksAvailable");
        QTest::newRow("no lock notices") << true << true << false;
        QTest::newRow("no monitor") << true << false << false;
        QTest::newRow("no dimmer") << false << true << true;
    }

    void shouldSayWhatIsUnavailable()
    {
        QFETCH(bool, withDimmer);
        QFETCH(bool, withMonitor);
        QFETCH(bool, locksAvailable);
        locks->setAvailable(locksAvailable);
        DimmingPage page(withDimmer ? dimmer.get() : nullptr, withMonitor ? locks.get() : nullptr, store.get());
        QVERIFY(!page.lockCheck()->isEnabled());
        QVERIFY(!page.lockNote()->isHidden());
        QVERIFY(page.lockNote()->text().startsWith(QStringLiteral("Unavailable")));
        QCOMPARE(page.dimCheck()->isEnabled(), withDimmer);
        QCOMPARE(page.dimNote()->text().startsWith(QStringLiteral("Unavailable")), !withDimmer);
        page.lockCheck()->setChecked(true);
        QVERIFY(!dimmer->settings().offWhileLocked);
    }

    // Lock notices that start after the page opened make the option available.
    void shouldOfferTheLockOptionOnceNoticesCome()
    {
        locks->setAvailable(false);
        DimmingPage page(dimmer.get(), locks.get(), store.get());
        QVERIFY(!page.lockCheck()->isEnabled());
        locks->setAvailable(true);
        QVERIFY(page.lockCheck()->isEnabled());
        QVERIFY(page.lockNote()->isHidden());
    }
};

KEYSTAGE_TEST_MAIN(DimmingPageTest)
#include "tst_dimmingpage.moc"
