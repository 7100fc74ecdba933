// The whole road of a key press on a real X server (Xvfb, no window
// manager): a report on the simulated keypad, the device thread, the key
// action thread, the hotkey, XTest, and the events another client sees.
#include "hid_comm.h"
#include "ka_hotkey.h"
#include "keyaction.h"
#include "keyitem.h"
#include "keypadfixture.h"
#include "runtimeactionservices.h"
#include "testmain.h"
#include "virtualkey.h"
#include "windowsystem.h"
#include "xkeyobserver.h"
#include "xtestkeystrokebackend.h"

#include <X11/keysym.h>

class TestKeyActionOnX11 : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        fx.setUp();
        fx.useLayout(H_Key_15);
        services = std::make_unique<RuntimeActionServices>(WindowSystem::create());
        ActionServices::setInstance(services.get());
        VirtualKey::setBackend(&backend);
        keyAction = std::make_unique<KeyAction>();
        connect(fx.hid.get(), &Hid_Comm::keyPressed, keyAction.get(), &KeyAction::onKeyPressed);
        connect(fx.hid.get(), &Hid_Comm::keyReleased, keyAction.get(), &KeyAction::onKeyRleased);
        QTRY_VERIFY(fx.hid->isOpened());
    }

    void cleanup()
    {
        keyAction.reset();
        VirtualKey::setBackend(nullptr);
        ActionServices::setInstance(nullptr);
        services.reset();
        fx.tearDown();
    }

    void shouldTypeTheHotkeyOfThePressedKey()
    {
        XKeyObserver observer;
        if (!observer.error().isEmpty())
            QFAIL(qPrintable(observer.error()));
        if (fx.model->keyItemAt(4))
            fx.model->deleteKeyItem(4);
        QVERIFY(fx.model->createKeyAction(4, KAT_HOTKEY));
        auto* hotkey = static_cast<KA_HotKey*>(fx.model->keyItemAt(4)->action[0]);
        hotkey->nativeCode = 0x5A; // Z
        hotkey->keyShift = true;

        fx.keypad->pressKey(0); // key id 1 is button 4 of the horizontal 15-key keypad
        fx.keypad->releaseKey(0);
        const QVector<XKeyObserver::Event> events = observer.waitForEvents(4);
        QCOMPARE(events.size(), 4);
        const unsigned shift = observer.keycodeOf(XK_Shift_L);
        const unsigned z = observer.keycodeOf(XK_z);
        QVERIFY(events[0].press && events[0].keycode == shift);
        QVERIFY(events[1].press && events[1].keycode == z && (events[1].state & XKeyObserver::shiftMask()));
        QVERIFY(!events[2].press && events[2].keycode == z);
        QVERIFY(!events[3].press && events[3].keycode == shift);
        QCOMPARE(observer.eventsAfterSettling().size(), 4); // nothing on release
    }

private:
    KeypadFixture fx;
    XTestKeystrokeBackend backend;
    std::unique_ptr<RuntimeActionServices> services;
    std::unique_ptr<KeyAction> keyAction;
};

KEYSTAGE_TEST_MAIN(TestKeyActionOnX11)
#include "tst_keyactiononx11.moc"
