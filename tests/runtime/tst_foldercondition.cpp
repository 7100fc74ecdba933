#include "buttonlayoutconfig.h"
#include "fakewindowsystem.h"
#include "foldercondition.h"
#include "ka_folder.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "logcapture.h"
#include "objectregistry.h"
#include "settings.h"
#include "testmain.h"

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

class MainWindowWithDescription : public QWidget
{
    Q_OBJECT
public:
    Q_INVOKABLE void showFunctionDescription(int index) { descriptions << index; }

    QList<int> descriptions;
};

} // namespace

class FolderConditionTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QFile::remove(Settings().fileName());
        m_settings = std::make_unique<Settings>();
        m_layouts.changeLayout(V_Key_15);
        ObjectRegistry::registerObject(ComponentId::Settings, m_settings.get());
        ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, &m_layouts);
        m_model = std::make_unique<KeyItemModel>();
        m_model->changeLayoutButtonView(V_Key_15);
        ObjectRegistry::registerObject(ComponentId::KeyItemModel, m_model.get());
        m_mainWindow = std::make_unique<MainWindowWithDescription>();
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
        m_model.reset();
        m_mainWindow.reset();
        ObjectRegistry::clear();
        m_settings.reset();
    }

    void shouldDetectOnlyWhileTheMainWindowIsInTheBackground_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<bool>("detecting");
        QTest::newRow("visible") << "visible" << false;
        QTest::newRow("hidden") << "hidden" << true;
        QTest::newRow("minimized") << "minimized" << true;
        QTest::newRow("none registered") << "none" << false;
        QTest::newRow("without a description panel") << "plain" << true;
    }

    void shouldDetectOnlyWhileTheMainWindowIsInTheBackground()
    {
        QFETCH(QString, window);
        QFETCH(bool, detecting);
        addFolder(1, QStringLiteral("/opt/tools/editor.sh"));
        QWidget plain;
        if (window == QLatin1String("visible"))
            m_mainWindow->show();
        else if (window == QLatin1String("minimized"))
            m_mainWindow->showMinimized();
        else if (window == QLatin1String("none"))
            ObjectRegistry::unregisterObject(ComponentId::MainWindow);
        else if (window == QLatin1String("plain"))
            ObjectRegistry::registerObject(ComponentId::MainWindow, &plain);

        LogCapture capture;
        m_condition->startFolderConditionDetect();
        QCOMPARE(m_condition->isDetecting(), detecting);
        QCOMPARE(capture.matching(QStringLiteral("starting folder condition detection")).isEmpty(), false);
        QCOMPARE(capture
                     .matching(QStringLiteral("ERROR: mainwindow not in background, stop folder condition "
                                              "detecting !!"))
                     .size(),
                 window == QLatin1String("visible") ? 1 : 0);
        const bool described = detecting && window != QLatin1String("plain");
        QCOMPARE(m_mainWindow->descriptions, described ? QList<int>{-1} : QList<int>{});
        QCOMPARE(capture.matching(QStringLiteral("No such method")).size(), 0);
    }

    void shouldWatchOnlyRootFoldersThatNameAnApplication()
    {
        KA_Folder* editor = addFolder(1, QStringLiteral("/opt/tools/editor.sh"));
        addFolder(2, QString());
        QVERIFY(m_model->createKeyAction(3, KAT_HOTKEY));
        KA_Folder* terminal = addFolder(4, QStringLiteral("terminal"));
        // Folders hold one level only, but a page read from an old file may
        // still carry a folder inside a folder: it never takes part.
        auto* nested = new KeyItem(KAT_FOLDER, 0, V_Key_15);
        static_cast<KA_Folder*>(nested->action[0])->appName = QStringLiteral("nested");
        editor->childList.prepend(nested);
        auto* otherLayout = new KeyItem(KAT_FOLDER, 0, H_Key_6);
        static_cast<KA_Folder*>(otherLayout->action[0])->appName = QStringLiteral("elsewhere");
        m_model->rootList(H_Key_6)->append(otherLayout);
        // The user left the editor inside a folder: the root page counts all the same.
        m_model->changeListHead(editor, &editor->childList);

        m_condition->startFolderConditionDetect();
        QCOMPARE(m_condition->watchList(), (QList<KA_Folder*>{editor, terminal}));
        QVERIFY(m_condition->isDetecting());

        m_condition->startFolderConditionDetect();
        QCOMPARE(m_condition->watchList().size(), 2);
    }

    void shouldSkipAnItemWithoutAnAction()
    {
        addFolder(1, QStringLiteral("editor"));
        QVERIFY(m_model->createKeyAction(7, KAT_PASTE_STRING));
        KeyItem* broken = m_model->keyItemAt(7);
        delete broken->action[0];
        broken->action[0] = nullptr;
        KA_Folder* after = addFolder(9, QStringLiteral("viewer"));

        LogCapture capture;
        m_condition->startFolderConditionDetect();
        QCOMPARE(capture.matching(QStringLiteral("ERR: Invalid key or key action obj in list head, idx: 1")).size(), 1);
        QCOMPARE(m_condition->watchList().size(), 2);
        QCOMPARE(m_condition->watchList().last(), after);
    }

    void shouldStayIdle_data()
    {
        QTest::addColumn<QString>("reason");
        QTest::addColumn<QString>("message");
        QTest::newRow("no folder names an application") << "unnamed" << QString();
        QTest::newRow("no key model") << "model"
                                      << "ERROR: listPtr is nullptr!!";
        QTest::newRow("desktop cannot tell") << "desktop"
                                             << "ERROR: folder conditions unavailable: the fake desktop does not "
                                                "tell which application is in front!!";
    }

    void shouldStayIdle()
    {
        QFETCH(QString, reason);
        QFETCH(QString, message);
        addFolder(1, reason == QLatin1String("unnamed") ? QString() : QStringLiteral("editor"));
        addFolder(2, QString());
        if (reason == QLatin1String("model"))
            ObjectRegistry::unregisterObject(ComponentId::KeyItemModel);
        m_windowSystem->setCanQueryForegroundApplication(reason != QLatin1String("desktop"));

        LogCapture capture;
        m_condition->startFolderConditionDetect();
        m_condition->startFolderConditionDetect();
        QVERIFY(!m_condition->isDetecting());
        QVERIFY(m_condition->watchList().isEmpty());
        if (!message.isEmpty())
            QCOMPARE(capture.matching(message).size(), reason == QLatin1String("desktop") ? 1 : 2);
    }

    void shouldOpenOncePerChangeOfTheForegroundApplication()
    {
        addFolder(1, QStringLiteral("/opt/tools/editor.sh"));
        m_condition->startFolderConditionDetect();

        tick(QStringLiteral("editor"));
        QCOMPARE(m_presses, QStringList{"/opt/tools/editor.sh"});
        tick(QStringLiteral("editor"));
        tick(QStringLiteral("editor"));
        QCOMPARE(m_presses.size(), 1);
        tick(QStringLiteral("browser"));
        QCOMPARE(m_presses.size(), 1);
        tick(QStringLiteral("editor"));
        QCOMPARE(m_presses.size(), 2);
        // Leaving for a window whose program cannot be read is a change too.
        tick(QString());
        tick(QStringLiteral("editor"));
        QCOMPARE(m_presses.size(), 3);
    }

    void shouldMatchTheBaseNameExactly_data()
    {
        QTest::addColumn<QString>("appName");
        QTest::addColumn<QString>("foreground");
        QTest::addColumn<bool>("opens");
        QTest::newRow("path and extension") << "/opt/tools/editor.sh"
                                            << "editor" << true;
        QTest::newRow("windows path") << "C:/Tools/editor.exe"
                                      << "editor" << true;
        QTest::newRow("bare name") << "editor"
                                   << "editor" << true;
        QTest::newRow("every extension goes") << "/opt/editor.tar.gz"
                                              << "editor" << true;
        QTest::newRow("case differs") << "/opt/tools/Editor.sh"
                                      << "editor" << false;
        QTest::newRow("longer name") << "/opt/tools/editor2"
                                     << "editor" << false;
        QTest::newRow("no base name") << "/opt/tools/.hidden"
                                      << "" << false;
    }

    void shouldMatchTheBaseNameExactly()
    {
        QFETCH(QString, appName);
        QFETCH(QString, foreground);
        QFETCH(bool, opens);
        addFolder(1, appName);
        m_condition->startFolderConditionDetect();
        tick(QStringLiteral("something else"));
        tick(foreground);
        QCOMPARE(m_presses.size(), opens ? 1 : 0);
    }

    void shouldOpenEveryMatchingFolderInOrder()
    {
        addFolder(1, QStringLiteral("/usr/bin/editor"));
        addFolder(2, QStringLiteral("viewer"));
        addFolder(5, QStringLiteral("/opt/editor.sh"));
        m_condition->startFolderConditionDetect();
        tick(QStringLiteral("editor"));
        QCOMPARE(m_presses, (QStringList{"/usr/bin/editor", "/opt/editor.sh"}));
    }

    void shouldOpenTheFolderOnTheKeypad()
    {
        KeyItem* first = addPlainFolder(1, QStringLiteral("/opt/tools/editor.sh"));
        KeyItem* second = addPlainFolder(4, QStringLiteral("editor"));
        m_condition->startFolderConditionDetect();
        tick(QStringLiteral("editor"));
        // Both open in turn; the later one stays.
        auto* later = static_cast<KA_Folder*>(second->action[0]);
        QCOMPARE(m_model->getCurrentLayoutListHead(), &later->childList);
        QCOMPARE(m_model->currentFolder(), later);
        QVERIFY(!static_cast<KA_Folder*>(first->action[0])->isOpened);
    }

    void shouldRunOnTheTimer()
    {
        FolderCondition condition(10, makeScripted(QStringLiteral("editor")));
        addFolder(1, QStringLiteral("editor"));
        condition.startFolderConditionDetect();
        QVERIFY(condition.isDetecting());
        QTRY_COMPARE(m_presses.size(), 1);
    }

    void shouldTellItIsAliveEveryTwentyTicks()
    {
        LogCapture capture;
        for (int i = 0; i < 40; ++i)
            m_condition->onBkTimerTimeout();
        QCOMPARE(capture.matching(QStringLiteral("folder condition detection are running.")).size(), 2);
    }

    void shouldForgetTheWatchListWhenStopped()
    {
        addFolder(1, QStringLiteral("editor"));
        m_condition->startFolderConditionDetect();
        QVERIFY(m_condition->isDetecting());
        LogCapture capture;
        m_condition->stopFolderConditionDetect();
        QCOMPARE(capture.matching(QStringLiteral("stopping folder condition detection")).isEmpty(), false);
        QVERIFY(!m_condition->isDetecting());
        QVERIFY(m_condition->watchList().isEmpty());
        tick(QStringLiteral("editor"));
        QVERIFY(m_presses.isEmpty());
    }

    void shouldIgnoreAWatchedFolderThatWasDeleted()
    {
        addFolder(1, QStringLiteral("editor"));
        addFolder(2, QStringLiteral("editor"));
        m_condition->startFolderConditionDetect();
        QVERIFY(m_model->deleteKeyItem(1));
        m_model->onDeleteTimerTimeout();
        tick(QStringLiteral("editor"));
        QCOMPARE(m_presses.size(), 1);
    }

    void shouldBeUnavailableWithoutAnX11Desktop()
    {
        // These tests run on the offscreen platform, which like Wayland
        // cannot tell the application in front.
        QVERIFY(!FolderCondition::isAvailable());
        QVERIFY(!FolderCondition::unavailableNotice().isEmpty());
        FolderCondition condition(600);
        addFolder(1, QStringLiteral("editor"));
        LogCapture capture;
        condition.startFolderConditionDetect();
        QVERIFY(!condition.isDetecting());
        QCOMPARE(capture.matching(QStringLiteral("folder conditions unavailable: the offscreen desktop")).size(), 1);
    }

