#include "settings.h"

#include "boundedmapreader.h"
#include "buttonlayoutconfig.h"
#include "logging.h"
#include "settingsfilewriter.h"
#include "settingskeys.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDataStream>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPixmap>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <QThread>

#include <exception>
#include <memory>
#include <utility>

namespace {

const QString Organisation = QStringLiteral("Vantorix");
const QString Application = QStringLiteral("Keystage");

// The leaf walker below knows the QDataStream layout of this version only.
static_assert(QDataStream::Qt_DefaultCompiledVersion == QDataStream::Qt_5_15,
              "check the QFont and QImage layouts in BoundedMapReader for the new stream version");

// The checksum is over the stream form at QDataStream's default version.
constexpr QDataStream::Version ChecksumVersion = QDataStream::Qt_DefaultCompiledVersion;

void forEachPixmap(const QVariant& value, const std::function<void(const QPixmap&)>& visit)
{
    switch (value.userType()) {
    case QMetaType::QVariantMap:
        for (const QVariant& child : *static_cast<const QVariantMap*>(value.constData()))
            forEachPixmap(child, visit);
        break;
    case QMetaType::QVariantList:
        for (const QVariant& child : *static_cast<const QVariantList*>(value.constData()))
            forEachPixmap(child, visit);
        break;
    case QMetaType::QPixmap:
        visit(*static_cast<const QPixmap*>(value.constData()));
        break;
    default:
        break;
    }
}

// Keeps what QDataStream writes as a list of pieces: small writes gathered,
// images shared with the cache rather than copied.
class PieceDevice : public QIODevice
{
public:
    PieceDevice() { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }
    bool isSequential() const override { return true; }

    void addShared(const QByteArray& bytes)
    {
        takeChunk();
        m_pieces.append(bytes);
    }

    QByteArrayList take()
    {
        takeChunk();
        return std::exchange(m_pieces, QByteArrayList());
    }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 size) override
    {
        m_chunk.append(data, int(size));
        return size;
    }

private:
    void takeChunk()
    {
        if (m_chunk.isEmpty())
            return;
        m_chunk.squeeze();
        m_pieces.append(std::exchange(m_chunk, QByteArray()));
    }

    QByteArrayList m_pieces;
    QByteArray m_chunk;
};

// Touches nothing but the bytes, so any thread may run it.
QString md5Hex(const QByteArrayList& pieces)
{
    QCryptographicHash hash(QCryptographicHash::Md5);
    for (const QByteArray& piece : pieces)
        hash.addData(piece);
    return QString::fromLatin1(hash.result().toHex());
}

// The MD5 of the pieces, worked out on a thread of its own meanwhile.
class BackgroundMd5
{
public:
    explicit BackgroundMd5(QByteArrayList pieces)
        : m_pieces(std::move(pieces)), m_thread(QThread::create([this] { m_result = md5Hex(m_pieces); }))
    {
        m_thread->start();
    }
    ~BackgroundMd5() { m_thread->wait(); }

    QString result()
    {
        m_thread->wait();
        if (m_result.isEmpty()) // no thread could be started
            m_result = md5Hex(m_pieces);
        return m_result;
    }

private:
    const QByteArrayList m_pieces;
    QString m_result;
    const std::unique_ptr<QThread> m_thread;
};

QByteArray serialise(const QVariantMap& map)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << map;
    return bytes;
}

bool hasType(const QVariant& value, int type)
{
    return value.userType() == type;
}

Settings::ExportFile rejected(Settings::ImportProblem problem, const QString& detail)
{
    Settings::ExportFile file;
    file.problem = problem;
    file.detail = detail;
    switch (problem) {
    case Settings::ImportProblem::Unreadable:
        file.error = Settings::tr("The file cannot be read.");
        break;
    case Settings::ImportProblem::NotAnExportFile:
        file.error = Settings::tr("The file is not a Keystage layout or favourites file.");
        break;
    case Settings::ImportProblem::ChecksumMismatch:
        file.error =
            Settings::tr("The file was changed or damaged after it was exported: its checksum does not match.");
        break;
    case Settings::ImportProblem::None:
        break;
    }
    return file;
}

enum class WriteResult
{
    Written,
    OpenFailed,
    WriteFailed,
};

