// The largest configuration the program can hold: every layout's root page
// full, every root key a folder full of keys, 60 favourites, every face with
// a 72x72 user image and a title. Prints what loading, saving, the checksum,
// export and import of it cost.
//
// Saves: the first one encodes every image once; later ones reuse what the
// store kept. "save timer" is what an edit burst costs: the model rebuilds
// the whole tree from its items, then the store saves it. A load parses the
// file written before (QSettings holds nothing of it: the store writes the
// file itself), and the first save after it must be as fast as any other.
#include "buttonlayoutconfig.h"
#include "favoritekeyitemmodel.h"
#include "ka_folder.h"
#include "ka_paststring.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "objectregistry.h"
#include "settings.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

QPixmap keyImage(int seed)
{
    QImage image(72, 72, QImage::Format_ARGB32);
    image.fill(QColor::fromHsv(seed * 37 % 360, 160, 90));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor::fromHsv(seed * 91 % 360, 200, 230));
    painter.drawEllipse(12 + seed % 9, 10, 44, 40);
    painter.drawText(QRect(0, 50, 72, 20), Qt::AlignCenter, QString::number(seed));
    painter.end();
    return QPixmap::fromImage(image);
}

void decorate(KeyItem* item, int seed)
{
    for (int slot = 0; slot < KeyItem::SlotCount; ++slot) {
        item->render[slot].userImg = keyImage(seed + slot);
        item->render[slot].text = QStringLiteral("Key %1").arg(seed);
    }
    if (item->actionType == KAT_PASTE_STRING)
        static_cast<KA_PastString*>(item->action[0])->strText = QStringLiteral("text of key %1").arg(seed);
}

void fillEveryLayout(KeyItemModel* model, int* itemCount)
{
    int seed = 0;
    for (int layout = 0; layout < KeyItemModel::LayoutCount; ++layout) {
        model->changeLayoutButtonView(KeyLayout(layout));
        const int keys = ButtonLayoutConfig::keyCount(layout);
        model->beginUpdate();
        for (int key = 0; key < keys; ++key) {
            model->createKeyAction(key, KAT_FOLDER);
            KeyItem* folderItem = model->keyItemAt(key);
            decorate(folderItem, ++seed);
            auto* folder = static_cast<KA_Folder*>(folderItem->action[0]);
            for (int child = 0; child < keys - 1; ++child) {
                auto* item = new KeyItem(KAT_PASTE_STRING, child, layout);
                decorate(item, ++seed);
                item->parent = folderItem;
                item->ownerList = &folder->childList;
                folder->childList.insert(folder->childList.size() - 1, item);
                ++*itemCount;
            }
            ++*itemCount;
        }
        model->endUpdate(false);
    }
}

// Resident memory of the process, from /proc.
double residentMiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
    }
    return 0;
}

double median(std::vector<double> samples)
{
    std::sort(samples.begin(), samples.end());
    return samples[samples.size() / 2];
}

double timeMs(const std::function<void()>& work, int repeats = 3)
{
    std::vector<double> samples;
    for (int i = 0; i < repeats; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        samples.push_back(timer.nsecsElapsed() / 1e6);
    }
    return median(samples);
}

double timeOnceMs(const std::function<void()>& work)
{
    return timeMs(work, 1);
}

// One key gets a new image, as the editor does it; then the late save runs.
void editOneImage(KeyItemModel* model, int seed)
{
    model->changeLayoutButtonView(V_Key_15);
    KeyItem* item = model->keyItemAt(seed % 14);
    model->beginUpdate(item);
    item->render[0].userImg = keyImage(100000 + seed);
    model->endUpdate(true, item);
    QCoreApplication::processEvents(); // starts the save timer
}