private:
    void tick(const QString& application)
    {
        m_windowSystem->setForegroundApplication(application);
        m_condition->onBkTimerTimeout();
    }

    std::unique_ptr<WindowSystem> makeScripted(const QString& application)
    {
        auto windowSystem = std::make_unique<FakeWindowSystem>();
        windowSystem->setForegroundApplication(application);
        return windowSystem;
    }

    // A root-page folder whose presses are recorded.
    KA_Folder* addFolder(int keyIdx, const QString& appName)
    {
        KeyItem* item = addPlainFolder(keyIdx, appName);
        delete item->action[0];
        auto* folder = new RecordingFolder(item, &m_presses);
        folder->appName = appName;
        item->action[0] = folder;
        return folder;
    }

    KeyItem* addPlainFolder(int keyIdx, const QString& appName)
    {
        m_model->changeListToRoot();
        if (!m_model->createKeyAction(keyIdx, KAT_FOLDER))
            return nullptr;
        KeyItem* item = m_model->keyItemAt(keyIdx);
        static_cast<KA_Folder*>(item->action[0])->appName = appName;
        return item;
    }

    std::unique_ptr<Settings> m_settings;
    ButtonLayoutConfig m_layouts;
    std::unique_ptr<KeyItemModel> m_model;
    std::unique_ptr<MainWindowWithDescription> m_mainWindow;
    FakeWindowSystem* m_windowSystem = nullptr;
    std::unique_ptr<FolderCondition> m_condition;
    QStringList m_presses;
};

KEYSTAGE_TEST_MAIN(FolderConditionTest)
#include "tst_foldercondition.moc"
