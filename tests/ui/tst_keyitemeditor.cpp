#include "buttonlayoutconfig.h"
#include "ka_execute.h"
#include "ka_folder.h"
#include "ka_hotkey.h"
#include "ka_marcokey.h"
#include "ka_paststring.h"
#include "keychord.h"
#include "keyitem.h"
#include "keyitemeditor.h"
#include "keyitemmodel.h"
#include "keymodelfixture.h"
#include "logcapture.h"
#include "metatypes.h"
#include "objectregistry.h"
#include "settings.h"
#include "testmain.h"

#include <QSignalSpy>

namespace {

enum Edit
{
    Title,
    Chord,
    SecondChord,
    Toggle,
    Steps,
    Path,
    Text,
    FolderApp
};

KeyChord ctrlAltT()
{
    KeyChord chord;
    chord.keyCtrl = chord.keyOption = true;
    chord.qtKeyCode = Qt::Key_T;
    chord.nativeCode = 'T';
    return chord;
}

QList<MarcoKeyItem> steps()
{
    return {{Qt::Key_A, 'A', true}, {Qt::Key_A, 'A', false}};
}

bool apply(KeyItemEditor& editor, int edit)
{
    switch (edit) {
    case Title:
        return editor.setTitle(0, QStringLiteral("Term"));
    case Chord:
        return editor.setChord(0, ctrlAltT());
    case SecondChord:
        return editor.setChord(1, ctrlAltT());
    case Toggle:
        return editor.setMultiFeature(true);
    case Steps:
        return editor.setMacroSteps(steps());
    case Path:
        return editor.setPath(QStringLiteral("gnome-terminal --wait"));
    case Text:
        return editor.setText(QStringLiteral("Kind regards,\nA."));
    case FolderApp:
        return editor.setFolderApplication(QStringLiteral("/usr/bin/gimp"));
    }
    return false;
}

bool applied(const KeyItem* item, int edit)
{
    switch (edit) {
    case Title:
        return item->render[0].text == QStringLiteral("Term");
    case Chord:
    case SecondChord: {
        const auto* hotKey = static_cast<const KA_HotKey*>(item->action[edit == Chord ? 0 : 1]);
        return hotKey->keyCtrl && hotKey->keyOption && !hotKey->keyShift && !hotKey->keyCmd &&
               hotKey->qtKeyCode == Qt::Key_T && hotKey->nativeCode == 'T';
    }
    case Toggle:
        return item->multiFeatureFlag;
    case Steps:
        return static_cast<const KA_MarcoKey*>(item->action[0])->marcoKeyItemList == steps();
    case Path:
        return static_cast<const KA_Execute*>(item->action[0])->path == QStringLiteral("gnome-terminal --wait");
    case Text:
        return static_cast<const KA_PastString*>(item->action[0])->strText == QStringLiteral("Kind regards,\nA.");
    case FolderApp:
        return static_cast<const KA_Folder*>(item->action[0])->appName == QStringLiteral("/usr/bin/gimp");
    }
    return false;
}

} // namespace

class KeyItemEditorTest : public QObject, KeyModelFixture
{
    Q_OBJECT

private slots:
    void initTestCase() { registerModelMetaTypes(); }

    void init()
    {
        setUp();
        model->changeLayoutButtonView(V_Key_15);
        model->deleteKeyItem(KeyIdx);
        model->deleteKeyItem(KeyIdx + 1);
    }

    void cleanup() { tearDown(); }

