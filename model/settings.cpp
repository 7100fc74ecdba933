#include "settings.h"

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

// Reads a QDataStream-encoded QVariantMap from untrusted bytes.
//
// QDataStream trusts the counts it reads: a list or a font's family list
// reserves room for as many elements as the data claims, so a few forged
// bytes ask for gigabytes. This reader walks the encoding itself first: maps
// and lists it builds on its own, checking every count against the bytes that
// are left and against a budget for the whole file; every other value must be
// of a type the program stores, and is only handed to QDataStream once its
// exact extent is known, after which the stream has to end right there.
class BoundedMapReader
{
public:
    explicit BoundedMapReader(const QByteArray& bytes) : m_bytes(bytes)
    {
        m_buffer.setData(m_bytes);
        m_buffer.open(QIODevice::ReadOnly);
        m_stream.setDevice(&m_buffer);
    }

    // The bytes must hold exactly one map.
    bool readDocument(QVariantMap* map)
    {
        if (!readMap(map, 0))
            return false;
        if (remaining() != 0)
            return fail(QStringLiteral("%1 bytes after the end of the map").arg(remaining()));
        return true;
    }

    QString failure() const { return m_failure; }

private:
    // An entry takes at least a key length and a value header.
    static constexpr qint64 MinMapEntrySize = 4 + 5;
    static constexpr qint64 MinListElementSize = 5;
    static constexpr qint64 MinStringSize = 4;

    bool fail(const QString& why)
    {
        if (m_failure.isEmpty())
            m_failure = QStringLiteral("%1 (at byte %2)").arg(why).arg(m_position);
        return false;
    }

    qint64 remaining() const { return m_bytes.size() - m_position; }

    bool skip(qint64 count)
    {
        if (count > remaining())
            return fail(QStringLiteral("truncated: %1 bytes needed, %2 left").arg(count).arg(remaining()));
        m_position += count;
        return true;
    }

    bool takeU32(quint32* value)
    {
        if (remaining() < 4)
            return fail(QStringLiteral("truncated"));
        const auto* data = reinterpret_cast<const uchar*>(m_bytes.constData() + m_position);
        *value = (quint32(data[0]) << 24) | (quint32(data[1]) << 16) | (quint32(data[2]) << 8) | quint32(data[3]);
        m_position += 4;
        return true;
    }

    bool takeU8(quint8* value)
    {
        if (remaining() < 1)
            return fail(QStringLiteral("truncated"));
        *value = quint8(m_bytes.at(int(m_position)));
        m_position += 1;
        return true;
    }

    bool takeCount(quint32* count, qint64 minElementSize, const char* what)
    {
        if (!takeU32(count))
            return false;
        if (*count > remaining() / minElementSize)
            return fail(QStringLiteral("%1 claims %2 elements in %3 bytes").arg(what).arg(*count).arg(remaining()));
        if (*count > m_budget)
            return fail(QStringLiteral("more than %1 values").arg(Settings::MaxValueCount));
        m_budget -= *count;
        return true;
    }

    bool checkDepth(int depth)
    {
        if (depth > Settings::MaxNestingDepth)
            return fail(QStringLiteral("nested deeper than %1 levels").arg(Settings::MaxNestingDepth));
        return true;
    }

    // Lets QDataStream read what was walked from start to m_position.
    template <typename Read>
    bool readWalked(qint64 start, Read read)
    {
        m_buffer.seek(start);
        read();
        if (m_stream.status() != QDataStream::Ok || m_buffer.pos() != m_position)
            return fail(QStringLiteral("unreadable value"));
        return true;
    }

    bool readMap(QVariantMap* map, int depth)
    {
        if (!checkDepth(depth))
            return false;
        quint32 count = 0;
        if (!takeCount(&count, MinMapEntrySize, "map"))
            return false;
        for (quint32 i = 0; i < count; ++i) {
            QString key;
            if (!readString(&key))
                return false;
            if (map->contains(key))
                return fail(QStringLiteral("key \"%1\" appears twice").arg(key));
            QVariant value;
            if (!readVariant(&value, depth + 1))
                return false;
            map->insert(key, value);
        }
        return true;
    }

    bool readList(QVariantList* list, int depth)
    {
        if (!checkDepth(depth))
            return false;
        quint32 count = 0;
        if (!takeCount(&count, MinListElementSize, "list"))
            return false;
        for (quint32 i = 0; i < count; ++i) {
            QVariant value;
            if (!readVariant(&value, depth + 1))
                return false;
            list->append(value);
        }
        return true;
    }

