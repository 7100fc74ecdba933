#include "keystrokebackend.h"
#include "logcapture.h"
#include "testmain.h"

#include <unistd.h>

namespace {

void restore(const char* name, const QByteArray& value)
{
    if (value.isNull())
        qunsetenv(name);
    else
        qputenv(name, value);
}

} // namespace

class KeystrokeBackendTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldPreferXTestOnlyOnX11_data()
    {
        QTest::addColumn<QString>("platform");
        QTest::addColumn<QByteArray>("display");
        QTest::addColumn<QByteArray>("waylandDisplay");
        QTest::addColumn<bool>("x11");
        QTest::newRow("xcb") << "xcb" << QByteArray(":0") << QByteArray() << true;
        QTest::newRow("xcb with Wayland around") << "xcb" << QByteArray(":0") << QByteArray("wayland-0") << true;
        QTest::newRow("wayland with XWayland") << "wayland" << QByteArray(":0") << QByteArray("wayland-0") << false;
        QTest::newRow("wayland-egl") << "wayland-egl" << QByteArray(":0") << QByteArray() << false;
        QTest::newRow("offscreen on X") << "offscreen" << QByteArray(":0") << QByteArray() << true;
        QTest::newRow("offscreen under Wayland") << "offscreen" << QByteArray(":0") << QByteArray("wayland-0") << false;
        QTest::newRow("console") << "eglfs" << QByteArray() << QByteArray() << false;
        QTest::newRow("no application") << "" << QByteArray() << QByteArray() << false;
    }

    void shouldPreferXTestOnlyOnX11()
    {
        QFETCH(QString, platform);
        QFETCH(QByteArray, display);
        QFETCH(QByteArray, waylandDisplay);
        QFETCH(bool, x11);
        QCOMPARE(KeystrokeBackend::prefersX11(platform, display, waylandDisplay), x11);
    }

    // uinput is the one that recovers once the udev rule is in place.
    void shouldKeepUinputWhenNothingWorks_data()
    {
        QTest::addColumn<QByteArray>("display");
        QTest::newRow("X display that is gone") << QByteArray(":4711");
        QTest::newRow("no X display") << QByteArray();
    }

    void shouldKeepUinputWhenNothingWorks()
    {
        QFETCH(QByteArray, display);
        if (::access("/dev/uinput", W_OK) == 0)
            QSKIP("this machine lets us write /dev/uinput");
        const QByteArray savedDisplay = qgetenv("DISPLAY");
        const QByteArray savedWayland = qgetenv("WAYLAND_DISPLAY");
        qputenv("DISPLAY", display);
        qunsetenv("WAYLAND_DISPLAY");
        LogCapture log;
        const std::unique_ptr<KeystrokeBackend> backend = KeystrokeBackend::create();
        restore("DISPLAY", savedDisplay);
        restore("WAYLAND_DISPLAY", savedWayland);

        QCOMPARE(backend->name(), QStringLiteral("uinput"));
        QVERIFY(!backend->isUsable());
        const QStringList failures = log.matching(QStringLiteral("no way to send keystrokes"));
        QCOMPARE(failures.size(), 1);
        QVERIFY2(failures.first().contains(QStringLiteral("/dev/uinput")), qPrintable(failures.first()));
        QVERIFY2(failures.first().contains(QStringLiteral("X display")), qPrintable(failures.first()));
    }
};

KEYSTAGE_TEST_MAIN(KeystrokeBackendTest)
#include "tst_keystrokebackend.moc"