// Never leaves a half-written export behind.
WriteResult writeAtomically(const QString& fileName, const QByteArray& bytes)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return WriteResult::OpenFailed;
    if (file.write(bytes) != bytes.size() || !file.commit())
        return WriteResult::WriteFailed;
    return WriteResult::Written;
}

QByteArray readWholeFile(const QString& path, bool* ok)
{
    QFile file(path);
    *ok = file.open(QIODevice::ReadOnly);
    return *ok ? file.readAll() : QByteArray();
}

} // namespace

namespace {
// Where setAsideUnreadableStore() kept a file no QSettings could read.
QString setAsidePath;

bool snapshotIsReadable(const QString& path)
{
    bool readable = false;
    const QByteArray bytes = readWholeFile(path, &readable);
    if (!readable)
        return true; // nothing QSettings could trip over either
    QTemporaryFile snapshot(path + QStringLiteral(".check-XXXXXX"));
    if (!snapshot.open() || snapshot.write(bytes) != bytes.size() || !snapshot.flush())
        return true;
    snapshot.close();
    try {
        QSettings stored(snapshot.fileName(), QSettings::IniFormat);
        const QStringList keys = stored.allKeys();
        for (const QString& key : keys)
            stored.value(key);
    } catch (const std::exception&) {
        return false;
    }
    return true;
}
} // namespace

QString Settings::setAsideUnreadableStore()
{
    const QString path = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                         QStringLiteral("/%1/%2.conf").arg(Organisation, Application);
    if (!QFileInfo::exists(path) || snapshotIsReadable(path))
        return QString();
    const QString target =
        path + QStringLiteral(".corrupt-") + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_hhmmss"));
    QString kept = target;
    for (int n = 2; QFileInfo::exists(kept); ++n)
        kept = target + QLatin1Char('-') + QString::number(n);
    if (!QFile::rename(path, kept)) {
        LOG_MSG(QStringLiteral("ERROR: %1 cannot be read and cannot be moved aside!!").arg(path));
        return QString();
    }
    LOG_MSG(QStringLiteral("ERROR: %1 cannot be read, kept as %2!!").arg(path, kept));
    setAsidePath = kept;
    return kept;
}

Settings::Settings(QObject* parent)
    : QObject(parent), m_store(QSettings::NativeFormat, QSettings::UserScope, Organisation, Application)
{
    m_damagedCopyPath = std::exchange(setAsidePath, QString());
    // It was moved aside before the log file existed: the log hears of it here.
    if (!m_damagedCopyPath.isEmpty())
        LOG_MSG(QStringLiteral("ERROR: %1 could not be read, kept as %2!!").arg(m_store.fileName(), m_damagedCopyPath));
    QVariantMap stored = m_store.value(SettingsKeys::Inst).toMap();
    rememberStoreFromQSettings();
    const QString storedChecksum = stored.take(SettingsKeys::ChecksumTag).toString();
    if (!storedChecksum.isEmpty() && storedChecksum == treeChecksum(stored, VariantStreamWriter::Form::InMemory)) {
        m_tree = stored;
        LOG_MSG(QStringLiteral("Load success!"));
        primeImageCache(stored, storedChecksum);
        return;
    }
    LOG_MSG(QStringLiteral("Load checkSum err, reset settings!"));
    keepDamagedCopy();
    m_tree = defaultTree();
    m_loadedDefaults = true;
}

Settings::~Settings() = default;

QVariant Settings::value(const QString& key, const QVariant& defaultValue) const
{
    QMutexLocker locker(&m_treeMutex);
    return m_tree.value(key, defaultValue);
}

void Settings::setValue(const QString& key, const QVariant& value)
{
    QMutexLocker locker(&m_treeMutex);
    m_tree.insert(key, value);
}

void Settings::remove(const QString& key)
{
    QMutexLocker locker(&m_treeMutex);
    m_tree.remove(key);
}

bool Settings::contains(const QString& key) const
{
    QMutexLocker locker(&m_treeMutex);
    return m_tree.contains(key);
}

QVariantMap Settings::tree() const
{
    QMutexLocker locker(&m_treeMutex);
    return m_tree;
}

void Settings::setDefaultTreeProvider(std::function<QVariantMap()> provider)
{
    QMutexLocker locker(&m_treeMutex);
    m_defaultTreeProvider = std::move(provider);
}