    void shouldApplyAnEditInOneChangedBracketAndOnlyOnce_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("edit");
        QTest::newRow("folder title") << int(KAT_FOLDER) << int(Title);
        QTest::newRow("folder application") << int(KAT_FOLDER) << int(FolderApp);
        QTest::newRow("hotkey chord") << int(KAT_HOTKEY) << int(Chord);
        QTest::newRow("hotkey second chord") << int(KAT_HOTKEY) << int(SecondChord);
        QTest::newRow("hotkey toggle") << int(KAT_HOTKEY) << int(Toggle);
        QTest::newRow("macro steps") << int(KAT_MACROKEY) << int(Steps);
        QTest::newRow("launch command") << int(KAT_EXE_APP_FILE) << int(Path);
        QTest::newRow("website address") << int(KAT_OPEN_WEBSITE) << int(Path);
        QTest::newRow("text") << int(KAT_PASTE_STRING) << int(Text);
        QTest::newRow("text title") << int(KAT_PASTE_STRING) << int(Title);
    }

    void shouldApplyAnEditInOneChangedBracketAndOnlyOnce()
    {
        QFETCH(int, type);
        QFETCH(int, edit);
        QVERIFY(model->createKeyAction(KeyIdx, KeyActionType(type)));
        const KeyItem* item = model->keyItemAt(KeyIdx);
        KeyItemEditor editor(model.get(), KeyIdx);
        QSignalSpy before(model.get(), &KeyItemModel::updateContentBefore);
        QSignalSpy changed(model.get(), &KeyItemModel::updateContent);
        QSignalSpy after(model.get(), &KeyItemModel::updateContentAfter);

        QVERIFY(apply(editor, edit));
        QVERIFY(applied(item, edit));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.at(0).at(0).value<const KeyItem*>(), item);
        QCOMPARE(before.size(), 1);
        QCOMPARE(after.size(), 1);

        // The same value again changes nothing and redraws nothing.
        QVERIFY(!apply(editor, edit));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(after.size(), 2);
    }

    void shouldRefuseEditsForAnotherTypeOrAKeyThatWentAway()
    {
        QVERIFY(model->createKeyAction(KeyIdx, KAT_HOTKEY));
        KeyItemEditor editor(model.get(), KeyIdx);
        QSignalSpy changed(model.get(), &KeyItemModel::updateContent);
        LogCapture capture;
        QVERIFY(!editor.setText(QStringLiteral("text")));
        QVERIFY(!editor.setPath(QStringLiteral("firefox")));
        QVERIFY(!editor.setChord(2, ctrlAltT()));
        QCOMPARE(capture.matching(QStringLiteral("does not fit a KAT_HOTKEY key")).size(), 3);

        model->beginUpdate();
        model->deleteKeyItem(KeyIdx);
        model->createKeyAction(KeyIdx, KAT_HOTKEY); // another item at the same key
        model->endUpdate(true);
        changed.clear();
        QCOMPARE(editor.item(), nullptr);
        QVERIFY(!editor.setChord(0, ctrlAltT()));
        QCOMPARE(capture.matching(QStringLiteral("went away")).size(), 1);
        QCOMPARE(changed.size(), 0);
        QCOMPARE(static_cast<KA_HotKey*>(model->keyItemAt(KeyIdx)->action[0])->nativeCode, -1);
    }

    void shouldTitleHotkeySlotsApartAndOtherKeysAsOne()
    {
        QVERIFY(model->createKeyAction(KeyIdx, KAT_HOTKEY));
        QVERIFY(model->createKeyAction(KeyIdx + 1, KAT_OPEN_WEBSITE));
        KeyItemEditor hotkey(model.get(), KeyIdx);
        KeyItemEditor website(model.get(), KeyIdx + 1);
        QVERIFY(hotkey.setTitle(1, QStringLiteral("Mute")));
        QCOMPARE(hotkey.item()->render[0].text, QString());
        QCOMPARE(hotkey.item()->render[1].text, QStringLiteral("Mute"));
        QVERIFY(website.setTitle(1, QStringLiteral("News")));
        QCOMPARE(website.item()->render[0].text, QStringLiteral("News"));
        QCOMPARE(website.item()->render[1].text, QStringLiteral("News"));
    }

    void shouldShowTheFirstHotkeyAgainWhenTheToggleGoesOff()
    {
        QVERIFY(model->createKeyAction(KeyIdx, KAT_HOTKEY));
        KeyItemEditor editor(model.get(), KeyIdx);
        QVERIFY(editor.setMultiFeature(true));
        editor.item()->cfIdx = 1; // as a press on the keypad leaves it
        QVERIFY(editor.setMultiFeature(false));
        QCOMPARE(editor.item()->cfIdx, 0);
    }

    void shouldSaveABurstOfEditsOnce()
    {
        QVERIFY(model->createKeyAction(KeyIdx, KAT_PASTE_STRING));
        QCoreApplication::processEvents();
        QTest::qWait(2 * KeyItemModel::SaveDelayMs); // the creation's own save
        KeyItemEditor editor(model.get(), KeyIdx);
        LogCapture capture;
        QString typed;
        for (const QChar c : QStringLiteral("Dear Sir or Madam")) {
            typed += c;
            QVERIFY(editor.setText(typed));
        }
        const QString saved = QStringLiteral("store setting into disk.");
        QTRY_COMPARE_WITH_TIMEOUT(capture.matching(saved).size(), 1, 30000);
        QTest::qWait(2 * KeyItemModel::SaveDelayMs);
        QCOMPARE(capture.matching(saved).size(), 1);
    }

private:
    static constexpr int KeyIdx = 3;
};

KEYSTAGE_TEST_MAIN(KeyItemEditorTest)
#include "tst_keyitemeditor.moc"
