#pragma once

#include "encodingcache.h"
#include "keystageversion.h"
#include "settingsfilewriter.h"
#include "settingskeys.h"
#include "variantstreamwriter.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QDateTime>
#include <QLatin1String>
#include <QMutex>
#include <QObject>
#include <QSettings>
#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <functional>

// The whole persistent configuration of the program: one QVariantMap tree,
// stored as the single value "inst" of Keystage.conf together with an MD5
// checksum, plus the export files of a layout and of the favourites.
//
// Saving: QSettings reads the file, but the store writes it itself, byte for
// byte as QSettings would, because QSettings compresses every key image again
// on every save (seconds for a large tree). Encoded images and their escaped
// text are kept from save to save (EncodingCache, SettingsFileWriter). The
// checksum stored is the one the next start computes over what QSettings
// reads back, worked out without reading the file back. When someone else
// changed the file since the store last wrote or read it, QSettings writes
// it and merges those changes.
//
// The tree may be read and changed from any thread; disk access (the
// constructor, save, export and import) belongs to the GUI thread.
//
// Defaults: the constructor falls back to an almost empty tree (only
// "SettingsVersion") when the stored one is missing or damaged. The key model
// fills in the pages of every layout itself when it finds none, so nothing
// else is needed at start-up. For an explicit reset (preferences) the model
// may install a provider of its full default tree with
// setDefaultTreeProvider(); resetToDefaults() uses it.
class Settings : public QObject
{
    Q_OBJECT
public:
    // Written into the tree on every reset and save.
    static constexpr QLatin1String Version = SettingsKeys::literal(KEYSTAGE_VERSION);

    // Limits for untrusted export files. A real layout with an image on every
    // key of a full folder tree stays far below each of them.
    static constexpr qint64 MaxExportFileSize = 64 * 1024 * 1024;
    // Maps and lists inside each other; real files need about eight levels.
    static constexpr int MaxNestingDepth = 32;
    // Map entries, list elements and image chunks in one file.
    static constexpr int MaxValueCount = 1 << 20;
    // Width and height of an image inside a file; key images are 72 x 72.
    static constexpr int MaxImageSide = 4096;

    enum class ExportKind
    {
        Invalid,
        Layout,
        Favorite,
    };

    enum class ImportProblem
    {
        None,
        Unreadable,
        NotAnExportFile,
        ChecksumMismatch,
    };

    // What an export file holds, or why it cannot be used.
    struct ExportFile
    {
        ExportKind kind = ExportKind::Invalid;
        // The "MYLAYOUT" page tree or the "MYFAVORITE" key list map.
        QVariantMap content;
        ImportProblem problem = ImportProblem::None;
        // For the user, translated; empty when the file is valid.
        QString error;
        // For the log: what exactly was wrong.
        QString detail;

        bool isValid() const { return kind != ExportKind::Invalid; }
    };

    // QSettings parses the stored values with QDataStream on the first read,
    // and a forged count in a damaged file makes Qt throw std::bad_alloc from
    // inside that parse. Call this before anything reads the settings file:
    // it tries the file on a private snapshot and moves an unreadable one
    // aside, so the program starts with defaults instead of aborting.
    // Returns where the file was kept, empty when it was fine.
    static QString setAsideUnreadableStore();

    explicit Settings(QObject* parent = nullptr);
    ~Settings() override;

    QVariant value(const QString& key, const QVariant& defaultValue = QVariant()) const;
    void setValue(const QString& key, const QVariant& value);
    void remove(const QString& key);
    bool contains(const QString& key) const;
    // A copy of the whole tree.
    QVariantMap tree() const;

    // Called without any lock held, so the provider may use this object.
    void setDefaultTreeProvider(std::function<QVariantMap()> provider);
    // Replaces the tree by the defaults; the file changes at the next save().
    void resetToDefaults();
    // True when the stored tree was missing or damaged and the defaults were loaded.
    bool loadedDefaults() const;

    QString fileName() const;
    // Where the constructor kept the damaged settings file, empty if it had none to keep.
    QString damagedCopyPath() const;

