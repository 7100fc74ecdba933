#include "localhttpserver.h"
#include "objectregistry.h"
#include "settings.h"
#include "softwareupdatepage.h"
#include "testmain.h"

#include <QCheckBox>
#include <QCryptographicHash>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace {
constexpr int NetworkTimeoutMs = 30000;
const QByteArray Package(50000, 'k');
} // namespace

// The software update page over a local release feed.
class TestSoftwareUpdatePage : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QFile::remove(Settings().fileName());
        settings = std::make_unique<Settings>();
        ObjectRegistry::registerObject(ComponentId::Settings, settings.get());
        server = std::make_unique<LocalHttpServer>();
        QVERIFY(server->listen());
        const QByteArray sha = QCryptographicHash::hash(Package, QCryptographicHash::Sha256).toHex();
        server->setRoute(QStringLiteral("/feed.json"),
                         {"{\"version\": \"99.1\", \"url\": \"" + server->url("/k.deb").toEncoded() +
                          "\", \"sha256\": \"" + sha + "\", \"notes\": \"Dimming.\"}"});
        server->setRoute(QStringLiteral("/k.deb"), {Package});
    }

    void cleanup()
    {
        server.reset();
        ObjectRegistry::clear();
        settings.reset();
    }

    void shouldOnlyPointToThePackageManagerWithoutAFeed()
    {
        SoftwareUpdate update{QUrl()};
        SoftwareUpdatePage page(&update);
        QVERIFY(page.introLabel()->text().contains(QStringLiteral("package manager")));
        QVERIFY(!page.checkSwitch());
        QVERIFY(page.findChildren<QPushButton*>().isEmpty());
        QString why;
        QVERIFY(page.canClose(why));
    }

    void shouldCheckDownloadAndOfferARestart()
    {
        SoftwareUpdate update(server->url(QStringLiteral("/feed.json")));
        bool launched = false;
        update.setInstallerLauncher([&](const QString&) { return launched = true; });
        SoftwareUpdatePage page(&update);
        for (QAbstractButton* control : page.findChildren<QAbstractButton*>())
            QCOMPARE(control->accessibleName(), control->text().remove(QLatin1Char('&')));
        QVERIFY(!page.checkSwitch()->isChecked());
        QVERIFY(!page.checkButton()->isEnabled());
        QCOMPARE(server->requestCount(), 0);

        // Turning the switch on from the keyboard stores it and checks at once.
        page.checkSwitch()->setFocus();
        QTest::keyClick(page.checkSwitch(), Qt::Key_Space);
        QVERIFY(settings->value(SettingsKeys::CheckForUpdates).toBool());
        QTRY_COMPARE_WITH_TIMEOUT(update.state(), SoftwareUpdate::State::Available, NetworkTimeoutMs);
        QVERIFY(!page.installButton()->isHidden());
        QVERIFY(page.statusLabel()->text().contains(QStringLiteral("99.1")));

        page.installButton()->click();
        QTRY_COMPARE_WITH_TIMEOUT(update.state(), SoftwareUpdate::State::Handed, NetworkTimeoutMs);
        QVERIFY(launched);
        QVERIFY(page.installButton()->isHidden());
        QVERIFY(!page.restartButton()->isHidden());
        QSignalSpy restart(&page, &SoftwareUpdatePage::restartRequested);
        page.restartButton()->click();
        QCOMPARE(restart.count(), 1);
    }

    void shouldStayOpenWhileDownloading()
    {
        LocalHttpServer::Route slow{Package.left(1000), 200, Package.size()};
        slow.holdOpen = true;
        server->setRoute(QStringLiteral("/k.deb"), slow);
        SoftwareUpdate update(server->url(QStringLiteral("/feed.json")));
        update.setEnabled(true);
        SoftwareUpdatePage page(&update); // checks by itself: checking is on
        QTRY_COMPARE_WITH_TIMEOUT(update.state(), SoftwareUpdate::State::Available, NetworkTimeoutMs);
        page.installButton()->click();
        QTRY_VERIFY_WITH_TIMEOUT(page.progressBar()->value() > 0, NetworkTimeoutMs);
        QString why;
        QVERIFY(!page.canClose(why));
        QVERIFY(why.contains(QStringLiteral("downloading")));
        QVERIFY(!page.cancelButton()->isHidden());
        page.cancelButton()->click();
        QTRY_COMPARE_WITH_TIMEOUT(update.state(), SoftwareUpdate::State::Available, NetworkTimeoutMs);
        QVERIFY(page.canClose(why));
        QVERIFY(page.progressBar()->isHidden());
    }

private:
    std::unique_ptr<Settings> settings;
    std::unique_ptr<LocalHttpServer> server;
};

KEYSTAGE_TEST_MAIN(TestSoftwareUpdatePage)
#include "tst_softwareupdatepage.moc"
