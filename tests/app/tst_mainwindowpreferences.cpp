// The preference dialog as the program opens and uses it: from the palette
// and the tray, changing the layout, exporting and importing through the
// program's own import path, changing the language with a restart, and
// holding up the quit while a page must not be cut short.
#include "actionlist.h"
#include "agentcore.h"
#include "buttonlayoutconfig.h"
#include "dialog.h"
#include "favoritekeyitemmodel.h"
#include "hid_comm.h"
#include "importexportpage.h"
#include "ka_paststring.h"
#include "keyitem.h"
#include "keyitemgridview.h"
#include "keyitemmodel.h"
#include "languagepage.h"
#include "layoutpage.h"
#include "mainwindow.h"
#include "preferencedialog.h"
#include "preferencefiles.h"
#include "preferencelauncher.h"
#include "settings.h"
#include "settingskeys.h"
#include "simulatedkeypad.h"
#include "startupflags.h"
#include "testmain.h"
#include "trayicon.h"

#include <QAction>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QToolButton>

namespace {

constexpr int WaitMs = 30000;
constexpr char RestartRecordVariable[] = "KEYSTAGE_TEST_RESTART_RECORD";

// Started again by the window on its way out, this binary only writes down
// how it was started.
int recordRestart(int argc, char** argv)
{
    if (argc < 2 || qstrcmp(argv[1], "--waitInst") != 0)
        return -1;
    QFile record(QFile::decodeName(qgetenv(RestartRecordVariable)));
    if (!record.open(QIODevice::WriteOnly))
        return 1;
    QByteArrayList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << argv[i];
    record.write(arguments.join(' ') + '\n' + qgetenv(RestartInBackgroundVariable) + '\n');
    return 0;
}

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class BusyPage : public PreferencePage
{
    Q_OBJECT
public:
    QString title() const override { return QStringLiteral("Busy"); }
    bool canClose(QString& why) const override
    {
        why = QStringLiteral("A firmware update is running.");
        return !busy;
    }
    bool busy = true;
};

} // namespace

class MainWindowPreferencesTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        // Each case starts from a new configuration.
        QFile::remove(Settings().fileName());
        m_keypad = std::make_unique<SimulatedKeypad>();
        HidTransport::setInstance(m_keypad.get());
        m_window = std::make_unique<MainWindow>(&m_settings, false);
    }

    void cleanup()
    {
        m_window.reset();
        HidTransport::setInstance(nullptr);
        m_keypad.reset();
        Dialog::clearNextAnswers();
        PreferenceFiles::setRunner({});
    }

    void shouldOpenOneDialogFromThePaletteAndTheTray()
    {
        QCOMPARE(m_window->preferences()->dialog(), nullptr);
        emit m_window->actionList()->preferenceRequested();
        PreferenceDialog* dialog = m_window->preferences()->dialog();
        QVERIFY(dialog && dialog->isVisible());
        QStringList titles;
        for (int i = 0; i < dialog->pageCount(); ++i)
            titles << dialog->page(i)->title();
        QCOMPARE(titles, (QStringList{"Keypad", "Dimming", "Layout", "Language", "Import and export", "Reset",
                                      "Start at login", "Firmware", "Software update", "About"}));

        m_window->findChild<TrayIcon*>()->settingsAction()->trigger();
        QCOMPARE(m_window->preferences()->dialog(), dialog);

        dialog->close();
        QTRY_COMPARE_WITH_TIMEOUT(m_window->preferences()->dialog(), nullptr, WaitMs);
        emit m_window->actionList()->preferenceRequested();
        QVERIFY(m_window->preferences()->dialog());
    }

    void shouldChangeTheLayoutOfGridModelAndKeypad()
    {
        QTRY_COMPARE_WITH_TIMEOUT(m_keypad->keysWithImages().size(), 15, WaitMs);
        auto* page = m_window->preferences()->open()->findPage<LayoutPage>();
        QVERIFY(page);
        QTest::mouseClick(page->sizeButton(32), Qt::LeftButton);

        QCOMPARE(m_window->layoutConfig()->currentLayout(), int(V_Key_32));
        QCOMPARE(m_window->keyGrid()->keyButtonCount(), 32);
        QCOMPARE(m_window->keyItemModel()->currentLayout(), int(V_Key_32));
        QCOMPARE(m_window->core()->hidComm()->currentLayout(), int(V_Key_32));
        QCOMPARE(m_window->core()->settingsStore()->value(SettingsKeys::LastKbLayout).toInt(), int(V_Key_32));
        QTRY_COMPARE_WITH_TIMEOUT(m_keypad->keysWithImages().size(), 32, WaitMs);
    }

    // Exported through the page, the file holds exactly the export format;
    // imported through the page, it comes back by the "--openFile" path
    // with its question.
    void shouldExportAndImportBothKinds_data()
    {
        QTest::addColumn<bool>("favorites");
        QTest::newRow("layout") << false;
        QTest::newRow("My Favorite") << true;
    }

    void shouldExportAndImportBothKinds()
    {
        QFETCH(bool, favorites);
        KeyItemModel* model = m_window->keyItemModel();
        FavoriteKeyItemModel* favoriteModel = m_window->favorites();
        Settings* store = m_window->core()->settingsStore();
        model->beginUpdate();
        QVERIFY(model->createKeyAction(7, KAT_PASTE_STRING));
        static_cast<KA_PastString*>(model->keyItemAt(7)->action[0])->strText = QStringLiteral("round trip");
        model->endUpdate(true);
        QVERIFY(favoriteModel->appendKeyItem(model->keyItemAt(7)));

        QTemporaryDir dir;
        const QString chosen = dir.path() + QStringLiteral("/mine");
        QString suggested;
        PreferenceFiles::Runner runner;
        runner.saveFile = [&](QWidget*, const QString&, const QString& suggestion, const QString&) {
            suggested = suggestion;
            return chosen;
        };
        const QString file = chosen + (favorites ? QStringLiteral(".ksfavorites") : QStringLiteral(".kslayout"));
        runner.openFile = [&](QWidget*, const QString&, const QString&, const QString&) { return file; };
        PreferenceFiles::setRunner(runner);

        auto* page = m_window->preferences()->open()->findPage<ImportExportPage>();
        QVERIFY(page);
        // Right after the edit, before the model's own save.
        QTest::mouseClick(favorites ? page->exportFavoritesButton() : page->exportLayoutButton(), Qt::LeftButton);
        QVERIFY(suggested.endsWith(favorites ? QStringLiteral("/My Favorite.ksfavorites")
                                             : QStringLiteral("/Layout 15 keys vertical.kslayout")));
        const QByteArray expected =
            favorites ? Settings::encodeExportFile(SettingsKeys::MyFavorite, favoriteModel->toMap())
                      : Settings::encodeExportFile(
                            SettingsKeys::MyLayout,
                            store->value(SettingsKeys::keyItemsKey(QStringLiteral("V_Key_15"))).toMap());
        QCOMPARE(readAll(file), expected);
        QVERIFY(page->statusText().contains(file));

        model->beginUpdate();
        QVERIFY(model->deleteKeyItem(7));
        model->endUpdate(true);
        favoriteModel->removeAll();

        if (!favorites)
            Dialog::setNextAnswer(UserQuestion::Import);
        QTest::mouseClick(page->importButton(), Qt::LeftButton);
        const KeyItem* back = favorites
                                  ? (favoriteModel->count() == 1 ? favoriteModel->keyItems().constFirst() : nullptr)
                                  : model->keyItemAt(7);
        QVERIFY(back);
        QCOMPARE(static_cast<KA_PastString*>(back->action[0])->strText, QStringLiteral("round trip"));
    }

    // The restarted program is this test binary, which writes down its
    // arguments; it comes back in the tray only when it was there, and
    // with the on-screen keypad that runs now.
    void shouldStoreTheLanguageAndRestartAsItWas_data()
    {
        QTest::addColumn<bool>("inTray");
        QTest::newRow("window shown") << false;
        QTest::newRow("in the tray") << true;
    }

    void shouldStoreTheLanguageAndRestartAsItWas()
    {
        QFETCH(bool, inTray);
        QTemporaryDir dir;
        const QString record = dir.path() + QStringLiteral("/restart");
        qputenv(RestartRecordVariable, QFile::encodeName(record));
        if (!inTray) {
            m_window->show();
            QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        }
        auto* page = m_window->preferences()->open()->findPage<LanguagePage>();
        QVERIFY(page);
        page->languageList()->setCurrentRow(4);
        QCOMPARE(LanguagePage::languageName(4), QStringLiteral("Deutsch"));
        Dialog::setNextAnswer(UserQuestion::Yes);
        QTimer::singleShot(0, page->applyButton(), &QPushButton::click);
        QCOMPARE(QCoreApplication::exec(), 0);
        QCOMPARE(QSettings().value(SettingsKeys::LangIdx).toInt(), 4);

        m_window.reset();
        QTRY_VERIFY_WITH_TIMEOUT(readAll(record).endsWith('\n') && readAll(record).count('\n') == 2, WaitMs);
        const QByteArrayList lines = readAll(record).split('\n');
        QCOMPARE(lines.at(0), QByteArray("--waitInst --virtual-keypad"));
        QCOMPARE(lines.at(1), inTray ? QByteArray("1") : QByteArray());
        QSettings().remove(SettingsKeys::LangIdx);
    }

    void shouldNotQuitWhileAPageMustStayOpen()
    {
        QStringList told;
        UserQuestions::setHandler([&told](const UserQuestion& question) {
            told << question.text;
            return UserAnswer{UserQuestion::Ok, false};
        });
        auto* busy = new BusyPage;
        m_window->preferences()->open()->addPage(busy);
        m_window->restartApplication();
        QCOMPARE(told, QStringList{"A firmware update is running."});
        QVERIFY(m_window->preferences()->dialog()->isVisible());
        QVERIFY(!m_window->restartFlag());
        QVERIFY(m_window->core()->hidComm());

        busy->busy = false;
        QTimer::singleShot(0, m_window.get(), &MainWindow::quitApplication);
        QCOMPARE(QCoreApplication::exec(), 0);
        QVERIFY(!m_window->core()->hidComm());
        UserQuestions::setHandler(nullptr);
    }

private:
    QSettings m_settings;
    std::unique_ptr<SimulatedKeypad> m_keypad;
    std::unique_ptr<MainWindow> m_window;
};

KEYSTAGE_TEST_MAIN_WITH(MainWindowPreferencesTest, recordRestart)
#include "tst_mainwindowpreferences.moc"
