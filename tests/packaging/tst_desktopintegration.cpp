// The desktop's view of the program agrees with the program: a file opened
// from the file manager reaches the "--openFile" hand-over, the AppStream data
// names every keypad the program drives, the MIME types of the exported files
// are the ones the desktop entry opens, one application id runs through them,
// and the tray icon shows the keypad's state.
#include "keypadtable.h"
#include "keystageappid.h"
#include "startupflags.h"
#include "testmain.h"
#include "trayicon.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace {

QMap<QString, QString> desktopEntry()
{
    QMap<QString, QString> entry;
    QFile file(QStringLiteral(KEYSTAGE_DESKTOP_FILE));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return entry;
    bool inEntry = false;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1Char('[')))
            inEntry = line == QLatin1String("[Desktop Entry]");
        const int equals = line.indexOf(QLatin1Char('='));
        if (inEntry && equals > 0)
            entry.insert(line.left(equals), line.mid(equals + 1));
    }
    return entry;
}

// What a launcher runs for Exec with one file, or none, by freedesktop.org's
// Desktop Entry rules: quoted arguments, %f as one argument or nothing, %%.
QStringList launchArguments(const QString& exec, const QString& file)
{
    QStringList arguments;
    QString current;
    bool quoted = false;
    bool started = false;
    for (int i = 0; i < exec.size(); ++i) {
        const QChar c = exec.at(i);
        if (quoted && c == QLatin1Char('\\') && i + 1 < exec.size()) {
            current += exec.at(++i);
        } else if (c == QLatin1Char('"')) {
            quoted = !quoted;
            started = true;
        } else if (c == QLatin1Char(' ') && !quoted) {
            if (started)
                arguments << current;
            current.clear();
            started = false;
        } else {
            current += c;
            started = true;
        }
    }
    if (started)
        arguments << current;
    QStringList result;
    for (const QString& argument : qAsConst(arguments)) {
        if (argument == QLatin1String("%f")) {
            if (!file.isEmpty())
                result << file;
        } else {
            result << QString(argument).replace(QLatin1String("%%"), QLatin1String("%"));
        }
    }
    return result;
}

// The text of every element with this name (and this attribute, when given).
QStringList elementTexts(const QString& path, const QString& name, const QString& attribute = QString())
{
    QStringList texts;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != name)
            continue;
        if (attribute.isEmpty())
            texts << xml.readElementText().trimmed();
        else
            texts << xml.attributes().value(attribute).toString();
    }
    return texts;
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

} // namespace

class DesktopIntegrationTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldHandOpenedFilesToTheProgram_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("started from the menu") << QString();
        QTest::newRow("layout") << QStringLiteral("/home/me/Layout 15 keys.kslayout");
        QTest::newRow("favourites with quotes") << QStringLiteral("/tmp/a \"b\" $c.ksfavorites");
    }

    void shouldHandOpenedFilesToTheProgram()
    {
        QFETCH(QString, file);
        const QStringList arguments = launchArguments(desktopEntry().value(QStringLiteral("Exec")), file);
        QVERIFY2(!arguments.isEmpty(), KEYSTAGE_DESKTOP_FILE);
        QCOMPARE(arguments.first(), QStringLiteral("keystage"));
        const StartupFlags flags = parseCommandLine(arguments);
        QCOMPARE(flags[OpenFile], !file.isEmpty());
        QCOMPARE(flags.openFilePath, file);
        // Opening a file must not start the program hidden or waiting.
        QVERIFY(!flags[RunInBackground] && !flags[WaitInstance] && !flags.virtualKeypad);
    }

    void shouldUseTheApplicationIdEverywhere()
    {
        const QString id = QStringLiteral(KEYSTAGE_APP_ID);
        QCOMPARE(QFileInfo(QStringLiteral(KEYSTAGE_DESKTOP_FILE)).fileName(), id + QStringLiteral(".desktop"));
        QCOMPARE(desktopEntry().value(QStringLiteral("Icon")), id);
        const QString metainfo = QStringLiteral(KEYSTAGE_METAINFO_FILE);
        QCOMPARE(elementTexts(metainfo, QStringLiteral("id")), QStringList{id});
        QCOMPARE(elementTexts(metainfo, QStringLiteral("launchable")), QStringList{id + QStringLiteral(".desktop")});
        QCOMPARE(elementTexts(metainfo, QStringLiteral("icon")), QStringList{id});
    }

    // Software centres suggest the program when one of these is plugged in.
    void shouldOfferTheProgramForEveryKeypad()
    {
        const auto hex4 = [](quint32 id) {
            return QString::number(id, 16).toUpper().rightJustified(4, QLatin1Char('0'));
        };
        QStringList expected;
        for (const quint32 productId : KeypadTable::productIds())
            expected << QStringLiteral("usb:v%1p%2d*").arg(hex4(KeypadTable::VendorId), hex4(productId));
        QCOMPARE(sorted(elementTexts(QStringLiteral(KEYSTAGE_METAINFO_FILE), QStringLiteral("modalias"))),
                 sorted(expected));
    }

    void shouldOpenTheTypesItDefines_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("glob");
        QTest::newRow("layout") << "application/x-keystage-layout"
                                << "*.kslayout";
        QTest::newRow("favourites") << "application/x-keystage-favorites"
                                    << "*.ksfavorites";
    }

    void shouldOpenTheTypesItDefines()
    {
        QFETCH(QString, type);
        QFETCH(QString, glob);
        const QString mime = QStringLiteral(KEYSTAGE_MIME_FILE);
        const QStringList defined = elementTexts(mime, QStringLiteral("mime-type"), QStringLiteral("type"));
        const QStringList opened =
            desktopEntry().value(QStringLiteral("MimeType")).split(QLatin1Char(';'), Qt::SkipEmptyParts);
        const QStringList provided = elementTexts(QStringLiteral(KEYSTAGE_METAINFO_FILE), QStringLiteral("mediatype"));
        QVERIFY(defined.contains(type));
        QCOMPARE(sorted(opened), sorted(defined));
        QCOMPARE(sorted(provided), sorted(defined));
        const QStringList globs = elementTexts(mime, QStringLiteral("glob"), QStringLiteral("pattern"));
        QCOMPARE(globs.at(defined.indexOf(type)), glob);
    }

    void shouldShowTheKeypadStateInTheTray_data()
    {
        QTest::addColumn<KeypadStatus::State>("state");
        QTest::addColumn<QString>("text");
        QTest::newRow("connected") << KeypadStatus::Connected << "Keypad connected";
        QTest::newRow("absent") << KeypadStatus::Absent << "No keypad connected";
        QTest::newRow("no permission") << KeypadStatus::NoPermission << "Keypad found, but no permission";
    }

    void shouldShowTheKeypadStateInTheTray()
    {
        QFETCH(KeypadStatus::State, state);
        QFETCH(QString, text);
        TrayIcon tray;
        // From another state, so that a tray that ignores the call fails.
        tray.showKeypadState(state == KeypadStatus::Connected ? KeypadStatus::Absent : KeypadStatus::Connected,
                             QStringLiteral("before"));
        tray.showKeypadState(state, text);
        QCOMPARE(tray.toolTip(), QCoreApplication::applicationName() + QLatin1Char('\n') + text);
        const QImage expected = QIcon(TrayIcon::iconPath(state)).pixmap(32).toImage();
        QVERIFY(!expected.isNull());
        QCOMPARE(tray.icon().pixmap(32).toImage(), expected);
    }

    void shouldDrawEveryKeypadStateDifferently()
    {
        const QSet<QString> paths{TrayIcon::iconPath(KeypadStatus::Connected), TrayIcon::iconPath(KeypadStatus::Absent),
                                  TrayIcon::iconPath(KeypadStatus::NoPermission)};
        QCOMPARE(paths.size(), 3);
    }
};

KEYSTAGE_TEST_MAIN(DesktopIntegrationTest)
#include "tst_desktopintegration.moc"
