#include "buttonlayoutconfig.h"
#include "ka_folder.h"
#include "ka_hotkey.h"
#include "ka_linkbutton.h"
#include "ka_marcokey.h"
#include "ka_paststring.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "keymodelfixture.h"
#include "objectregistry.h"
#include "recordingactionservices.h"
#include "settings.h"
#include "testmain.h"

#include <QSignalSpy>
#include <memory>

// What each kind of key does when pressed.
class TestKeyActions : public QObject, KeyModelFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        setUp();
        layouts.changeLayout(H_Key_15);
        model->changeLayoutButtonView(H_Key_15);
        model->resetCurrentKeyItemsToDefault();
        services = std::make_unique<RecordingActionServices>();
    }

    void cleanup()
    {
        services.reset();
        tearDown();
    }

    void shouldDoNothingForAnUnconfiguredKey_data()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("hotkey without a key") << int(KAT_HOTKEY);
        QTest::newRow("macro without steps") << int(KAT_MACROKEY);
        QTest::newRow("empty text") << int(KAT_PASTE_STRING);
        QTest::newRow("launch without a path") << int(KAT_EXE_APP_FILE);
        QTest::newRow("website without an address") << int(KAT_OPEN_WEBSITE);
    }

    void shouldDoNothingForAnUnconfiguredKey()
    {
        QFETCH(int, type);
        KeyItem item(KeyActionType(type), 0, H_Key_15);
        QVERIFY(!item.action[0]->doAction(0));
        QVERIFY(services->calls().isEmpty());
    }

    void shouldTypeAHotkeyWithItsModifiers()
    {
        KeyItem item(KAT_HOTKEY, 0, H_Key_15);
        auto* hotkey = static_cast<KA_HotKey*>(item.action[0]);
        hotkey->nativeCode = 0x41;
        hotkey->keyCmd = hotkey->keyOption = hotkey->keyCtrl = hotkey->keyShift = true;
        QVERIFY(hotkey->doAction(0));
        hotkey->keyCmd = hotkey->keyShift = false;
        QVERIFY(hotkey->doAction(0));
        QCOMPARE(services->calls(), (QStringList{"key 65 win alt ctrl shift", "key 65 alt ctrl"}));
    }

    void shouldPlayAMacroAsRecorded()
    {
        KeyItem item(KAT_MACROKEY, 0, H_Key_15);
        auto* macro = static_cast<KA_MarcoKey*>(item.action[0]);
        macro->marcoKeyItemList = {{Qt::Key_Shift, 16, true}, {Qt::Key_A, 65, true}, {Qt::Key_A, 65, false}};
        QVERIFY(macro->doAction(0));
        QCOMPARE(services->calls(), QStringList{"macro +16 +65 -65"});
    }

    void shouldPasteTextThroughTheClipboard()
    {
        KeyItem item(KAT_PASTE_STRING, 0, H_Key_15);
        auto* text = static_cast<KA_PastString*>(item.action[0]);
        text->strText = QStringLiteral("Grüße");
        QVERIFY(text->doAction(0));
        QCOMPARE(services->calls(), (QStringList{"clipboard Grüße", "key 86 ctrl"}));

        services->clear();
        services->clipboardWorks = false; // nothing is pasted from an old clipboard
        text->doAction(0);
        QCOMPARE(services->calls(), QStringList{"clipboard Grüße"});
    }

    void shouldReportFalseWithoutDesktopServices()
    {
        services.reset();
        KeyItem item(KAT_HOTKEY, 0, H_Key_15);
        static_cast<KA_HotKey*>(item.action[0])->nativeCode = 0x41;
        QVERIFY(!item.action[0]->doAction(0));
    }

    void shouldEnterAFolderAndComeBackWithItsBackKey()
    {
        QVERIFY(model->createKeyAction(12, KAT_FOLDER));
        auto* folder = static_cast<KA_Folder*>(model->keyItemAt(12)->action[0]);
        QSignalSpy redraws(model.get(), &KeyItemModel::updateContent);

        QVERIFY(folder->doAction(0));
        QCOMPARE(model->getCurrentLayoutListHead(), &folder->childList);
        QVERIFY(folder->isExpend);
        QCOMPARE(redraws.count(), 1);
        QCOMPARE(redraws.at(0).at(0).value<const KeyItem*>(), nullptr);

        KeyItem* back = folder->childList.last();
        QCOMPARE(back->actionType, KAT_LINK_BUTTON);
        QVERIFY(back->action[0]->doAction(0));
        QCOMPARE(model->getCurrentLayoutListHead(), model->rootList(H_Key_15));
        QCOMPARE(redraws.count(), 2);
    }

    void shouldOpenAFolderWhenItsApplicationIsInFront()
    {
        QVERIFY(model->createKeyAction(12, KAT_FOLDER));
        auto* folder = static_cast<KA_Folder*>(model->keyItemAt(12)->action[0]);
        folder->appName = QStringLiteral("/opt/tools/editor.sh");

        services->foregroundName = QStringLiteral("terminal");
        QVERIFY(folder->doAction());
        QCOMPARE(model->getCurrentLayoutListHead(), model->rootList(H_Key_15));

        services->foregroundName = QStringLiteral("editor");
        QSignalSpy redraws(model.get(), &KeyItemModel::updateContent);
        QVERIFY(folder->doAction());
        QCOMPARE(model->getCurrentLayoutListHead(), &folder->childList);
        QVERIFY(folder->doAction()); // already shown: left as it is
        QCOMPARE(redraws.count(), 1);
    }

private:
    std::unique_ptr<RecordingActionServices> services;
};

KEYSTAGE_TEST_MAIN(TestKeyActions)
#include "tst_keyactions.moc"