QVariantMap Settings::defaultTree() const
{
    std::function<QVariantMap()> provider;
    {
        QMutexLocker locker(&m_treeMutex);
        provider = m_defaultTreeProvider;
    }
    QVariantMap tree = provider ? provider() : QVariantMap();
    tree.insert(SettingsKeys::SettingsVersion, QString(Version));
    return tree;
}

void Settings::resetToDefaults()
{
    const QVariantMap defaults = defaultTree();
    QMutexLocker locker(&m_treeMutex);
    m_tree = defaults;
    m_loadedDefaults = true;
}

bool Settings::loadedDefaults() const
{
    QMutexLocker locker(&m_treeMutex);
    return m_loadedDefaults;
}

QString Settings::fileName() const
{
    QMutexLocker locker(&m_storeMutex);
    return m_store.fileName();
}

QString Settings::damagedCopyPath() const
{
    QMutexLocker locker(&m_storeMutex);
    return m_damagedCopyPath;
}

// The reset tree reaches the disk only at the next save, so before that the
// damaged file is copied aside: a checksum failure must never silently cost
// the user a configuration that might still be repaired by hand. A first
// start, with no file at all, has nothing to keep.
void Settings::keepDamagedCopy()
{
    const QFileInfo info(m_store.fileName());
    if (!info.exists() || info.size() == 0)
        return;
    bool readable = false;
    const QByteArray damaged = readWholeFile(info.absoluteFilePath(), &readable);
    if (!readable) {
        LOG_MSG(QStringLiteral("ERROR: Cannot read %1 to keep a copy of it!!").arg(info.absoluteFilePath()));
        return;
    }
    // Each start before the next save finds the same damaged file; one copy is enough.
    const QString pattern = info.fileName() + QStringLiteral(".corrupt-*");
    const QFileInfoList copies = info.dir().entryInfoList({pattern}, QDir::Files, QDir::Name);
    for (const QFileInfo& copy : copies) {
        bool ok = false;
        if (copy.size() == damaged.size() && readWholeFile(copy.absoluteFilePath(), &ok) == damaged && ok) {
            m_damagedCopyPath = copy.absoluteFilePath();
            LOG_MSG(QStringLiteral("The damaged settings are already kept in %1").arg(m_damagedCopyPath));
            return;
        }
    }
    const QString base = info.absoluteFilePath() + QStringLiteral(".corrupt-") +
                         QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_hhmmss"));
    QString target = base;
    for (int n = 2; QFileInfo::exists(target); ++n)
        target = base + QLatin1Char('-') + QString::number(n);
    if (!QFile::copy(info.absoluteFilePath(), target)) {
        LOG_MSG(QStringLiteral("ERROR: Cannot keep a copy of the damaged settings as %1!!").arg(target));
        return;
    }
    m_damagedCopyPath = target;
    LOG_MSG(QStringLiteral("Kept a copy of the damaged settings file as %1").arg(target));
}

bool Settings::save()
{
    LOG_MSG(QStringLiteral("store setting into disk."));
    bool written = false;
    bool firstFailure = false;
    QString fileName;
    QString error;
    {
        QMutexLocker storeLocker(&m_storeMutex);
        QVariantMap stored;
        {
            QMutexLocker treeLocker(&m_treeMutex);
            m_tree.insert(SettingsKeys::SettingsVersion, QString(Version));
            stored = m_tree;
        }
        {
            // QSettings does not store every value as it was given (it streams
            // them in an old QDataStream version, which drops font details, for
            // one), and the next start checks what it reads. So the checksum
            // that goes to disk is computed over what will be read back, not
            // over the tree in memory. The file needs it only near its end.
            BackgroundMd5 checksum(streamPieces(stored, VariantStreamWriter::Form::ReadBackFromSettingsFile));
            written = storeFileIsAsLastSeen() && !m_storeHoldsUnwritten
                          ? writeStoreDirectly(
                                stored, [&checksum] { return checksum.result(); }, &error)
                          : writeStoreThroughQSettings(stored, checksum.result(), &error);
        }
        // Images that left the tree leave the caches.
        m_cache.dropUnused();
        m_fileWriter.dropUnused();
        fileName = m_store.fileName();
        firstFailure = noteSaveResult(written, error);
    }
    // Outside the lock: a listener may well ask the store about its file.
    if (firstFailure)
        emit saveFailed(fileName, error);
    return written;
}