    bool readStringList(QStringList* list)
    {
        quint32 count = 0;
        if (!takeCount(&count, MinStringSize, "string list"))
            return false;
        for (quint32 i = 0; i < count; ++i) {
            QString text;
            if (!readString(&text))
                return false;
            list->append(text);
        }
        return true;
    }

    bool readString(QString* text)
    {
        const qint64 start = m_position;
        return walkString() && readWalked(start, [&] { m_stream >> *text; });
    }

    // A QVariant: type id, null flag, value.
    bool readVariant(QVariant* value, int depth)
    {
        const qint64 start = m_position;
        quint32 type = 0;
        quint8 isNull = 0;
        if (!takeU32(&type) || !takeU8(&isNull))
            return false;
        switch (type) {
        case QMetaType::QVariantMap: {
            QVariantMap map;
            if (isNull || !readMap(&map, depth))
                return fail(QStringLiteral("bad map"));
            *value = map;
            return true;
        }
        case QMetaType::QVariantList: {
            QVariantList list;
            if (isNull || !readList(&list, depth))
                return fail(QStringLiteral("bad list"));
            *value = list;
            return true;
        }
        case QMetaType::QStringList: {
            QStringList list;
            if (isNull || !readStringList(&list))
                return fail(QStringLiteral("bad string list"));
            *value = list;
            return true;
        }
        default:
            break;
        }
        if (!walkLeaf(type))
            return false;
        return readWalked(start, [&] { m_stream >> *value; }) &&
               (value->userType() == int(type) || fail(QStringLiteral("value of type %1 changed type").arg(type)));
    }

    // Advances over the value part of a QVariant of one of the types the
    // program stores; anything else is refused.
    bool walkLeaf(quint32 type)
    {
        switch (type) {
        case QMetaType::UnknownType: // an invalid QVariant: nothing follows
            return true;
        case QMetaType::Bool:
            return skip(1);
        case QMetaType::Int:
        case QMetaType::UInt:
            return skip(4);
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
        case QMetaType::Double:
            return skip(8);
        case QMetaType::QString:
            return walkString();
        case QMetaType::QByteArray:
            return walkByteArray();
        case QMetaType::QColor:
            // colour model, alpha, red, green, blue, padding
            return skip(1 + 5 * 2);
        case QMetaType::QFont:
            return walkFont();
        case QMetaType::QPixmap:
            // A pixmap needs a GUI application; without one QPixmap aborts the process.
            if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
                return fail(QStringLiteral("images need a GUI application"));
            return walkImage();
        case QMetaType::QImage:
            return walkImage();
        default:
            return fail(QStringLiteral("values of type %1 are not expected").arg(type));
        }
    }

    bool walkString()
    {
        quint32 size = 0;
        if (!takeU32(&size))
            return false;
        if (size == 0xffffffffu) // null string
            return true;
        if (size % 2 != 0)
            return fail(QStringLiteral("odd string length %1").arg(size));
        return skip(size);
    }

    bool walkByteArray()
    {
        quint32 size = 0;
        if (!takeU32(&size))
            return false;
        return size == 0xffffffffu || skip(size);
    }

    // The QFont layout of the current stream version.
    bool walkFont()
    {
        if (!walkString() || !walkString()) // family, style name
            return false;
        // point size (double), pixel size, style hint, style strategy (16 bit),
        // character set, weight, bits, stretch (16 bit), extended bits,
        // letter and word spacing, hinting preference, capitalization
        if (!skip(8 + 4 + 1 + 2 + 1 + 1 + 1 + 2 + 1 + 4 + 4 + 1 + 1))
            return false;
        quint32 families = 0;
        if (!takeCount(&families, MinStringSize, "font family list"))
            return false;
        for (quint32 i = 0; i < families; ++i) {
            if (!walkString())
                return false;
        }
        return true;
    }

