#include "configurationbackup.h"

#include "buttonlayoutconfig.h"
#include "keypadtable.h"
#include "layouttext.h"
#include "logging.h"
#include "settings.h"
#include "settingskeys.h"

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>

namespace {

// A new folder: another backup in the same minute gets a number.
QString makeNewFolder(const QDir& parent, const QString& name)
{
    for (int n = 1; n < 100; ++n) {
        const QString candidate = n == 1 ? name : QStringLiteral("%1 (%2)").arg(name).arg(n);
        if (parent.mkdir(candidate))
            return parent.filePath(candidate);
        if (!parent.exists(candidate))
            break; // not taken, and still not made: the parent is not writable
    }
    return QString();
}

bool writeFile(const QString& path, const QByteArray& bytes, QString* error)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return true;
    *error = file.errorString();
    return false;
}

} // namespace

QString ConfigurationBackup::folderName(const QDateTime& when)
{
    return tr("%1 backup %2")
        .arg(QCoreApplication::applicationName(), when.toString(QStringLiteral("yyyy-MM-dd HH-mm")));
}

QString ConfigurationBackup::layoutFileName(int layout)
{
    // One whole name per orientation: the word for it agrees with the rest.
    //: A file name: the keypad's size, then its orientation.
    const QString name =
        LayoutText::isVertical(layout) ? tr("Layout %1 keys vertical") : tr("Layout %1 keys horizontal");
    return name.arg(KeypadTable::keyCount(layout)) + QStringLiteral(".kslayout");
}

QString ConfigurationBackup::favoritesFileName()
{
    return tr("My Favorite") + QStringLiteral(".ksfavorites");
}

ConfigurationBackup::Result ConfigurationBackup::write(const Settings& store, const QString& parentFolder,
                                                       const QDateTime& when)
{
    Result result;
    const QDir parent(parentFolder);
    if (parentFolder.isEmpty() || !parent.exists()) {
        result.error = tr("The folder %1 does not exist.").arg(QDir::toNativeSeparators(parentFolder));
        return result;
    }
    result.folder = makeNewFolder(parent, folderName(when));
    if (result.folder.isEmpty()) {
        result.error = tr("No folder can be made in %1.").arg(QDir::toNativeSeparators(parentFolder));
        return result;
    }

    // One copy of the tree: the files agree with each other.
    const QVariantMap tree = store.tree();
    QList<QPair<QString, QByteArray>> files;
    for (int layout = 0; layout < KeypadTable::LayoutCount; ++layout) {
        const QVariant pages = tree.value(SettingsKeys::keyItemsKey(ButtonLayoutConfig::layoutName(layout)));
        if (pages.userType() == QMetaType::QVariantMap)
            files.append({layoutFileName(layout), Settings::encodeExportFile(SettingsKeys::MyLayout, pages.toMap())});
    }
    files.append({favoritesFileName(), Settings::encodeExportFile(SettingsKeys::MyFavorite,
                                                                  tree.value(SettingsKeys::MyFavoriteItems).toMap())});

    const QDir folder(result.folder);
    for (const auto& [name, bytes] : files) {
        QString problem;
        if (!writeFile(folder.filePath(name), bytes, &problem)) {
            LOG_MSG(QStringLiteral("ERROR: backup of %1 failed: %2!!").arg(folder.filePath(name), problem));
            result.error = tr("%1 could not be written: %2").arg(name, problem);
            QDir(result.folder).removeRecursively();
            result.files.clear();
            return result;
        }
        result.files << folder.filePath(name);
    }
    LOG_MSG(QStringLiteral("backup written to %1").arg(result.folder));
    result.ok = true;
    return result;
}
