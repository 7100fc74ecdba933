// Linked into every test only in the ThreadSanitizer build (KEYSTAGE_TSAN).
//
// Qt 5 synchronises inside the uninstrumented QtCore on Linux futexes, which
// ThreadSanitizer cannot see: it would take every access guarded by a
// QMutex, and everything a thread did before another's QThread::wait()
// returned, for a race. These definitions take the place of QtCore's for
// calls from outside QtCore (our code, QtTest, QtGui): each calls QtCore's
// own function and tells the sanitizer what was acquired or released.
// QtCore's calls among its own functions stay as they are; tests/tsan.supp
// names what that leaves unseen.
//
// Queued calls and posted events travel through QtCore's own event queues:
// every emit, invokeMethod and postEvent from outside QtCore releases one
// sync point, and every event delivered (TsanApplication::notify, called for
// every event on every thread in Qt 5) acquires it. That is coarser than the
// queues themselves, so it may hide a race, never invent one.

#include "tsanqt.h"

#include <QCoreApplication>
#include <QFutureInterfaceBase>
#include <QMetaObject>
#include <QMutex>
#include <QThread>
#include <QVariant>
#include <QWaitCondition>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

namespace {

template <typename Function>
Function qtCoreFunction(const char* symbol)
{
    void* found = dlsym(RTLD_NEXT, symbol);
    if (!found)
        qFatal("tsanqmutex: %s not found in QtCore", symbol);
    return reinterpret_cast<Function>(found);
}

// The one sync point of all event hand-overs.
char eventHandOver;

} // namespace

void QMutex::lock() QT_MUTEX_LOCK_NOEXCEPT
{
    static const auto real = qtCoreFunction<void (*)(QMutex*)>("_ZN6QMutex4lockEv");
    real(this);
    __tsan_acquire(this);
}

bool QMutex::tryLock(int timeout) QT_MUTEX_LOCK_NOEXCEPT
{
    static const auto real = qtCoreFunction<bool (*)(QMutex*, int)>("_ZN6QMutex7tryLockEi");
    const bool locked = real(this, timeout);
    if (locked)
        __tsan_acquire(this);
    return locked;
}

void QMutex::unlock() noexcept
{
    static const auto real = qtCoreFunction<void (*)(QMutex*)>("_ZN6QMutex6unlockEv");
    __tsan_release(this);
    real(this);
}

// The wait gives the mutex up and takes it again inside QtCore.
bool QWaitCondition::wait(QMutex* lockedMutex, QDeadlineTimer deadline)
{
    static const auto real = qtCoreFunction<bool (*)(QWaitCondition*, QMutex*, QDeadlineTimer)>(
        "_ZN14QWaitCondition4waitEP6QMutex14QDeadlineTimer");
    __tsan_release(lockedMutex);
    const bool woken = real(this, lockedMutex, deadline);
    __tsan_acquire(lockedMutex);
    return woken;
}

bool QWaitCondition::wait(QMutex* lockedMutex, unsigned long time)
{
    static const auto real =
        qtCoreFunction<bool (*)(QWaitCondition*, QMutex*, unsigned long)>("_ZN14QWaitCondition4waitEP6QMutexm");
    __tsan_release(lockedMutex);
    const bool woken = real(this, lockedMutex, time);
    __tsan_acquire(lockedMutex);
    return woken;
}

// A thread's last word is its finished signal, emitted on it before wait()
// can return anywhere else.
void QThread::start(Priority priority)
{
    static const auto real = qtCoreFunction<void (*)(QThread*, Priority)>("_ZN7QThread5startENS_8PriorityE");
    if (!property("tsanFinishedHook").toBool()) {
        setProperty("tsanFinishedHook", true);
        connect(
            this, &QThread::finished, this, [this] { __tsan_release(this); }, Qt::DirectConnection);
    }
    real(this, priority);
}

bool QThread::wait(QDeadlineTimer deadline)
{
    static const auto real = qtCoreFunction<bool (*)(QThread*, QDeadlineTimer)>("_ZN7QThread4waitE14QDeadlineTimer");
    const bool ended = real(this, deadline);
    if (ended)
        __tsan_acquire(this);
    return ended;
}

bool QThread::wait(unsigned long time)
{
    static const auto real = qtCoreFunction<bool (*)(QThread*, unsigned long)>("_ZN7QThread4waitEm");
    const bool ended = real(this, time);
    if (ended)
        __tsan_acquire(this);
    return ended;
}

// A future's results are freed by whichever holder lets go of it last, a
// worker thread's task or the thread that waited for it; QtCore counts the
// holders atomically, out of the sanitizer's sight. Each letting go releases
// the result store, and the last one acquires it before the results go.
bool QFutureInterfaceBase::derefT() const
{
    static const auto real =
        qtCoreFunction<bool (*)(const QFutureInterfaceBase*)>("_ZNK20QFutureInterfaceBase6derefTEv");
    void* results = const_cast<QtPrivate::ResultStoreBase*>(&resultStoreBase());
    __tsan_release(results);
    const bool stillHeld = real(this);
    if (!stillHeld)
        __tsan_acquire(results);
    return stillHeld;
}

void QMetaObject::activate(QObject* sender, const QMetaObject* meta, int localSignalIndex, void** argv)
{
    static const auto real = qtCoreFunction<void (*)(QObject*, const QMetaObject*, int, void**)>(
        "_ZN11QMetaObject8activateEP7QObjectPKS_iPPv");
    __tsan_release(&eventHandOver);
    real(sender, meta, localSignalIndex, argv);
}

bool QMetaObject::invokeMethodImpl(QObject* object, QtPrivate::QSlotObjectBase* slot, Qt::ConnectionType type,
                                   void* ret)
{
    static const auto real = qtCoreFunction<bool (*)(QObject*, QtPrivate::QSlotObjectBase*, Qt::ConnectionType, void*)>(
        "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPv");
    __tsan_release(&eventHandOver);
    return real(object, slot, type, ret);
}

bool QMetaObject::invokeMethod(QObject* object, const char* member, Qt::ConnectionType type, QGenericReturnArgument ret,
                               QGenericArgument a0, QGenericArgument a1, QGenericArgument a2, QGenericArgument a3,
                               QGenericArgument a4, QGenericArgument a5, QGenericArgument a6, QGenericArgument a7,
                               QGenericArgument a8, QGenericArgument a9)
{
    using Real = bool (*)(QObject*, const char*, Qt::ConnectionType, QGenericReturnArgument, QGenericArgument,
                          QGenericArgument, QGenericArgument, QGenericArgument, QGenericArgument, QGenericArgument,
                          QGenericArgument, QGenericArgument, QGenericArgument, QGenericArgument);
    static const auto real =
        qtCoreFunction<Real>("_ZN11QMetaObject12invokeMethodEP7QObjectPKcN2Qt14ConnectionTypeE22QGe"
                             "nericReturnArgument16QGenericArgumentS7_S7_S7_S7_S7_S7_S7_S7_S7_");
    __tsan_release(&eventHandOver);
    return real(object, member, type, ret, a0, a1, a2, a3, a4, a5, a6, a7, a8, a9);
}

void QCoreApplication::postEvent(QObject* receiver, QEvent* event, int priority)
{
    static const auto real =
        qtCoreFunction<void (*)(QObject*, QEvent*, int)>("_ZN16QCoreApplication9postEventEP7QObjectP6QEventi");
    __tsan_release(&eventHandOver);
    real(receiver, event, priority);
}

bool TsanApplication::notify(QObject* receiver, QEvent* event)
{
    __tsan_acquire(&eventHandOver);
    return QApplication::notify(receiver, event);
}