// True for the first failure after a good save. The edits stay in the tree,
// so the next save writes them all; the user hears of a failing file once.
bool Settings::noteSaveResult(bool written, const QString& error)
{
    const bool wasFailing = std::exchange(m_saveFailing, !written);
    if (written) {
        if (wasFailing)
            LOG_MSG(QStringLiteral("%1 is written again.").arg(m_store.fileName()));
        return false;
    }
    LOG_MSG(QStringLiteral("ERROR: Cannot write %1: %2!! The settings are kept in memory until a save succeeds.")
                .arg(m_store.fileName(), error));
    return !wasFailing;
}

bool Settings::lastSaveFailed() const
{
    QMutexLocker locker(&m_storeMutex);
    return m_saveFailing;
}

bool Settings::writeStoreDirectly(QVariantMap stored, const std::function<QString()>& checksum, QString* error)
{
    stored.insert(SettingsKeys::ChecksumTag, QString()); // its place; the value comes when it is reached
    const SettingsFileWriter::LateEntry late{SettingsKeys::ChecksumTag, [&checksum] { return QVariant(checksum()); }};
    if (!m_fileWriter.writeMapFile(m_store.fileName(), SettingsKeys::Inst, stored, late, m_otherStoredKeys, &m_cache,
                                   error))
        return false;
    rememberStoreFileState();
    return true;
}

// Someone else changed the file since the store saw it last: QSettings merges
// those changes. It encodes every image again, so this is the slow way.
bool Settings::writeStoreThroughQSettings(QVariantMap stored, const QString& checksum, QString* error)
{
    LOG_MSG(QStringLiteral("%1 was changed by another writer, merging through QSettings.").arg(m_store.fileName()));
    stored.insert(SettingsKeys::ChecksumTag, checksum);
    // A QSettings of its own for each attempt: one whose write failed keeps
    // reporting the failure ever after. All share the parsed file with m_store.
    QSettings file(m_store.fileName(), m_store.format());
    file.setValue(SettingsKeys::Inst, stored);
    file.sync();
    if (file.status() != QSettings::NoError) {
        *error = SettingsFileWriter::unwritableReason(m_store.fileName());
        m_lastSeenFile = StoreFileState();
        m_storeHoldsUnwritten = true;
        return false;
    }
    m_storeHoldsUnwritten = false;
    rememberStoreFromQSettings();
    return true;
}

// What QSettings would write for the stored tree and the other keys it holds.
SettingsFileWriter::Content Settings::storeFileContent(const QVariantMap& stored)
{
    return m_fileWriter.fileContent(SettingsKeys::Inst, stored, m_otherStoredKeys, &m_cache);
}

// The keys besides "inst" as QSettings has them now, and the file they came
// from. Only those of the file itself: m_store also shows the keys of the
// organisation-wide and system-wide files, which QSettings never writes back.
// A QSettings on the same path shares m_store's parsed copy of the file.
void Settings::rememberStoreFromQSettings()
{
    m_otherStoredKeys.clear();
    const QSettings file(m_store.fileName(), m_store.format());
    const QStringList keys = file.allKeys();
    for (const QString& key : keys) {
        if (key != SettingsKeys::Inst)
            m_otherStoredKeys.insert(key, file.value(key));
    }
    rememberStoreFileState();
}

void Settings::rememberStoreFileState()
{
    const QFileInfo info(m_store.fileName());
    m_lastSeenFile.known = info.exists();
    m_lastSeenFile.size = info.size();
    m_lastSeenFile.modified = info.lastModified();
}

bool Settings::storeFileIsAsLastSeen()
{
    const QFileInfo info(m_store.fileName());
    if (!info.exists()) {
        // QSettings, too, would write the tree alone.
        m_otherStoredKeys.clear();
        return true;
    }
    return m_lastSeenFile.known && info.size() == m_lastSeenFile.size && info.lastModified() == m_lastSeenFile.modified;
}

