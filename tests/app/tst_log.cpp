#include "log.h"
#include "logcapture.h"
#include "logging.h"
#include "objectregistry.h"
#include "testfiles.h"
#include "testmain.h"

#include <QDir>
#include <QRegularExpression>
#include <QThread>

namespace {

struct ParsedEntry
{
    qint64 milliseconds = 0;
    QString function;
    int line = 0;
    QString threadId;
    QString threadName;
    QString message;
};

// One entry: "ms: function,line : 0xthread,name\n\tmessage\n\n"
QList<ParsedEntry> parseEntries(const QString& text, bool* wellFormed)
{
    static const QRegularExpression entry(
        QStringLiteral("(\\d+): ([^,\\n]+),(\\d+) : 0x([0-9a-f]+),([^\\n]*)\\n\\t([^\\n]*)\\n\\n"));
    QList<ParsedEntry> entries;
    int position = 0;
    *wellFormed = true;
    while (position < text.size()) {
        const QRegularExpressionMatch match =
            entry.match(text, position, QRegularExpression::NormalMatch, QRegularExpression::AnchoredMatchOption);
        if (!match.hasMatch()) {
            *wellFormed = false;
            break;
        }
        entries.append({match.captured(1).toLongLong(), match.captured(2), match.captured(3).toInt(), match.captured(4),
                        match.captured(5), match.captured(6)});
        position = match.capturedEnd();
    }
    return entries;
}

} // namespace

class LogTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QDir(Log::logDirectory()).removeRecursively();
        ObjectRegistry::clear();
    }
    void cleanup() { ObjectRegistry::clear(); }

    void shouldKeepNewestTwentyFilesAndLogToDebugOutputBeforeTheMainWindow()
    {
        QCOMPARE(Log::logDirectory(), testEnvironment()->logDirectory());
        QDir().mkpath(Log::logDirectory());
        QStringList oldNames;
        for (int i = 1; i <= 25; ++i) {
            oldNames << QStringLiteral("2020010%1_0000%2.txt").arg(i / 10).arg(i % 10, 2, 10, QLatin1Char('0'));
            QFile file(Log::logDirectory() + QLatin1Char('/') + oldNames.last());
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        oldNames.sort();

        LogCapture capture;
        Log log;
        QVERIFY(log.isOpen());
        const QString name = QFileInfo(log.filePath()).fileName();
        QVERIFY2(name.contains(QRegularExpression(QStringLiteral("^\\d{8}_\\d{6}\\.txt$"))), qPrintable(name));
        QCOMPARE(QDir(Log::logDirectory()).entryList(QDir::Files, QDir::Name), oldNames.mid(6) << name);

        // Pruning happens before any main window exists: the notices go to
        // the debug output, never into the file, as everything logged then.
        LOG_MSG(QStringLiteral("too early"));
        QCOMPARE(capture.matching(QStringLiteral("too early")), QStringList{"Log file not created: too early"});
        const QStringList notices = capture.matching(QStringLiteral("Exceeded maximum number of logged lines (20)"));
        QCOMPARE(notices.size(), 6);
        QCOMPARE(notices.first(), QStringLiteral("Log file not created: Exceeded maximum number of logged lines (20) "
                                                 "removing log file ") +
                                      oldNames.first());
        QCOMPARE(QString::fromUtf8(TestFiles::read(log.filePath())), QString());
    }

    // Each entry is on disk at once (read through a second handle while the
    // log stays open) and echoed on the debug output.
    void shouldWriteRecordsThatParseBackFieldByField()
    {
        QObject window;
        Log log;
        ObjectRegistry::registerMainWindow(&window, &log);
        LogCapture capture;
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        const int line = __LINE__ + 1;
        LOG_MSG(QStringLiteral("hello %1 world, 100% sure"));

        QThread worker;
        worker.setObjectName(QStringLiteral("Comm"));
        QObject::connect(&worker, &QThread::started, [&worker] {
            LOG_MSG(QStringLiteral("from the worker"));
            worker.quit();
        });
        worker.start();
        QVERIFY(worker.wait(30000));
        QCOMPARE(logMsgWhenRetFail(true, QStringLiteral("never shown!!")), true);
        QCOMPARE(logMsgWhenRetFail(false, QStringLiteral("keyItem is nullptr!!")), false);

        bool wellFormed = false;
        const QList<ParsedEntry> entries =
            parseEntries(QString::fromUtf8(TestFiles::read(log.filePath())), &wellFormed);
        QVERIFY(wellFormed);
        QCOMPARE(entries.size(), 3);
        const ParsedEntry& first = entries.at(0);
        QVERIFY(first.milliseconds >= before && first.milliseconds <= QDateTime::currentMSecsSinceEpoch());
        QCOMPARE(first.function, QStringLiteral("LogTest::shouldWriteRecordsThatParseBackFieldByField"));
        QCOMPARE(first.line, line);
        QCOMPARE(first.threadId, QString::number(reinterpret_cast<quintptr>(QThread::currentThread()), 16));
        QCOMPARE(first.threadName, QStringLiteral("UI Thread"));
        QCOMPARE(first.message, QStringLiteral("hello %1 world, 100% sure"));
        QCOMPARE(entries.at(1).threadId, QString::number(reinterpret_cast<quintptr>(&worker), 16));
        QCOMPARE(entries.at(1).threadName, QStringLiteral("Comm"));
        QCOMPARE(entries.at(1).message, QStringLiteral("from the worker"));
        QCOMPARE(entries.at(2).function, QStringLiteral("logMsgWhenRetFail"));
        QCOMPARE(entries.at(2).message, QStringLiteral("ERROR: keyItem is nullptr!!"));

        const QStringList echoes = capture.matching(QStringLiteral("hello %1 world"));
        QCOMPARE(echoes.size(), 1);
        QVERIFY(
            echoes.first().startsWith(QStringLiteral("LOGMSG LogTest::shouldWriteRecordsThatParseBackFieldByField,")));
    }

    void shouldReportRecordsWhenTheFileCouldNotBeCreated()
    {
        // A plain file where the directory should be: nothing can be created.
        const QString directory = Log::logDirectory();
        QDir().mkpath(QFileInfo(directory).absolutePath());
        QFile blocker(directory);
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();

        LogCapture capture;
        QObject window;
        Log log;
        QVERIFY(!log.isOpen());
        QCOMPARE(capture.matching(QStringLiteral("Unable to create log file")).size(), 1);
        ObjectRegistry::registerMainWindow(&window, &log);
        LOG_MSG(QStringLiteral("lost?"));
        const QStringList reports = capture.matching(QStringLiteral("lost?"));
        QCOMPARE(reports.size(), 1);
        QVERIFY(reports.first().startsWith(QStringLiteral("Log::logMsg Error: Log file hasn't been opened yet: ")));
        QFile::remove(directory);
    }

    void shouldNeverInterleaveEntriesFromManyThreads()
    {
        QObject window;
        Log log;
        ObjectRegistry::registerMainWindow(&window, &log);
        constexpr int Threads = 4;
        constexpr int PerThread = 200;
        QList<QThread*> threads;
        for (int t = 0; t < Threads; ++t) {
            QThread* thread = QThread::create([t] {
                for (int i = 0; i < PerThread; ++i)
                    LOG_MSG(QStringLiteral("thread %1 entry %2 with some padding text").arg(t).arg(i));
            });
            thread->setObjectName(QStringLiteral("worker%1").arg(t));
            threads << thread;
            thread->start();
        }
        for (QThread* thread : threads) {
            QVERIFY(thread->wait(60000));
            delete thread;
        }
        bool wellFormed = false;
        const QList<ParsedEntry> entries =
            parseEntries(QString::fromUtf8(TestFiles::read(log.filePath())), &wellFormed);
        QVERIFY(wellFormed);
        QCOMPARE(entries.size(), Threads * PerThread);
        for (const ParsedEntry& entry : entries)
            QVERIFY(entry.message.startsWith(QStringLiteral("thread ") + entry.threadName.mid(6) + QLatin1Char(' ')));
    }

    // A message is one line of the record whatever it carries, and can be
    // read back to the text it was.
    void shouldEscapeControlCharactersInRecords_data()
    {
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("written");
        QTest::newRow("forged record") << QStringLiteral("open a.ks\n\n1: Evil::run,1 : 0x1,UI Thread\n\tdone")
                                       << QStringLiteral("open a.ks\\n\\n1: Evil::run,1 : 0x1,UI Thread\\n\\tdone");
        QTest::newRow("carriage return") << QStringLiteral("a\rb") << QStringLiteral("a\\rb");
        QTest::newRow("escape and delete") << QStringLiteral("\x1b[2J\x7f") << QStringLiteral("\\x1b[2J\\x7f");
        QTest::newRow("C1 next line") << QStringLiteral("a") + QChar(0x85) + QStringLiteral("b")
                                      << QStringLiteral("a\\x85b");
        QTest::newRow("line separator") << QStringLiteral("a") + QChar(0x2028) + QStringLiteral("b")
                                        << QStringLiteral("a\\u2028b");
        QTest::newRow("backslash") << QStringLiteral("C:\\n") << QStringLiteral("C:\\\\n");
        QTest::newRow("plain") << QStringLiteral("Mein Layöut 日本 100% {}")
                               << QStringLiteral("Mein Layöut 日本 100% {}");
    }

    void shouldEscapeControlCharactersInRecords()
    {
        QFETCH(QString, message);
        QFETCH(QString, written);
        QObject window;
        Log log;
        ObjectRegistry::registerMainWindow(&window, &log);
        LOG_MSG(message);
        bool wellFormed = false;
        const QList<ParsedEntry> entries =
            parseEntries(QString::fromUtf8(TestFiles::read(log.filePath())), &wellFormed);
        QVERIFY(wellFormed);
        QCOMPARE(entries.size(), 1);
        QCOMPARE(entries.first().message, written);

        // The debug output before any main window gets the same text.
        ObjectRegistry::clear();
        LogCapture capture;
        LOG_MSG(message);
        QCOMPARE(capture.messages().value(0), QStringLiteral("Log file not created: ") + written);
    }

    void shouldNameFunctionsAsClassAndMethod_data()
    {
        QTest::addColumn<QString>("pretty");
        QTest::addColumn<QString>("expected");
        const char* const rows[][2] = {
            {"void IPC_Thread::run()", "IPC_Thread::run"},
            {"MainWindow::MainWindow(QSettings*, bool, QWidget*)", "MainWindow::MainWindow"},
            {"bool logMsgWhenRetFail(bool, const QString&)", "logMsgWhenRetFail"},
            {"const KeyItem* KeyItemModel::keyItem(int) const", "KeyItemModel::keyItem"},
            {"QList<QPair<int, int> > Foo::pairs(int)", "Foo::pairs"},
            {"void Foo<T>::bar(T) [with T = int]", "Foo<T>::bar"},
            {"MainWindow::MainWindow(QSettings*, bool, QWidget*)::<lambda(int)>", "MainWindow::MainWindow"},
            {"bool Matcher::operator()(int) const", "Matcher::operator()"},
            {"virtual Hid_Comm::~Hid_Comm()", "Hid_Comm::~Hid_Comm"},
        };
        for (const auto& row : rows)
            QTest::newRow(row[0]) << QString::fromLatin1(row[0]) << QString::fromLatin1(row[1]);
    }

    void shouldNameFunctionsAsClassAndMethod()
    {
        QFETCH(QString, pretty);
        QFETCH(QString, expected);
        QCOMPARE(qualifiedFunctionName(pretty.toLatin1().constData()), expected);
    }
};

KEYSTAGE_TEST_MAIN(LogTest)
#include "tst_log.moc"
