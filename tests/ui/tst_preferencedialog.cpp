#include "brightnessthrottle.h"
#include "keypadfixture.h"
#include "keypadpage.h"
#include "preferencedialog.h"
#include "settingskeys.h"
#include "startatloginpage.h"
#include "taskproxy.h"
#include "testmain.h"
#include "userquestion.h"

#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>

#include <functional>

namespace {

constexpr int WaitMs = 30000;

class FakePage : public PreferencePage
{
    Q_OBJECT
public:
    explicit FakePage(const QString& title) : m_title(title) {}
    QString title() const override { return m_title; }
    bool canClose(QString& why) const override
    {
        if (!refusing)
            return true;
        why = QStringLiteral("%1 is busy").arg(m_title);
        return false;
    }
    bool refusing = false;

private:
    QString m_title;
};

} // namespace

class PreferenceDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_questions.clear();
        UserQuestions::setHandler([this](const UserQuestion& question) {
            m_questions << question.subject + QLatin1Char('|') + question.text;
            return UserAnswer{UserQuestion::Ok, false};
        });
    }

    void cleanup()
    {
        UserQuestions::setHandler(nullptr);
        // The page and the task thread go before the keypad they use.
        m_page.reset();
        m_tasks.reset();
        m_fixture.tearDown();
    }

    void shouldListThePagesAndShowTheChosenOne()
    {
        PreferenceDialog dialog;
        auto* first = new FakePage(QStringLiteral("First"));
        auto* second = new FakePage(QStringLiteral("Second"));
        dialog.addPage(first);
        dialog.addPage(second);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QCOMPARE(dialog.pageList()->count(), 2);
        QCOMPARE(dialog.pageList()->item(1)->text(), QStringLiteral("Second"));
        QCOMPARE(dialog.currentPage(), first);
        dialog.pageList()->setFocus();
        QTest::keyClick(dialog.pageList(), Qt::Key_Down);
        QCOMPARE(dialog.currentPage(), second);
        QCOMPARE(dialog.findPage<FakePage>(), first);

        // A long title, as some languages give, widens the list instead of
        // being cut off.
        dialog.addPage(new FakePage(QStringLiteral("Importation et exportation des dispositions")));
        QTRY_VERIFY_WITH_TIMEOUT(dialog.pageList()->viewport()->width() >= dialog.pageList()->sizeHintForColumn(0),
                                 WaitMs);
        QVERIFY(!dialog.pageList()->horizontalScrollBar()->isVisible());
    }

    // Every way out asks the pages; a page that refuses keeps the dialog
    // open and its reason reaches the user.
    void shouldStayOpenWhileAPageRefuses_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("Esc") << 0;
        QTest::newRow("Close button") << 1;
        QTest::newRow("window's close button") << 2;
    }

    void shouldStayOpenWhileAPageRefuses()
    {
        QFETCH(int, way);
        PreferenceDialog dialog;
        dialog.addPage(new FakePage(QStringLiteral("Calm")));
        auto* busy = new FakePage(QStringLiteral("Firmware"));
        busy->refusing = true;
        dialog.addPage(busy);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        const std::function<void()> closeIt[] = {
            [&dialog] { QTest::keyClick(&dialog, Qt::Key_Escape); },
            [&dialog] { QTest::mouseClick(dialog.closeButton(), Qt::LeftButton); },
            [&dialog] { dialog.close(); },
        };

        closeIt[way]();
        QVERIFY(dialog.isVisible());
        QCOMPARE(m_questions.size(), 1);
        QVERIFY2(m_questions.first().endsWith(QStringLiteral("|Firmware is busy")), qPrintable(m_questions.first()));
        QString why;
        QVERIFY(!dialog.canClose(why));

        busy->refusing = false;
        closeIt[way]();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(m_questions.size(), 1);
    }

    // Read on the task thread; again when the keypad goes and comes back.
    void shouldShowTheConnectedKeypad()
    {
        QVERIFY(openKeypadPage());
        KeypadPage& page = *m_page;
        QTRY_COMPARE_WITH_TIMEOUT(page.serialText(), QString::fromLatin1(m_fixture.keypad->serialNumber()), WaitMs);
        QString version;
        QVERIFY(m_fixture.hid->readFWVersion(version));
        QCOMPARE(page.firmwareText(), version);
        QCOMPARE(page.modelText(), QStringLiteral("VKP-15P"));
        QVERIFY(page.logoButton()->isEnabled());

        m_fixture.keypad->unplug();
        QTRY_COMPARE_WITH_TIMEOUT(page.connectionText(), QStringLiteral("No keypad connected"), WaitMs);
        QCOMPARE(page.serialText(), QStringLiteral("—"));
        QVERIFY(!page.logoButton()->isEnabled());

        m_fixture.keypad->setSerialNumber("SECONDKEYPAD0001");
        m_fixture.keypad->plugIn();
        m_fixture.hid->onKeyboardWasAdded(SimulatedKeypad::VendorId, m_fixture.keypad->productId());
        QTRY_COMPARE_WITH_TIMEOUT(page.serialText(), QStringLiteral("SECONDKEYPAD0001"), WaitMs);
    }

    void shouldShowTheLogoAndThenTheKeysAgain()
    {
        QVERIFY(openKeypadPage());
        KeypadPage& page = *m_page;
        QTRY_VERIFY_WITH_TIMEOUT(page.logoButton()->isEnabled() && page.serialText() != QStringLiteral("—"), WaitMs);
        QTest::mouseClick(page.logoButton(), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(m_fixture.keypad->logoCount(), 1, WaitMs);
        QTRY_COMPARE_WITH_TIMEOUT(m_redraws, 1, WaitMs);
    }

    // However fast the slider moves, the keypad gets a report at most every
    // 50 ms, and the last level always; the level is kept in the settings.
    void shouldCoalesceBrightnessReports_data()
    {
        QTest::addColumn<QVector<int>>("levels");
        QTest::addColumn<int>("gapMs");
        QVector<int> drag;
        for (int level = 100; level >= 0; level -= 2)
            drag << level;
        QVector<int> wiggle;
        for (int i = 0; i < 40; ++i)
            wiggle << (i % 2 ? 30 : 70);
        QTest::newRow("drag, no pause") << drag << 0;
        QTest::newRow("drag, 5 ms apart") << drag << 5;
        QTest::newRow("wiggle, 20 ms apart") << wiggle << 20;
        QTest::newRow("one step") << QVector<int>{42} << 0;
        QTest::newRow("slow steps") << QVector<int>{10, 20, 30} << 120;
    }

    void shouldCoalesceBrightnessReports()
    {
        QFETCH(QVector<int>, levels);
        QFETCH(int, gapMs);
        QVERIFY(openKeypadPage());
        KeypadPage& page = *m_page;
        QTRY_VERIFY_WITH_TIMEOUT(page.serialText() != QStringLiteral("—"), WaitMs);
        m_fixture.keypad->clearReports();

        QElapsedTimer elapsed;
        elapsed.start();
        for (int level : levels) {
            page.brightnessSlider()->setValue(level);
            if (gapMs > 0)
                QTest::qWait(gapMs);
        }
        QTRY_VERIFY_WITH_TIMEOUT(page.throttle()->isIdle(), WaitMs);
        const qint64 tookMs = elapsed.elapsed();

        QTRY_COMPARE_WITH_TIMEOUT(m_fixture.keypad->backlight(), levels.last(), WaitMs);
        const int reports = m_fixture.keypad->reportCount(SimulatedKeypad::ReportKind::Backlight);
        QVERIFY2(reports >= 1 && reports <= tookMs / BrightnessThrottle::IntervalMs + 2,
                 qPrintable(QStringLiteral("%1 reports in %2 ms").arg(reports).arg(tookMs)));
        QCOMPARE(m_fixture.settings->value(SettingsKeys::Brightness).toInt(), levels.last());
    }

    // The switch shows the file's state, also when something else changed it.
    void shouldShowTheRealStartAtLoginState()
    {
        AutostartEntry entry(QStringLiteral("/usr/bin/keystage"));
        entry.setEnabled(false);
        StartAtLoginPage page(entry);
        page.show();
        QVERIFY(!page.startSwitch()->isChecked());
        QTest::mouseClick(page.startSwitch(), Qt::LeftButton);
        QVERIFY(entry.isEnabled());
        QVERIFY(page.startSwitch()->isChecked());

        page.hide();
        QVERIFY(entry.setEnabled(false));
        page.show();
        QVERIFY(!page.startSwitch()->isChecked());
    }

private:
    // Null when the keypad never opened.
    KeypadPage* openKeypadPage()
    {
        m_fixture.setUp();
        m_fixture.useLayout(V_Key_15);
        if (!QTest::qWaitFor([this] { return m_fixture.hid->isOpened(); }, WaitMs))
            return nullptr;
        m_tasks = std::make_unique<TaskProxy>();
        m_redraws = 0;
        PreferenceContext context;
        context.store = m_fixture.settings.get();
        context.layouts = m_fixture.layouts.get();
        context.hid = m_fixture.hid.get();
        context.runInBackground = BackgroundTask::onTaskProxy(m_tasks.get());
        context.redrawKeypad = [this] { ++m_redraws; };
        m_page = std::make_unique<KeypadPage>(context);
        return m_page.get();
    }

    KeypadFixture m_fixture;
    std::unique_ptr<TaskProxy> m_tasks;
    std::unique_ptr<KeypadPage> m_page;
    int m_redraws = 0;
    QStringList m_questions;
};

KEYSTAGE_TEST_MAIN(PreferenceDialogTest)
#include "tst_preferencedialog.moc"