// Every image just loaded was encoded for the checksum. Whether a reader of
// those bytes gets the same image again is known for certain only by decoding
// each one once more, which would make the first save after a start nearly as
// slow as the load. But when the file holds exactly what a save would write
// now, each image in the file is the very encoding the checksum just made of
// the image read from it: a reader gets that image, and those bytes, again.
void Settings::primeImageCache(const QVariantMap& stored, const QString& storedChecksum)
{
    QVariantMap withChecksum = stored;
    withChecksum.insert(SettingsKeys::ChecksumTag, storedChecksum);
    bool readable = false;
    const QByteArray onDisk = readWholeFile(m_store.fileName(), &readable);
    if (!readable || !SettingsFileWriter::holds(storeFileContent(withChecksum), onDisk)) {
        LOG_MSG(QStringLiteral("%1 was written differently; the next save encodes its images once more.")
                    .arg(m_store.fileName()));
        return;
    }
    forEachPixmap(stored, [this](const QPixmap& pixmap) { m_cache.markReloadStable(pixmap); });
}

QString Settings::checksum(const QVariantMap& map)
{
    QByteArray bytes;
    if (map.contains(SettingsKeys::ChecksumTag)) {
        QVariantMap withoutTag = map;
        withoutTag.remove(SettingsKeys::ChecksumTag);
        bytes = serialise(withoutTag);
    } else {
        bytes = serialise(map);
    }
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex());
}

QString Settings::checksumAsReadBack(const QVariantMap& map) const
{
    return treeChecksum(map, VariantStreamWriter::Form::ReadBackFromSettingsFile);
}

int Settings::cachedImageCount() const
{
    return m_cache.imageCount();
}

QString Settings::treeChecksum(const QVariantMap& map, VariantStreamWriter::Form form) const
{
    return md5Hex(streamPieces(map, form));
}

// The map without its checksum entry, in the stream form the checksum is computed over.
QByteArrayList Settings::streamPieces(const QVariantMap& map, VariantStreamWriter::Form form) const
{
    QVariantMap withoutTag = map;
    withoutTag.remove(SettingsKeys::ChecksumTag);
    PieceDevice device;
    QDataStream stream(&device);
    stream.setVersion(ChecksumVersion);
    VariantStreamWriter writer(&stream, &m_cache, form);
    writer.setImageWriter([&device](const QPixmap&, const QByteArray& bytes) { device.addShared(bytes); });
    writer.write(withoutTag);
    return device.take();
}

QByteArray Settings::encodeExportFile(const QString& contentKey, const QVariantMap& content)
{
    EncodingCache cache;
    return encodeExportFile(contentKey, content, &cache);
}

QByteArray Settings::encodeExportFile(const QString& contentKey, const QVariantMap& content, EncodingCache* cache)
{
    QVariantMap file{{contentKey, content}};
    const QByteArray checked = VariantStreamWriter::serialise(file, ChecksumVersion, cache);
    file.insert(SettingsKeys::ChecksumTag,
                QString::fromLatin1(QCryptographicHash::hash(checked, QCryptographicHash::Md5).toHex()));
    return VariantStreamWriter::serialise(file, ChecksumVersion, cache);
}

bool Settings::exportMyFavorite(const QString& fileName) const
{
    const QVariantMap favorites = value(SettingsKeys::MyFavoriteItems).toMap();
    switch (writeAtomically(fileName, encodeExportFile(SettingsKeys::MyFavorite, favorites, &m_cache))) {
    case WriteResult::Written:
        return true;
    case WriteResult::OpenFailed:
        LOG_MSG(QStringLiteral("open file fail!"));
        return false;
    case WriteResult::WriteFailed:
        LOG_MSG(QStringLiteral("ERROR: Writing %1 failed!!").arg(fileName));
        return false;
    }
    return false;
}

bool Settings::exportSetting(const QString& fileName) const
{
    QVariantMap layoutPages;
    {
        QMutexLocker locker(&m_treeMutex);
        const int layout = m_tree.value(SettingsKeys::LastKbLayout, ButtonLayoutConfig::DefaultLayout).toInt();
        if (!logMsgWhenRetFail(ButtonLayoutConfig::isValidLayout(layout), QStringLiteral("Invalid layout!!")))
            return false;
        layoutPages = m_tree.value(SettingsKeys::keyItemsKey(ButtonLayoutConfig::layoutName(layout))).toMap();
    }
    switch (writeAtomically(fileName, encodeExportFile(SettingsKeys::MyLayout, layoutPages, &m_cache))) {
    case WriteResult::Written:
        return true;
    case WriteResult::OpenFailed:
        LOG_MSG(QStringLiteral("open file fail!"));
        return false;
    case WriteResult::WriteFailed:
        LOG_MSG(QStringLiteral("ERROR: Writing %1 failed!!").arg(fileName));
        return false;
    }
    return false;
}

