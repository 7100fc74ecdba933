// The choosers over a cache whose sources the test controls: a source can be
// held to see the busy state and that the window stays responsive.
#include "applicationchooser.h"
#include "bookmarkchooser.h"
#include "hid_comm.h"
#include "objectregistry.h"
#include "querycache.h"
#include "taskproxy.h"
#include "testmain.h"

#include <QAtomicInt>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSemaphore>
#include <QTabBar>
#include <QTreeView>

namespace {

ApplicationEntry application(const QString& name, const QString& executable)
{
    ApplicationEntry entry;
    entry.name = name;
    entry.executable = executable;
    entry.commandLine = QFileInfo(executable).fileName();
    entry.desktopId = QFileInfo(executable).fileName() + QStringLiteral(".desktop");
    return entry;
}

// Sources that count their calls, note the thread they ran on and wait for
// the test's go when held.
struct TestSources
{
    QAtomicInt calls;
    QAtomicInt runningCalls;
    QSemaphore gate;
    bool held = false;
    QString thread;
    QMutex mutex;

    void pass()
    {
        calls.fetchAndAddRelaxed(1);
        QMutexLocker lock(&mutex);
        thread = QThread::currentThread()->objectName();
        lock.unlock();
        if (held)
            gate.acquire();
    }

    QueryCache::Sources sources()
    {
        QueryCache::Sources sources;
        sources.installed = [this] {
            pass();
            return ApplicationList{application("Text Editor", "/usr/bin/gedit"),
                                   application("Terminal", "/usr/bin/xterm"),
                                   application("Calculator", "/usr/bin/calc")};
        };
        sources.runningExecutables = [this] {
            runningCalls.fetchAndAddRelaxed(1);
            return QStringList{"/usr/bin/xterm", "/opt/odd/odd"};
        };
        sources.bookmarks = [this] {
            pass();
            return BookmarkList{{"Firefox", "Daily news", "https://news.example/", "Toolbar"},
                                {"Firefox", "Docs", "https://docs.example/", "Menu"},
                                {"Brave", "Mail", "https://mail.example/", "Bar"}};
        };
        sources.canListRunning = true;
        return sources;
    }
};

template <class Chooser>
QPushButton* okButton(Chooser* chooser)
{
    return chooser->template findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
}

} // namespace

class ChoosersTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_sources = std::make_unique<TestSources>();
        m_cache = std::make_unique<QueryCache>(m_sources->sources());
    }

    void cleanup()
    {
        m_sources->gate.release(100);
        m_cache.reset();
        ObjectRegistry::clear();
    }

    void shouldFilterAsYouTypeAndTakeTheSelectedEntryOnEnter_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("source");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("executable");
        const int installed = ApplicationChooser::Installed, running = ApplicationChooser::Running;
        // clang-format off
        QTest::newRow("first of all")       << ""            << installed << "Text Editor" << "/usr/bin/gedit";
        QTest::newRow("by name")            << "calc"        << installed << "Calculator"  << "/usr/bin/calc";
        QTest::newRow("words in any order") << "editor text" << installed << "Text Editor" << "/usr/bin/gedit";
        QTest::newRow("by program")         << "xterm"       << installed << "Terminal"    << "/usr/bin/xterm";
        QTest::newRow("nothing matches")    << "zzz"         << installed << ""            << "";
        QTest::newRow("running, installed") << "term"        << running   << "Terminal"    << "/usr/bin/xterm";
        QTest::newRow("running, unknown")   << "odd"         << running   << "odd"         << "/opt/odd/odd";
        // clang-format on
    }

    void shouldFilterAsYouTypeAndTakeTheSelectedEntryOnEnter()
    {
        QFETCH(QString, typed);
        QFETCH(int, source);
        QFETCH(QString, chosen);
        QFETCH(QString, executable);
        ApplicationChooser chooser(ApplicationChooser::Installed | ApplicationChooser::Running, nullptr, m_cache.get());
        chooser.setCurrentSource(ApplicationChooser::Source(source));
        chooser.show();
        QVERIFY(QTest::qWaitForWindowExposed(&chooser));
        QTRY_VERIFY_WITH_TIMEOUT(m_cache->hasResult(source == ApplicationChooser::Running
                                                        ? QueryCache::RunningApplications
                                                        : QueryCache::InstalledApplications),
                                 30000);
        auto* search = chooser.findChild<QLineEdit*>();
        QVERIFY(search->hasFocus() || !chooser.isActiveWindow());
        QTest::keyClicks(search, typed);
        QCOMPARE(okButton(&chooser)->isEnabled(), !chosen.isEmpty());
        QTest::keyClick(search, Qt::Key_Return);
        QCOMPARE(chooser.result(), int(chosen.isEmpty() ? QDialog::Rejected : QDialog::Accepted));
        QCOMPARE(chooser.selectedApplication().name, chosen);
        QCOMPARE(chooser.selectedApplication().executable, executable);
    }

    void shouldMoveThroughTheListFromTheSearchField()
    {
        ApplicationChooser chooser(ApplicationChooser::Installed, nullptr, m_cache.get());
        chooser.show();
        QTRY_VERIFY_WITH_TIMEOUT(m_cache->hasResult(QueryCache::InstalledApplications), 30000);
        auto* search = chooser.findChild<QLineEdit*>();
        QTest::keyClick(search, Qt::Key_Down);
        QTest::keyClick(search, Qt::Key_Down);
        QTest::keyClick(search, Qt::Key_Return);
        QCOMPARE(chooser.selectedApplication().name, QStringLiteral("Calculator"));
    }

    // The keypad's presses are dropped exactly while a chooser is open.
    void shouldPauseTheKeypadWhileOpen_data()
    {
        QTest::addColumn<bool>("bookmarks");
        QTest::addColumn<QString>("closing");
        for (const bool bookmarks : {false, true}) {
            const char* kind = bookmarks ? "bookmarks" : "applications";
            for (const char* closing : {"enter", "escape", "destroyed"})
                QTest::addRow("%s, %s", kind, closing) << bookmarks << QString::fromLatin1(closing);
        }
    }

    void shouldPauseTheKeypadWhileOpen()
    {
        QFETCH(bool, bookmarks);
        QFETCH(QString, closing);
        m_cache->request(QueryCache::InstalledApplications);
        m_cache->request(QueryCache::Bookmarks);
        QTRY_VERIFY_WITH_TIMEOUT(m_cache->hasResult(QueryCache::InstalledApplications), 30000);
        QTRY_VERIFY_WITH_TIMEOUT(m_cache->hasResult(QueryCache::Bookmarks), 30000);
        Hid_Comm keypad;
        ObjectRegistry::registerObject(ComponentId::HidComm, &keypad);
        std::unique_ptr<QDialog> chooser;
        if (bookmarks)
            chooser = std::make_unique<BookmarkChooser>(nullptr, m_cache.get());
        else
            chooser = std::make_unique<ApplicationChooser>(ApplicationChooser::Installed, nullptr, m_cache.get());
        QVERIFY(!keypad.isPaused());
        bool pausedInside = false;
        QTimer::singleShot(0, this, [&] {
            pausedInside = keypad.isPaused();
            QLineEdit* search = chooser->findChild<QLineEdit*>();
            if (closing == QLatin1String("enter"))
                QTest::keyClick(search, Qt::Key_Return);
            else if (closing == QLatin1String("escape"))
                QTest::keyClick(search, Qt::Key_Escape);
            else
                chooser.reset();
        });
        if (closing == QLatin1String("destroyed")) {
            chooser->show();
            QTRY_VERIFY(!chooser);
        } else {
            chooser->exec();
        }
        QVERIFY(pausedInside);
        QVERIFY(!keypad.isPaused());
    }

    // The window keeps working while a query runs, and shows that it does.
    void shouldShowTheBusyStateWhileTheQueryRuns()
    {
        m_sources->held = true;
        BookmarkChooser chooser(nullptr, m_cache.get());
        chooser.show();
        auto* busy = chooser.findChild<QProgressBar*>();
        QVERIFY(busy->isVisible());
        QVERIFY(!okButton(&chooser)->isEnabled());
        QTest::keyClicks(chooser.findChild<QLineEdit*>(), QStringLiteral("docs"));
        m_sources->gate.release();
        QTRY_VERIFY_WITH_TIMEOUT(!busy->isVisible(), 30000);
        QTest::keyClick(chooser.findChild<QLineEdit*>(), Qt::Key_Return);
        QCOMPARE(chooser.selectedBookmark().url, QStringLiteral("https://docs.example/"));
        QVERIFY(chooser.usePageTitle());
    }

    void shouldGroupBookmarksByBrowser()
    {
        BookmarkChooser chooser(nullptr, m_cache.get());
        chooser.show();
        QTRY_VERIFY_WITH_TIMEOUT(m_cache->hasResult(QueryCache::Bookmarks), 30000);
        QAbstractItemModel* model = chooser.findChild<QTreeView*>()->model();
        QCOMPARE(model->rowCount(), 2);
        QCOMPARE(model->index(0, 0).data().toString(), QStringLiteral("Firefox"));
        QCOMPARE(model->rowCount(model->index(0, 0)), 2);
        QCOMPARE(model->index(1, 0, model->index(0, 0)).data().toString(), QStringLiteral("Docs"));
        QCOMPARE(model->index(1, 1, model->index(0, 0)).data().toString(), QStringLiteral("https://docs.example/"));
        QTest::keyClicks(chooser.findChild<QLineEdit*>(), QStringLiteral("mail"));
        QCOMPARE(model->rowCount(), 1);
        QCOMPARE(model->index(0, 0).data().toString(), QStringLiteral("Brave"));
    }

    // Kept for the session: a second chooser asks nothing; Refresh asks anew.
    void shouldKeepResultsUntilRefreshed()
    {
        {
            ApplicationChooser first(ApplicationChooser::Installed, nullptr, m_cache.get());
            QTRY_VERIFY_WITH_TIMEOUT(m_cache->hasResult(QueryCache::InstalledApplications), 30000);
        }
        ApplicationChooser second(ApplicationChooser::Installed, nullptr, m_cache.get());
        second.show();
        QCOMPARE(m_sources->calls.loadAcquire(), 1);
        QPushButton* refresh = nullptr;
        for (QPushButton* button : second.findChildren<QPushButton*>()) {
            if (button->accessibleName() == QLatin1String("Refresh"))
                refresh = button;
        }
        QVERIFY(refresh);
        QTest::mouseClick(refresh, Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(m_sources->calls.loadAcquire(), 2, 30000);
        QTRY_VERIFY_WITH_TIMEOUT(!m_cache->isRunning(QueryCache::InstalledApplications), 30000);
    }

    // Windows come and go, programs are seldom installed: each chooser asks
    // for the running ones again, and for the installed ones only once.
    void shouldAskForRunningApplicationsAgainInEachChooser()
    {
        for (int round = 1; round <= 2; ++round) {
            ApplicationChooser chooser(ApplicationChooser::Running, nullptr, m_cache.get());
            QTRY_COMPARE_WITH_TIMEOUT(m_sources->runningCalls.loadAcquire(), round, 30000);
            QTRY_VERIFY_WITH_TIMEOUT(!m_cache->isRunning(QueryCache::RunningApplications), 30000);
        }
        QCOMPARE(m_sources->calls.loadAcquire(), 1);
    }

    void shouldRunQueriesOnTheTaskWorker_data()
    {
        QTest::addColumn<bool>("withTaskProxy");
        QTest::newRow("TaskProxy registered") << true;
        QTest::newRow("no TaskProxy") << false;
    }

    void shouldRunQueriesOnTheTaskWorker()
    {
        QFETCH(bool, withTaskProxy);
        TaskProxy proxy;
        if (withTaskProxy)
            ObjectRegistry::registerObject(ComponentId::TaskProxy, &proxy);
        m_cache->request(QueryCache::Bookmarks);
        QTRY_VERIFY_WITH_TIMEOUT(m_cache->hasResult(QueryCache::Bookmarks), 30000);
        QMutexLocker lock(&m_sources->mutex);
        QCOMPARE(m_sources->thread == QLatin1String("TaskProxy"), withTaskProxy);
        QVERIFY(m_sources->thread != QThread::currentThread()->objectName());
    }

    // Screen readers announce each control by its visible label or tool tip.
    void shouldNameEveryControl()
    {
        ApplicationChooser applications(ApplicationChooser::Installed | ApplicationChooser::Running, nullptr,
                                        m_cache.get());
        BookmarkChooser bookmarks(nullptr, m_cache.get());
        for (QDialog* chooser : std::initializer_list<QDialog*>{&applications, &bookmarks}) {
            for (QWidget* widget : chooser->findChildren<QWidget*>()) {
                const bool control = widget->focusPolicy() != Qt::NoFocus && !widget->inherits("QScrollBar") &&
                                     !widget->inherits("QHeaderView");
                if (control)
                    QVERIFY2(!widget->accessibleName().isEmpty(), widget->metaObject()->className());
            }
        }
    }

private:
    std::unique_ptr<TestSources> m_sources;
    std::unique_ptr<QueryCache> m_cache;
};

KEYSTAGE_TEST_MAIN(ChoosersTest)
#include "tst_choosers.moc"
