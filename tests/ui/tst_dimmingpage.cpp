#include "dimmingpage.h"
#include "dimmingsettings.h"
#include "fakescreenlockmonitor.h"
#include "keypaddimmer.h"
#include "settings.h"
#include "testmain.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QSpinBox>

class DimmingPageTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Settings> store;
    KeypadDimmer dimmer;
    FakeScreenLockMonitor locks;

private slots:
    void init()
    {
        QFile::remove(Settings().fileName());
        store = std::make_unique<Settings>();
        dimmer.setSettings(DimmingSettings());
        locks.setAvailable(true);
    }

    // Changes reach the dimmer at once, and the settings file by the time the page closes.
    void shouldApplyAndStoreChanges()
    {
        {
            DimmingPage page(&dimmer, &locks, store.get());
            QCOMPARE(page.title(), QStringLiteral("Dimming"));
            QVERIFY(!page.minutesBox()->isEnabled());
            page.dimCheck()->setChecked(true);
            page.minutesBox()->setValue(3);
            page.levelBox()->setValue(20);
            page.lockCheck()->setChecked(true);
            QCOMPARE(dimmer.settings().dimAfterMinutes, 3);
            QCOMPARE(dimmer.settings().dimLevel, 20);
            QVERIFY(dimmer.settings().offWhileLocked);
            QVERIFY(dimmer.isIdleTimerActive());
            for (QSpinBox* box : {page.minutesBox(), page.levelBox()})
                QCOMPARE(box->accessibleName(), box->toolTip());
        }
        Settings reloaded;
        QCOMPARE(DimmingSettings::load(&reloaded), dimmer.settings());
        DimmingPage again(&dimmer, &locks, store.get());
        QVERIFY(again.dimCheck()->isChecked());
        QCOMPARE(again.minutesBox()->value(), 3);
    }

    void shouldSayWhatIsUnavailable_data()
    {
        QTest::addColumn<bool>("withDimmer");
        QTest::addColumn<bool>("withMonitor");
        QTest::newRow("no lock notices") << true << true;
        QTest::newRow("no monitor") << true << false;
        QTest::newRow("no dimmer") << false << true;
    }

    void shouldSayWhatIsUnavailable()
    {
        QFETCH(bool, withDimmer);
        QFETCH(bool, withMonitor);
        locks.setAvailable(!withDimmer); // the lock option needs both
        DimmingPage page(withDimmer ? &dimmer : nullptr, withMonitor ? &locks : nullptr, store.get());
        QVERIFY(!page.lockCheck()->isEnabled());
        QVERIFY(page.lockNote()->text().startsWith(QStringLiteral("Unavailable")) && !page.lockNote()->isHidden());
        QCOMPARE(page.dimCheck()->isEnabled(), withDimmer);
        QCOMPARE(page.dimNote()->text().startsWith(QStringLiteral("Unavailable")), !withDimmer);
        page.lockCheck()->setChecked(true);
        QVERIFY(!dimmer.settings().offWhileLocked);
        if (withDimmer && withMonitor) {
            // Notices that start later make the option available.
            locks.setAvailable(true);
            QVERIFY(page.lockCheck()->isEnabled() && page.lockNote()->isHidden());
        }
    }
};

KEYSTAGE_TEST_MAIN(DimmingPageTest)
#include "tst_dimmingpage.moc"
