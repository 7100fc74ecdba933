#include "actionlist.h"
#include "agentcore.h"
#include "dialog.h"
#include "favorite.h"
#include "favoritekeyitemmodel.h"
#include "formarea.h"
#include "ipc_thread.h"
#include "ka_paststring.h"
#include "keygridcontextmenu.h"
#include "keyitem.h"
#include "keyitemgridview.h"
#include "keyitemmodel.h"
#include "mainwindow.h"
#include "objectregistry.h"
#include "settings.h"
#include "settingskeys.h"
#include "testmain.h"
#include "trayicon.h"
#include "virtualkey.h"

#include <QLabel>
#include <QSettings>
#include <QSignalSpy>
#include <QTranslator>

class MainWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Dialog::clearNextAnswers(); }

    void shouldBeRegisteredWithItsLogFirstWhileItLives()
    {
        {
            QSettings settings;
            MainWindow window(&settings, false);
            QCOMPARE(ObjectRegistry::find(ComponentId::MainWindow), &window);
            QCOMPARE(ObjectRegistry::mainWindowLog(), window.log());
            QCOMPARE(ObjectRegistry::find(ComponentId::KeyItemModel), window.keyItemModel());
            QFile file(window.log()->filePath());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString firstLine = QString::fromUtf8(file.readLine());
            QVERIFY2(firstLine.contains(QStringLiteral(": MainWindow::MainWindow,")), qPrintable(firstLine));
        }
        QCOMPARE(ObjectRegistry::find(ComponentId::MainWindow), nullptr);
        QCOMPARE(ObjectRegistry::mainWindowLog(), nullptr);
        QCOMPARE(ObjectRegistry::find(ComponentId::KeyItemModel), nullptr);
        QCOMPARE(ObjectRegistry::find(ComponentId::HidComm), nullptr);
    }

    // Going to the background leaves no key selected under a stale
    // description: the editor comes back with the drag hint.
    void shouldShowTheDragHintWhenItGoesToTheBackground()
    {
        QSettings settings;
        MainWindow window(&settings, false);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.keyGrid()->cancelPreviousAndThenSelectKeyButton(3);
        window.showFunctionDescription(KAT_HOTKEY, false);
        QCOMPARE(window.keyGrid()->selectedKeyIdx(), 3);

        window.showMinimized();
        QTRY_COMPARE_WITH_TIMEOUT(window.formArea()->shownActionType(), -1, 30000);
        QCOMPARE(window.keyGrid()->selectedKeyIdx(), -1);
    }

    // The typing thread never asks the window; it is told the native id each
    // time the window is made again.
    void shouldTellTheTypingThreadItsNativeWindow()
    {
        QSettings settings;
        {
            MainWindow window(&settings, false);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            QVERIFY(window.internalWinId() != 0);
            QCOMPARE(VirtualKey::mainWindowId(), quint64(window.internalWinId()));
            // Start-up sets the window's flags after building it.
            window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            QCOMPARE(VirtualKey::mainWindowId(), quint64(window.internalWinId()));
        }
        QCOMPARE(VirtualKey::mainWindowId(), quint64(0));
    }

    void shouldBeTheKeyPanelPlusTheRightColumnWide()
    {
        QSettings settings;
        MainWindow window(&settings, false);
        QCOMPARE(window.width(), 466 + 400);
        window.setKeyPanelSize(QSize(508, 523));
        QCOMPARE(window.width(), 508 + 400);
        QCOMPARE(window.keyPanel()->size(), QSize(508, 523));
    }

    void shouldNeverLoseTheWindowWhenClosed()
    {
        // The offscreen platform has no tray: closing must minimise, not hide.
        QSettings settings;
        MainWindow window(&settings, false);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(!window.close());
        QVERIFY(window.isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(window.isMinimized(), 30000);

        window.bringWindowToFront();
        QVERIFY(window.isVisible());
        QVERIFY(!window.isMinimized());
    }

    // The palette's My Favorite button brings the window up, "&Save as
    // favorite" fills it, and it goes away with the editor.
    void shouldShowMyFavoriteAndGoWithTheEditor()
    {
        QSettings settings;
        MainWindow window(&settings, false);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        emit window.actionList()->favoriteWindowRequested();
        Favorite* favorite = window.favoriteWindow();
        QVERIFY(favorite->isVisible());

        KeyItemModel* model = window.keyItemModel();
        if (!model->keyItemAt(2))
            QVERIFY(model->createKeyAction(2, KAT_PASTE_STRING));
        const int before = window.favorites()->count();
        QVERIFY(window.keyGrid()->updateContextMenuActions(2));
        window.keyGrid()->contextMenu()->action(KeyGridContextMenu::SaveAsFavorite)->trigger();
        QCOMPARE(window.favorites()->count(), before + 1);
        QCOMPARE(favorite->usageLabel()->text(), QStringLiteral("Usage: %1 / 60").arg(before + 1));

        QVERIFY(!window.close());
        QVERIFY(!favorite->isVisible());
    }

    // As at login: the window is not shown, and its editor is made only once
    // it is (minimised, where there is no tray).
    void shouldStartInTheBackgroundWhenAsked()
    {
        QSettings settings;
        MainWindow window(&settings, true);
        window.winId();
        QVERIFY(!window.findChild<KeyItemGridView*>());
        QTRY_VERIFY_WITH_TIMEOUT(window.isMinimized() || TrayIcon::isTrayAvailable(), 30000);
        QCOMPARE(window.findChild<KeyItemGridView*>() != nullptr, window.isVisible());
    }

    void shouldStopItsThreadsAndEndTheEventLoopOnQuit()
    {
        QSettings settings;
        settings.setValue(QStringLiteral("probe"), 42);
        MainWindow window(&settings, false);
        window.show();
        IPC_Thread* ipc = window.findChild<IPC_Thread*>();
        QVERIFY(ipc);
        QTRY_VERIFY_WITH_TIMEOUT(ipc->isRunning(), 30000);

        QTimer::singleShot(0, &window, &MainWindow::quitApplication);
        QTimer watchdog;
        watchdog.setSingleShot(true);
        bool eventLoopEnded = true;
        connect(&watchdog, &QTimer::timeout, [&eventLoopEnded] {
            eventLoopEnded = false;
            QCoreApplication::exit(1);
        });
        watchdog.start(60000);
        QCOMPARE(QCoreApplication::exec(), 0);
        QVERIFY(eventLoopEnded);
        QVERIFY(ipc->isFinished());
        QVERIFY(!window.isVisible());
        QCOMPARE(QSettings().value(QStringLiteral("probe")).toInt(), 42);
    }

    void shouldEmitApplicationStateChanges()
    {
        QSettings settings;
        MainWindow window(&settings, false);
        QSignalSpy spy(&window, &MainWindow::appStateChange);
        emit qApp->applicationStateChanged(Qt::ApplicationInactive);
        emit qApp->applicationStateChanged(Qt::ApplicationActive);
        QCOMPARE(spy, (QList<QVariantList>{{false}, {true}}));
    }

    // The built-in translations sit at the paths the loader names, and each
    // one translates: a missing or misnamed .qm would leave the source text.
    void shouldLoadTranslationsOnlyForKnownLanguages_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("settings");
        QTest::newRow("none") << -1 << QString() << "Settings";
        QTest::newRow("en") << 0 << ":/translator/en-us.qm"
                            << "Settings";
        QTest::newRow("ja") << 1 << ":/translator/ja.qm" << QStringLiteral("設定");
        QTest::newRow("zh-TW") << 2 << ":/translator/zh-TW.qm" << QStringLiteral("設定");
        QTest::newRow("it") << 3 << ":/translator/it.qm"
                            << "Impostazioni";
        QTest::newRow("de") << 4 << ":/translator/de.qm"
                            << "Einstellungen";
        QTest::newRow("fr") << 5 << ":/translator/fr.qm" << QStringLiteral("Paramètres");
        QTest::newRow("6") << 6 << QString() << "Settings";
        QTest::newRow("-5") << -5 << QString() << "Settings";
    }

    void shouldLoadTranslationsOnlyForKnownLanguages()
    {
        QFETCH(int, index);
        QFETCH(QString, file);
        QFETCH(QString, settings);
        QCOMPARE(MainWindow::translationFile(index), file);
        QTranslator translator;
        MainWindow::installTranslator(&translator, index);
        const QString translated = QCoreApplication::translate("ActionList", "Settings");
        QCoreApplication::removeTranslator(&translator);
        QCOMPARE(translated, settings);
    }

    void shouldImportALayoutFileByItsContentAfterConfirmation()
    {
        QSettings settings;
        MainWindow window(&settings, false);
        KeyItemModel* model = window.keyItemModel();
        model->beginUpdate();
        QVERIFY(model->createKeyAction(9, KAT_PASTE_STRING));
        static_cast<KA_PastString*>(model->keyItemAt(9)->action[0])->strText = QStringLiteral("exported");
        model->endUpdate(true);
        model->saveCurrentKeyItemsToSettings();
        QTemporaryDir dir;
        const QString path = dir.path() + QStringLiteral("/my.kslayout");
        QVERIFY(COMPONENT(Settings, ComponentId::Settings)->exportSetting(path));

        model->beginUpdate();
        QVERIFY(model->deleteKeyItem(9));
        model->endUpdate(true);

        Dialog::setNextAnswer(UserQuestion::Cancel);
        window.openExtensionFile(path);
        QCOMPARE(model->keyItemAt(9), nullptr);

        Dialog::setNextAnswer(UserQuestion::Import);
        window.openExtensionFile(path);
        QVERIFY(model->keyItemAt(9));
        QCOMPARE(static_cast<KA_PastString*>(model->keyItemAt(9)->action[0])->strText, QStringLiteral("exported"));
    }

    void shouldTellWhenAFileCannotBeImported()
    {
        QSettings settings;
        MainWindow window(&settings, false);
        QTemporaryDir dir;
        const QString path = dir.path() + QStringLiteral("/garbage.kslayout");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("this is not a layout");
        file.close();
        Dialog::setNextAnswer(UserQuestion::Ok);
        window.openExtensionFile(path);
        QFile log(window.log()->filePath());
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(log.readAll());
        QVERIFY(text.contains(QStringLiteral("answered without showing: \"OK\"")));
        QVERIFY(text.contains(QStringLiteral("Import of ") + path + QStringLiteral(" failed")));
    }

    // A settings file that cannot be written is told once, with its path and
    // the reason; the edits wait in memory and quitting tries once more.
    void shouldTellOnceWhenTheSettingsCannotBeWrittenAndRetryOnQuit()
    {
        QSettings settings;
        MainWindow window(&settings, false);
        Settings* store = window.core()->settingsStore();
        const QString path = store->fileName();
        QFile::remove(path);
        QVERIFY(QDir().mkpath(path)); // a folder where the file belongs
        // Room for a second message, so that a repeated one fails the test instead of waiting.
        Dialog::setNextAnswer(UserQuestion::Ok);
        Dialog::setNextAnswer(UserQuestion::Ok);
        store->setValue(QStringLiteral("probe"), 7);
        QVERIFY(!store->save());
        QVERIFY(!store->save());
        const QString told = QStringLiteral("\ttelling the user: Your settings cannot be saved. ") + path +
                             QStringLiteral(" cannot be written: ");
        QTRY_VERIFY_WITH_TIMEOUT(logText(window).contains(told), 30000);
        QCoreApplication::processEvents();
        QCOMPARE(logText(window).count(told), 1);

        QVERIFY(QDir(path).removeRecursively());
        window.quitApplication();
        QVERIFY(!store->lastSaveFailed());
        QVERIFY(QFileInfo(path).isFile());
        QCOMPARE(QSettings(path, QSettings::IniFormat).value(SettingsKeys::Inst).toMap().value(QStringLiteral("probe")),
                 QVariant(7));
    }

private:
    static QString logText(MainWindow& window)
    {
        QFile log(window.log()->filePath());
        return log.open(QIODevice::ReadOnly) ? QString::fromUtf8(log.readAll()) : QString();
    }
};

KEYSTAGE_TEST_MAIN(MainWindowTest)
#include "tst_mainwindow.moc"