Settings::ExportFile Settings::importFile(const QString& fileName)
{
    const ExportFile file = readExportFile(fileName);
    if (!file.isValid()) {
        LOG_MSG(QStringLiteral("Import of %1 failed: %2").arg(fileName, file.detail));
        return file;
    }
    if (file.kind == ExportKind::Layout)
        emit settingImported(file.content);
    else
        emit myFavoriteImported(file.content);
    return file;
}

Settings::ExportFile Settings::readExportFile(const QString& fileName)
{
    const QFileInfo info(fileName);
    // Checked before reading, so a huge file costs no memory.
    if (info.exists() && info.size() > MaxExportFileSize)
        return rejected(ImportProblem::NotAnExportFile,
                        QStringLiteral("%1 bytes, more than an export file can hold").arg(info.size()));
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return rejected(ImportProblem::Unreadable, file.errorString());
    // read() with a bound, in case the file grew since the check.
    const QByteArray bytes = file.read(MaxExportFileSize + 1);
    if (file.error() != QFileDevice::NoError)
        return rejected(ImportProblem::Unreadable, file.errorString());
    return parseExportFile(bytes);
}

Settings::ExportFile Settings::parseExportFile(const QByteArray& bytes)
{
    if (bytes.size() > MaxExportFileSize)
        return rejected(ImportProblem::NotAnExportFile,
                        QStringLiteral("%1 bytes, more than an export file can hold").arg(bytes.size()));
    if (bytes.isEmpty())
        return rejected(ImportProblem::NotAnExportFile, QStringLiteral("empty file"));

    BoundedMapReader reader(bytes);
    QVariantMap top;
    if (!reader.readDocument(&top))
        return rejected(ImportProblem::NotAnExportFile, reader.failure());

    ExportKind kind = ExportKind::Invalid;
    QString contentKey;
    if (top.contains(SettingsKeys::MyLayout)) {
        kind = ExportKind::Layout;
        contentKey = SettingsKeys::MyLayout;
    } else if (top.contains(SettingsKeys::MyFavorite)) {
        kind = ExportKind::Favorite;
        contentKey = SettingsKeys::MyFavorite;
    }
    if (kind == ExportKind::Invalid || top.size() != 2 || !hasType(top.value(contentKey), QMetaType::QVariantMap) ||
        !hasType(top.value(SettingsKeys::ChecksumTag), QMetaType::QString))
        return rejected(ImportProblem::NotAnExportFile,
                        QStringLiteral("unexpected top-level keys: %1").arg(top.keys().join(QLatin1Char(' '))));

    // The checksum covers the content as the file holds it: the map of that
    // one entry. Encoding the values again would give other bytes for an
    // image another encoder wrote, and for a value the reader replaced by its
    // default (a colour or font the program cannot use).
    const QString storedChecksum = top.take(SettingsKeys::ChecksumTag).toString();
    QByteArray checked;
    {
        QDataStream stream(&checked, QIODevice::WriteOnly);
        stream << quint32(1);
    }
    checked += reader.topLevelEntry(contentKey);
    if (storedChecksum != QString::fromLatin1(QCryptographicHash::hash(checked, QCryptographicHash::Md5).toHex()))
        return rejected(ImportProblem::ChecksumMismatch, QStringLiteral("checksum mismatch"));

    ExportFile file;
    file.kind = kind;
    file.content = top.value(contentKey).toMap();
    return file;
}

int Settings::boundedCount(const QVariantMap& map, const QString& key, int limit)
{
    const QVariant value = map.value(key);
    if (limit <= 0)
        return 0;
    switch (value.userType()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Short:
    case QMetaType::SChar: {
        const qlonglong count = value.toLongLong();
        return count <= 0 ? 0 : int(qMin<qlonglong>(count, limit));
    }
    case QMetaType::UInt:
    case QMetaType::ULongLong:
    case QMetaType::UShort:
    case QMetaType::UChar:
        return int(qMin<qulonglong>(value.toULongLong(), qulonglong(limit)));
    default:
        return 0;
    }
}
