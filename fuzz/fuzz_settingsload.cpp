// The settings store's start: the input is the body of Keystage.conf. The
// program's own start sequence runs on it (the unreadable-file check, then
// the store's load with its checksum), and the "inst" tree as QSettings reads
// it goes through the key readers as well, as a hand-made file with a valid
// checksum would.

#include "favoritekeyitemmodel.h"
#include "fuzzsupport.h"
#include "keyitem.h"
#include "keyitemserialization.h"
#include "objectregistry.h"
#include "settings.h"
#include "settingskeys.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

namespace {

QTemporaryDir* configHome = nullptr;

QString confPath()
{
    return configHome->path() + QStringLiteral("/Vantorix/Keystage.conf");
}

// QSettings reuses its parse of a file that looks unchanged; every input
// gets a modification time of its own.
void writeConf(const QByteArray& body)
{
    static qint64 inputs = 0;
    QDir(configHome->path()).removeRecursively();
    QDir().mkpath(configHome->path() + QStringLiteral("/Vantorix"));
    QFile file(confPath());
    if (!file.open(QIODevice::WriteOnly) || file.write(body) != body.size())
        FuzzSupport::fail("cannot write the settings file");
    file.setFileTime(QDateTime::fromSecsSinceEpoch(1000000000 + ++inputs), QFileDevice::FileModificationTime);
}

void readPages(const QVariantMap& tree)
{
    for (auto it = tree.cbegin(); it != tree.cend(); ++it) {
        if (!it.key().startsWith(QLatin1String("KeyItems_")) || it.value().userType() != QMetaType::QVariantMap)
            continue;
        const QVariantMap page = it.value().toMap();
        const int keys = Settings::boundedCount(page, SettingsKeys::KeyCnt, page.size());
        for (int i = 0; i < keys; ++i) {
            const QVariant value = page.value(SettingsKeys::keyMapKey(i));
            if (value.userType() != QMetaType::QVariantMap)
                continue;
            KeyItem item;
            value.toMap() >> item;
        }
    }
}

void readTree(const QVariantMap& tree, Settings* store)
{
    readPages(tree);
    store->setValue(SettingsKeys::MyFavoriteItems, tree.value(SettingsKeys::MyFavoriteItems));
    ObjectRegistry::registerObject(ComponentId::Settings, store);
    {
        FavoriteKeyItemModel favourites;
        favourites.reloadKeyItemsFromSettings();
        if (favourites.count() > FavoriteKeyItemModel::MaxItems)
            FuzzSupport::fail("more favourites than the limit");
    }
    ObjectRegistry::clear();
}

} // namespace

// Forged sizes in a settings file make Qt's own parser allocate gigabytes or
// throw std::bad_alloc, which the program catches. AddressSanitizer lets such
// an allocation fail, as it may in the program, before libFuzzer's malloc
// limit would report it.
extern "C" const char* __asan_default_options()
{
    return "allocator_may_return_null=1:max_allocation_size_mb=1024";
}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    configHome = new QTemporaryDir;
    if (!configHome->isValid())
        FuzzSupport::fail("no temporary directory");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(configHome->path()));
    FuzzSupport::initApplication("fuzz_settingsload");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    writeConf(FuzzSupport::bytes(data, size));
    Settings::setAsideUnreadableStore();
    Settings settings;
    if (settings.loadedDefaults() && settings.tree().size() != 1)
        FuzzSupport::fail("a damaged settings file left more than the defaults");
    // Only a file found readable is still there.
    if (QFile::exists(confPath())) {
        const QVariant inst = QSettings(confPath(), QSettings::IniFormat).value(SettingsKeys::Inst);
        if (inst.userType() == QMetaType::QVariantMap)
            readTree(inst.toMap(), &settings);
    }
    return 0;
}
