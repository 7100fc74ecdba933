// The KWin and GNOME Shell foreground sources on a private session bus, with
// the test playing KWin's scripting service and Keystage's GNOME extension.
#include "gnomeshellsource.h"
#include "kwinscriptsource.h"
#include "privatebus.h"
#include "testmain.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QRegularExpression>

namespace {

constexpr int Patience = 30000;
// The script's call back: destination, path, interface, method.
constexpr char CallPattern[] = R"re(callDBus\("([^"]+)", "([^"]+)", "([^"]+)", "([^"]+)")re";

// org.kde.kwin.Scripting as far as the source uses it. A started script is
// "run" by calling back where its callDBus line says.
class FakeKWin : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.kwin.Scripting")

public:
    explicit FakeKWin(const QDBusConnection& bus) : m_bus(bus) {}

    int loads = 0, starts = 0, unloads = 0;
    QString script;

    void activate(qint64 pid)
    {
        const QRegularExpressionMatch call = QRegularExpression(QString::fromLatin1(CallPattern)).match(script);
        QVERIFY(call.hasMatch());
        QDBusMessage message =
            QDBusMessage::createMethodCall(call.captured(1), call.captured(2), call.captured(3), call.captured(4));
        m_bus.call(message << QString::number(pid), QDBus::NoBlock);
    }

public slots:
    int loadScript(const QString& path, const QString& plugin)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly) || plugin != QLatin1String(KWinScriptSource::PluginName))
            return -1;
        script = QString::fromUtf8(file.readAll());
        return ++loads;
    }
    void start() { ++starts; }
    bool unloadScript(const QString& plugin)
    {
        unloads += plugin == QLatin1String(KWinScriptSource::PluginName) ? 1 : 0;
        return true;
    }

private:
    QDBusConnection m_bus;
};

// The Keystage Focus extension's bus object.
class FakeShellFocus : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", KEYSTAGE_APP_ID ".ShellFocus")
    Q_PROPERTY(uint FocusedPid READ focusedPid)

public:
    uint pid = 1234;
    uint focusedPid() const { return pid; }

signals:
    void FocusChanged(uint pid);
};

} // namespace

class ShellForegroundTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (PrivateBus::daemonProgram().isEmpty())
            QSKIP("dbus-daemon is not installed");
        QVERIFY(!m_bus.start().isEmpty());
    }

    void cleanup()
    {
        for (const QString& name : {QStringLiteral("shell"), QStringLiteral("source")})
            QDBusConnection::disconnectFromBus(name);
    }

    // The script is loaded and started, reports each activation, and is
    // unloaded when the source stops: at once, and also when the program
    // quits while it runs.
    void shouldFollowKWinThroughItsScript_data()
    {
        QTest::addColumn<bool>("quit");
        QTest::newRow("stopped") << false;
        QTest::newRow("program quits") << true;
    }

    void shouldFollowKWinThroughItsScript()
    {
        QFETCH(bool, quit);
        QDBusConnection shell = connection(QStringLiteral("shell"));
        FakeKWin kwin(shell);
        QVERIFY(shell.registerObject(QStringLiteral("/Scripting"), &kwin, QDBusConnection::ExportAllSlots));
        QVERIFY(shell.registerService(QStringLiteral("org.kde.KWin")));
        auto source = std::make_unique<KWinScriptSource>(connection(QStringLiteral("source")));
        QCoreApplication::processEvents();
        QCOMPARE(kwin.loads, 0); // nothing while stopped
        source->start();
        QTRY_COMPARE_WITH_TIMEOUT(kwin.starts, 1, Patience);
        kwin.activate(4242);
        QTRY_COMPARE_WITH_TIMEOUT(source->processId(), qint64(4242), Patience);
        kwin.activate(0);
        QTRY_COMPARE_WITH_TIMEOUT(source->processId(), qint64(0), Patience);
        const int unloadsBefore = kwin.unloads;
        if (quit)
            source.reset();
        else
            source->stop();
        QTRY_COMPARE_WITH_TIMEOUT(kwin.unloads, unloadsBefore + 1, Patience);
        if (!quit) {
            kwin.activate(99);
            QTest::qWait(100);
            QCOMPARE(source->processId(), ForegroundSource::Unknown);
        }
    }

    void shouldLoadTheScriptAgainWhenKWinRestarts()
    {
        QDBusConnection shell = connection(QStringLiteral("shell"));
        FakeKWin kwin(shell);
        QVERIFY(shell.registerObject(QStringLiteral("/Scripting"), &kwin, QDBusConnection::ExportAllSlots));
        QVERIFY(shell.registerService(QStringLiteral("org.kde.KWin")));
        KWinScriptSource source(connection(QStringLiteral("source")));
        source.start();
        QTRY_COMPARE_WITH_TIMEOUT(kwin.starts, 1, Patience);
        QVERIFY(shell.unregisterService(QStringLiteral("org.kde.KWin")));
        QVERIFY(shell.registerService(QStringLiteral("org.kde.KWin")));
        QTRY_COMPARE_WITH_TIMEOUT(kwin.starts, 2, Patience);
        kwin.activate(77);
        QTRY_COMPARE_WITH_TIMEOUT(source.processId(), qint64(77), Patience);
    }

    // The extension may be on before the source starts or come on later;
    // turned off, nothing is known until it is back.
    void shouldFollowTheGnomeShellExtension_data()
    {
        QTest::addColumn<bool>("onBeforeStart");
        QTest::newRow("extension on first") << true;
        QTest::newRow("extension turned on later") << false;
    }

    void shouldFollowTheGnomeShellExtension()
    {
        QFETCH(bool, onBeforeStart);
        QDBusConnection shell = connection(QStringLiteral("shell"));
        FakeShellFocus extension;
        QVERIFY(shell.registerObject(QString::fromLatin1(GnomeShellSource::Path), &extension,
                                     QDBusConnection::ExportAllProperties | QDBusConnection::ExportAllSignals));
        const QString service = QString::fromLatin1(GnomeShellSource::Service);
        if (onBeforeStart)
            QVERIFY(shell.registerService(service));
        GnomeShellSource source(connection(QStringLiteral("source")));
        source.start();
        if (!onBeforeStart) {
            QTest::qWait(100);
            QCOMPARE(source.processId(), ForegroundSource::Unknown);
            QVERIFY(shell.registerService(service));
        }
        QTRY_COMPARE_WITH_TIMEOUT(source.processId(), qint64(1234), Patience);
        emit extension.FocusChanged(5678);
        QTRY_COMPARE_WITH_TIMEOUT(source.processId(), qint64(5678), Patience);
        QVERIFY(shell.unregisterService(service));
        QTRY_COMPARE_WITH_TIMEOUT(source.processId(), ForegroundSource::Unknown, Patience);
    }

    void shouldSayHowToTurnTheGnomeExtensionOn_data()
    {
        QTest::addColumn<bool>("installed");
        QTest::addColumn<bool>("running");
        QTest::addColumn<QString>("said");
        QTest::newRow("not installed") << false << false << "install Keystage's GNOME Shell extension";
        QTest::newRow("installed but off") << true << false << "gnome-extensions enable keystage-focus@";
        QTest::newRow("running") << true << true << "the Keystage Focus extension of GNOME Shell tells";
    }

    void shouldSayHowToTurnTheGnomeExtensionOn()
    {
        QFETCH(bool, installed);
        QFETCH(bool, running);
        QFETCH(QString, said);
        const QString extension = testEnvironment()->dataHome() + QStringLiteral("/gnome-shell/extensions/") +
                                  QString::fromLatin1(GnomeShellSource::ExtensionUuid);
        QDir(extension).removeRecursively();
        if (installed) {
            QVERIFY(QDir().mkpath(extension));
            QFile metadata(extension + QStringLiteral("/metadata.json"));
            QVERIFY(metadata.open(QIODevice::WriteOnly));
        }
        QDBusConnection shell = connection(QStringLiteral("shell"));
        if (running)
            QVERIFY(shell.registerService(QString::fromLatin1(GnomeShellSource::Service)));
        const GnomeShellSource source(connection(QStringLiteral("source")));
        QVERIFY2(source.notice().contains(said), qPrintable(source.notice()));
        QCOMPARE(GnomeShellSource::isExtensionInstalled(), installed);
    }

private:
    QDBusConnection connection(const QString& name) const
    {
        return QDBusConnection::connectToBus(m_bus.address(), name);
    }

    PrivateBus m_bus;
};

KEYSTAGE_TEST_MAIN(ShellForegroundTest)
#include "tst_shellforeground.moc"
