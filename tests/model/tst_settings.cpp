#include "logcapture.h"
#include "objectregistry.h"
#include "samplevalues.h"
#include "settings.h"
#include "settingsfilewriter.h"
#include "settingskeys.h"
#include "testfiles.h"
#include "testmain.h"

#include "keyitem.h"
#include "keyitemserialization.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QImageWriter>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>

#include <limits>
#include <unistd.h>
#include <vector>

namespace {

using SampleValues::semiTransparentPixmap;
using SampleValues::styledFont;

const QString LoadSuccess = QStringLiteral("Log file not created: Load success!");
const QString LoadReset = QStringLiteral("Log file not created: Load checkSum err, reset settings!");
const QString Version = QStringLiteral("1.3");

QString confPath()
{
    return testEnvironment()->configHome() + QStringLiteral("/Vantorix/Keystage.conf");
}

QString orgWidePath()
{
    return testEnvironment()->configHome() + QStringLiteral("/Vantorix.conf");
}

// A list whose count claims two billion entries: Qt's own parse of the file
// throws std::bad_alloc (the sanitizer build lets that allocation fail, see
// tests/model/CMakeLists.txt).
QByteArray unparseableStore()
{
    return "[General]\ninst=@Variant(\\0\\0\\0\\b\\0\\0\\0\\x1\\0\\0\\0\\x2\\0\\x61"
           "\\0\\0\\0\\t\\x7f\\xff\\xff\\xf0\\0\\0\\0\\x2\\0\\0\\0\\x1)\nlang_idx=2\n";
}

enum Obstacle
{
    FolderForFile,
    FileForFolder,
    ReadOnlyFolder,
};

void placeObstacle(int obstacle)
{
    const QString folder = QFileInfo(confPath()).absolutePath();
    switch (obstacle) {
    case FolderForFile:
        QVERIFY(QFile::remove(confPath()));
        QVERIFY(QDir().mkpath(confPath()));
        break;
    case FileForFolder:
        QVERIFY(QDir(folder).removeRecursively());
        QVERIFY(TestFiles::write(folder, "x"));
        break;
    case ReadOnlyFolder:
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
        break;
    }
}

void removeObstacle(int obstacle)
{
    const QString folder = QFileInfo(confPath()).absolutePath();
    switch (obstacle) {
    case FolderForFile:
        QVERIFY(QDir(confPath()).removeRecursively());
        break;
    case FileForFolder:
        QVERIFY(QFile::remove(folder));
        break;
    case ReadOnlyFolder:
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        break;
    }
}

QFileInfoList corruptCopies()
{
    return QDir(QFileInfo(confPath()).absolutePath())
        .entryInfoList({QStringLiteral("Keystage.conf.corrupt-*")}, QDir::Files);
}

template <typename T>
QByteArray streamed(const T& value, int version = QDataStream::Qt_DefaultCompiledVersion)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(version);
    stream << value;
    return bytes;
}

// QSettings objects of one process share a cache per file and reuse it while
// the file looks unchanged. Moving the modification time back makes the next
// QSettings on the file read it from disk, as a new process would.
void makeCachedSettingsStale()
{
    QFile file(confPath());
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QDateTime modified = file.fileTime(QFileDevice::FileModificationTime);
    QVERIFY(file.setFileTime(modified.addSecs(-10), QFileDevice::FileModificationTime));
}

// A start of the program as a new process would make it, which must load the stored tree.
std::unique_ptr<Settings> restart()
{
    makeCachedSettingsStale();
    LogCapture capture;
    auto settings = std::make_unique<Settings>();
    QTest::qVerify(capture.messages().count(LoadSuccess) == 1 && !settings->loadedDefaults(), "Load success!", "",
                   __FILE__, __LINE__);
    return settings;
}

// A value written by QSettings into the program's file, as another writer would.
void writeThroughQSettings(const QString& key, const QVariant& value)
{
    QSettings(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Vantorix"), QStringLiteral("Keystage"))
        .setValue(key, value);
}

// A key of the file as stored, parsed from a private copy so that no cached value can stand in for it.
QVariant onDisk(const QString& key)
{
    QTemporaryDir dir;
    const QString copy = dir.filePath(QStringLiteral("copy.conf"));
    return QFile::copy(confPath(), copy) ? QSettings(copy, QSettings::IniFormat).value(key) : QVariant();
}

// The file QSettings writes for the tree with the checksum the store put on disk.
QByteArray writtenByQSettings(QVariantMap tree)
{
    tree.insert(SettingsKeys::ChecksumTag, onDisk(SettingsKeys::Inst).toMap().value(SettingsKeys::ChecksumTag));
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("expected.conf"));
    QSettings(path, QSettings::NativeFormat).setValue(SettingsKeys::Inst, tree);
    return TestFiles::read(path);
}

