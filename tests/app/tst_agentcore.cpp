#include "agentcore.h"
#include "buttonlayoutconfig.h"
#include "hid_comm.h"
#include "keypaddimmer.h"
#include "keypadstatus.h"
#include "objectregistry.h"
#include "settings.h"
#include "settingskeys.h"
#include "simulatedkeypad.h"
#include "testmain.h"

#include <QSignalSpy>

namespace {

constexpr int WaitMs = 30000;

const QList<ComponentId> CoreComponents = {ComponentId::KeyItemModel, ComponentId::HidComm, ComponentId::Settings,
                                           ComponentId::ButtonLayoutConfig, ComponentId::TaskProxy};

int registeredCount()
{
    int count = 0;
    for (ComponentId id : CoreComponents)
        count += ObjectRegistry::find(id) ? 1 : 0;
    return count;
}

} // namespace

// The part of the program that keeps running in the tray, without a window.
class AgentCoreTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_keypad = std::make_unique<SimulatedKeypad>();
        HidTransport::setInstance(m_keypad.get());
    }

    void cleanup()
    {
        HidTransport::setInstance(nullptr);
        m_keypad.reset();
    }

    // The device thread polls from the moment it exists; a keypad it opened
    // before anyone listened must still get its images and its status.
    void shouldLearnOfAKeypadOpenedBeforeItListened()
    {
        Hid_Comm hid;
        QTRY_VERIFY_WITH_TIMEOUT(hid.isOpened(), WaitMs);
        // Whatever the thread announced so far has gone to nobody.
        QCoreApplication::processEvents();

        KeypadStatus status(&hid);
        QSignalSpy opened(&status, &KeypadStatus::keypadOpened);
        QSignalSpy changed(&status, &KeypadStatus::stateChanged);
        QTRY_VERIFY_WITH_TIMEOUT(!changed.isEmpty(), WaitMs);
        QCOMPARE(status.state(), KeypadStatus::Connected);
        QVERIFY(!opened.isEmpty());
    }

    void shouldFollowTheKeypadOnceSettled()
    {
        m_keypad->unplug();
        Hid_Comm hid;
        KeypadStatus status(&hid);
        QSignalSpy changed(&status, &KeypadStatus::stateChanged);
        QTRY_VERIFY_WITH_TIMEOUT(!changed.isEmpty(), WaitMs);
        QCOMPARE(status.state(), KeypadStatus::Absent);

        QSignalSpy opened(&status, &KeypadStatus::keypadOpened);
        m_keypad->plugIn();
        hid.onKeyboardWasAdded(SimulatedKeypad::VendorId, m_keypad->productId());
        QTRY_COMPARE_WITH_TIMEOUT(status.state(), KeypadStatus::Connected, WaitMs);
        QCOMPARE(opened.size(), 1);
    }

    // Every keypad that connects gets the page and the brightness last chosen.
    void shouldShowThePageOnEveryKeypadThatConnects_data()
    {
        QTest::addColumn<int>("chosen");
        QTest::addColumn<int>("level");
        QTest::newRow("chosen") << 37 << 37;
        QTest::newRow("out of range") << 250 << 100;
    }

    void shouldShowThePageOnEveryKeypadThatConnects()
    {
        QFETCH(int, chosen);
        QFETCH(int, level);
        QFile::remove(Settings().fileName());
        AgentCore core;
        QCOMPARE(registeredCount(), CoreComponents.size());
        QTRY_COMPARE_WITH_TIMEOUT(core.keypadStatus()->state(), KeypadStatus::Connected, WaitMs);
        const int keys = ButtonLayoutConfig::keyCount(core.layoutConfig()->currentLayout());
        QTRY_COMPARE_WITH_TIMEOUT(m_keypad->keysWithImages().size(), keys, WaitMs);
        QTRY_COMPARE_WITH_TIMEOUT(m_keypad->backlight(), 100, WaitMs);

        core.keypadDimmer()->noteBrightness(chosen);
        m_keypad->unplug();
        QTRY_COMPARE_WITH_TIMEOUT(core.keypadStatus()->state(), KeypadStatus::Absent, WaitMs);
        m_keypad->plugIn();
        core.hidComm()->onKeyboardWasAdded(SimulatedKeypad::VendorId, m_keypad->productId());
        QTRY_COMPARE_WITH_TIMEOUT(m_keypad->keysWithImages().size(), keys, WaitMs);
        QTRY_COMPARE_WITH_TIMEOUT(m_keypad->backlight(), level, WaitMs);
    }

    void shouldStopItsThreadsAndLeaveTheRegistry()
    {
        {
            AgentCore core;
            QPointer<Hid_Comm> hid = core.hidComm();
            QVERIFY(hid && core.keyAction() && core.taskProxy());
            core.stop();
            QVERIFY(hid.isNull());
            QVERIFY(!core.keyAction() && !core.taskProxy());
            QCOMPARE(ObjectRegistry::find(ComponentId::HidComm), nullptr);
            QCOMPARE(ObjectRegistry::find(ComponentId::TaskProxy), nullptr);
            QVERIFY(ObjectRegistry::find(ComponentId::KeyItemModel));
            core.stop();
        }
        QCOMPARE(registeredCount(), 0);
        // The device is closed, not left to the next program.
        QCOMPARE(m_keypad->openHandleCount(), 0);
    }

private:
    std::unique_ptr<SimulatedKeypad> m_keypad;
};

KEYSTAGE_TEST_MAIN(AgentCoreTest)
#include "tst_agentcore.moc"
