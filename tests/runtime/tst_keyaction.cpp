#include "buttonlayoutconfig.h"
#include "hid_comm.h"
#include "ka_folder.h"
#include "ka_hotkey.h"
#include "keyaction.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "logcapture.h"
#include "objectregistry.h"
#include "recordingactionservices.h"
#include "settings.h"
#include "simulatedkeypad.h"
#include "testmain.h"

#include <memory>

// Key presses on the simulated keypad, through the device thread, to the
// actions and the faces on the keys.
class TestKeyAction : public QObject
{
    Q_OBJECT

private slots:
    void shouldMapDeviceKeysToButtons_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<int>("devKeyId");
        QTest::addColumn<int>("button");
        QTest::newRow("6 keys vertical: key 4") << 1 << 4 << 0;
        QTest::newRow("6 keys vertical: key 1") << 1 << 1 << 1;
        QTest::newRow("6 keys vertical: key 7") << 1 << 7 << -1;
        QTest::newRow("6 keys horizontal: key 0") << 0 << 0 << 31;
        QTest::newRow("6 keys horizontal: key 1") << 0 << 1 << 0;
        QTest::newRow("6 keys horizontal: key 16") << 0 << 16 << -1;
        QTest::newRow("15 keys horizontal: key 1") << 2 << 1 << 4;
        QTest::newRow("15 keys horizontal: key 15") << 2 << 15 << 10;
        QTest::newRow("15 keys vertical: key 2") << 3 << 2 << 3;
        QTest::newRow("32 keys: key 31") << 4 << 31 << 30;
        QTest::newRow("32 keys: key 32 reaches the next row") << 4 << 32 << 31;
        QTest::newRow("32 keys vertical: key 32 is beyond the table") << 5 << 32 << -1;
        QTest::newRow("no key") << 2 << -1 << -1;
        QTest::newRow("no layout") << 6 << 1 << -1;
    }

    void shouldMapDeviceKeysToButtons()
    {
        QFETCH(int, layout);
        QFETCH(int, devKeyId);
        QFETCH(int, button);
        QCOMPARE(KeyAction::buttonIndex(layout, devKeyId), button);
    }

    void init()
    {
        keypad = std::make_unique<SimulatedKeypad>();
        HidTransport::setInstance(keypad.get());
        QFile::remove(Settings().fileName());
        settings = std::make_unique<Settings>();
        layouts = std::make_unique<ButtonLayoutConfig>();
        ObjectRegistry::registerObject(ComponentId::Settings, settings.get());
        ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, layouts.get());
        model = std::make_unique<KeyItemModel>();
        hid = std::make_unique<Hid_Comm>();
        ObjectRegistry::registerObject(ComponentId::KeyItemModel, model.get());
        ObjectRegistry::registerObject(ComponentId::HidComm, hid.get());
        keyAction = std::make_unique<KeyAction>();
        connect(hid.get(), &Hid_Comm::keyPressed, keyAction.get(), &KeyAction::onKeyPressed);
        connect(hid.get(), &Hid_Comm::keyReleased, keyAction.get(), &KeyAction::onKeyRleased);
        services = std::make_unique<RecordingActionServices>();
        useLayout(H_Key_15);
        QTRY_VERIFY(hid->isOpened());
    }

    void cleanup()
    {
        keyAction.reset();
        services.reset();
        ObjectRegistry::clear();
        hid.reset();
        model.reset();
        layouts.reset();
        settings.reset();
        HidTransport::setInstance(nullptr);
        keypad.reset();
    }

    void shouldPerformTheActionAndShowThePressedFace()
    {
        KA_HotKey* hotkey = hotkeyAt(4, 0x41);
        hotkey->keyCtrl = true;
        const int imageKey = Hid_Comm::deviceKeyNumber(H_Key_15, 4);
        keypad->pressKey(0); // key id 1 is button 4 of this keypad
        QTRY_COMPARE(services->calls(), QStringList{"key 65 ctrl"});
        QTRY_VERIFY(!keypad->keyImage(imageKey).isNull());
        QCOMPARE(keypad->keyImage(imageKey).pixelColor(3, 3), QColor(Qt::black)); // shrunk onto black

        keypad->clearReports();
        keypad->releaseKey(0);
        QTRY_VERIFY(keypad->reportCount(SimulatedKeypad::ReportKind::ShowImage) >= 1);
        QCOMPARE(services->calls().size(), 1); // nothing is performed on release
    }

    void shouldToggleATwoFeatureHotkeyOnRelease()
    {
        hotkeyAt(4, 0x41);
        KeyItem* item = model->keyItemAt(4);
        static_cast<KA_HotKey*>(item->action[1])->nativeCode = 0x42;
        item->multiFeatureFlag = true;
        QList<const KeyItem*> redrawn;
        connect(keyAction.get(), &KeyAction::updateContent, this,
                [&](const KeyItem* changed) { redrawn.append(changed); });

        click(0);
        QTRY_COMPARE(item->cfIdx, 1);
        QTRY_COMPARE(redrawn, QList<const KeyItem*>{item});
        click(0);
        QTRY_COMPARE(item->cfIdx, 0);
        QTRY_COMPARE(services->calls(), (QStringList{"key 65", "key 66"}));
    }

    void shouldIgnoreAnUnconfiguredKey()
    {
        model->resetCurrentKeyItemsToDefault();
        model->deleteKeyItem(4);
        QVERIFY(model->createKeyAction(4, KAT_HOTKEY)); // no key recorded
        keypad->clearReports();
        click(0);
        keypad->pressKey(14); // a key whose button holds nothing
        QTest::qWait(300);
        QVERIFY(services->calls().isEmpty());
        QCOMPARE(keypad->reportCount(SimulatedKeypad::ReportKind::ShowImage), 0);
    }

    void shouldOpenAFolderAndGoBackFromTheKeypad()
    {
        model->deleteKeyItem(4);
        QVERIFY(model->createKeyAction(4, KAT_FOLDER));
        auto* folder = static_cast<KA_Folder*>(model->keyItemAt(4)->action[0]);
        click(0);
        QTRY_COMPARE(model->getCurrentLayoutListHead(), &folder->childList);
        // The back key sits in the page's last position, button 14: key id 11.
        click(10);
        QTRY_COMPARE(model->getCurrentLayoutListHead(), model->rootList(H_Key_15));
    }

    void shouldRefuseToActWithoutALayout()
    {
        LogCapture capture;
        ButtonLayoutConfig unset;
        ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, &unset);
        QMetaObject::invokeMethod(keyAction.get(), "onKeyPressed", Q_ARG(int, 1));
        QMetaObject::invokeMethod(keyAction.get(), "onKeyRleased", Q_ARG(int, 1));
        QTRY_COMPARE(capture.matching(QStringLiteral("layoutType out of range!!!")).size(), 2);
        ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, layouts.get());
    }

private:
    void useLayout(int layout)
    {
        layouts->changeLayout(layout);
        model->changeLayoutButtonView(KeyLayout(layout));
        hid->onButtonLayoutChanged(KeyLayout(layout));
    }

    KA_HotKey* hotkeyAt(int button, int nativeCode)
    {
        if (model->keyItemAt(button))
            model->deleteKeyItem(button);
        model->createKeyAction(button, KAT_HOTKEY);
        auto* hotkey = static_cast<KA_HotKey*>(model->keyItemAt(button)->action[0]);
        hotkey->nativeCode = nativeCode;
        return hotkey;
    }

    void click(int keyBit)
    {
        keypad->pressKey(keyBit);
        keypad->releaseKey(keyBit);
    }

    std::unique_ptr<SimulatedKeypad> keypad;
    std::unique_ptr<Settings> settings;
    std::unique_ptr<ButtonLayoutConfig> layouts;
    std::unique_ptr<KeyItemModel> model;
    std::unique_ptr<Hid_Comm> hid;
    std::unique_ptr<KeyAction> keyAction;
    std::unique_ptr<RecordingActionServices> services;
};

KEYSTAGE_TEST_MAIN(TestKeyAction)
#include "tst_keyaction.moc"
