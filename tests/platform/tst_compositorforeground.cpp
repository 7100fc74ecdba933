// sway/i3 and Hyprland foreground sources against stand-in compositors: local
// socket servers of the test's own that speak the compositors' protocols.
#include "foregroundsource.h"
#include "genericwindowsystem.h"
#include "hyprlandsource.h"
#include "swayipcsource.h"
#include "testmain.h"

#include <QDir>
#include <QJsonDocument>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QtEndian>

#include <unistd.h>

namespace {

constexpr int Patience = 30000;

QByteArray swayFrame(quint32 type, const QByteArray& payload)
{
    QByteArray frame("i3-ipc");
    quint32 header[2] = {qToLittleEndian(quint32(payload.size())), qToLittleEndian(type)};
    frame.append(reinterpret_cast<const char*>(header), sizeof header);
    return frame + payload;
}

QByteArray tree(const char* focused)
{
    return QByteArray(R"({"type":"root","nodes":[{"type":"output","nodes":[{"type":"workspace","focused":)") +
           (qstrcmp(focused, "workspace") == 0 ? "true" : "false") +
           R"(,"nodes":[{"type":"con","pid":111,"focused":false}],"floating_nodes":[{"type":"floating_con",)"
           R"("pid":222,"focused":)" +
           (qstrcmp(focused, "floating") == 0 ? "true" : "false") + "}]}]}]}";
}

QByteArray focusEvent(const char* change, int pid)
{
    return swayFrame(0x80000003, QByteArray(R"({"change":")") + change + R"(","container":{"pid":)" +
                                     QByteArray::number(pid) + R"(,"focused":true}})");
}

// One client at a time; what it asked for is kept.
class StandIn : public QObject
{
    Q_OBJECT

public:
    QLocalServer server;
    QLocalSocket* client = nullptr;
    QByteArray received;
    int connections = 0;

    bool listen(const QString& path)
    {
        connect(&server, &QLocalServer::newConnection, this, [this] {
            client = server.nextPendingConnection();
            ++connections;
            connect(client, &QLocalSocket::readyRead, this, [this] {
                received += client->readAll();
                emit asked();
            });
        });
        return server.listen(path);
    }

signals:
    void asked();
};

} // namespace

class CompositorForegroundTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldChooseTheSourceTheDesktopOffers_data()
    {
        QTest::addColumn<QString>("variable");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("source");
        QTest::newRow("sway") << "SWAYSOCK"
                              << "/run/user/1/sway-ipc.1.2.sock"
                              << "sway";
        QTest::newRow("i3") << "I3SOCK"
                            << "/run/user/1/i3/ipc-socket.2"
                            << "i3";
        QTest::newRow("Hyprland") << "HYPRLAND_INSTANCE_SIGNATURE"
                                  << "abc_1_2"
                                  << "Hyprland";
        QTest::newRow("Plasma") << "XDG_CURRENT_DESKTOP"
                                << "KDE"
                                << "KWin";
        QTest::newRow("GNOME") << "XDG_CURRENT_DESKTOP"
                               << "ubuntu:GNOME"
                               << "GNOME Shell";
        QTest::newRow("another desktop") << "XDG_CURRENT_DESKTOP"
                                         << "Weston"
                                         << "";
    }

    void shouldChooseTheSourceTheDesktopOffers()
    {
        QFETCH(QString, variable);
        QFETCH(QString, value);
        QFETCH(QString, source);
        QProcessEnvironment environment;
        environment.insert(variable, value);
        const std::unique_ptr<ForegroundSource> chosen = ForegroundSource::forDesktop(environment);
        QCOMPARE(chosen ? chosen->name() : QString(), source);
        const GenericWindowSystem wayland(QStringLiteral("wayland"), ForegroundSource::forDesktop(environment));
        QCOMPARE(wayland.canQueryForegroundApplication(), !source.isEmpty());
        QVERIFY(!wayland.foregroundSourceNotice().isEmpty());
    }