// The late save of an edit burst, as the save timer runs it: the whole tree
// rebuilt from the items, then saved.
double timeSaveAfterEditMs(KeyItemModel* model, int* edits, int repeats = 3)
{
    std::vector<double> samples;
    for (int i = 0; i < repeats; ++i) {
        editOneImage(model, ++*edits);
        QElapsedTimer timer;
        timer.start();
        model->flushPendingSave();
        samples.push_back(timer.nsecsElapsed() / 1e6);
    }
    return median(samples);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
    QCoreApplication::setOrganizationName(QStringLiteral("Vantorix"));
    QCoreApplication::setApplicationName(QStringLiteral("Keystage"));
    QGuiApplication app(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}); // quiet the log echo

    auto settings = std::make_unique<Settings>();
    ButtonLayoutConfig layouts;
    ObjectRegistry::registerObject(ComponentId::Settings, settings.get());
    ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, &layouts);
    auto model = std::make_unique<KeyItemModel>();
    FavoriteKeyItemModel favorites;

    int items = 0;
    fillEveryLayout(model.get(), &items);
    for (int i = 0; i < FavoriteKeyItemModel::MaxItems; ++i) {
        KeyItem item(KAT_PASTE_STRING, 0, V_Key_15);
        decorate(&item, 5000 + i);
        favorites.appendKeyItem(&item);
    }
    for (int layout = 0; layout < KeyItemModel::LayoutCount; ++layout)
        model->saveKeyItemsToSettings(settings.get(), model->rootList(layout), false);

    const double residentBefore = residentMiB();
    // Every image is new to the store: each is encoded and checked once.
    const double coldSave = timeOnceMs([&] { settings->save(); });
    const double save = timeMs([&] { settings->save(); });
    const double residentAfter = residentMiB();
    // What the save timer runs: the whole tree rebuilt from the items, then saved.
    int edits = 0;
    const double modelSave = timeSaveAfterEditMs(model.get(), &edits);
    const double rebuild = timeMs([&] {
        for (int layout = 0; layout < KeyItemModel::LayoutCount; ++layout)
            model->saveKeyItemsToSettings(settings.get(), model->rootList(layout), false);
    });
    const qint64 fileSize = QFileInfo(settings->fileName()).size();
    const QVariantMap tree = settings->tree();
    const double checksum = timeMs([&] { Settings::checksum(tree); });
    const double readBackChecksum = timeMs([&] { settings->checksumAsReadBack(tree); });

    // A new start: the store loads the file, the model reads its items, the first edit is saved.
    std::vector<double> loads;
    std::vector<double> firstSaves;
    for (int i = 0; i < 3; ++i) {
        loads.push_back(timeOnceMs([&] {
            model.reset();
            settings = std::make_unique<Settings>();
            ObjectRegistry::registerObject(ComponentId::Settings, settings.get());
            model = std::make_unique<KeyItemModel>();
            model->reloadKeyItemsFromSettings();
        }));
        firstSaves.push_back(timeSaveAfterEditMs(model.get(), &edits, 1));
    }
    const double load = median(loads);
    const double firstSaveAfterLoad = median(firstSaves);

    const QString exportPath = home.path() + QStringLiteral("/layout.kslayout");
    layouts.changeLayout(V_Key_32);
    settings->setValue(QStringLiteral("last_kb_layout"), int(V_Key_32));
    const double exportMs = timeMs([&] { settings->exportSetting(exportPath); });
    const double importMs = timeMs([&] { Settings::readExportFile(exportPath); });

    std::printf("largest configuration: %d key items, %d favourites, %d user images\n", items,
                FavoriteKeyItemModel::MaxItems, 2 * (items + FavoriteKeyItemModel::MaxItems));
    std::printf("settings file:              %10.1f KiB\n", fileSize / 1024.0);
    std::printf("export file (32 keys):      %10.1f KiB\n", QFileInfo(exportPath).size() / 1024.0);
    std::printf("first save, images new:     %10.1f ms (once)\n", coldSave);
    std::printf("save, tree unchanged:       %10.1f ms\n", save);
    std::printf("save timer, one image new:  %10.1f ms\n", modelSave);
    std::printf("  of which the tree rebuilt:%10.1f ms\n", rebuild);
    std::printf("load (store + reload):      %10.1f ms\n", load);
    std::printf("first save after the load:  %10.1f ms\n", firstSaveAfterLoad);
    std::printf("checksum, from scratch:     %10.1f ms\n", checksum);
    std::printf("checksum as read back:      %10.1f ms\n", readBackChecksum);
    std::printf("export 32-key layout:       %10.1f ms\n", exportMs);
    std::printf("import 32-key layout:       %10.1f ms\n", importMs);
    std::printf("encoded images kept:        %10d\n", settings->cachedImageCount());
    std::printf("resident memory:  %.0f MiB before the first save, %.0f MiB after it\n", residentBefore, residentAfter);
    std::printf("(medians of 3 runs unless marked once)\n");
    return 0;
}
