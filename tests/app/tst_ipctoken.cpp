#include "ipctoken.h"
#include "testfiles.h"
#include "testmain.h"

#include <QDir>
#include <QStandardPaths>

class IpcTokenTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        QFile::remove(ipcTokenPath(TokenBringToFront));
        QFile::remove(ipcTokenPath(TokenOpenFile));
    }

    void shouldKeepTokensInThePrivateRuntimeDirectory()
    {
        QCOMPARE(ipcTokenPath(TokenBringToFront), testEnvironment()->runtimeDir() + "/TOKEN_BringAppToFront");
        QCOMPARE(ipcTokenPath(TokenOpenFile), testEnvironment()->runtimeDir() + "/TOKEN_OpenExtensionFile");
        QCOMPARE(QFileInfo(testEnvironment()->runtimeDir()).permissions() & 0x0077, QFile::Permissions());
        QCOMPARE(ipcTokenPath(2), QString());
    }

    void shouldWriteTheContentsEachTokenCarries()
    {
        QVERIFY(sendIpcToken(TokenBringToFront));
        QCOMPARE(TestFiles::read(ipcTokenPath(TokenBringToFront)), QByteArray("vse"));

        const QString path = QStringLiteral("/tmp/Ünïcødé ファイル/layout.kslayout");
        QVERIFY(sendIpcToken(TokenOpenFile, path));
        QCOMPARE(TestFiles::read(ipcTokenPath(TokenOpenFile)), path.toUtf8());

        // A later request replaces an earlier one completely.
        QVERIFY(sendIpcToken(TokenOpenFile, QStringLiteral("/a")));
        QCOMPARE(TestFiles::read(ipcTokenPath(TokenOpenFile)), QByteArray("/a"));
    }

    void shouldRefuseUnknownTokens()
    {
        QVERIFY(!sendIpcToken(2, QStringLiteral("x")));
        QVERIFY(!sendIpcToken(-1));
        QCOMPARE(QDir(testEnvironment()->runtimeDir()).entryList(QDir::Files), QStringList());
    }

    void shouldNeverFollowALinkPlantedAtTheTokenPath()
    {
        QTemporaryDir elsewhere;
        const QString victim = elsewhere.path() + QStringLiteral("/victim");
        QFile file(victim);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("precious");
        file.close();
        QVERIFY(QFile::link(victim, ipcTokenPath(TokenOpenFile)));
        QVERIFY(QFile::link(elsewhere.path() + QStringLiteral("/not-yet"), ipcTokenPath(TokenBringToFront)));

        QVERIFY(!sendIpcToken(TokenOpenFile, QStringLiteral("/evil")));
        QVERIFY(!sendIpcToken(TokenBringToFront));
        QCOMPARE(TestFiles::read(victim), QByteArray("precious"));
        QVERIFY(!QFile::exists(elsewhere.path() + QStringLiteral("/not-yet")));

        QByteArray contents;
        QCOMPARE(readIpcToken(ipcTokenPath(TokenOpenFile), &contents), TokenRead::NotAFile);
        QVERIFY(contents.isEmpty());
    }

    void shouldTellAbsentFromReadTokens()
    {
        QByteArray contents;
        QCOMPARE(readIpcToken(ipcTokenPath(TokenOpenFile), &contents), TokenRead::Absent);
        QVERIFY(sendIpcToken(TokenOpenFile, QStringLiteral("/some/path")));
        QCOMPARE(readIpcToken(ipcTokenPath(TokenOpenFile), &contents), TokenRead::Read);
        QCOMPARE(contents, QByteArray("/some/path"));
    }

    void shouldExpandExistingPathsToTheirCanonicalForm()
    {
        QTemporaryDir dir;
        QDir().mkpath(dir.path() + QStringLiteral("/real/sub"));
        QFile file(dir.path() + QStringLiteral("/real/sub/my layout.kslayout"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QVERIFY(QFile::link(dir.path() + QStringLiteral("/real"), dir.path() + QStringLiteral("/link")));
        const QString canonical = QFileInfo(file.fileName()).canonicalFilePath();

        QCOMPARE(longPathName(dir.path() + QStringLiteral("/link/sub/../sub/my layout.kslayout")), canonical);
        QDir::setCurrent(dir.path() + QStringLiteral("/real"));
        QCOMPARE(longPathName(QStringLiteral("sub/my layout.kslayout")), canonical);
        QCOMPARE(longPathName(QStringLiteral("/does/not/exist.kslayout")), QStringLiteral("/does/not/exist.kslayout"));
        QCOMPARE(longPathName(QStringLiteral("relative/missing")), QStringLiteral("relative/missing"));
        QDir::setCurrent(QDir::tempPath());
    }
};

KEYSTAGE_TEST_MAIN(IpcTokenTest)
#include "tst_ipctoken.moc"
