#include "buttonlayoutconfig.h"
#include "hid_comm.h"
#include "ka_folder.h"
#include "ka_hotkey.h"
#include "keyaction.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "keypadfixture.h"
#include "logcapture.h"
#include "objectregistry.h"
#include "recordingactionservices.h"
#include "settings.h"
#include "simulatedkeypad.h"
#include "testmain.h"

#include <QDeadlineTimer>
#include <QPixmap>

#include <memory>

// Key presses on the simulated keypad, through the device thread, to the
// actions and the faces on the keys.
class TestKeyAction : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        fx.setUp();
        keyAction = std::make_unique<KeyAction>();
        connect(fx.hid.get(), &Hid_Comm::keyPressed, keyAction.get(), &KeyAction::onKeyPressed);
        connect(fx.hid.get(), &Hid_Comm::keyReleased, keyAction.get(), &KeyAction::onKeyRleased);
        services = std::make_unique<RecordingActionServices>();
        fx.useLayout(H_Key_15);
        QTRY_VERIFY(fx.hid->isOpened());
    }

    void cleanup()
    {
        keyAction.reset();
        services.reset();
        fx.tearDown();
    }

    // Every press shows the pressed look and every release the full face
    // again, in that order on the keypad, however quickly they follow.
    void shouldShowThePressedFaceThenTheFullFaceForEveryClick_data()
    {
        QTest::addColumn<int>("clicks");
        QTest::newRow("one click") << 1;
        QTest::newRow("clicks in a row") << 4;
    }

    void shouldShowThePressedFaceThenTheFullFaceForEveryClick()
    {
        QFETCH(int, clicks);
        KA_HotKey* hotkey = hotkeyAt(4, 0x41);
        hotkey->keyCtrl = true;
        KeyRenderInfo& face = fx.model->keyItemAt(4)->render[0];
        face.hintFlags = 0; // no title: the image fills the face
        QImage red(KeyFaceRenderer::FaceSize, KeyFaceRenderer::FaceSize, QImage::Format_RGB32);
        red.fill(Qt::red);
        face.userImg = QPixmap::fromImage(red);
        const int imageKey = Hid_Comm::deviceKeyNumber(H_Key_15, 4);
        // Near the edge: red on the full face, black around the shrunk one.
        QStringList looks;
        connect(fx.keypad.get(), &SimulatedKeypad::keyImageChanged, this, [&](int key) {
            if (key == imageKey)
                looks << (fx.keypad->keyImage(key).pixelColor(8, 36).red() > 128 ? "full" : "pressed");
        });

        QStringList expected, performed;
        for (int i = 0; i < clicks; ++i) {
            click(0); // key id 1 is button 4 of this keypad
            expected << "pressed"
                     << "full";
            performed << "key 65 ctrl";
        }
        QTRY_COMPARE(looks, expected);
        QCOMPARE(services->calls(), performed); // nothing is performed on release
        disconnect(fx.keypad.get(), &SimulatedKeypad::keyImageChanged, this, nullptr);
    }

    // The face is drawn and sent by the GUI thread; the action must not wait
    // for it, so a busy GUI thread does not hold the keystroke up.
    void shouldActWhileTheGuiThreadIsBusy()
    {
        hotkeyAt(4, 0x41);
        fx.keypad->clearReports();
        fx.keypad->pressKey(0);
        QDeadlineTimer hangGuard(30000);
        while (services->calls().isEmpty() && !hangGuard.hasExpired())
            QThread::msleep(5); // no events: this thread stands for a busy GUI
        QCOMPARE(services->calls(), QStringList{"key 65"});
        QCOMPARE(fx.keypad->reportCount(SimulatedKeypad::ReportKind::ShowImage), 0);
        QTRY_VERIFY(fx.keypad->reportCount(SimulatedKeypad::ReportKind::ShowImage) >= 1);
    }

    void shouldToggleATwoFeatureHotkeyOnRelease()
    {
        hotkeyAt(4, 0x41);
        KeyItem* item = fx.model->keyItemAt(4);
        static_cast<KA_HotKey*>(item->action[1])->nativeCode = 0x42;
        item->multiFeatureFlag = true;
        QList<const KeyItem*> redrawn;
        QObject receiver; // the connection ends with this test, queued calls included
        connect(keyAction.get(), &KeyAction::updateContent, &receiver,
                [&](const KeyItem* changed) { redrawn.append(changed); });

        // The slot is read once the key action thread has told about it: it
        // changes it under the model's lock, on its own thread.
        click(0);
        QTRY_COMPARE(redrawn, QList<const KeyItem*>{item});
        QCOMPARE(item->cfIdx, 1);
        click(0);
        QTRY_COMPARE(redrawn, (QList<const KeyItem*>{item, item}));
        QCOMPARE(item->cfIdx, 0);
        QTRY_COMPARE(services->calls(), (QStringList{"key 65", "key 66"}));
    }

    void shouldIgnoreAnUnconfiguredKey()
    {
        fx.model->resetCurrentKeyItemsToDefault();
        fx.model->deleteKeyItem(4);
        QVERIFY(fx.model->createKeyAction(4, KAT_HOTKEY)); // no key recorded
        fx.keypad->clearReports();
        click(0);
        fx.keypad->pressKey(14); // a key whose button holds nothing
        QTest::qWait(300);
        QVERIFY(services->calls().isEmpty());
        QCOMPARE(fx.keypad->reportCount(SimulatedKeypad::ReportKind::ShowImage), 0);
    }

    void shouldOpenAFolderAndGoBackFromTheKeypad()
    {
        fx.model->deleteKeyItem(4);
        QVERIFY(fx.model->createKeyAction(4, KAT_FOLDER));
        auto* folder = static_cast<KA_Folder*>(fx.model->keyItemAt(4)->action[0]);
        click(0);
        QTRY_COMPARE(fx.model->getCurrentLayoutListHead(), &folder->childList);
        // The back key sits in the page's last position, button 14: key id 11.
        click(10);
        QTRY_COMPARE(fx.model->getCurrentLayoutListHead(), fx.model->rootList(H_Key_15));
    }

    // The layout changes on the GUI thread while the key action thread reads
    // it for every event (the ThreadSanitizer build sees an unguarded read).
    void shouldActOnTheLayoutInForceWhileItChanges()
    {
        hotkeyAt(4, 0x41);
        for (int round = 0; round < 20; ++round) {
            QMetaObject::invokeMethod(keyAction.get(), "onKeyRleased", Q_ARG(int, 1));
            fx.layouts->changeLayout(round % 2 ? H_Key_15 : V_Key_15);
        }
        click(0);
        QTRY_COMPARE(services->calls(), QStringList{"key 65"});
    }

    void shouldRefuseToActWithoutALayout()
    {
        LogCapture capture;
        ButtonLayoutConfig unset;
        ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, &unset);
        QMetaObject::invokeMethod(keyAction.get(), "onKeyPressed", Q_ARG(int, 1));
        QMetaObject::invokeMethod(keyAction.get(), "onKeyRleased", Q_ARG(int, 1));
        QTRY_COMPARE(capture.matching(QStringLiteral("layoutType out of range!!!")).size(), 2);
        ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, fx.layouts.get());
    }

private:
    KA_HotKey* hotkeyAt(int button, int nativeCode)
    {
        if (fx.model->keyItemAt(button))
            fx.model->deleteKeyItem(button);
        fx.model->createKeyAction(button, KAT_HOTKEY);
        auto* hotkey = static_cast<KA_HotKey*>(fx.model->keyItemAt(button)->action[0]);
        hotkey->nativeCode = nativeCode;
        return hotkey;
    }

    void click(int keyBit)
    {
        fx.keypad->pressKey(keyBit);
        fx.keypad->releaseKey(keyBit);
    }

    KeypadFixture fx;
    std::unique_ptr<KeyAction> keyAction;
    std::unique_ptr<RecordingActionServices> services;
};

KEYSTAGE_TEST_MAIN(TestKeyAction)
#include "tst_keyaction.moc"