// A key list of one text key with a styled face.
QVariantMap keyList(const QString& text)
{
    const QVariantMap face{{QStringLiteral("text"), text},
                           {QStringLiteral("textFont"), styledFont()},
                           {QStringLiteral("textColor"), QColor(10, 20, 30, 200)},
                           {QStringLiteral("userImg"), semiTransparentPixmap()},
                           {QStringLiteral("hintFlags"), 0x17}}; // a live face with its graph
    const QVariantMap key{{QStringLiteral("actionTypeString"), QStringLiteral("KAT_PASTE_STRING")},
                          {QStringLiteral("multiFeatureFlag"), false},
                          {QStringLiteral("keyRenderMap_0"), face}};
    return {{SettingsKeys::KeyCnt, 1}, {SettingsKeys::keyMapKey(0), key}};
}

QByteArray pngFile(const QImage& image, int quality = -1)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "png");
    writer.setQuality(quality);
    writer.write(image);
    return bytes;
}

QVariantMap nested(int depth)
{
    QVariantMap map{{QStringLiteral("leaf"), 1}};
    for (int i = 0; i < depth; ++i)
        map = QVariantMap{{QStringLiteral("child"), map}};
    return map;
}

// A valid layout file of `content` with the big-endian number at `offset`
// after `pattern` replaced. Unchanged (and so valid) when the pattern is
// missing, which fails the row instead of testing nothing.
QByteArray forged(const QVariantMap& content, const QByteArray& pattern, int offset, quint32 value)
{
    QByteArray bytes = Settings::encodeExportFile(SettingsKeys::MyLayout, content);
    const int at = bytes.indexOf(pattern);
    if (at >= 0)
        bytes.replace(at + offset, 4, streamed(value));
    return bytes;
}

QByteArray withChecksum(QVariantMap map)
{
    map.insert(SettingsKeys::ChecksumTag, Settings::checksum(map));
    return streamed(map);
}

bool isRejected(const Settings::ExportFile& file, Settings::ImportProblem problem)
{
    return !file.isValid() && file.kind == Settings::ExportKind::Invalid && file.problem == problem &&
           !file.error.isEmpty() && file.content.isEmpty();
}

// The file with its checksum computed again over the content entry as the
// bytes hold it, as anyone can do for a file they changed.
QByteArray rechecked(const QByteArray& file)
{
    const QByteArray tag = streamed(QString(SettingsKeys::ChecksumTag));
    const int at = file.lastIndexOf(tag);
    const QByteArray entry = file.mid(4, at - 4);
    const QString sum =
        QString::fromLatin1(QCryptographicHash::hash(streamed(quint32(1)) + entry, QCryptographicHash::Md5).toHex());
    return file.left(at) + tag + streamed(QVariant(sum));
}

// The stream form of value with bytes put in at offset from its start.
QByteArray patchedValue(const QVariant& value, int offset, const QByteArray& bytes)
{
    QByteArray form = streamed(value);
    form.replace(5 + offset, bytes.size(), bytes); // after the type id and null flag
    return form;
}

// Where a QFont's fixed fields start in its stream form: after family and style name.
int fontFieldsAt(const QFont& font)
{
    return streamed(font.family()).size() + streamed(font.styleName()).size();
}

} // namespace

class SettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QFile::setPermissions(QFileInfo(confPath()).absolutePath(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QFile::remove(QFileInfo(confPath()).absolutePath());
        ObjectRegistry::clear();
        QFile::remove(confPath());
        QFile::remove(orgWidePath());
        for (const QFileInfo& copy : corruptCopies())
            QFile::remove(copy.absoluteFilePath());
        m_files.reset(new QTemporaryDir);
    }

    void shouldReproduceTheReferenceChecksum()
    {
        QVariantMap map{{QStringLiteral("a"), 1}, {QStringLiteral("b"), QStringLiteral("x")}};
        QCOMPARE(streamed(map).size(), 36);
        QCOMPARE(Settings::checksum(map), QStringLiteral("4854b2c425746cf07136304d1908225b"));
        map.insert(SettingsKeys::ChecksumTag, QStringLiteral("0123456789abcdef0123456789abcdef"));
        QCOMPARE(Settings::checksum(map), QStringLiteral("4854b2c425746cf07136304d1908225b"));

        const QString one = Settings::checksum({{QStringLiteral("a"), 1}});
        QVERIFY(one != Settings::checksum({{QStringLiteral("a"), 2}}));
        QVERIFY(one != Settings::checksum({{QStringLiteral("a"), qlonglong(1)}}));
        QVERIFY(one != Settings::checksum({{QStringLiteral("A"), 1}}));
    }

    void shouldReloadASavedTreeWithLoadSuccess()
    {
        const QVariantMap page{{SettingsKeys::KeyCnt, 2}, {QStringLiteral("note"), QStringLiteral("über")}};
        {
            LogCapture capture;
            Settings settings;
            QCOMPARE(capture.messages().count(LoadReset), 1);
            QVERIFY(settings.loadedDefaults());
            QCOMPARE(settings.tree(), (QVariantMap{{SettingsKeys::SettingsVersion, Version}}));
            QVERIFY(settings.damagedCopyPath().isEmpty());
            QCOMPARE(settings.fileName(), confPath());

            settings.setValue(SettingsKeys::SettingsVersion, QStringLiteral("0.9"));
            settings.setValue(SettingsKeys::keyItemsKey(QStringLiteral("H_Key_15")), page);
            settings.setValue(QStringLiteral("color"), QColor(1, 2, 3));
            QVERIFY(settings.save());
            QCOMPARE(capture.matching(QStringLiteral("store setting into disk.")).size(), 1);
        }
        QVERIFY(corruptCopies().isEmpty());
        QCOMPARE(restart()->tree(), (QVariantMap{{SettingsKeys::SettingsVersion, Version},
                                                 {SettingsKeys::keyItemsKey(QStringLiteral("H_Key_15")), page},
                                                 {QStringLiteral("color"), QColor(1, 2, 3)}}));
    }

    // QSettings stores values in an old stream version that drops font
    // details, so the checksum stored must be the one over what it reads back.
    void shouldWriteTheFileQSettingsWouldWrite()
    {
        QByteArray saved;
        QPixmap image = semiTransparentPixmap();
        {
            Settings settings;
            settings.setValue(QStringLiteral("font"), styledFont());
            settings.setValue(QStringLiteral("image"), image);
            settings.setValue(QStringLiteral("opaque"),
                              QPixmap::fromImage(image.toImage().convertToFormat(QImage::Format_RGB32)));
            settings.setValue(SettingsKeys::MyFavoriteItems, keyList(QStringLiteral("favourite")));
            QVERIFY(settings.save());
            saved = TestFiles::read(confPath());
            QCOMPARE(saved, writtenByQSettings(settings.tree()));
            QVERIFY(settings.save()); // everything from what the first save kept
            QCOMPARE(TestFiles::read(confPath()), saved);

            image.fill(QColor(1, 2, 3));
            settings.setValue(QStringLiteral("image"), image);
            QVERIFY(settings.save());
            saved = TestFiles::read(confPath());
            QCOMPARE(saved, writtenByQSettings(settings.tree()));
        }
        QVariantMap stored = onDisk(SettingsKeys::Inst).toMap();
        QVERIFY2(stored.value(QStringLiteral("font")).value<QFont>().styleName().isEmpty(),
                 "the settings backend no longer converts fonts; this test lost its point");
        QCOMPARE(stored.take(SettingsKeys::ChecksumTag).toString(), Settings::checksum(stored));

        auto reloaded = restart();
        QCOMPARE(reloaded->value(QStringLiteral("font")).value<QFont>().pointSize(), 13);
        QCOMPARE(reloaded->value(QStringLiteral("image")).value<QPixmap>().toImage().pixel(2, 2), qRgb(1, 2, 3));
        QVERIFY(reloaded->save());
        QCOMPARE(TestFiles::read(confPath()), saved);
        restart();
    }

    // Written by another program: the images are no PNG files that Qt itself
    // would make, so the next start encodes them differently from the file.
    void shouldLoadAndSaveImagesThatQtWouldEncodeDifferently()
    {
        const QByteArray png = pngFile(semiTransparentPixmap().toImage(), 100); // no compression
        const QPixmap image = QPixmap::fromImage(QImage::fromData(png, "png"));
        QVariantMap stored{{SettingsKeys::SettingsVersion, Version}, {QStringLiteral("image"), image}};
        stored.insert(SettingsKeys::ChecksumTag, Settings::checksum(stored));
        QByteArray variant = streamed(QVariant(stored), SettingsFileWriter::StreamVersion);
        const QByteArray qtPng = pngFile(image.toImage());
        QVERIFY(png != qtPng);
        QCOMPARE(variant.count(qtPng), 1);
        variant.replace(qtPng, png);
        QVERIFY(TestFiles::write(
            confPath(), "[General]\ninst=" + SettingsFileWriter::escapedValue("@Variant(" + variant + ')') + '\n'));

        auto settings = restart();
        QVERIFY(settings->save());
        QCOMPARE(TestFiles::read(confPath()), writtenByQSettings(settings->tree()));
        QCOMPARE(restart()->value(QStringLiteral("image")).value<QPixmap>().toImage(), image.toImage());
    }

    // QSettings also reads an organisation-wide file, but writes only the program's own.
    void shouldKeepAndMergeTheOtherKeysOfItsOwnFile()
    {
        writeThroughQSettings(QStringLiteral("window/pos"), QPoint(3, 4));
        QVERIFY(TestFiles::write(orgWidePath(), "[General]\norgWide=1\n"));
        makeCachedSettingsStale();
        {
            Settings settings;
            settings.setValue(QStringLiteral("image"), semiTransparentPixmap());
            QVERIFY(settings.save());
            writeThroughQSettings(QStringLiteral("lang_idx"), 3);
            settings.setValue(QStringLiteral("later"), 1);
            // The next save knows the file again and writes it itself, keeping the key.
            for (const int merges : {1, 0}) {
                LogCapture capture;
                QVERIFY(settings.save());
                QCOMPARE(capture.matching(QStringLiteral("changed by another writer")).size(), merges);
                QCOMPARE(onDisk(QStringLiteral("lang_idx")).toInt(), 3);
            }
        }
        QVERIFY(QFile::remove(orgWidePath()));
        QVERIFY(!TestFiles::read(confPath()).contains("orgWide"));
        QCOMPARE(onDisk(QStringLiteral("window/pos")).toPoint(), QPoint(3, 4));
        const auto reloaded = restart();
        QVERIFY(reloaded->contains(QStringLiteral("image")));
        QCOMPARE(reloaded->value(QStringLiteral("later")).toInt(), 1);
    }

    void shouldResetADamagedFileAndKeepOneCopyOfIt_data()
    {
        QTest::addColumn<int>("damage");
        QTest::newRow("a byte changed by hand") << int(HandEdited);
        QTest::newRow("no checksum") << int(NoChecksum);
        QTest::newRow("beyond what QSettings can parse") << int(Unparseable);
    }

    void shouldResetADamagedFileAndKeepOneCopyOfIt()
    {
        QFETCH(int, damage);
        if (damage == HandEdited) {
            Settings settings;
            settings.setValue(QStringLiteral("probe"), QStringLiteral("kmnopq"));
            QVERIFY(settings.save());
            QByteArray text = TestFiles::read(confPath());
            QCOMPARE(text.count("\\0k\\0m\\0n\\0o"), 1);
            QVERIFY(TestFiles::write(confPath(), text.replace("\\0k\\0m\\0n\\0o", "\\0k\\0n\\0n\\0o")));
        } else if (damage == NoChecksum) {
            writeThroughQSettings(SettingsKeys::Inst, QVariantMap{{SettingsKeys::LastKbLayout, 1}});
        } else {
            QVERIFY(TestFiles::write(confPath(), unparseableStore()));
        }
        const QByteArray damaged = TestFiles::read(confPath());
        makeCachedSettingsStale();
        LogCapture capture;
        // Only a file that would abort the start is moved aside before it.
        const QString setAside = Settings::setAsideUnreadableStore();
        QCOMPARE(setAside.isEmpty(), damage != Unparseable);
        Settings settings;
        QCOMPARE(capture.messages().count(LoadReset), 1);
        QCOMPARE(capture.messages().count(LoadSuccess), 0);
        QVERIFY(settings.loadedDefaults());
        QCOMPARE(settings.tree(), (QVariantMap{{SettingsKeys::SettingsVersion, Version}}));

        const QString copy = settings.damagedCopyPath();
        QCOMPARE(corruptCopies().size(), 1);
        QVERIFY(QFileInfo(copy).fileName().contains(
            QRegularExpression(QStringLiteral("^Keystage\\.conf\\.corrupt-\\d{8}_\\d{6}(-\\d+)?$"))));
        QCOMPARE(QFileInfo(copy).absolutePath(), QFileInfo(confPath()).absolutePath());
        QCOMPARE(TestFiles::read(copy), damaged);
        // A file moved aside before the log existed is named once more by the
        // store, when the log file exists, so that it says where the settings went.
        QCOMPARE(capture.matching(copy).size(), damage == Unparseable ? 2 : 1);
        QCOMPARE(
            capture.matching(QStringLiteral("ERROR: %1 could not be read, kept as %2!!").arg(confPath(), copy)).size(),
            damage == Unparseable ? 1 : 0);

        // The next start keeps no second copy of the same file.
        if (damage != Unparseable)
            makeCachedSettingsStale();
        QVERIFY(Settings::setAsideUnreadableStore().isEmpty());
        Settings again;
        QCOMPARE(again.damagedCopyPath(), damage == Unparseable ? QString() : copy);
        QCOMPARE(corruptCopies().size(), 1);
    }

    void shouldResetToTheProvidedDefaults()
    {
        Settings settings;
        settings.setValue(QStringLiteral("old"), 1);
        // The provider runs without the lock, so it may read the settings itself.
        settings.setDefaultTreeProvider([&settings] {
            return QVariantMap{{QStringLiteral("fresh"), settings.value(QStringLiteral("old")).toInt() + 1}};
        });
        settings.resetToDefaults();
        QCOMPARE(settings.tree(),
                 (QVariantMap{{QStringLiteral("fresh"), 2}, {SettingsKeys::SettingsVersion, Version}}));
        QVERIFY(settings.loadedDefaults());
    }

    void shouldKeepEveryWriteFromConcurrentThreads()
    {
        Settings settings;
        std::vector<std::unique_ptr<QThread>> threads;
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back(QThread::create([&settings, t] {
                for (int i = 0; i < 500; ++i) {
                    settings.setValue(QStringLiteral("t%1_%2").arg(t).arg(i), i);
                    settings.value(QStringLiteral("t%1_%2").arg((t + 1) % 4).arg(i));
                    settings.tree();
                }
            }));
            threads.back()->start();
        }
        for (const auto& thread : threads)
            QVERIFY(thread->wait());
        QCOMPARE(settings.tree().size(), 4 * 500 + 1);
        QCOMPARE(settings.value(QStringLiteral("t3_499")).toInt(), 499);
    }

    void shouldExportAndImportBack_data()
    {
        QTest::addColumn<QString>("storedAt");
        QTest::addColumn<QVariant>("lastLayout");
        QTest::addColumn<bool>("favourites");
        QTest::newRow("the chosen layout")
            << SettingsKeys::keyItemsKey(QStringLiteral("H_Key_6")) << QVariant(0) << false;
        QTest::newRow("none chosen: vertical 15 keys")
            << SettingsKeys::keyItemsKey(QStringLiteral("V_Key_15")) << QVariant() << false;
        QTest::newRow("favourites") << QString(SettingsKeys::MyFavoriteItems) << QVariant(0) << true;
    }

    void shouldExportAndImportBack()
    {
        QFETCH(QString, storedAt);
        QFETCH(QVariant, lastLayout);
        QFETCH(bool, favourites);
        Settings settings;
        if (lastLayout.isValid())
            settings.setValue(SettingsKeys::LastKbLayout, lastLayout);
        settings.setValue(SettingsKeys::keyItemsKey(QStringLiteral("H_Key_32")), keyList(QStringLiteral("other")));
        const QVariantMap pages = keyList(QStringLiteral("exported key"));
        settings.setValue(storedAt, pages);
        const QString path = m_files->filePath(QStringLiteral("export.bin"));
        QVERIFY(TestFiles::write(path, QByteArray(10000, 'z'))); // replaced
        QVERIFY(favourites ? settings.exportMyFavorite(path) : settings.exportSetting(path));

        // The checksum's serialisation of {content key: pages, "CHKSUM_TAG": md5}.
        QCOMPARE(TestFiles::read(path),
                 withChecksum({{favourites ? SettingsKeys::MyFavorite : SettingsKeys::MyLayout, pages}}));
        const Settings::ExportFile file = Settings::readExportFile(path);
        QVERIFY2(file.isValid() && file.error.isEmpty(), qPrintable(file.detail));
        QCOMPARE(file.kind, favourites ? Settings::ExportKind::Favorite : Settings::ExportKind::Layout);
        QCOMPARE(Settings::checksum(file.content), Settings::checksum(pages)); // fonts and images whole

        QSignalSpy layouts(&settings, &Settings::settingImported);
        QSignalSpy favouriteLists(&settings, &Settings::myFavoriteImported);
        QVERIFY(settings.importFile(path).isValid());
        QSignalSpy& emitted = favourites ? favouriteLists : layouts;
        QCOMPARE(layouts.size() + favouriteLists.size(), 1);
        QCOMPARE(emitted.size(), 1);
        QCOMPARE(Settings::checksum(emitted.first().first().toMap()), Settings::checksum(pages));
    }

    void shouldTellOnceWhyTheFileCannotBeWrittenAndRetry_data()
    {
        QTest::addColumn<int>("obstacle");
        QTest::addColumn<QString>("reason");
        QTest::newRow("a folder where the file belongs") << int(FolderForFile) << "directory";
        QTest::newRow("a file where the folder belongs") << int(FileForFolder) << "cannot create";
        QTest::newRow("read-only folder") << int(ReadOnlyFolder) << "Permission denied";
    }

    void shouldTellOnceWhyTheFileCannotBeWrittenAndRetry()
    {
        QFETCH(int, obstacle);
        QFETCH(QString, reason);
        if (obstacle == ReadOnlyFolder && ::geteuid() == 0)
            QSKIP("root writes into read-only folders");
        Settings settings;
        QSignalSpy failures(&settings, &Settings::saveFailed);
        settings.setValue(QStringLiteral("probe"), 1);
        QVERIFY(settings.save());

        for (int attempt = 1; attempt <= 2; ++attempt) {
            placeObstacle(obstacle);
            // Edits go on in memory; only the first failure is told.
            settings.setValue(QStringLiteral("probe"), 10 * attempt);
            QVERIFY(!settings.save());
            settings.setValue(QStringLiteral("probe"), 10 * attempt + 1);
            QVERIFY(!settings.save());
            QVERIFY(settings.lastSaveFailed());
            QCOMPARE(failures.size(), attempt);
            QCOMPARE(failures.last().at(0).toString(), confPath());
            QVERIFY2(failures.last().at(1).toString().contains(reason), qPrintable(failures.last().at(1).toString()));

            // The next save once the way is clear writes every edit, and
            // nothing of the failed saves comes back later; a new failure
            // after it is told again.
            removeObstacle(obstacle);
            settings.setValue(QStringLiteral("probe"), 10 * attempt + 2);
            QVERIFY(settings.save());
            QVERIFY(!settings.lastSaveFailed());
            QCOMPARE(restart()->value(QStringLiteral("probe")).toInt(), 10 * attempt + 2);
        }
        QSettings(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Vantorix"), QStringLiteral("Keystage"))
            .sync();
        QCOMPARE(restart()->value(QStringLiteral("probe")).toInt(), 22);
    }

    void shouldReportWritesThatFail()
    {
        QVERIFY(QDir().mkpath(confPath())); // a directory where the file belongs
        Settings settings;
        LogCapture capture;
        QVERIFY(!settings.save());
        QCOMPARE(capture.matching(QStringLiteral("ERROR: Cannot write")).size(), 1);
        QVERIFY(QDir(confPath()).removeRecursively());

        settings.setValue(SettingsKeys::LastKbLayout, 9);
        const QString path = m_files->filePath(QStringLiteral("layout.bin"));
        QVERIFY(!settings.exportSetting(path));
        QCOMPARE(capture.matching(QStringLiteral("ERROR: Invalid layout!!")).size(), 1);
        QVERIFY(!QFile::exists(path));

        settings.setValue(SettingsKeys::LastKbLayout, 0);
        const QString notADirectory = m_files->filePath(QStringLiteral("plain-file"));
        QVERIFY(TestFiles::write(notADirectory, "x"));
        QVERIFY(!settings.exportSetting(notADirectory + QStringLiteral("/export.bin")));
        QVERIFY(!settings.exportMyFavorite(notADirectory + QStringLiteral("/export.bin")));
        QCOMPARE(capture.messages().count(QStringLiteral("Log file not created: open file fail!")), 2);
        QCOMPARE(TestFiles::read(notADirectory), QByteArray("x"));
    }

    // Export files come from anyone. The fuzz corpus test feeds every
    // truncation and byte change of its seeds for crashes; these rows check
    // that what is wrong is also refused.
    void shouldRejectAHostileExportFile_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("problem");
        QTest::addColumn<QString>("reason");
        const int notExport = int(Settings::ImportProblem::NotAnExportFile);
        const QVariantMap pages{{SettingsKeys::KeyCnt, 0}};
        const QByteArray valid = Settings::encodeExportFile(SettingsKeys::MyLayout, keyList(QStringLiteral("kmnopq")));

        QByteArray flipped = valid;
        const int text = flipped.indexOf(QByteArray("\0k\0m\0n\0o", 8));
        flipped[text + 3] = char(flipped.at(text + 3) ^ 0x01);
        QTest::newRow("flipped byte") << flipped << int(Settings::ImportProblem::ChecksumMismatch)
                                      << "changed or damaged";
        QTest::newRow("empty") << QByteArray() << notExport << "";
        QTest::newRow("cut short") << valid.left(valid.size() / 2) << notExport << "";
        const QString notOurs = QStringLiteral("not a Keystage layout or favourites file");
        QTest::newRow("other content key")
            << Settings::encodeExportFile(QStringLiteral("MYSETTINGS"), pages) << notExport << notOurs;
        QTest::newRow("both kinds") << withChecksum(
                                           {{SettingsKeys::MyLayout, pages}, {SettingsKeys::MyFavorite, pages}})
                                    << notExport << notOurs;
        QTest::newRow("no checksum") << streamed(QVariantMap{{SettingsKeys::MyLayout, pages}}) << notExport << notOurs;

        QTest::newRow("huge entry count")
            << streamed(quint32(0x7fffffff)) + streamed(quint32(0xfffffff0)) << notExport << "2147483647";
        // QDataStream reserves room for the count it reads: gigabytes, unchecked.
        QTest::newRow("huge list count") << forged({{QStringLiteral("steps"), QVariantList{1, QStringLiteral("b")}}},
                                                   QByteArray("\0\0\0\x09\0\0\0\0\x02", 9), 5, 0x7fffffff)
                                         << notExport << "list claims";
        const QByteArray font = streamed(styledFont());
        QTest::newRow("huge font family count")
            << forged({{QStringLiteral("font"), styledFont()}}, font, font.size() - 4, 0x7fffffff) << notExport
            << "font family list";
        QImage image(Settings::MaxImageSide + 1, 1, QImage::Format_RGB32);
        image.fill(Qt::red);
        QTest::newRow("image too large") << Settings::encodeExportFile(
                                                SettingsKeys::MyLayout,
                                                {{QStringLiteral("img"), QPixmap::fromImage(image)}})
                                         << notExport << "larger than";
        QTest::newRow("nested too deep") << Settings::encodeExportFile(SettingsKeys::MyLayout,
                                                                       nested(Settings::MaxNestingDepth))
                                         << notExport << "nested deeper";
        QTest::newRow("duplicate key") << streamed(quint32(3)) + streamed(QString(SettingsKeys::ChecksumTag)) +
                                              streamed(QVariant(QString(32, QLatin1Char('0')))) +
                                              streamed(QString(SettingsKeys::MyLayout)) + streamed(QVariant(pages)) +
                                              streamed(QString(SettingsKeys::MyLayout)) + streamed(QVariant(pages))
                                       << notExport << "twice";
        QTest::newRow("unexpected type") << Settings::encodeExportFile(SettingsKeys::MyLayout,
                                                                       {{QStringLiteral("when"), QDate(2024, 1, 1)}})
                                         << notExport << "not expected";
    }

    void shouldRejectAHostileExportFile()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, problem);
        QFETCH(QString, reason);
        const Settings::ExportFile file = Settings::parseExportFile(bytes);
        QVERIFY2(isRejected(file, Settings::ImportProblem(problem)), qPrintable(file.detail));
        QVERIFY2((file.error + ' ' + file.detail).contains(reason), qPrintable(file.detail));
    }

    // Qt's stream operators take any colour model byte, font weight or
    // stretch; the checksum has no key, so a file can carry any of them.
    // Through an export file or through the settings tree (which QSettings
    // parses with those operators), such a value reads as the default.
    void shouldReadUnusableColoursAndFontsAsDefaults_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("offset");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("viaExportFile");
        const QVariant rgb = QColor(10, 20, 30, 200);
        const QVariant hsv = QColor::fromHsv(100, 200, 200);
        const QVariant extended = QColor::fromRgbF(1.5, 0, 0);
        const QVariant font = styledFont();
        const int fields = fontFieldsAt(styledFont());
        const QByteArray nan = streamed(std::numeric_limits<double>::quiet_NaN());
        const struct
        {
            const char* name;
            QVariant value;
            int offset;
            QByteArray bytes;
        } rows[] = {
            {"colour model 127", rgb, 0, QByteArray("\x7f")},
            {"colour model -1", rgb, 0, QByteArray("\xff")},
            {"hue 400 degrees", hsv, 3, streamed(quint16(40000))},
            {"extended red not a number", extended, 3, streamed(quint16(0x7e00))},
            {"font size not a number", font, fields, nan},
            {"font weight 120", font, fields + 16, QByteArray("\x78")},
            {"font stretch 4095", font, fields + 18, streamed(quint16(4095))},
            {"font style hint 200", font, fields + 12, QByteArray("\xc8")},
            {"font letter spacing huge", font, fields + 21, streamed(qint32(0x7fffffff))},
        };
        for (const auto& row : rows) {
            QTest::addRow("%s, export file", row.name) << row.value << row.offset << row.bytes << true;
            QTest::addRow("%s, settings tree", row.name) << row.value << row.offset << row.bytes << false;
        }
    }

    void shouldReadUnusableColoursAndFontsAsDefaults()
    {
        QFETCH(QVariant, value);
        QFETCH(int, offset);
        QFETCH(QByteArray, bytes);
        QFETCH(bool, viaExportFile);
        const bool isColour = value.userType() == QMetaType::QColor;
        const QString key = isColour ? QStringLiteral("textColor") : QStringLiteral("textFont");
        const QVariantMap face{{QStringLiteral("text"), QStringLiteral("t")}, {key, value}};
        const QVariantMap item{{QStringLiteral("actionTypeString"), QStringLiteral("KAT_PASTE_STRING")},
                               {QStringLiteral("keyRenderMap_0"), face}};
        const QVariantMap page{{SettingsKeys::KeyCnt, 1}, {SettingsKeys::keyMapKey(0), item}};
        const QByteArray bad = patchedValue(value, offset, bytes);

        LogCapture capture;
        QVariantMap itemRead;
        if (viaExportFile) {
            QByteArray file = Settings::encodeExportFile(SettingsKeys::MyLayout, page);
            QCOMPARE(file.count(streamed(value)), 1);
            file.replace(streamed(value), bad);
            const QString path = m_files->filePath(QStringLiteral("hostile.bin"));
            QVERIFY(TestFiles::write(path, rechecked(file)));
            Settings settings;
            const Settings::ExportFile imported = settings.importFile(path);
            QVERIFY2(imported.isValid(), qPrintable(imported.detail));
            itemRead = imported.content.value(SettingsKeys::keyMapKey(0)).toMap();
        } else {
            QVariant parsed;
            QDataStream stream(bad);
            stream >> parsed; // as QSettings parses the settings file
            QCOMPARE(stream.status(), QDataStream::Ok);
            QVariantMap badFace = face;
            badFace.insert(key, parsed);
            itemRead = item;
            itemRead.insert(QStringLiteral("keyRenderMap_0"), badFace);
        }
        KeyItem read;
        itemRead >> read;
        QCOMPARE(read.render[0].text, QStringLiteral("t"));
        if (isColour)
            QCOMPARE(read.render[0].textColor, QColor(255, 255, 255, 255));
        else
            QCOMPARE(read.render[0].textFont, QFont());
        QCOMPARE(capture.matching(QStringLiteral("is unusable")).size(), 1);
    }

    // The checksum covers the bytes of the file, not the program's own
    // encoding of what it read: an image another PNG encoder wrote is fine.
    void shouldImportImagesAnotherEncoderWrote()
    {
        const QPixmap image = semiTransparentPixmap();
        const QByteArray png = pngFile(image.toImage(), 100); // no compression
        QByteArray file = Settings::encodeExportFile(SettingsKeys::MyLayout, {{QStringLiteral("img"), image}});
        const QByteArray qtPng = pngFile(image.toImage());
        QVERIFY(png != qtPng);
        QCOMPARE(file.count(qtPng), 1);
        file.replace(qtPng, png);
        const Settings::ExportFile imported = Settings::parseExportFile(rechecked(file));
        QVERIFY2(imported.isValid(), qPrintable(imported.detail));
        QCOMPARE(imported.content.value(QStringLiteral("img")).value<QPixmap>().toImage(), image.toImage());
    }

    void shouldRejectFilesItCannotOrShouldNotRead()
    {
        QVERIFY(isRejected(Settings::readExportFile(m_files->filePath(QStringLiteral("none.bin"))),
                           Settings::ImportProblem::Unreadable));
        const QString huge = m_files->filePath(QStringLiteral("huge.bin"));
        QFile file(huge);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(Settings::MaxExportFileSize + 1)); // sparse: costs no disk space
        file.close();
        QVERIFY(isRejected(Settings::readExportFile(huge), Settings::ImportProblem::NotAnExportFile));

        Settings settings;
        QSignalSpy layouts(&settings, &Settings::settingImported);
        QSignalSpy favourites(&settings, &Settings::myFavoriteImported);
        const QString bad = m_files->filePath(QStringLiteral("bad.bin"));
        QVERIFY(TestFiles::write(bad, "not an export"));
        LogCapture capture;
        QVERIFY(isRejected(settings.importFile(bad), Settings::ImportProblem::NotAnExportFile));
        QCOMPARE(layouts.size() + favourites.size(), 0);
        QCOMPARE(capture.matching(QStringLiteral("Import of %1 failed").arg(bad)).size(), 1);
    }

private:
    enum Damage
    {
        HandEdited,
        NoChecksum,
        Unparseable,
    };

    std::unique_ptr<QTemporaryDir> m_files;
};

KEYSTAGE_TEST_MAIN(SettingsTest)
#include "tst_settings.moc"
