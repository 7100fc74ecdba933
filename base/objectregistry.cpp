#include "objectregistry.h"

#include "logging.h"

#include <QHash>
#include <QMutex>
#include <QPointer>
#include <atomic>

namespace {

struct Registry
{
    QMutex mutex;
    QHash<int, QPointer<QObject>> objects;
    std::atomic<Log*> log{nullptr};
};

Registry& registry()
{
    static Registry instance;
    return instance;
}

} // namespace

void ObjectRegistry::registerObject(ComponentId id, QObject* object)
{
    QMutexLocker locker(&registry().mutex);
    registry().objects.insert(static_cast<int>(id), object);
}

void ObjectRegistry::unregisterObject(ComponentId id)
{
    QMutexLocker locker(&registry().mutex);
    registry().objects.remove(static_cast<int>(id));
}

void ObjectRegistry::registerMainWindow(QObject* mainWindow, Log* log)
{
    registerObject(ComponentId::MainWindow, mainWindow);
    registry().log.store(log);
}

void ObjectRegistry::unregisterMainWindow()
{
    registry().log.store(nullptr);
    unregisterObject(ComponentId::MainWindow);
}

Log* ObjectRegistry::mainWindowLog()
{
    return registry().log.load();
}

QObject* ObjectRegistry::find(ComponentId id)
{
    QMutexLocker locker(&registry().mutex);
    return registry().objects.value(static_cast<int>(id)).data();
}

QObject* ObjectRegistry::lookup(ComponentId id, const char* file, const char* function, int line)
{
    QObject* object = find(id);
    if (!object) {
        LOG_MSG(QStringLiteral("ERROR: component %1 not found, wanted by %2 in %3:%4!!")
                    .arg(QString::number(static_cast<int>(id)), QString::fromLatin1(function),
                         QString::fromLatin1(file), QString::number(line)));
    }
    return object;
}

void ObjectRegistry::reportWrongType(ComponentId id, const char* wanted, const char* file, const char* function,
                                     int line)
{
    LOG_MSG(QStringLiteral("ERROR: component %1 is not a %2, wanted by %3 in %4:%5!!")
                .arg(QString::number(static_cast<int>(id)), QString::fromLatin1(wanted), QString::fromLatin1(function),
                     QString::fromLatin1(file), QString::number(line)));
}

void ObjectRegistry::clear()
{
    registry().log.store(nullptr);
    QMutexLocker locker(&registry().mutex);
    registry().objects.clear();
}
