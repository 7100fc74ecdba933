// Runs on its own Xvfb server without a window manager, so nothing but the
// test writes _NET_ACTIVE_WINDOW (see tests/CMakeLists.txt).
#include "testmain.h"
#include "windowsystem.h"
#include "x11windowsystem.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QX11Info>

#include <cstring>
#include <unistd.h>
#include <xcb/xcb.h>

namespace {

xcb_atom_t atom(const char* name)
{
    xcb_connection_t* connection = QX11Info::connection();
    xcb_intern_atom_reply_t* reply =
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, uint16_t(std::strlen(name)), name), nullptr);
    const xcb_atom_t result = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    std::free(reply);
    return result;
}

// A bare X window: unlike Qt's own windows it carries no _NET_WM_PID until
// the test gives it one.
class TestWindow
{
public:
    TestWindow() : m_id(xcb_generate_id(QX11Info::connection()))
    {
        xcb_create_window(QX11Info::connection(), XCB_COPY_FROM_PARENT, m_id, xcb_window_t(QX11Info::appRootWindow()),
                          0, 0, 10, 10, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    }
    ~TestWindow() { xcb_destroy_window(QX11Info::connection(), m_id); }
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;

    xcb_window_t id() const { return m_id; }

    void setPid(quint32 pid, xcb_atom_t type = XCB_ATOM_CARDINAL)
    {
        xcb_change_property(QX11Info::connection(), XCB_PROP_MODE_REPLACE, m_id, atom("_NET_WM_PID"), type, 32, 1,
                            &pid);
    }

private:
    xcb_window_t m_id;
};

void setActiveWindow(xcb_window_t window)
{
    xcb_change_property(QX11Info::connection(), XCB_PROP_MODE_REPLACE, xcb_window_t(QX11Info::appRootWindow()),
                        atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, 32, 1, &window);
}

void removeActiveWindow()
{
    xcb_delete_property(QX11Info::connection(), xcb_window_t(QX11Info::appRootWindow()), atom("_NET_ACTIVE_WINDOW"));
}

// What a window manager publishes: the windows it manages.
void setClientList(const QVector<xcb_window_t>& windows)
{
    xcb_change_property(QX11Info::connection(), XCB_PROP_MODE_REPLACE, xcb_window_t(QX11Info::appRootWindow()),
                        atom("_NET_CLIENT_LIST"), XCB_ATOM_WINDOW, 32, uint32_t(windows.size()), windows.constData());
}

} // namespace

class ForegroundApplicationTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { removeActiveWindow(); }

    // A copy of sleep under a name of its own, possibly deleted while it
    // runs, as an updated program is.
    void shouldNameTheProgramOfTheActiveWindowsProcess_data()
    {
        QTest::addColumn<bool>("removed");
        QTest::newRow("running program") << false;
        QTest::newRow("program removed while it runs") << true;
    }

    void shouldNameTheProgramOfTheActiveWindowsProcess()
    {
        QFETCH(bool, removed);
        QVERIFY(WindowSystem::create()->canQueryForegroundApplication());
        QTemporaryDir dir;
        const QString program = dir.filePath(QStringLiteral("old-tool"));
        QVERIFY(QFile::copy(QStringLiteral("/bin/sleep"), program));
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
        QProcess sleeper;
        sleeper.start(program, {QStringLiteral("600")});
        QVERIFY(sleeper.waitForStarted());
        if (removed)
            QVERIFY(QFile::remove(program));

        TestWindow window;
        window.setPid(quint32(sleeper.processId()));
        setActiveWindow(window.id());
        const QString name = WindowSystem::create()->foregroundApplicationName();
        sleeper.kill();
        sleeper.waitForFinished();
        QCOMPARE(name, QStringLiteral("old-tool"));
    }

    // Every step complete names this test; each missing one gives no name.
    void shouldNameTheProgramOnlyWhenEveryStepIsThere_data()
    {
        QTest::addColumn<QString>("missing");
        QTest::newRow("nothing missing") << "";
        QTest::newRow("no active window property") << "active";
        QTest::newRow("active window is none") << "none";
        QTest::newRow("no pid property") << "pid";
        QTest::newRow("pid of another type") << "type";
        QTest::newRow("pid of an ended process") << "process";
        QTest::newRow("pid 0") << "zero";
    }

    void shouldNameTheProgramOnlyWhenEveryStepIsThere()
    {
        QFETCH(QString, missing);
        TestWindow window;
        if (missing == QLatin1String("type"))
            window.setPid(quint32(::getpid()), XCB_ATOM_INTEGER);
        else if (missing == QLatin1String("process"))
            window.setPid(quint32(endedProcessId()));
        else if (missing == QLatin1String("zero"))
            window.setPid(0);
        else if (missing != QLatin1String("pid"))
            window.setPid(quint32(::getpid()));
        if (missing == QLatin1String("none"))
            setActiveWindow(XCB_WINDOW_NONE);
        else if (missing != QLatin1String("active"))
            setActiveWindow(window.id());
        QCOMPARE(WindowSystem::create()->foregroundApplicationName(),
                 missing.isEmpty() ? QStringLiteral("tst_foregroundapplication") : QString());
    }

    // Each program once, in the window manager's order; windows without a
    // live process are left out.
    void shouldListTheProgramsOfTheManagedWindows_data()
    {
        QTest::addColumn<bool>("published");
        QTest::newRow("client list published") << true;
        QTest::newRow("no window manager") << false;
    }

    void shouldListTheProgramsOfTheManagedWindows()
    {
        QFETCH(bool, published);
        QTemporaryDir dir;
        const QString program = dir.filePath(QStringLiteral("tool"));
        QVERIFY(QFile::copy(QStringLiteral("/bin/sleep"), program));
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
        QProcess sleeper;
        sleeper.start(program, {QStringLiteral("600")});
        QVERIFY(sleeper.waitForStarted());
        TestWindow tool, noPid, self, selfAgain, ended;
        tool.setPid(quint32(sleeper.processId()));
        self.setPid(quint32(::getpid()));
        selfAgain.setPid(quint32(::getpid()));
        ended.setPid(quint32(endedProcessId()));
        if (published)
            setClientList({tool.id(), noPid.id(), self.id(), ended.id(), selfAgain.id()});
        const QStringList running = WindowSystem::create()->runningApplicationExecutables();
        sleeper.kill();
        sleeper.waitForFinished();
        xcb_delete_property(QX11Info::connection(), xcb_window_t(QX11Info::appRootWindow()), atom("_NET_CLIENT_LIST"));
        const QStringList expected{QFileInfo(program).canonicalFilePath(),
                                   QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath()};
        QCOMPARE(running, published ? expected : QStringList());
    }

private:
    static qint64 endedProcessId()
    {
        QProcess process;
        process.start(QStringLiteral("true"), QStringList());
        if (!process.waitForStarted())
            return 0;
        const qint64 pid = process.processId();
        process.waitForFinished();
        return pid;
    }
};

KEYSTAGE_TEST_MAIN(ForegroundApplicationTest)
#include "tst_foregroundapplication.moc"
