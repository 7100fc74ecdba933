#include "buttonlayoutconfig.h"
#include "fakewindowsystem.h"
#include "foldercondition.h"
#include "ka_folder.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "keymodelfixture.h"
#include "logcapture.h"
#include "objectregistry.h"
#include "settings.h"
#include "testmain.h"

#include <QSignalSpy>
#include <QWidget>

namespace {

// A folder that notes each press before doing what any folder does, so the
// tests see which folders were opened and in which order.
class RecordingFolder : public KA_Folder
{
    Q_OBJECT
public:
    RecordingFolder(KeyItem* owner, QStringList* presses) : KA_Folder(owner), m_presses(presses) {}

    bool doAction(int param) override
    {
        *m_presses << appName;
        return KA_Folder::doAction(param);
    }
    using KA_Folder::doAction;

private:
    QStringList* m_presses;
};

} // namespace

class FolderConditionTest : public QObject, KeyModelFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        setUp();
        model->changeLayoutButtonView(V_Key_15);
        m_mainWindow = std::make_unique<QWidget>();
        ObjectRegistry::registerObject(ComponentId::MainWindow, m_mainWindow.get());

        auto windowSystem = std::make_unique<FakeWindowSystem>();
        m_windowSystem = windowSystem.get();
        m_condition = std::make_unique<FolderCondition>(600, std::move(windowSystem));
        m_presses.clear();
        // The last name seen is shared by the whole process: start every
        // case from a known one.
        tick(QStringLiteral("init"));
    }

    void cleanup()
    {
        m_condition.reset();
        m_mainWindow.reset();
        tearDown();
    }

    void shouldWatchOnlyRootFoldersThatNameAnApplication()
    {
        KA_Folder* editor = addFolder(1, QStringLiteral("/opt/tools/editor.sh"));
        addFolder(2, QString());
        QVERIFY(model->createKeyAction(3, KAT_HOTKEY));
        QVERIFY(model->createKeyAction(5, KAT_PASTE_STRING));
        KeyItem* broken = model->keyItemAt(5);
        delete broken->action[0];
        broken->action[0] = nullptr;
        KA_Folder* terminal = addFolder(7, QStringLiteral("terminal"));
        // Folders hold one level only, but a page read from an old file may
        // still carry a folder inside a folder: it never takes part.
        auto* nested = new KeyItem(KAT_FOLDER, 0, V_Key_15);
        static_cast<KA_Folder*>(nested->action[0])->appName = QStringLiteral("nested");
        editor->childList.prepend(nested);
        auto* otherLayout = new KeyItem(KAT_FOLDER, 0, H_Key_6);
        static_cast<KA_Folder*>(otherLayout->action[0])->appName = QStringLiteral("elsewhere");
        model->rootList(H_Key_6)->append(otherLayout);
        // The user left the editor inside a folder: the root page counts all the same.
        model->changeListHead(editor, &editor->childList);

        LogCapture capture;
        m_condition->startFolderConditionDetect();
        QCOMPARE(m_condition->watchList(), (QList<KA_Folder*>{editor, terminal}));
        QVERIFY(m_condition->isDetecting());
        QCOMPARE(capture.matching(QStringLiteral("Invalid key or key action obj in list head")).size(), 1);

        m_condition->startFolderConditionDetect();
        QCOMPARE(m_condition->watchList().size(), 2);
    }

    void shouldStayIdle_data()
    {
        QTest::addColumn<QString>("reason");
        QTest::newRow("main window in front") << "visible";
        QTest::newRow("no main window") << "none";
        QTest::newRow("no folder names an application") << "unnamed";
        QTest::newRow("no key model") << "model";
        QTest::newRow("desktop cannot tell") << "desktop";
        QTest::newRow("offscreen desktop") << "offscreen";
    }

    void shouldStayIdle()
    {
        QFETCH(QString, reason);
        addFolder(1, reason == QLatin1String("unnamed") ? QString() : QStringLiteral("editor"));
        if (reason == QLatin1String("visible"))
            m_mainWindow->show();
        else if (reason == QLatin1String("none"))
            ObjectRegistry::unregisterObject(ComponentId::MainWindow);
        else if (reason == QLatin1String("model"))
            ObjectRegistry::unregisterObject(ComponentId::KeyItemModel);
        m_windowSystem->setCanQueryForegroundApplication(reason != QLatin1String("desktop"));
        // The offscreen platform, like Wayland, cannot tell the application in front.
        QVERIFY(!FolderCondition::isAvailable());
        if (reason == QLatin1String("offscreen"))
            m_condition = std::make_unique<FolderCondition>(600);

        LogCapture capture;
        QSignalSpy descriptions(m_condition.get(), &FolderCondition::functionDescriptionWanted);
        m_condition->startFolderConditionDetect();
        m_condition->startFolderConditionDetect();
        QVERIFY(!m_condition->isDetecting());
        // Only a main window in the background is told.
        const bool inBackground = reason != QLatin1String("visible") && reason != QLatin1String("none");
        QCOMPARE(descriptions.size(), inBackground ? 2 : 0);
        QVERIFY(m_condition->watchList().isEmpty());
        // The desktop does not change between starts: said once is enough.
        const bool desktop = reason == QLatin1String("desktop") || reason == QLatin1String("offscreen");
        QCOMPARE(capture.matching(QStringLiteral("ERROR: folder conditions unavailable")).size(), desktop ? 1 : 0);
    }

    void shouldOpenOncePerChangeOfTheForegroundApplication()
    {
        addFolder(1, QStringLiteral("/opt/tools/editor.sh"));
        m_condition->startFolderConditionDetect();

        tick(QStringLiteral("editor"));
        QCOMPARE(m_presses, QStringList{"/opt/tools/editor.sh"});
        tick(QStringLiteral("editor"));
        tick(QStringLiteral("editor"));
        tick(QStringLiteral("browser"));
        QCOMPARE(m_presses.size(), 1);
        tick(QStringLiteral("editor"));
        QCOMPARE(m_presses.size(), 2);
        // Leaving for a window whose program cannot be read is a change too.
        tick(QString());
        tick(QStringLiteral("editor"));
        QCOMPARE(m_presses.size(), 3);

        m_condition->stopFolderConditionDetect();
        QVERIFY(!m_condition->isDetecting());
        QVERIFY(m_condition->watchList().isEmpty());
        tick(QStringLiteral("browser"));
        tick(QStringLiteral("editor"));
        QCOMPARE(m_presses.size(), 3);
    }

    // A desktop that tells by events is listened to only while detection
    // runs, and nothing it has not yet said counts as a change: coming back
    // with the same application in front opens nothing.
    void shouldListenOnlyWhileDetectingAndWaitUntilTheDesktopHasSpoken()
    {
        addFolder(1, QStringLiteral("/opt/tools/editor.sh"));
        tick(QStringLiteral("editor"));
        QVERIFY(!m_windowSystem->isWatched());
        m_condition->startFolderConditionDetect();
        QVERIFY(m_windowSystem->isWatched());
        m_windowSystem->setForegroundKnown(false);
        tick(QString());
        m_windowSystem->setForegroundKnown(true);
        tick(QStringLiteral("editor"));
        QVERIFY(m_presses.isEmpty());
        tick(QStringLiteral("browser"));
        tick(QStringLiteral("editor"));
        QCOMPARE(m_presses.size(), 1);
        m_condition->stopFolderConditionDetect();
        QVERIFY(!m_windowSystem->isWatched());
    }

    void shouldOpenEveryFolderWhoseBaseNameMatchesInOrder()
    {
        const QStringList names = QStringLiteral("/usr/bin/editor /opt/tools/Editor.sh C:/Tools/editor.exe viewer "
                                                 "/opt/editor2 /opt/editor.tar.gz editor")
                                      .split(QLatin1Char(' '));
        QList<KA_Folder*> folders;
        for (int i = 0; i < names.size(); ++i)
            folders << addFolder(i + 1, names[i]);
        m_condition->startFolderConditionDetect();
        QVERIFY(model->deleteKeyItem(7));
        model->onDeleteTimerTimeout();

        tick(QStringLiteral("editor"));
        QCOMPARE(m_presses, (QStringList{"/usr/bin/editor", "C:/Tools/editor.exe", "/opt/editor.tar.gz"}));
        // Each opened on the keypad in turn; the last one stays.
        QCOMPARE(model->getCurrentLayoutListHead(), &folders[5]->childList);
        QCOMPARE(model->currentFolder(), folders[5]);
        QVERIFY(!folders[0]->isOpened);
    }

    // The other cases run with the main window hidden.
    void shouldRunOnTheTimerWithTheMainWindowMinimized()
    {
        auto windowSystem = std::make_unique<FakeWindowSystem>();
        windowSystem->setForegroundApplication(QStringLiteral("editor"));
        FolderCondition condition(10, std::move(windowSystem));
        QSignalSpy descriptions(&condition, &FolderCondition::functionDescriptionWanted);
        addFolder(1, QStringLiteral("editor"));
        m_mainWindow->showMinimized();
        condition.startFolderConditionDetect();
        QVERIFY(condition.isDetecting());
        QCOMPARE(descriptions, QList<QVariantList>{{-1}});
        QTRY_COMPARE(m_presses.size(), 1);
    }

    void shouldTellItIsAliveEveryTwentyTicks()
    {
        LogCapture capture;
        for (int i = 0; i < 40; ++i)
            m_condition->onBkTimerTimeout();
        QCOMPARE(capture.matching(QStringLiteral("folder condition detection are running.")).size(), 2);
    }

private:
    void tick(const QString& application)
    {
        m_windowSystem->setForegroundApplication(application);
        m_condition->onBkTimerTimeout();
    }

    // A root-page folder whose presses are recorded.
    KA_Folder* addFolder(int keyIdx, const QString& appName)
    {
        model->changeListToRoot();
        if (!model->createKeyAction(keyIdx, KAT_FOLDER))
            return nullptr;
        KeyItem* item = model->keyItemAt(keyIdx);
        delete item->action[0];
        auto* folder = new RecordingFolder(item, &m_presses);
        folder->appName = appName;
        item->action[0] = folder;
        return folder;
    }

    std::unique_ptr<QWidget> m_mainWindow;
    FakeWindowSystem* m_windowSystem = nullptr;
    std::unique_ptr<FolderCondition> m_condition;
    QStringList m_presses;
};

KEYSTAGE_TEST_MAIN(FolderConditionTest)
#include "tst_foldercondition.moc"