    // QImage and QPixmap: a null marker, then a PNG file. The PNG is walked
    // chunk by chunk up to IEND, and its size is checked before any decoder
    // allocates pixels for it.
    bool walkImage()
    {
        quint32 notNull = 0;
        if (!takeU32(&notNull))
            return false;
        if (notNull == 0)
            return true;
        static const QByteArray Signature("\x89PNG\r\n\x1a\n", 8);
        if (remaining() < Signature.size() || m_bytes.mid(int(m_position), Signature.size()) != Signature)
            return fail(QStringLiteral("image is not a PNG"));
        m_position += Signature.size();
        bool first = true;
        for (;;) {
            quint32 length = 0;
            if (!takeU32(&length))
                return false;
            if (length > 0x7fffffffu)
                return fail(QStringLiteral("PNG chunk too long"));
            if (remaining() < 4)
                return fail(QStringLiteral("truncated"));
            const QByteArray chunkType = m_bytes.mid(int(m_position), 4);
            m_position += 4;
            if (first) {
                if (chunkType != "IHDR" || length != 13)
                    return fail(QStringLiteral("PNG without header"));
                quint32 width = 0;
                quint32 height = 0;
                if (!takeU32(&width) || !takeU32(&height))
                    return false;
                if (width == 0 || height == 0 || width > quint32(Settings::MaxImageSide) ||
                    height > quint32(Settings::MaxImageSide))
                    return fail(QStringLiteral("image of %1 x %2 pixels is larger than %3 x %3")
                                    .arg(width)
                                    .arg(height)
                                    .arg(Settings::MaxImageSide));
                length -= 8;
                first = false;
            }
            if (m_budget == 0)
                return fail(QStringLiteral("more than %1 values").arg(Settings::MaxValueCount));
            --m_budget;
            if (!skip(qint64(length) + 4)) // data and CRC
                return false;
            if (chunkType == "IEND")
                return true;
        }
    }

    const QByteArray m_bytes;
    QBuffer m_buffer;
    QDataStream m_stream;
    qint64 m_position = 0;
    quint32 m_budget = Settings::MaxValueCount;
    QString m_failure;
};

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
    QMutexLocker storeLocker(&m_storeMutex);
    QVariantMap stored;
    {
        QMutexLocker treeLocker(&m_treeMutex);
        m_tree.insert(SettingsKeys::SettingsVersion, QString(Version));
        stored = m_tree;
    }
    bool written = false;
    {
        // QSettings does not store every value as it was given (it streams
        // them in an old QDataStream version, which drops font details, for
        // one), and the next start checks what it reads. So the checksum
        // that goes to disk is computed over what will be read back, not
        // over the tree in memory. The file needs it only near its end.
        BackgroundMd5 checksum(streamPieces(stored, VariantStreamWriter::Form::ReadBackFromSettingsFile));
        written = storeFileIsAsLastSeen() ? writeStoreDirectly(stored, [&checksum] { return checksum.result(); })
                                          : writeStoreThroughQSettings(stored, checksum.result());
    }
    // Images that left the tree leave the caches.
    m_cache.dropUnused();
    m_fileWriter.dropUnused();
    return written;
}

bool Settings::writeStoreDirectly(QVariantMap stored, const std::function<QString()>& checksum)
{
    stored.insert(SettingsKeys::ChecksumTag, QString()); // its place; the value comes when it is reached
    const SettingsFileWriter::LateEntry late{SettingsKeys::ChecksumTag, [&checksum] { return QVariant(checksum()); }};
    QString error;
    if (!m_fileWriter.writeMapFile(m_store.fileName(), SettingsKeys::Inst, stored, late, m_otherStoredKeys, &m_cache,
                                   &error)) {
        LOG_MSG(QStringLiteral("ERROR: Cannot write %1: %2!!").arg(m_store.fileName(), error));
        return false;
    }
    rememberStoreFileState();
    return true;
}

// Someone else changed the file since the store saw it last: QSettings merges
// those changes. It encodes every image again, so this is the slow way.
bool Settings::writeStoreThroughQSettings(QVariantMap stored, const QString& checksum)
{
    LOG_MSG(QStringLiteral("%1 was changed by another writer, merging through QSettings.").arg(m_store.fileName()));
    stored.insert(SettingsKeys::ChecksumTag, checksum);
    m_store.setValue(SettingsKeys::Inst, stored);
    m_store.sync();
    if (m_store.status() != QSettings::NoError) {
        LOG_MSG(QStringLiteral("ERROR: Cannot write %1!!").arg(m_store.fileName()));
        m_lastSeenFile = StoreFileState();
        return false;
    }
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

    const QString storedChecksum = top.take(SettingsKeys::ChecksumTag).toString();
    if (storedChecksum != checksum(top))
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
