#include "keystrokebackend.h"
#include "logcapture.h"
#include "testmain.h"

#include <unistd.h>

namespace {

// Usable or not, with a reason naming it so the log can be checked.
class FakeBackend : public KeystrokeBackend
{
public:
    FakeBackend(const char* name, bool usable) : m_name(QString::fromLatin1(name)), m_usable(usable) {}
    QString name() const override { return m_name; }
    bool isUsable() override { return m_usable; }
    QString unusableReason() const override { return m_usable ? QString() : m_name + QStringLiteral(" is off"); }
    bool keyDown(int) override { return m_usable; }
    bool keyUp(int) override { return m_usable; }

private:
    QString m_name;
    bool m_usable;
};

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
    // Session type x WAYLAND_DISPLAY x DISPLAY (x Qt platform) x which
    // backends work: the backend chosen and whether the user must hear that
    // keys reach X applications only.
    void shouldChooseTheBackendForTheSession_data()
    {
        QTest::addColumn<QByteArray>("sessionType");
        QTest::addColumn<QByteArray>("waylandDisplay");
        QTest::addColumn<QByteArray>("display");
        QTest::addColumn<QString>("platform");
        QTest::addColumn<bool>("uinputUsable");
        QTest::addColumn<bool>("xtestUsable");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<bool>("xClientsOnly");
        const QByteArray none;
        const QByteArray x(":0");
        const QByteArray w("wayland-0");
        // clang-format off
        QTest::newRow("X11 session")                 << QByteArray("x11")     << none << x    << "xcb"       << true  << true  << "xtest"  << false;
        QTest::newRow("X11 session, no XTest")       << QByteArray("x11")     << none << x    << "xcb"       << true  << false << "uinput" << false;
        QTest::newRow("X11 unknown session")         << none                  << none << x    << "xcb"       << true  << true  << "xtest"  << false;
        QTest::newRow("offscreen on X")              << none                  << none << x    << "offscreen" << true  << true  << "xtest"  << false;
        QTest::newRow("XWayland, xcb platform")      << QByteArray("wayland") << w    << x    << "xcb"       << true  << true  << "uinput" << false;
        QTest::newRow("XWayland, no WAYLAND_DISPLAY")<< QByteArray("wayland") << none << x    << "xcb"       << true  << true  << "uinput" << false;
        QTest::newRow("XWayland, no session type")   << none                  << w    << x    << "xcb"       << true  << true  << "uinput" << false;
        QTest::newRow("native Wayland")              << QByteArray("wayland") << w    << x    << "wayland"   << true  << true  << "uinput" << false;
        QTest::newRow("Wayland platform only")       << none                  << none << none << "wayland"   << true  << true  << "uinput" << false;
        QTest::newRow("XWayland, no uinput")         << QByteArray("wayland") << w    << x    << "xcb"       << false << true  << "xtest"  << true;
        QTest::newRow("no session type, no uinput")  << none                  << w    << x    << "xcb"       << false << true  << "xtest"  << true;
        QTest::newRow("Wayland without XWayland")    << QByteArray("wayland") << w    << none << "wayland"   << false << false << "uinput" << false;
        QTest::newRow("console")                     << QByteArray("tty")     << none << none << "eglfs"     << true  << true  << "uinput" << false;
        QTest::newRow("console, no uinput")          << QByteArray("tty")     << none << none << ""          << false << false << "uinput" << false;
        QTest::newRow("X11, nothing works")          << QByteArray("x11")     << none << x    << "xcb"       << false << false << "uinput" << false;
        // clang-format on
    }

    void shouldChooseTheBackendForTheSession()
    {
        QFETCH(QByteArray, sessionType);
        QFETCH(QByteArray, waylandDisplay);
        QFETCH(QByteArray, display);
        QFETCH(QString, platform);
        QFETCH(bool, uinputUsable);
        QFETCH(bool, xtestUsable);
        QFETCH(QString, chosen);
        QFETCH(bool, xClientsOnly);
        const KeystrokeBackend::Session session{sessionType, waylandDisplay, display, platform};

        LogCapture log;
        const KeystrokeBackend::Choice choice =
            KeystrokeBackend::choose(session, std::make_unique<FakeBackend>("uinput", uinputUsable),
                                     std::make_unique<FakeBackend>("xtest", xtestUsable));

        QVERIFY(choice.backend);
        QCOMPARE(choice.backend->name(), chosen);
        QCOMPARE(choice.xClientsOnly, xClientsOnly);
        const bool anyUsable = uinputUsable || xtestUsable;
        QCOMPARE(log.matching(QStringLiteral("no way to send keystrokes")).size(), anyUsable ? 0 : 1);
        QCOMPARE(log.matching(QStringLiteral("reach X clients only")).size(), xClientsOnly ? 1 : 0);
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
        const QByteArray savedSession = qgetenv("XDG_SESSION_TYPE");
        qputenv("DISPLAY", display);
        qunsetenv("WAYLAND_DISPLAY");
        LogCapture log;
        qunsetenv("XDG_SESSION_TYPE");
        const std::unique_ptr<KeystrokeBackend> backend = KeystrokeBackend::create().backend;
        restore("DISPLAY", savedDisplay);
        restore("WAYLAND_DISPLAY", savedWayland);
        restore("XDG_SESSION_TYPE", savedSession);

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
