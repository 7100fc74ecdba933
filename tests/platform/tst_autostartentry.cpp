#include "autostartentry.h"
#include "testmain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeAll(const QString& path, const QByteArray& text)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QByteArray valueOf(const QByteArray& entry, const QByteArray& key)
{
    for (const QByteArray& line : entry.split('\n')) {
        if (line.startsWith(key + '='))
            return line.mid(key.size() + 1);
    }
    return QByteArray();
}

} // namespace

// The XDG autostart entry, under private XDG_CONFIG_HOME and XDG_CONFIG_DIRS.
class AutostartEntryTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QVERIFY(m_dir.isValid());
        m_home = m_dir.path() + QStringLiteral("/home-config");
        m_system = m_dir.path() + QStringLiteral("/system-config");
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home));
        qputenv("XDG_CONFIG_DIRS", QFile::encodeName(m_system));
        QDir(m_home).removeRecursively();
        QDir(m_system).removeRecursively();
    }

    void shouldWriteOneValidEntryAndRemoveIt()
    {
        AutostartEntry entry(QStringLiteral("/opt/keystage/bin/keystage"));
        QCOMPARE(entry.filePath(), m_home + QStringLiteral("/autostart/keystage.desktop"));
        QVERIFY(!entry.isEnabled());
        QVERIFY(entry.setEnabled(true));
        QVERIFY(entry.setEnabled(true));
        QVERIFY(entry.isEnabled());
        QCOMPARE(QDir(m_home + QStringLiteral("/autostart")).entryList(QDir::Files).size(), 1);

        const QByteArray text = readAll(entry.filePath());
        QVERIFY(text.startsWith("[Desktop Entry]\n"));
        QCOMPARE(text.count("[Desktop Entry]"), 1);
        QCOMPARE(valueOf(text, "Type"), QByteArray("Application"));
        QCOMPARE(valueOf(text, "Name"), QByteArray("Keystage"));
        QCOMPARE(valueOf(text, "Exec"), QByteArray("/opt/keystage/bin/keystage --runinbk"));
        QCOMPARE(valueOf(text, "X-GNOME-Autostart-enabled"), QByteArray("true"));

        QVERIFY(entry.setEnabled(false));
        QVERIFY(!QFile::exists(entry.filePath()));
        QVERIFY(!entry.isEnabled());
        QVERIFY(entry.setEnabled(false));
    }

    // The Exec value as a desktop reads it: quoted where needed, with the
    // quoting escapes and then the string escapes, and % doubled.
    void shouldQuoteTheProgramInTheExecLine_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QByteArray>("exec");
        QTest::newRow("plain") << "/usr/bin/keystage" << QByteArray("/usr/bin/keystage --runinbk");
        QTest::newRow("space") << "/home/a b/keystage" << QByteArray("\"/home/a b/keystage\" --runinbk");
        QTest::newRow("quote and dollar") << "/x/\"$y/keystage" << QByteArray("\"/x/\\\\\"\\\\$y/keystage\" --runinbk");
        QTest::newRow("backslash") << "/x/a\\b" << QByteArray("\"/x/a\\\\\\\\b\" --runinbk");
        QTest::newRow("percent") << "/x/100%/keystage" << QByteArray("/x/100%%/keystage --runinbk");
        QTest::newRow("umlaut") << "/home/jörg/keystage" << QByteArray("/home/jörg/keystage --runinbk");
    }

    void shouldQuoteTheProgramInTheExecLine()
    {
        QFETCH(QString, program);
        QFETCH(QByteArray, exec);
        QCOMPARE(valueOf(AutostartEntry::desktopEntry(program), "Exec"), exec);
    }

    // The desktop lists start-up programs in its own language, whatever
    // language the program wrote the entry in.
    void shouldCarryTheCommentInEveryLanguage_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QString>("comment");
        QTest::newRow("English") << QByteArray("Comment") << QStringLiteral("Starts Keystage in the tray at login");
        QTest::newRow("German") << QByteArray("Comment[de]") << QStringLiteral("Keystage");
        QTest::newRow("French") << QByteArray("Comment[fr]") << QStringLiteral("Keystage");
        QTest::newRow("Italian") << QByteArray("Comment[it]") << QStringLiteral("Keystage");
        QTest::newRow("Japanese") << QByteArray("Comment[ja]") << QStringLiteral("Keystage");
        QTest::newRow("Chinese") << QByteArray("Comment[zh_TW]") << QStringLiteral("Keystage");
    }

    void shouldCarryTheCommentInEveryLanguage()
    {
        QFETCH(QByteArray, key);
        QFETCH(QString, comment);
        const QByteArray entry = AutostartEntry::desktopEntry(QStringLiteral("/usr/bin/keystage"));
        const QString value = QString::fromUtf8(valueOf(entry, key));
        QVERIFY2(value.contains(comment), entry.constData());
        // Translated, not the English text under another key.
        if (key != "Comment")
            QVERIFY2(!value.contains(QLatin1String("tray at login")), qPrintable(value));
    }

    void shouldReadWhatTheFilesSay_data()
    {
        QTest::addColumn<QByteArray>("user");
        QTest::addColumn<QByteArray>("system");
        QTest::addColumn<bool>("enabled");
        const QByteArray ours = AutostartEntry::desktopEntry(QStringLiteral("/usr/bin/keystage"));
        QTest::newRow("ours") << ours << QByteArray() << true;
        QTest::newRow("hidden") << ours + "Hidden=true\n" << QByteArray() << false;
        QTest::newRow("turned off in GNOME")
            << QByteArray("[Desktop Entry]\nType=Application\nExec=keystage\nX-GNOME-Autostart-enabled=false\n")
            << QByteArray() << false;
        QTest::newRow("hidden in another group") << ours + "[Desktop Action x]\nHidden=true\n" << QByteArray() << true;
        QTest::newRow("no entry group") << QByteArray("Hidden=false\n") << QByteArray() << false;
        QTest::newRow("system only") << QByteArray() << ours << true;
        QTest::newRow("user hides the system's") << ours + "Hidden=true\n" << ours << false;
    }

    void shouldReadWhatTheFilesSay()
    {
        QFETCH(QByteArray, user);
        QFETCH(QByteArray, system);
        QFETCH(bool, enabled);
        AutostartEntry entry(QStringLiteral("/usr/bin/keystage"));
        if (!user.isEmpty())
            writeAll(entry.filePath(), user);
        if (!system.isEmpty())
            writeAll(m_system + QStringLiteral("/autostart/keystage.desktop"), system);
        QCOMPARE(entry.isEnabled(), enabled);
    }

    // Removing the user's file would let the system's entry start it again.
    void shouldHideASystemEntryToTurnItOff()
    {
        const QString systemFile = m_system + QStringLiteral("/autostart/keystage.desktop");
        writeAll(systemFile, AutostartEntry::desktopEntry(QStringLiteral("/usr/bin/keystage")));
        AutostartEntry entry(QStringLiteral("/usr/bin/keystage"));
        QVERIFY(entry.isEnabled());
        QVERIFY(entry.setEnabled(false));
        QVERIFY(!entry.isEnabled());
        QCOMPARE(valueOf(readAll(entry.filePath()), "Hidden"), QByteArray("true"));
        QVERIFY(QFile::exists(systemFile));
        QVERIFY(entry.setEnabled(true));
        QVERIFY(entry.isEnabled());
    }

    void shouldSayWhyItCannotWrite()
    {
        // A file where the folder should be: not even root can make it.
        writeAll(m_home, "not a folder");
        AutostartEntry entry(QStringLiteral("/usr/bin/keystage"));
        QString error;
        QVERIFY(!entry.setEnabled(true, &error));
        QVERIFY(!error.isEmpty());
        QVERIFY(!entry.isEnabled());
    }

private:
    QTemporaryDir m_dir;
    QString m_home;
    QString m_system;
};

KEYSTAGE_TEST_MAIN(AutostartEntryTest)
#include "tst_autostartentry.moc"