    // Writes the tree with the favourites ("MYFAVORITE") or with the current
    // layout's pages ("MYLAYOUT"). False when the file cannot be written.
    bool exportMyFavorite(const QString& fileName) const;
    bool exportSetting(const QString& fileName) const;

    // Reads an export file and hands its content to the key model through
    // settingImported() or myFavoriteImported().
    ExportFile importFile(const QString& fileName);

    // MD5 (lower-case hex) of the map's QDataStream form, without any "CHKSUM_TAG" entry.
    static QString checksum(const QVariantMap& map);
    // The same over the values QSettings hands back after storing this map,
    // as the next start computes it: fonts lose what QSettings' stream form
    // has no room for, images come back decoded.
    QString checksumAsReadBack(const QVariantMap& map) const;
    // Encoded images kept for the next save.
    int cachedImageCount() const;

    // The bytes of an export file: the map {contentKey: content} with its checksum.
    static QByteArray encodeExportFile(const QString& contentKey, const QVariantMap& content);

    // Export files come from anywhere: both readers treat the bytes as hostile
    // and never allocate more than the limits above allow.
    static ExportFile readExportFile(const QString& fileName);
    static ExportFile parseExportFile(const QByteArray& bytes);

    // A count read from untrusted maps ("KeyCnt", "childListCnt", ...): 0 when
    // missing, negative or not an integer, at most limit.
    static int boundedCount(const QVariantMap& map, const QString& key, int limit);

    // True while the last save() could not write the file: the tree in
    // memory holds edits the file does not, and the next save() tries again.
    bool lastSaveFailed() const;

public slots:
    // Stores the tree with its checksum; false when the file could not be written.
    bool save();

signals:
    void settingImported(const QVariantMap& layout);
    void myFavoriteImported(const QVariantMap& favorites);
    // The first save that fails after a good one (or after the start): the
    // file and why the system refused it. Failing saves after it stay quiet
    // until one succeeds again.
    void saveFailed(const QString& fileName, const QString& reason);

private:
    struct StoreFileState
    {
        bool known = false;
        qint64 size = 0;
        QDateTime modified;
    };

    QVariantMap defaultTree() const;
    void keepDamagedCopy();
    QString treeChecksum(const QVariantMap& map, VariantStreamWriter::Form form) const;
    QByteArrayList streamPieces(const QVariantMap& map, VariantStreamWriter::Form form) const;
    static QByteArray encodeExportFile(const QString& contentKey, const QVariantMap& content, EncodingCache* cache);
    SettingsFileWriter::Content storeFileContent(const QVariantMap& stored);
    bool storeFileIsAsLastSeen();
    void rememberStoreFromQSettings();
    void rememberStoreFileState();
    void primeImageCache(const QVariantMap& stored, const QString& storedChecksum);
    bool writeStoreDirectly(QVariantMap stored, const std::function<QString()>& checksum, QString* error);
    bool writeStoreThroughQSettings(QVariantMap stored, const QString& checksum, QString* error);
    bool noteSaveResult(bool written, const QString& error);

    mutable QMutex m_treeMutex;
    QVariantMap m_tree;
    bool m_loadedDefaults = false;
    std::function<QVariantMap()> m_defaultTreeProvider;

    // QSettings is reentrant, not thread-safe: one thread at a time uses it.
    mutable QMutex m_storeMutex;
    QSettings m_store;
    QString m_damagedCopyPath;
    // Keys of the file other than "inst", and the file as the store last
    // wrote or read it: the store writes the file itself only while it
    // knows everything in it.
    QVariantMap m_otherStoredKeys;
    StoreFileState m_lastSeenFile;
    bool m_saveFailing = false;
    // QSettings keeps a value it failed to write and writes it at its next
    // sync, over whatever the store wrote meanwhile: until QSettings has
    // written the tree once more, the store saves through it.
    bool m_storeHoldsUnwritten = false;

    mutable EncodingCache m_cache;
    SettingsFileWriter m_fileWriter;
};
