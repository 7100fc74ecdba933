#include "localhttpserver.h"
#include "objectregistry.h"
#include "settings.h"
#include "softwareupdate.h"
#include "testmain.h"

#include <QCryptographicHash>
#include <QDir>
#include <QStandardPaths>

namespace {
constexpr int NetworkTimeoutMs = 30000;

QByteArray package()
{
    QByteArray bytes(300 * 1024, '\0');
    for (int i = 0; i < bytes.size(); ++i)
        bytes[i] = char((i * 31) ^ (i >> 9));
    return bytes;
}

QByteArray sha256Of(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

QByteArray feedJson(const QString& version, const QUrl& url, const QByteArray& sha256)
{
    return QStringLiteral("{\"version\": \"%1\", \"url\": \"%2\", \"sha256\": \"%3\", \"notes\": \"Faster keys.\"}")
        .arg(version, url.toString(), QString::fromLatin1(sha256))
        .toUtf8();
}

QStringList downloadedFiles()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QStringLiteral("/updates"))
        .entryList(QDir::Files);
}
} // namespace

// The update check and download against a local HTTP server.
class TestSoftwareUpdate : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QFile::remove(Settings().fileName());
        settings = std::make_unique<Settings>();
        ObjectRegistry::registerObject(ComponentId::Settings, settings.get());
        QDir(QStandardPaths::writableLocation(QStandardPaths::CacheLocation)).removeRecursively();
        server = std::make_unique<LocalHttpServer>();
        QVERIFY(server->listen());
        server->setRoute(QStringLiteral("/keystage_99.0_amd64.deb"), {package()});
        update = std::make_unique<SoftwareUpdate>(server->url(QStringLiteral("/feed.json")));
        handedOver.clear();
        update->setInstallerLauncher([this](const QString& path) {
            handedOver = path;
            return true;
        });
        update->setEnabled(true);
    }

    void cleanup()
    {
        update.reset();
        server.reset();
        ObjectRegistry::clear();
        settings.reset();
    }

    void shouldDownloadAVerifiedNewerPackageAndHandItOver()
    {
        const QUrl packageUrl = server->url(QStringLiteral("/keystage_99.0_amd64.deb"));
        serveFeed(feedJson(QStringLiteral("99.0"), packageUrl, sha256Of(package())));
        QVERIFY(update->checkNow());
        QTRY_COMPARE_WITH_TIMEOUT(update->state(), SoftwareUpdate::State::Available, NetworkTimeoutMs);
        QCOMPARE(update->offer().notes, QStringLiteral("Faster keys."));
        QVERIFY(update->message().contains(QStringLiteral("99.0")));

        QSignalSpy progress(update.get(), &SoftwareUpdate::downloadProgress);
        QVERIFY(update->install());
        QTRY_COMPARE_WITH_TIMEOUT(update->state(), SoftwareUpdate::State::Handed, NetworkTimeoutMs);
        QCOMPARE(handedOver, update->packagePath());
        QVERIFY(handedOver.endsWith(QStringLiteral("/keystage_99.0_amd64.deb")));
        QFile file(handedOver);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), package());
        QCOMPARE(progress.last().at(0).toLongLong(), qint64(package().size()));
        QCOMPARE(downloadedFiles(), QStringList{QStringLiteral("keystage_99.0_amd64.deb")});
    }

    void shouldRefuseABadDownloadAndKeepNothing_data()
    {
        QTest::addColumn<QByteArray>("sha256");
        QTest::addColumn<qint64>("announced");
        QTest::addColumn<int>("status");
        QTest::addColumn<qint64>("sizeLimit");
        QTest::addColumn<QString>("message");
        const QByteArray right = sha256Of(package());
        const qint64 size = package().size();
        QTest::newRow("wrong checksum") << sha256Of("something else") << qint64(-1) << 200 << qint64(0)
                                        << "does not match the checksum";
        QTest::newRow("server closes early") << right << size * 2 << 200 << qint64(0) << "ended early";
        QTest::newRow("larger than allowed") << right << qint64(-1) << 200 << size / 2 << "larger than";
        QTest::newRow("not found") << right << qint64(-1) << 404 << qint64(0) << "HTTP status 404";
    }

    void shouldRefuseABadDownloadAndKeepNothing()
    {
        QFETCH(QByteArray, sha256);
        QFETCH(qint64, announced);
        QFETCH(int, status);
        QFETCH(qint64, sizeLimit);
        QFETCH(QString, message);
        const QUrl packageUrl = server->url(QStringLiteral("/bad.deb"));
        server->setRoute(QStringLiteral("/bad.deb"), {package(), status, announced});
        serveFeed(feedJson(QStringLiteral("99.0"), packageUrl, sha256));
        if (sizeLimit > 0)
            update->setMaxPackageSize(sizeLimit);
        QVERIFY(update->checkNow());
        QTRY_COMPARE_WITH_TIMEOUT(update->state(), SoftwareUpdate::State::Available, NetworkTimeoutMs);
        QVERIFY(update->install());
        QTRY_COMPARE_WITH_TIMEOUT(update->state(), SoftwareUpdate::State::Failed, NetworkTimeoutMs);
        QVERIFY2(update->message().contains(message), qPrintable(update->message()));
        QVERIFY(handedOver.isEmpty());
        QCOMPARE(downloadedFiles(), QStringList());
    }

    void shouldTellWhatTheCheckFound_data()
    {
        QTest::addColumn<QByteArray>("feed");
        QTest::addColumn<bool>("reachable");
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("message");
        const QByteArray sha = sha256Of(package());
        const QUrl url(QStringLiteral("https://example.org/keystage_2.0_amd64.deb"));
        const auto failed = int(SoftwareUpdate::State::Failed);
        QTest::newRow("same version") << feedJson(QStringLiteral(KEYSTAGE_VERSION), url, sha) << true
                                      << int(SoftwareUpdate::State::UpToDate) << "is up to date";
        QTest::newRow("same version, longer") << feedJson(QStringLiteral(KEYSTAGE_VERSION ".0"), url, sha) << true
                                              << int(SoftwareUpdate::State::UpToDate) << "is up to date";
        QTest::newRow("older version") << feedJson(QStringLiteral("0.9"), url, sha) << true
                                       << int(SoftwareUpdate::State::UpToDate) << "is up to date";
        QTest::newRow("unreachable") << QByteArray() << false << failed << "could not be reached";
        QTest::newRow("not JSON") << QByteArray("<html>") << true << failed << "not readable";
        QTest::newRow("no version") << QByteArray("{\"url\": \"https://example.org/a.deb\"}") << true << failed
                                    << "no valid version";
        QTest::newRow("version with text")
            << feedJson(QStringLiteral("2.0-beta"), url, sha) << true << failed << "no valid version";
        QTest::newRow("package over plain HTTP")
            << feedJson(QStringLiteral("2.0"), QUrl(QStringLiteral("http://example.org/k.deb")), sha) << true << failed
            << "package address";
        QTest::newRow("not a package") << feedJson(QStringLiteral("2.0"),
                                                   QUrl(QStringLiteral("https://example.org/k.sh")), sha)
                                       << true << failed << "package address";
        QTest::newRow("short checksum") << feedJson(QStringLiteral("2.0"), url, sha.left(40)) << true << failed
                                        << "SHA-256";
        QTest::newRow("too large") << QByteArray(UpdateFeed::MaxFeedSize + 10, ' ') << true << failed << "too large";
    }

    void shouldTellWhatTheCheckFound()
    {
        QFETCH(QByteArray, feed);
        QFETCH(bool, reachable);
        QFETCH(int, state);
        QFETCH(QString, message);
        if (!reachable) {
            update = std::make_unique<SoftwareUpdate>(
                QUrl(QStringLiteral("http://127.0.0.1:%1/feed.json").arg(LocalHttpServer::closedPort())));
        }
        serveFeed(feed);
        QVERIFY(update->checkNow());
        QCOMPARE(update->state(), SoftwareUpdate::State::Checking);
        QTRY_VERIFY_WITH_TIMEOUT(update->state() != SoftwareUpdate::State::Checking, NetworkTimeoutMs);
        QCOMPARE(int(update->state()), state);
        QVERIFY2(update->message().contains(message), qPrintable(update->message()));
    }

    void shouldGiveUpOnAServerThatDoesNotAnswer()
    {
        LocalHttpServer::Route silent;
        silent.silent = true;
        server->setRoute(QStringLiteral("/feed.json"), silent);
        update->setTimeoutMs(300);
        QVERIFY(update->checkNow());
        QTRY_COMPARE_WITH_TIMEOUT(update->state(), SoftwareUpdate::State::Failed, NetworkTimeoutMs);
        QVERIFY2(update->message().contains(QStringLiteral("in time")), qPrintable(update->message()));
    }

    void shouldNotTouchTheNetworkWhileTurnedOff()
    {
        serveFeed(feedJson(QStringLiteral("99.0"), server->url(QStringLiteral("/keystage_99.0_amd64.deb")),
                           sha256Of(package())));
        update->setEnabled(false);
        QVERIFY(!update->checkNow());
        QVERIFY(!update->install());
        QTest::qWait(200);
        QCOMPARE(server->requestCount(), 0);
        QVERIFY(update->message().contains(QStringLiteral("turned off")));
        // A new object reads the stored switch.
        QVERIFY(!SoftwareUpdate(server->url(QStringLiteral("/feed.json"))).isEnabled());
        QVERIFY(!SoftwareUpdate(QUrl()).checkNow());
    }

    void shouldStopADownloadWhenTurnedOff()
    {
        const QUrl packageUrl = server->url(QStringLiteral("/slow.deb"));
        LocalHttpServer::Route slow{package().left(1000), 200, package().size()};
        slow.holdOpen = true;
        server->setRoute(QStringLiteral("/slow.deb"), slow);
        serveFeed(feedJson(QStringLiteral("99.0"), packageUrl, sha256Of(package())));
        QVERIFY(update->checkNow());
        QTRY_COMPARE_WITH_TIMEOUT(update->state(), SoftwareUpdate::State::Available, NetworkTimeoutMs);
        QVERIFY(update->install());
        QTRY_VERIFY_WITH_TIMEOUT(!downloadedFiles().isEmpty(), NetworkTimeoutMs);
        update->setEnabled(false);
        QTRY_COMPARE_WITH_TIMEOUT(update->state(), SoftwareUpdate::State::Idle, NetworkTimeoutMs);
        QCOMPARE(downloadedFiles(), QStringList());
        QVERIFY(handedOver.isEmpty());
    }

private:
    void serveFeed(const QByteArray& json) { server->setRoute(QStringLiteral("/feed.json"), {json}); }

    std::unique_ptr<Settings> settings;
    std::unique_ptr<LocalHttpServer> server;
    std::unique_ptr<SoftwareUpdate> update;
    QString handedOver;
};

KEYSTAGE_TEST_MAIN(TestSoftwareUpdate)
#include "tst_softwareupdate.moc"
