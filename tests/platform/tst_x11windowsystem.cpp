// Runs on its own Xvfb server with openbox (see tests/CMakeLists.txt).
#include "testmain.h"
#include "windowsystem.h"
#include "x11windowsystem.h"

#include <QWidget>

#include <QX11Info>
#include <cstring>
#include <thread>
#include <xcb/xcb.h>

class X11WindowSystemTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldBeChosenOnX11()
    {
        QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
        QCOMPARE(WindowSystem::create()->name(), QStringLiteral("x11"));
    }

    void shouldTakeTheFocusFromAnotherWindow()
    {
        QWidget ours;
        QWidget other;
        showBehind(&ours, &other);
        WindowSystem::create()->activateWindow(ours.windowHandle());
        QTRY_COMPARE_WITH_TIMEOUT(X11WindowSystem::activeWindowId(), quint32(ours.winId()), 30000);
        QTRY_VERIFY_WITH_TIMEOUT(ours.isActiveWindow(), 30000);
    }

    void shouldReadTheTitleOfTheWindowInFront()
    {
        const QString title = QStringLiteral("Grüße – XSplit Broadcaster");
        QWidget window;
        window.setWindowTitle(title);
        window.resize(200, 150);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.activateWindow();
        auto windowSystem = WindowSystem::create();
        QTRY_COMPARE_WITH_TIMEOUT(windowSystem->foregroundWindowId(), quint64(window.winId()), 30000);
        QCOMPARE(windowSystem->foregroundWindowTitle(), title);
    }

    // Old clients name their windows with WM_NAME only.
    void shouldFallBackToTheOldTitleProperty()
    {
        xcb_connection_t* connection = QX11Info::connection();
        const xcb_window_t window = xcb_generate_id(connection);
        xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, xcb_window_t(QX11Info::appRootWindow()), 0, 0, 200,
                          150, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        const char title[] = "plain old title";
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                            uint32_t(std::strlen(title)), title);
        xcb_map_window(connection, window);
        xcb_flush(connection);

        auto windowSystem = WindowSystem::create();
        QTRY_VERIFY_WITH_TIMEOUT(windowSystem->activateWindowId(window) && windowSystem->foregroundWindowId() == window,
                                 30000);
        QCOMPARE(windowSystem->foregroundWindowTitle(), QStringLiteral("plain old title"));
        xcb_destroy_window(connection, window);
        xcb_flush(connection);
    }

    // Keystrokes run on their own thread and give the focus back from there.
    void shouldActivateAWindowByIdFromAnotherThread()
    {
        QWidget ours;
        QWidget other;
        showBehind(&ours, &other);
        auto windowSystem = WindowSystem::create();
        QTRY_COMPARE_WITH_TIMEOUT(windowSystem->foregroundWindowId(), quint64(other.winId()), 30000);
        bool sent = false;
        const quint64 id = ours.winId();
        std::thread([&] { sent = windowSystem->activateWindowId(id); }).join();
        QVERIFY(sent);
        QTRY_COMPARE_WITH_TIMEOUT(windowSystem->foregroundWindowId(), id, 30000);
        QTRY_VERIFY_WITH_TIMEOUT(ours.isActiveWindow(), 30000);
    }

    void shouldRefuseToActivateNoWindow() { QVERIFY(!WindowSystem::create()->activateWindowId(0)); }

private:
    // Both windows shown, `other` active.
    static void showBehind(QWidget* ours, QWidget* other)
    {
        for (QWidget* window : {ours, other}) {
            window->resize(200, 150);
            window->show();
            QVERIFY(QTest::qWaitForWindowExposed(window));
        }
        other->activateWindow();
        QTRY_COMPARE_WITH_TIMEOUT(X11WindowSystem::activeWindowId(), quint32(other->winId()), 30000);
    }
};

KEYSTAGE_TEST_MAIN(X11WindowSystemTest)
#include "tst_x11windowsystem.moc"
