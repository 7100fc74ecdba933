// Runs on its own Xvfb server with openbox (see tests/CMakeLists.txt).
#include "testmain.h"
#include "windowsystem.h"
#include "x11windowsystem.h"

#include <QWidget>

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
        ours.setWindowTitle(QStringLiteral("ours"));
        ours.resize(200, 150);
        ours.show();
        QVERIFY(QTest::qWaitForWindowExposed(&ours));

        QWidget other;
        other.setWindowTitle(QStringLiteral("other"));
        other.resize(200, 150);
        other.show();
        QVERIFY(QTest::qWaitForWindowExposed(&other));
        other.activateWindow();
        QTRY_COMPARE_WITH_TIMEOUT(X11WindowSystem::activeWindowId(), quint32(other.winId()), 30000);

        WindowSystem::create()->activateWindow(ours.windowHandle());
        QTRY_COMPARE_WITH_TIMEOUT(X11WindowSystem::activeWindowId(), quint32(ours.winId()), 30000);
        QTRY_VERIFY_WITH_TIMEOUT(ours.isActiveWindow(), 30000);
    }
};

KEYSTAGE_TEST_MAIN(X11WindowSystemTest)
#include "tst_x11windowsystem.moc"