    // The tree answers for the window focused before the subscription;
    // focus events follow; other changes do not count.
    void shouldFollowSwayFocus_data()
    {
        QTest::addColumn<QByteArray>("focusedInTree");
        QTest::addColumn<QByteArray>("event");
        QTest::addColumn<qint64>("before");
        QTest::addColumn<qint64>("after");
        QTest::newRow("floating window, then another focused")
            << QByteArray("floating") << focusEvent("focus", 333) << qint64(222) << qint64(333);
        QTest::newRow("empty workspace, then a window")
            << QByteArray("workspace") << focusEvent("focus", 444) << qint64(0) << qint64(444);
        QTest::newRow("title change is no focus change")
            << QByteArray("floating") << focusEvent("title", 555) << qint64(222) << qint64(222);
        QTest::newRow("event split across writes")
            << QByteArray("floating") << focusEvent("focus", 666) << qint64(222) << qint64(666);
    }

    void shouldFollowSwayFocus()
    {
        QFETCH(QByteArray, focusedInTree);
        QFETCH(QByteArray, event);
        QFETCH(qint64, before);
        QFETCH(qint64, after);
        QTemporaryDir dir;
        StandIn sway;
        const QString path = dir.filePath(QStringLiteral("sway-ipc.1000.42.sock"));
        QVERIFY(sway.listen(path));
        connect(&sway, &StandIn::asked, &sway, [&sway, &focusedInTree] {
            if (sway.received.contains(swayFrame(4, QByteArray())) && !sway.received.contains("answered")) {
                sway.client->write(swayFrame(2, R"({"success":true})") + swayFrame(4, tree(focusedInTree)));
                sway.received += "answered";
            }
        });
        SwayIpcSource source(QStringLiteral("sway"), path);
        QCoreApplication::processEvents();
        QCOMPARE(sway.connections, 0); // nothing while stopped
        source.start();
        QTRY_COMPARE_WITH_TIMEOUT(source.processId(), before, Patience);
        QVERIFY(sway.received.startsWith(swayFrame(2, R"(["window"])")));
        const int half = event.size() / 2;
        if (QByteArray(QTest::currentDataTag()).contains("split")) {
            sway.client->write(event.left(half));
            sway.client->flush();
            QTest::qWait(50);
            sway.client->write(event.mid(half));
        } else {
            sway.client->write(event + focusEvent("title", 777));
        }
        QTRY_COMPARE_WITH_TIMEOUT(source.processId(), after, Patience);

        source.stop();
        QCOMPARE(source.processId(), ForegroundSource::Unknown);
        QTRY_COMPARE_WITH_TIMEOUT(sway.client->state(), QLocalSocket::UnconnectedState, Patience);
    }

    // A restarted sway listens under a new name; a broken stream is dropped
    // and the socket asked again.
    void shouldReconnectToSway_data()
    {
        QTest::addColumn<bool>("restart");
        QTest::newRow("compositor restarted") << true;
        QTest::newRow("garbage on the socket") << false;
    }

    void shouldReconnectToSway()
    {
        QFETCH(bool, restart);
        QTemporaryDir dir;
        auto first = std::make_unique<StandIn>();
        const QString firstPath = dir.filePath(QStringLiteral("sway-ipc.1000.42.sock"));
        QVERIFY(first->listen(firstPath));
        SwayIpcSource source(QStringLiteral("sway"), firstPath);
        source.start();
        QTRY_VERIFY_WITH_TIMEOUT(first->client, Patience);
        first->client->write(focusEvent("focus", 111));
        QTRY_COMPARE_WITH_TIMEOUT(source.processId(), qint64(111), Patience);

        StandIn second;
        if (restart) {
            first.reset();
            QVERIFY(second.listen(dir.filePath(QStringLiteral("sway-ipc.1000.43.sock"))));
        } else {
            first->client->write("garbage that is no frame");
        }
        StandIn& next = restart ? second : *first;
        QTRY_COMPARE_WITH_TIMEOUT(next.connections, restart ? 1 : 2, Patience);
        next.client->write(focusEvent("focus", 222));
        QTRY_COMPARE_WITH_TIMEOUT(source.processId(), qint64(222), Patience);
    }

