#pragma once

#include <QObject>
#include <QString>

class Log;

// Numbers under which the main window enters the shared single objects.
enum class ComponentId : int
{
    MainWindow = 0,
    KeyItemModel = 1,
    HidComm = 5,
    Settings = 10,
    ButtonLayoutConfig = 11,
    TaskProxy = 14,
};

// The numbered registry through which every subsystem reaches the shared
// objects the main window created. Lookups name their caller, so a missing
// object shows up in the log with the place that needed it.
class ObjectRegistry
{
public:
    static void registerObject(ComponentId id, QObject* object);
    static void unregisterObject(ComponentId id);

    // The main window registers itself together with its log; from then on
    // log records go to that log instead of the debug output.
    static void registerMainWindow(QObject* mainWindow, Log* log);
    static void unregisterMainWindow();
    static Log* mainWindowLog();

    static QObject* lookup(ComponentId id, const char* file, const char* function, int line);

    // For callers that work without the object too: no log line when absent.
    static QObject* find(ComponentId id);

    template <class T>
    static T* lookupAs(ComponentId id, const char* file, const char* function, int line)
    {
        QObject* object = lookup(id, file, function, line);
        T* typed = qobject_cast<T*>(object);
        if (object && !typed)
            reportWrongType(id, T::staticMetaObject.className(), file, function, line);
        return typed;
    }

    // Forgets every entry; for tests and shutdown.
    static void clear();

private:
    static void reportWrongType(ComponentId id, const char* wanted, const char* file, const char* function, int line);
};

// COMPONENT(KeyItemModel, ComponentId::KeyItemModel) -> KeyItemModel*, or
// nullptr with a log line that names this call site.
#define COMPONENT(Type, id) ObjectRegistry::lookupAs<Type>((id), __FILE__, Q_FUNC_INFO, __LINE__)
#define COMPONENT_OBJECT(id) ObjectRegistry::lookup((id), __FILE__, Q_FUNC_INFO, __LINE__)
