// Runs on its own Xvfb server with openbox (see CMakeLists.txt): the rule
// for the broadcasting program needs a window manager that activates.
#include "testmain.h"
#include "virtualkey.h"
#include "windowsystem.h"
#include "xtestkeystrokebackend.h"

#include <QKeyEvent>
#include <QWidget>

#include <atomic>
#include <thread>

namespace {

// A top-level window that remembers the keys it receives.
class KeyWindow : public QWidget
{
public:
    explicit KeyWindow(const QString& title)
    {
        setWindowTitle(title);
        setFocusPolicy(Qt::StrongFocus);
        resize(200, 150);
    }

    QStringList keys;

protected:
    void keyPressEvent(QKeyEvent* event) override { keys << QStringLiteral("%1+").arg(event->key(), 0, 16); }
    void keyReleaseEvent(QKeyEvent* event) override { keys << QStringLiteral("%1-").arg(event->key(), 0, 16); }
};

constexpr int WaitMs = 30000;

} // namespace

class VirtualKeyBroadcasterTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldTypeIntoTheMainWindowAndGiveTheFocusBack()
    {
        KeyWindow mainWindow(QStringLiteral("Keystage"));
        mainWindow.show();
        QVERIFY(QTest::qWaitForWindowExposed(&mainWindow));
        KeyWindow broadcaster(QStringLiteral("XSplit Broadcaster"));
        broadcaster.show();
        QVERIFY(QTest::qWaitForWindowExposed(&broadcaster));
        broadcaster.activateWindow();
        const std::unique_ptr<WindowSystem> windowSystem = WindowSystem::create();
        QTRY_COMPARE_WITH_TIMEOUT(windowSystem->foregroundWindowId(), quint64(broadcaster.winId()), WaitMs);
        QTRY_VERIFY_WITH_TIMEOUT(broadcaster.isActiveWindow(), WaitMs);

        XTestKeystrokeBackend backend;
        VirtualKey::setBackend(&backend);
        const quint64 mainWindowId = mainWindow.winId();
        VirtualKey::setWindowSystem(windowSystem.get());
        VirtualKey::setMainWindowId(mainWindowId);
        // Typed off the GUI thread, as the key action thread does, so the
        // windows keep receiving events meanwhile.
        std::atomic<bool> done{false};
        std::thread typing([&done] {
            VirtualKey::sendKeyEvent(0x42, false, false, false, false);
            done = true;
        });
        QTRY_VERIFY_WITH_TIMEOUT(done.load(), WaitMs);
        typing.join();

        const QStringList typed = {QStringLiteral("42+"), QStringLiteral("42-")};
        QTRY_COMPARE_WITH_TIMEOUT(mainWindow.keys, typed, WaitMs);
        QTRY_COMPARE_WITH_TIMEOUT(windowSystem->foregroundWindowId(), quint64(broadcaster.winId()), WaitMs);
        QVERIFY(broadcaster.keys.isEmpty());

        VirtualKey::setWindowSystem(nullptr);
        VirtualKey::setMainWindowId(0);
        VirtualKey::setBackend(nullptr);
    }
};

KEYSTAGE_TEST_MAIN(VirtualKeyBroadcasterTest)
#include "tst_virtualkeybroadcaster.moc"