    // Every activewindowv2 event asks the request socket which process is
    // active; "{}" means none.
    void shouldFollowHyprlandFocus_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<qint64>("pid");
        QTest::newRow("a window") << QByteArray(R"({"address":"0x55d1","pid":4242,"class":"kitty"})") << qint64(4242);
        QTest::newRow("no window") << QByteArray("{}") << qint64(0);
    }

    void shouldFollowHyprlandFocus()
    {
        QFETCH(QByteArray, answer);
        QFETCH(qint64, pid);
        QTemporaryDir runtime;
        const QString instance = runtime.filePath(QStringLiteral("hypr/sig_1"));
        QVERIFY(QDir().mkpath(instance));
        StandIn events, requests;
        QVERIFY(events.listen(instance + QStringLiteral("/.socket2.sock")));
        QVERIFY(requests.listen(instance + QStringLiteral("/.socket.sock")));
        QByteArray current = R"({"pid":1})";
        QStringList asked;
        connect(&requests, &StandIn::asked, &requests, [&] {
            asked << QString::fromLatin1(requests.received);
            requests.received.clear();
            requests.client->write(current);
            requests.client->disconnectFromServer();
        });
        QProcessEnvironment environment;
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime.path());
        environment.insert(QStringLiteral("HYPRLAND_INSTANCE_SIGNATURE"), QStringLiteral("sig_1"));
        QCOMPARE(HyprlandSource::instanceDirectory(environment), instance);
        HyprlandSource source(instance);
        source.start();
        QTRY_COMPARE_WITH_TIMEOUT(source.processId(), qint64(1), Patience);
        current = answer;
        events.client->write("workspace>>2\nactivewindow>>kitty,~\nactivewindowv2>>55d1\n");
        QTRY_COMPARE_WITH_TIMEOUT(source.processId(), pid, Patience);
        QCOMPARE(asked, QStringList({"j/activewindow", "j/activewindow"}));
        source.stop();
        QTRY_COMPARE_WITH_TIMEOUT(events.client->state(), QLocalSocket::UnconnectedState, Patience);
    }

    // A restarted Hyprland has a new signature and so a new directory.
    void shouldReconnectToARestartedHyprland()
    {
        QTemporaryDir runtime;
        const QString old = runtime.filePath(QStringLiteral("hypr/old"));
        const QString fresh = runtime.filePath(QStringLiteral("hypr/new"));
        QVERIFY(QDir().mkpath(old) && QDir().mkpath(fresh));
        auto events = std::make_unique<StandIn>();
        QVERIFY(events->listen(old + QStringLiteral("/.socket2.sock")));
        HyprlandSource source(old);
        source.start();
        QTRY_COMPARE_WITH_TIMEOUT(events->connections, 1, Patience);
        events.reset();
        QVERIFY(QDir(old).removeRecursively());
        StandIn freshEvents, freshRequests;
        QVERIFY(freshEvents.listen(fresh + QStringLiteral("/.socket2.sock")));
        QVERIFY(freshRequests.listen(fresh + QStringLiteral("/.socket.sock")));
        connect(&freshRequests, &StandIn::asked, &freshRequests, [&freshRequests] {
            freshRequests.client->write(R"({"pid":777})");
            freshRequests.client->disconnectFromServer();
        });
        QTRY_COMPARE_WITH_TIMEOUT(source.processId(), qint64(777), Patience);
    }
};

KEYSTAGE_TEST_MAIN(CompositorForegroundTest)
#include "tst_compositorforeground.moc"
