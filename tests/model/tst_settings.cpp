#include "logcapture.h"
#include "objectregistry.h"
#include "settings.h"
#include "settingsfilewriter.h"
#include "settingskeys.h"
#include "testmain.h"

#include <QBuffer>
#include <QDataStream>
#include <QDate>
#include <QDir>
#include <QFont>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QPixmap>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>

#include <array>

namespace {

const QString LoadSuccess = QStringLiteral("Log file not created: Load success!");
const QString LoadReset = QStringLiteral("Log file not created: Load checkSum err, reset settings!");
const QString StoreLine = QStringLiteral("Log file not created: store setting into disk.");
const QString OpenFail = QStringLiteral("Log file not created: open file fail!");

QString confPath()
{
    return testEnvironment()->configHome() + QStringLiteral("/Vantorix/Keystage.conf");
}

QFileInfoList corruptCopies()
{
    return QDir(QFileInfo(confPath()).absolutePath())
        .entryInfoList({QStringLiteral("Keystage.conf.corrupt-*")}, QDir::Files);
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size();
}

QByteArray serialise(const QVariant& value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes;
}

QByteArray serialiseMap(const QVariantMap& map)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << map;
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

// "inst" exactly as stored in the file, parsed from a private copy so that no
// cached value can stand in for it.
QVariantMap storedTreeOnDisk()
{
    QTemporaryDir dir;
    const QString copy = dir.filePath(QStringLiteral("copy.conf"));
    if (!QFile::copy(confPath(), copy))
        return QVariantMap();
    QSettings settings(copy, QSettings::IniFormat);
    return settings.value(SettingsKeys::Inst).toMap();
}

// The file QSettings writes for "inst" = the tree with the checksum, in a file of its own.
QByteArray writtenByQSettings(const QVariantMap& stored)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("expected.conf"));
    {
        QSettings settings(path, QSettings::NativeFormat);
        settings.setValue(SettingsKeys::Inst, stored);
        settings.sync();
    }
    return readFile(path);
}

QVariantMap withChecksumOnDisk(QVariantMap tree)
{
    tree.insert(SettingsKeys::ChecksumTag, storedTreeOnDisk().value(SettingsKeys::ChecksumTag));
    return tree;
}

QVariant diskValue(const QString& key)
{
    QTemporaryDir dir;
    const QString copy = dir.filePath(QStringLiteral("copy.conf"));
    if (!QFile::copy(confPath(), copy))
        return QVariant();
    return QSettings(copy, QSettings::IniFormat).value(key);
}

QPixmap semiTransparentPixmap()
{
    QImage image(8, 8, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qPremultiply(qRgba(x * 30, y * 30, 200, (x * 8 + y) * 3 + 5)));
    }
    return QPixmap::fromImage(image);
}

QFont styledFont()
{
    QFont font(QStringLiteral("DejaVu Sans"), 13);
    font.setStyleName(QStringLiteral("Bold"));
    font.setLetterSpacing(QFont::AbsoluteSpacing, 1.5);
    font.setCapitalization(QFont::SmallCaps);
    return font;
}

QVariantMap keyMap(const QString& text)
{
    const QVariantMap face{{QStringLiteral("text"), text},
                           {QStringLiteral("textFont"), styledFont()},
                           {QStringLiteral("textColor"), QColor(10, 20, 30, 200)},
                           {QStringLiteral("userImg"), semiTransparentPixmap()},
                           {QStringLiteral("hintFlags"), 1}};
    return {{QStringLiteral("actionTypeString"), QStringLiteral("KAT_PASTE_STRING")},
            {QStringLiteral("multiFeatureFlag"), false},
            {QStringLiteral("keyRenderMap_0"), face}};
}

QVariantMap keyList(const QString& text)
{
    return {{SettingsKeys::KeyCnt, 1}, {SettingsKeys::keyMapKey(0), keyMap(text)}};
}

QVariantMap nested(int depth)
{
    QVariantMap map{{QStringLiteral("leaf"), 1}};
    for (int i = 0; i < depth; ++i)
        map = QVariantMap{{QStringLiteral("child"), map}};
    return map;
}

void putU32(QByteArray* bytes, int at, quint32 value)
{
    (*bytes)[at] = char(value >> 24);
    (*bytes)[at + 1] = char(value >> 16);
    (*bytes)[at + 2] = char(value >> 8);
    (*bytes)[at + 3] = char(value);
}

quint32 crc32(const QByteArray& bytes)
{
    quint32 crc = 0xffffffffu;
    for (const char c : bytes) {
        crc ^= quint8(c);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (0xedb88320u & (0u - (crc & 1u)));
    }
    return ~crc;
}

QByteArray utf16(const QString& text)
{
    QByteArray bytes;
    for (const QChar c : text)
        bytes.append(char(c.unicode() >> 8)).append(char(c.unicode() & 0xff));
    return bytes;
}

bool isRejected(const Settings::ExportFile& file, Settings::ImportProblem problem)
{
    return !file.isValid() && file.kind == Settings::ExportKind::Invalid && file.problem == problem &&
           !file.error.isEmpty() && file.content.isEmpty();
}

} // namespace

class SettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        ObjectRegistry::clear();
        QFile::remove(confPath());
        for (const QFileInfo& copy : corruptCopies())
            QFile::remove(copy.absoluteFilePath());
        m_files.reset(new QTemporaryDir);
    }

    // --- checksum ---

    void shouldReproduceTheReferenceChecksum()
    {
        const QVariantMap map{{QStringLiteral("a"), 1}, {QStringLiteral("b"), QStringLiteral("x")}};
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream << map;
        QCOMPARE(bytes.size(), 36);
        QCOMPARE(Settings::checksum(map), QStringLiteral("4854b2c425746cf07136304d1908225b"));
    }

    void shouldLeaveTheChecksumTagOutOfTheChecksum()
    {
        QVariantMap map{{QStringLiteral("a"), 1}, {QStringLiteral("b"), QStringLiteral("x")}};
        map.insert(SettingsKeys::ChecksumTag, QStringLiteral("0123456789abcdef0123456789abcdef"));
        QCOMPARE(Settings::checksum(map), QStringLiteral("4854b2c425746cf07136304d1908225b"));
    }

    void shouldChangeTheChecksumWithAnyValueOrType()
    {
        const QVariantMap map{{QStringLiteral("a"), 1}};
        QVERIFY(Settings::checksum(map) != Settings::checksum({{QStringLiteral("a"), 2}}));
        QVERIFY(Settings::checksum(map) != Settings::checksum({{QStringLiteral("a"), qlonglong(1)}}));
        QVERIFY(Settings::checksum(map) != Settings::checksum({{QStringLiteral("A"), 1}}));
        QCOMPARE(Settings::checksum(map).size(), 32);
        QVERIFY(Settings::checksum(map).contains(QRegularExpression(QStringLiteral("^[0-9a-f]{32}$"))));
    }

    // --- loading and saving ---

    void shouldStartWithDefaultsAndKeepNoCopyWhenNoFileExists()
    {
        LogCapture capture;
        Settings settings;
        QCOMPARE(capture.messages().count(LoadReset), 1);
        QCOMPARE(capture.messages().count(LoadSuccess), 0);
        QVERIFY(settings.loadedDefaults());
        QCOMPARE(settings.tree(), (QVariantMap{{SettingsKeys::SettingsVersion, QStringLiteral("1.3")}}));
        QVERIFY(settings.damagedCopyPath().isEmpty());
        QVERIFY(corruptCopies().isEmpty());
        QCOMPARE(settings.fileName(), confPath());
    }

    void shouldReloadASavedTreeWithLoadSuccess()
    {
        const QVariantMap page{{SettingsKeys::KeyCnt, 2}, {QStringLiteral("note"), QStringLiteral("über")}};
        {
            Settings settings;
            settings.setValue(SettingsKeys::LastKbLayout, 2);
            settings.setValue(SettingsKeys::DeleteItemDontShowAgain, true);
            settings.setValue(SettingsKeys::keyItemsKey(QStringLiteral("H_Key_15")), page);
            settings.setValue(QStringLiteral("color"), QColor(1, 2, 3));
            LogCapture capture;
            QVERIFY(settings.save());
            QCOMPARE(capture.messages().count(StoreLine), 1);
        }
        makeCachedSettingsStale();
        LogCapture capture;
        Settings reloaded;
        QCOMPARE(capture.messages().count(LoadSuccess), 1);
        QCOMPARE(capture.messages().count(LoadReset), 0);
        QVERIFY(!reloaded.loadedDefaults());
        const QVariantMap expected{{SettingsKeys::SettingsVersion, QStringLiteral("1.3")},
                                   {SettingsKeys::LastKbLayout, 2},
                                   {SettingsKeys::DeleteItemDontShowAgain, true},
                                   {SettingsKeys::keyItemsKey(QStringLiteral("H_Key_15")), page},
                                   {QStringLiteral("color"), QColor(1, 2, 3)}};
        QCOMPARE(reloaded.tree(), expected);
        QVERIFY(!reloaded.contains(SettingsKeys::ChecksumTag));
    }

    // QSettings stores values in an old stream version that drops font
    // details, so only the second pass makes the stored checksum fit.
    void shouldStoreAChecksumThatMatchesWhatTheFileHolds()
    {
        {
            Settings settings;
            settings.setValue(QStringLiteral("font"), styledFont());
            settings.setValue(QStringLiteral("image"), semiTransparentPixmap());
            settings.setValue(SettingsKeys::MyFavoriteItems, keyList(QStringLiteral("favourite")));
            QVERIFY(settings.save());
        }
        QVariantMap onDisk = storedTreeOnDisk();
        QVERIFY2(onDisk.value(QStringLiteral("font")).value<QFont>().styleName().isEmpty(),
                 "the settings backend no longer converts fonts; this test lost its point");
        const QString storedChecksum = onDisk.take(SettingsKeys::ChecksumTag).toString();
        QCOMPARE(storedChecksum, Settings::checksum(onDisk));
        QCOMPARE(onDisk.value(SettingsKeys::SettingsVersion).toString(), QStringLiteral("1.3"));

        makeCachedSettingsStale();
        LogCapture capture;
        Settings reloaded;
        QCOMPARE(capture.messages().count(LoadSuccess), 1);
        QCOMPARE(reloaded.value(QStringLiteral("font")).value<QFont>().pointSize(), 13);
    }

    // --- the file as QSettings would write it ---

    void shouldWriteTheFileQSettingsWouldWrite()
    {
        Settings settings;
        settings.setValue(QStringLiteral("font"), styledFont());
        settings.setValue(QStringLiteral("image"), semiTransparentPixmap());
        settings.setValue(SettingsKeys::MyFavoriteItems, keyList(QStringLiteral("favourite")));
        QVERIFY(settings.save());
        const QByteArray first = readFile(confPath());
        QCOMPARE(first, writtenByQSettings(withChecksumOnDisk(settings.tree())));
        // The second save takes everything from what the first one kept.
        QVERIFY(settings.save());
        QCOMPARE(readFile(confPath()), first);
    }

    // The store used to let QSettings write the tree, read it back, and write
    // what it read with a checksum over that. It writes the same file now.
    void shouldWriteWhatWritingTwiceThroughQSettingsWrote()
    {
        Settings settings;
        settings.setValue(QStringLiteral("font"), styledFont());
        settings.setValue(QStringLiteral("image"), semiTransparentPixmap());
        settings.setValue(SettingsKeys::MyFavoriteItems, keyList(QStringLiteral("favourite")));
        QVERIFY(settings.save());

        QVariantMap tree = settings.tree();
        tree.insert(SettingsKeys::ChecksumTag, Settings::checksum(tree));
        QTemporaryDir dir;
        const QString first = dir.filePath(QStringLiteral("first.conf"));
        {
            QSettings store(first, QSettings::NativeFormat);
            store.setValue(SettingsKeys::Inst, tree);
        }
        // A copy: QSettings would hand back its own cached values for the same path.
        const QString copy = dir.filePath(QStringLiteral("copy.conf"));
        QVERIFY(QFile::copy(first, copy));
        QVariantMap readBack = QSettings(copy, QSettings::NativeFormat).value(SettingsKeys::Inst).toMap();
        QVERIFY(readBack.value(QStringLiteral("font")).value<QFont>().styleName().isEmpty());
        readBack.insert(SettingsKeys::ChecksumTag, Settings::checksum(readBack));
        QCOMPARE(readFile(confPath()), writtenByQSettings(readBack));
    }

    void shouldWriteTheSameFileAfterAStartWhenNothingChanged()
    {
        {
            Settings settings;
            settings.setValue(SettingsKeys::MyFavoriteItems, keyList(QStringLiteral("favourite")));
            settings.setValue(
                QStringLiteral("opaque"),
                QPixmap::fromImage(semiTransparentPixmap().toImage().convertToFormat(QImage::Format_RGB32)));
            QVERIFY(settings.save());
        }
        const QByteArray saved = readFile(confPath());
        makeCachedSettingsStale();
        Settings reloaded;
        QVERIFY(reloaded.save());
        QCOMPARE(readFile(confPath()), saved);
        makeCachedSettingsStale();
        LogCapture capture;
        Settings again;
        QCOMPARE(capture.messages().count(LoadSuccess), 1);
    }

    void shouldStoreAnImageChangedSinceTheLastSave()
    {
        QPixmap image = semiTransparentPixmap();
        Settings settings;
        settings.setValue(QStringLiteral("image"), image);
        QVERIFY(settings.save());
        image.fill(QColor(1, 2, 3));
        settings.setValue(QStringLiteral("image"), image);
        QVERIFY(settings.save());
        QCOMPARE(readFile(confPath()), writtenByQSettings(withChecksumOnDisk(settings.tree())));

        makeCachedSettingsStale();
        LogCapture capture;
        Settings reloaded;
        QCOMPARE(capture.messages().count(LoadSuccess), 1);
        QCOMPARE(reloaded.value(QStringLiteral("image")).value<QPixmap>().toImage().pixel(2, 2), qRgb(1, 2, 3));
    }

    // Written by another program: the images are no PNG files that Qt itself
    // would make, so the next start encodes them differently from the file.
    void shouldLoadAndSaveImagesThatQtWouldEncodeDifferently()
    {
        QByteArray png;
        {
            QBuffer buffer(&png);
            buffer.open(QIODevice::WriteOnly);
            QImageWriter writer(&buffer, "png");
            writer.setQuality(100); // no compression
            QVERIFY(writer.write(semiTransparentPixmap().toImage()));
        }
        const QPixmap image = QPixmap::fromImage(QImage::fromData(png, "png"));
        QVariantMap stored{{SettingsKeys::SettingsVersion, QStringLiteral("1.3")}, {QStringLiteral("image"), image}};
        stored.insert(SettingsKeys::ChecksumTag, Settings::checksum(stored));
        QByteArray variant;
        {
            QDataStream stream(&variant, QIODevice::WriteOnly);
            stream.setVersion(SettingsFileWriter::StreamVersion);
            stream << QVariant(stored);
        }
        QByteArray qtPng;
        {
            QBuffer buffer(&qtPng);
            buffer.open(QIODevice::WriteOnly);
            QVERIFY(QImageWriter(&buffer, "png").write(image.toImage()));
        }
        QVERIFY(png != qtPng);
        QCOMPARE(variant.count(qtPng), 1);
        variant.replace(qtPng, png);
        QVERIFY(QDir().mkpath(QFileInfo(confPath()).absolutePath()));
        QVERIFY(writeFile(confPath(),
                          "[General]\ninst=" + SettingsFileWriter::escapedValue("@Variant(" + variant + ')') + '\n'));

        {
            LogCapture capture;
            Settings settings;
            QCOMPARE(capture.messages().count(LoadSuccess), 1);
            QVERIFY(settings.save());
            QCOMPARE(readFile(confPath()), writtenByQSettings(withChecksumOnDisk(settings.tree())));
        }
        makeCachedSettingsStale();
        LogCapture capture;
        Settings reloaded;
        QCOMPARE(capture.messages().count(LoadSuccess), 1);
        QCOMPARE(reloaded.value(QStringLiteral("image")).value<QPixmap>().toImage(), image.toImage());
    }

    void shouldKeepTheOtherKeysOfTheFile()
    {
        {
            QSettings raw(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Vantorix"),
                          QStringLiteral("Keystage"));
            raw.setValue(QStringLiteral("lang_idx"), 2);
            raw.setValue(QStringLiteral("window/pos"), QPoint(3, 4));
            raw.sync();
        }
        makeCachedSettingsStale();
        {
            Settings settings;
            settings.setValue(QStringLiteral("image"), semiTransparentPixmap());
            QVERIFY(settings.save());
            QVERIFY(settings.save());
        }
        QCOMPARE(diskValue(QStringLiteral("lang_idx")).toInt(), 2);
        QCOMPARE(diskValue(QStringLiteral("window/pos")).toPoint(), QPoint(3, 4));
        makeCachedSettingsStale();
        LogCapture capture;
        Settings reloaded;
        QCOMPARE(capture.messages().count(LoadSuccess), 1);
        QVERIFY(reloaded.contains(QStringLiteral("image")));
    }

    // QSettings reads an organisation-wide file beside the program's own, but writes only its own.
    void shouldLeaveKeysOfTheFallbackFilesWhereTheyAre()
    {
        QVERIFY(Settings().save());
        const QString orgWide = testEnvironment()->configHome() + QStringLiteral("/Vantorix.conf");
        QVERIFY(writeFile(orgWide, "[General]\norgWide=1\n"));
        makeCachedSettingsStale();
        {
            Settings settings;
            settings.setValue(QStringLiteral("own"), 1);
            QVERIFY(settings.save());
        }
        QVERIFY(QFile::remove(orgWide));
        QVERIFY(!readFile(confPath()).contains("orgWide"));
        QCOMPARE(readFile(confPath()), writtenByQSettings(storedTreeOnDisk()));
    }

    void shouldMergeWhatAnotherWriterChangedSinceTheLastSave()
    {
        Settings settings;
        settings.setValue(QStringLiteral("image"), semiTransparentPixmap());
        QVERIFY(settings.save());
        {
            QSettings other(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Vantorix"),
                            QStringLiteral("Keystage"));
            other.setValue(QStringLiteral("lang_idx"), 3);
            other.sync();
        }
        settings.setValue(QStringLiteral("later"), 1);
        {
            LogCapture capture;
            QVERIFY(settings.save());
            QCOMPARE(capture.matching(QStringLiteral("changed by another writer")).size(), 1);
        }
        QCOMPARE(diskValue(QStringLiteral("lang_idx")).toInt(), 3);
        {
            // Known again: the next save writes the file itself, keeping the key.
            LogCapture capture;
            QVERIFY(settings.save());
            QCOMPARE(capture.matching(QStringLiteral("changed by another writer")).size(), 0);
        }
        QCOMPARE(diskValue(QStringLiteral("lang_idx")).toInt(), 3);
        makeCachedSettingsStale();
        LogCapture capture;
        Settings reloaded;
        QCOMPARE(capture.messages().count(LoadSuccess), 1);
        QCOMPARE(reloaded.value(QStringLiteral("later")).toInt(), 1);
    }

    void shouldReportASaveThatCannotBeWritten()
    {
        QVERIFY(QDir().mkpath(confPath())); // a directory where the file belongs
        {
            Settings settings;
            LogCapture capture;
            QVERIFY(!settings.save());
            QCOMPARE(capture.matching(QStringLiteral("ERROR: Cannot write")).size(), 1);
        }
        QVERIFY(QDir(confPath()).removeRecursively());
    }

    void shouldWriteTheSettingsVersionOnSave()
    {
        Settings settings;
        settings.setValue(SettingsKeys::SettingsVersion, QStringLiteral("0.9"));
        QVERIFY(settings.save());
        QCOMPARE(settings.value(SettingsKeys::SettingsVersion).toString(), QStringLiteral("1.3"));
        QCOMPARE(storedTreeOnDisk().value(SettingsKeys::SettingsVersion).toString(), QStringLiteral("1.3"));
    }

    void shouldResetAHandEditedFileAndKeepTheOriginalBytes()
    {
        {
            Settings settings;
            settings.setValue(QStringLiteral("probe"), QStringLiteral("kmnopq"));
            settings.setValue(SettingsKeys::LastKbLayout, 4);
            QVERIFY(settings.save());
        }
        QByteArray text = readFile(confPath());
        QCOMPARE(text.count("\\0k\\0m\\0n\\0o"), 1);
        text.replace("\\0k\\0m\\0n\\0o", "\\0k\\0n\\0n\\0o");
        QVERIFY(writeFile(confPath(), text));
        makeCachedSettingsStale();

        LogCapture capture;
        Settings settings;
        QCOMPARE(capture.messages().count(LoadReset), 1);
        QCOMPARE(capture.messages().count(LoadSuccess), 0);
        QVERIFY(settings.loadedDefaults());
        QCOMPARE(settings.tree(), (QVariantMap{{SettingsKeys::SettingsVersion, QStringLiteral("1.3")}}));

        const QString copy = settings.damagedCopyPath();
        QCOMPARE(corruptCopies().size(), 1);
        QCOMPARE(QFileInfo(copy).absoluteFilePath(), corruptCopies().first().absoluteFilePath());
        QCOMPARE(QFileInfo(copy).absolutePath(), QFileInfo(confPath()).absolutePath());
        QVERIFY(QFileInfo(copy).fileName().contains(
            QRegularExpression(QStringLiteral("^Keystage\\.conf\\.corrupt-\\d{8}_\\d{6}(-\\d+)?$"))));
        QCOMPARE(readFile(copy), text);
        QCOMPARE(capture.matching(copy).size(), 1);
    }

    void shouldKeepOneCopyOfTheSameDamagedFileAcrossStarts()
    {
        QVERIFY(QDir().mkpath(QFileInfo(confPath()).absolutePath()));
        QVERIFY(writeFile(confPath(), "[General]\ninst=@Variant(\\0\\0\\0\\b\\0\\0\\0\\0)\n"));
        QString first;
        {
            Settings settings;
            first = settings.damagedCopyPath();
        }
        makeCachedSettingsStale();
        Settings again;
        QCOMPARE(again.damagedCopyPath(), first);
        QCOMPARE(corruptCopies().size(), 1);
    }

    void shouldTreatAStoredTreeWithoutChecksumAsDamaged()
    {
        {
            QSettings raw(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Vantorix"),
                          QStringLiteral("Keystage"));
            raw.setValue(SettingsKeys::Inst, QVariantMap{{SettingsKeys::LastKbLayout, 1}});
            raw.sync();
        }
        makeCachedSettingsStale();
        LogCapture capture;
        Settings settings;
        QCOMPARE(capture.messages().count(LoadReset), 1);
        QVERIFY(!settings.contains(SettingsKeys::LastKbLayout));
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
                 (QVariantMap{{QStringLiteral("fresh"), 2}, {SettingsKeys::SettingsVersion, QStringLiteral("1.3")}}));
        QVERIFY(settings.loadedDefaults());
    }

    // --- the tree ---

    void shouldReadWriteAndRemoveValues()
    {
        Settings settings;
        QCOMPARE(settings.value(QStringLiteral("missing"), 7).toInt(), 7);
        settings.setValue(QStringLiteral("k"), 3);
        QVERIFY(settings.contains(QStringLiteral("k")));
        QCOMPARE(settings.value(QStringLiteral("k")).toInt(), 3);
        QVariantMap copy = settings.tree();
        copy.insert(QStringLiteral("k"), 4);
        QCOMPARE(settings.value(QStringLiteral("k")).toInt(), 3);
        settings.remove(QStringLiteral("k"));
        QVERIFY(!settings.contains(QStringLiteral("k")));
    }

    void shouldKeepEveryWriteFromConcurrentThreads()
    {
        Settings settings;
        constexpr int Threads = 4;
        constexpr int Writes = 500;
        std::array<QThread*, Threads> threads{};
        for (int t = 0; t < Threads; ++t) {
            threads[t] = QThread::create([&settings, t] {
                for (int i = 0; i < Writes; ++i) {
                    settings.setValue(QStringLiteral("t%1_%2").arg(t).arg(i), i);
                    settings.value(QStringLiteral("t%1_%2").arg((t + 1) % Threads).arg(i));
                    settings.tree();
                }
            });
            threads[t]->start();
        }
        for (QThread* thread : threads) {
            QVERIFY(thread->wait());
            delete thread;
        }
        QCOMPARE(settings.tree().size(), Threads * Writes + 1);
        QCOMPARE(settings.value(QStringLiteral("t3_499")).toInt(), 499);
    }

    // --- export files ---

    void shouldRoundTripTheCurrentLayout()
    {
        Settings settings;
        const QVariantMap pages = keyList(QStringLiteral("layout key"));
        settings.setValue(SettingsKeys::LastKbLayout, 0);
        settings.setValue(SettingsKeys::keyItemsKey(QStringLiteral("H_Key_6")), pages);
        settings.setValue(SettingsKeys::keyItemsKey(QStringLiteral("V_Key_15")), keyList(QStringLiteral("other")));
        const QString path = m_files->filePath(QStringLiteral("layout.bin"));
        QVERIFY(settings.exportSetting(path));

        const Settings::ExportFile file = Settings::readExportFile(path);
        QVERIFY2(file.isValid(), qPrintable(file.detail));
        QCOMPARE(file.kind, Settings::ExportKind::Layout);
        QCOMPARE(file.problem, Settings::ImportProblem::None);
        QVERIFY(file.error.isEmpty());
        QCOMPARE(Settings::checksum(file.content), Settings::checksum(pages));
        const QVariantMap face =
            file.content.value(SettingsKeys::keyMapKey(0)).toMap().value(QStringLiteral("keyRenderMap_0")).toMap();
        QCOMPARE(face.value(QStringLiteral("text")).toString(), QStringLiteral("layout key"));
        QCOMPARE(face.value(QStringLiteral("textFont")).value<QFont>().styleName(), QStringLiteral("Bold"));
        QCOMPARE(face.value(QStringLiteral("userImg")).value<QPixmap>().size(), QSize(8, 8));

        // The file is the checksum's serialisation of {"MYLAYOUT": pages, "CHKSUM_TAG": md5}.
        QVariantMap expected{{SettingsKeys::MyLayout, pages}};
        expected.insert(SettingsKeys::ChecksumTag, Settings::checksum(expected));
        QCOMPARE(readFile(path), serialiseMap(expected));
    }

    void shouldExportTheVerticalFifteenKeyLayoutWhenNoneIsChosen()
    {
        Settings settings;
        const QVariantMap pages = keyList(QStringLiteral("fifteen"));
        settings.setValue(SettingsKeys::keyItemsKey(QStringLiteral("V_Key_15")), pages);
        const QString path = m_files->filePath(QStringLiteral("layout.bin"));
        QVERIFY(settings.exportSetting(path));
        const Settings::ExportFile file = Settings::readExportFile(path);
        QVERIFY(file.isValid());
        QCOMPARE(Settings::checksum(file.content), Settings::checksum(pages));
    }

    void shouldRefuseToExportAnInvalidLayout()
    {
        Settings settings;
        settings.setValue(SettingsKeys::LastKbLayout, 9);
        LogCapture capture;
        const QString path = m_files->filePath(QStringLiteral("layout.bin"));
        QVERIFY(!settings.exportSetting(path));
        QCOMPARE(capture.matching(QStringLiteral("ERROR: Invalid layout!!")).size(), 1);
        QVERIFY(!QFile::exists(path));
    }

    void shouldRoundTripTheFavourites()
    {
        Settings settings;
        const QVariantMap favourites = keyList(QStringLiteral("favourite"));
        settings.setValue(SettingsKeys::MyFavoriteItems, favourites);
        const QString path = m_files->filePath(QStringLiteral("favourites.bin"));
        QVERIFY(settings.exportMyFavorite(path));
        const Settings::ExportFile file = Settings::readExportFile(path);
        QVERIFY2(file.isValid(), qPrintable(file.detail));
        QCOMPARE(file.kind, Settings::ExportKind::Favorite);
        QCOMPARE(Settings::checksum(file.content), Settings::checksum(favourites));
        QCOMPARE(file.content.value(SettingsKeys::KeyCnt).toInt(), 1);
    }

    void shouldLogOpenFileFailForAnUnwritablePath()
    {
        Settings settings;
        const QString notADirectory = m_files->filePath(QStringLiteral("plain-file"));
        QVERIFY(writeFile(notADirectory, "x"));
        const QString path = notADirectory + QStringLiteral("/export.bin");
        LogCapture capture;
        QVERIFY(!settings.exportSetting(path));
        QVERIFY(!settings.exportMyFavorite(path));
        QCOMPARE(capture.messages().count(OpenFail), 2);
        QCOMPARE(readFile(notADirectory), QByteArray("x"));
    }

    void shouldReplaceAnExistingExportFile()
    {
        Settings settings;
        const QString path = m_files->filePath(QStringLiteral("favourites.bin"));
        QVERIFY(writeFile(path, QByteArray(10000, 'z')));
        QVERIFY(settings.exportMyFavorite(path));
        QVERIFY(Settings::readExportFile(path).isValid());
    }

    void shouldEmitTheImportedContentByKind_data()
    {
        QTest::addColumn<QString>("contentKey");
        QTest::addColumn<int>("kind");
        QTest::newRow("layout") << QString(SettingsKeys::MyLayout) << int(Settings::ExportKind::Layout);
        QTest::newRow("favourites") << QString(SettingsKeys::MyFavorite) << int(Settings::ExportKind::Favorite);
    }

    void shouldEmitTheImportedContentByKind()
    {
        QFETCH(QString, contentKey);
        QFETCH(int, kind);
        Settings settings;
        QSignalSpy layouts(&settings, &Settings::settingImported);
        QSignalSpy favourites(&settings, &Settings::myFavoriteImported);
        const QVariantMap content{{SettingsKeys::KeyCnt, 3}};
        const QString path = m_files->filePath(QStringLiteral("import.bin"));
        QVERIFY(writeFile(path, Settings::encodeExportFile(contentKey, content)));

        QCOMPARE(int(settings.importFile(path).kind), kind);
        QSignalSpy& emitted = kind == int(Settings::ExportKind::Layout) ? layouts : favourites;
        QCOMPARE(layouts.size() + favourites.size(), 1);
        QCOMPARE(emitted.size(), 1);
        QCOMPARE(emitted.first().first().toMap(), content);
    }

    void shouldEmitNothingForABadFile()
    {
        Settings settings;
        QSignalSpy layouts(&settings, &Settings::settingImported);
        QSignalSpy favourites(&settings, &Settings::myFavoriteImported);
        const QString path = m_files->filePath(QStringLiteral("bad.bin"));
        QVERIFY(writeFile(path, "not an export"));
        LogCapture capture;
        const Settings::ExportFile file = settings.importFile(path);
        QVERIFY(isRejected(file, Settings::ImportProblem::NotAnExportFile));
        QCOMPARE(layouts.size() + favourites.size(), 0);
        QCOMPARE(capture.matching(QStringLiteral("Import of %1 failed").arg(path)).size(), 1);
    }

    // --- damaged and hostile export files ---

    void shouldReportAFlippedByteAsAChecksumMismatch()
    {
        QByteArray bytes =
            Settings::encodeExportFile(SettingsKeys::MyLayout, keyList(QStringLiteral("kmnopq-tamper-me")));
        const int at = bytes.indexOf(utf16(QStringLiteral("kmnopq")));
        QVERIFY(at > 0);
        bytes[at + 3] = char(bytes.at(at + 3) ^ 0x01);
        const Settings::ExportFile file = Settings::parseExportFile(bytes);
        QVERIFY(isRejected(file, Settings::ImportProblem::ChecksumMismatch));
        QVERIFY(file.error.contains(QStringLiteral("changed or damaged")));
    }

    void shouldRejectEveryTruncationOfAValidFile()
    {
        const QByteArray bytes = Settings::encodeExportFile(SettingsKeys::MyFavorite, keyList(QStringLiteral("t")));
        QVERIFY(Settings::parseExportFile(bytes).isValid());
        for (int size = 0; size < bytes.size(); ++size) {
            const Settings::ExportFile file = Settings::parseExportFile(bytes.left(size));
            QVERIFY2(isRejected(file, Settings::ImportProblem::NotAnExportFile), qPrintable(QString::number(size)));
        }
    }

    void shouldRejectTrailingBytes()
    {
        const QByteArray bytes = Settings::encodeExportFile(SettingsKeys::MyFavorite, {});
        QVERIFY(isRejected(Settings::parseExportFile(bytes + '\0'), Settings::ImportProblem::NotAnExportFile));
    }

    void shouldRejectAnEmptyFile()
    {
        QVERIFY(isRejected(Settings::parseExportFile(QByteArray()), Settings::ImportProblem::NotAnExportFile));
        const QString path = m_files->filePath(QStringLiteral("empty.bin"));
        QVERIFY(writeFile(path, QByteArray()));
        QVERIFY(isRejected(Settings::readExportFile(path), Settings::ImportProblem::NotAnExportFile));
    }

    void shouldRejectRandomGarbage()
    {
        QRandomGenerator random(20240611);
        for (int round = 0; round < 200; ++round) {
            QByteArray bytes(int(random.bounded(1, 2000)), Qt::Uninitialized);
            for (char& c : bytes)
                c = char(random.bounded(256));
            QVERIFY(!Settings::parseExportFile(bytes).isValid());
        }
    }

    void shouldRejectAWellFormedMapWithOtherKeys()
    {
        const QVariantMap pages{{SettingsKeys::KeyCnt, 0}};
        const auto withChecksum = [](QVariantMap map) {
            map.insert(SettingsKeys::ChecksumTag, Settings::checksum(map));
            return serialiseMap(map);
        };
        const QByteArray wrongKey = Settings::encodeExportFile(QStringLiteral("MYSETTINGS"), pages);
        const QByteArray extraKey = withChecksum({{SettingsKeys::MyLayout, pages}, {QStringLiteral("x"), 1}});
        const QByteArray bothKinds = withChecksum({{SettingsKeys::MyLayout, pages}, {SettingsKeys::MyFavorite, pages}});
        const QByteArray notAMap = withChecksum({{SettingsKeys::MyLayout, QStringLiteral("pages")}});
        const QByteArray noChecksum = serialiseMap({{SettingsKeys::MyLayout, pages}});
        for (const QByteArray& bytes : {wrongKey, extraKey, bothKinds, notAMap, noChecksum}) {
            const Settings::ExportFile file = Settings::parseExportFile(bytes);
            QVERIFY(isRejected(file, Settings::ImportProblem::NotAnExportFile));
            QVERIFY(file.error.contains(QStringLiteral("not a Keystage layout or favourites file")));
        }
    }

    void shouldRejectForgedHugeCountsAndLengths()
    {
        QByteArray forged;
        {
            QDataStream stream(&forged, QIODevice::WriteOnly);
            stream << quint32(0x7fffffff) << quint32(0xfffffff0) << quint32(0);
        }
        const Settings::ExportFile file = Settings::parseExportFile(forged);
        QVERIFY(isRejected(file, Settings::ImportProblem::NotAnExportFile));
        QVERIFY(file.detail.contains(QStringLiteral("2147483647")));

        // A single entry whose key claims 0xfffffff0 bytes.
        QByteArray longKey;
        {
            QDataStream stream(&longKey, QIODevice::WriteOnly);
            stream << quint32(1) << quint32(0xfffffff0) << QByteArray(64, 'a');
        }
        QVERIFY(isRejected(Settings::parseExportFile(longKey), Settings::ImportProblem::NotAnExportFile));
    }

    // QDataStream reserves list room for the count it reads: these would ask
    // for gigabytes if they reached it unchecked.
    void shouldRejectForgedCountsInsideValues()
    {
        QByteArray list = Settings::encodeExportFile(SettingsKeys::MyLayout,
                                                     {{QStringLiteral("steps"), QVariantList{1, QStringLiteral("b")}}});
        QVERIFY(Settings::parseExportFile(list).isValid());
        const int listAt = list.indexOf(QByteArray("\0\0\0\x09\0\0\0\0\x02", 9));
        QVERIFY(listAt > 0);
        putU32(&list, listAt + 5, 0x7fffffff);
        QVERIFY(isRejected(Settings::parseExportFile(list), Settings::ImportProblem::NotAnExportFile));

        QByteArray strings = Settings::encodeExportFile(SettingsKeys::MyLayout,
                                                        {{QStringLiteral("names"), QStringList{QStringLiteral("a")}}});
        QVERIFY(Settings::parseExportFile(strings).isValid());
        const int stringsAt = strings.indexOf(QByteArray("\0\0\0\x0b\0\0\0\0\x01", 9));
        QVERIFY(stringsAt > 0);
        putU32(&strings, stringsAt + 5, 0x10000000);
        QVERIFY(isRejected(Settings::parseExportFile(strings), Settings::ImportProblem::NotAnExportFile));

        // The family list at the end of a QFont.
        const QFont font = styledFont();
        QByteArray withFont = Settings::encodeExportFile(SettingsKeys::MyLayout, {{QStringLiteral("font"), font}});
        QVERIFY(Settings::parseExportFile(withFont).isValid());
        const QByteArray fontBytes = serialise(font);
        const int fontAt = withFont.indexOf(fontBytes);
        QVERIFY(fontAt > 0);
        putU32(&withFont, fontAt + fontBytes.size() - 4, 0x7fffffff);
        const Settings::ExportFile file = Settings::parseExportFile(withFont);
        QVERIFY(isRejected(file, Settings::ImportProblem::NotAnExportFile));
        QVERIFY(file.detail.contains(QStringLiteral("font family list")));
    }

    void shouldRejectAnImageLargerThanTheLimitBeforeDecodingIt()
    {
        QByteArray bytes =
            Settings::encodeExportFile(SettingsKeys::MyLayout, {{QStringLiteral("img"), semiTransparentPixmap()}});
        QVERIFY(Settings::parseExportFile(bytes).isValid());
        const int header = bytes.indexOf("IHDR");
        QVERIFY(header > 0);
        putU32(&bytes, header + 4, Settings::MaxImageSide + 1);
        putU32(&bytes, header + 8, 3);
        putU32(&bytes, header + 17, crc32(bytes.mid(header, 17)));
        const Settings::ExportFile file = Settings::parseExportFile(bytes);
        QVERIFY(isRejected(file, Settings::ImportProblem::NotAnExportFile));
        QVERIFY2(file.detail.contains(QStringLiteral("larger than")), qPrintable(file.detail));
    }

    void shouldRejectNestingDeeperThanTheLimit()
    {
        const QByteArray deepEnough =
            Settings::encodeExportFile(SettingsKeys::MyLayout, nested(Settings::MaxNestingDepth - 2));
        QVERIFY(Settings::parseExportFile(deepEnough).isValid());
        const QByteArray tooDeep =
            Settings::encodeExportFile(SettingsKeys::MyLayout, nested(Settings::MaxNestingDepth));
        const Settings::ExportFile file = Settings::parseExportFile(tooDeep);
        QVERIFY(isRejected(file, Settings::ImportProblem::NotAnExportFile));
        QVERIFY(file.detail.contains(QStringLiteral("nested deeper")));
    }

    void shouldRejectDuplicateKeys()
    {
        QByteArray bytes;
        {
            QDataStream stream(&bytes, QIODevice::WriteOnly);
            stream << quint32(3) << QString(SettingsKeys::ChecksumTag) << QVariant(QString(32, QLatin1Char('0')));
            stream << QString(SettingsKeys::MyLayout) << QVariant(QVariantMap());
            stream << QString(SettingsKeys::MyLayout) << QVariant(QVariantMap());
        }
        const Settings::ExportFile file = Settings::parseExportFile(bytes);
        QVERIFY(isRejected(file, Settings::ImportProblem::NotAnExportFile));
        QVERIFY(file.detail.contains(QStringLiteral("twice")));
    }

    void shouldRejectValuesOfUnexpectedTypes()
    {
        const QByteArray bytes =
            Settings::encodeExportFile(SettingsKeys::MyLayout, {{QStringLiteral("when"), QDate(2024, 1, 1)}});
        const Settings::ExportFile file = Settings::parseExportFile(bytes);
        QVERIFY(isRejected(file, Settings::ImportProblem::NotAnExportFile));
        QVERIFY(file.detail.contains(QStringLiteral("not expected")));
    }

    void shouldRejectAnOversizedFileWithoutReadingIt()
    {
        const QString path = m_files->filePath(QStringLiteral("huge.bin"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(Settings::MaxExportFileSize + 1)); // sparse: costs no disk space
        file.close();
        const Settings::ExportFile result = Settings::readExportFile(path);
        QVERIFY(isRejected(result, Settings::ImportProblem::NotAnExportFile));
    }

    void shouldReportAMissingFileAsUnreadable()
    {
        const Settings::ExportFile file = Settings::readExportFile(m_files->filePath(QStringLiteral("none.bin")));
        QVERIFY(isRejected(file, Settings::ImportProblem::Unreadable));
    }

    // --- bounded counts ---

    void shouldBoundCountsReadFromUntrustedMaps()
    {
        const QVariantMap map{{QStringLiteral("int"), 7},
                              {QStringLiteral("negative"), -3},
                              {QStringLiteral("huge"), 100000},
                              {QStringLiteral("hugeUnsigned"), 0xffffffffu},
                              {QStringLiteral("hugeLong"), qlonglong(1) << 40},
                              {QStringLiteral("text"), QStringLiteral("5")},
                              {QStringLiteral("real"), 4.0},
                              {QStringLiteral("flag"), true},
                              {QStringLiteral("map"), QVariantMap()}};
        QCOMPARE(Settings::boundedCount(map, QStringLiteral("int"), 60), 7);
        QCOMPARE(Settings::boundedCount(map, QStringLiteral("int"), 5), 5);
        QCOMPARE(Settings::boundedCount(map, QStringLiteral("missing"), 60), 0);
        QCOMPARE(Settings::boundedCount(map, QStringLiteral("negative"), 60), 0);
        QCOMPARE(Settings::boundedCount(map, QStringLiteral("huge"), 60), 60);
        QCOMPARE(Settings::boundedCount(map, QStringLiteral("hugeUnsigned"), 32), 32);
        QCOMPARE(Settings::boundedCount(map, QStringLiteral("hugeLong"), 32), 32);
        QCOMPARE(Settings::boundedCount(map, QStringLiteral("text"), 60), 0);
        QCOMPARE(Settings::boundedCount(map, QStringLiteral("real"), 60), 0);
        QCOMPARE(Settings::boundedCount(map, QStringLiteral("flag"), 60), 0);
        QCOMPARE(Settings::boundedCount(map, QStringLiteral("map"), 60), 0);
        QCOMPARE(Settings::boundedCount(map, QStringLiteral("int"), -1), 0);
    }

private:
    std::unique_ptr<QTemporaryDir> m_files;

    void shouldSetAsideAFileThatQSettingsCannotParse()
    {
        // A list whose count claims two billion entries: Qt's own parse of
        // the file throws std::bad_alloc.
        const QByteArray forged = "[General]\ninst=@Variant(\\0\\0\\0\\b\\0\\0\\0\\x1\\0\\0\\0\\x2\\0\\x61"
                                  "\\0\\0\\0\\t\\x7f\\xff\\xff\\xf0\\0\\0\\0\\x2\\0\\0\\0\\x1)\nlang_idx=2\n";
        const QString path = Settings().fileName();
        QVERIFY(writeFile(path, forged));

        const QString kept = Settings::setAsideUnreadableStore();
        QVERIFY(!kept.isEmpty());
        QVERIFY(!QFile::exists(path));
        QFile copy(kept);
        QVERIFY(copy.open(QIODevice::ReadOnly));
        QCOMPARE(copy.readAll(), forged);

        Settings settings;
        QVERIFY(settings.loadedDefaults());
        QCOMPARE(settings.damagedCopyPath(), kept);
        QVERIFY(Settings::setAsideUnreadableStore().isEmpty());
    }
};

KEYSTAGE_TEST_MAIN(SettingsTest)
#include "tst_settings.moc"
