// SPDX-License-Identifier: GPL-3.0-or-later
// Qt is built without the thread sanitizer, which therefore sees neither Qt's locks nor its queued events,
// and takes what they protect for unprotected. Each function here replaces the one of Qt with its name in a
// test program, calls it, and tells the sanitizer what it does. A queued call is taken to come after every
// signal before it, of whatever thread: a race that such a signal happens to order is not reported.
#include <QDeadlineTimer>
#include <QEvent>
#include <QMutex>
#include <QSemaphore>
#include <QThread>

#include <climits>
#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

namespace
{

char events = 0; ///< stands for all queues of events at once

/// What Qt itself has under this name.
template<typename Function>
Function *real(const char *name)
{
    auto *const found = reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
    if (!found)
        qFatal("Qt has no %s", name);
    return found;
}

/// Of an event: who receives it, and the event itself. False: it goes on its way.
bool delivers(void **event)
{
    if (static_cast<QEvent *>(event[1])->type() == QEvent::MetaCall)
        __tsan_acquire(&events);
    return false;
}

const bool isHooked = QInternal::registerCallback(QInternal::EventNotifyCallback, delivers);

} // namespace

void QMutex::lock() noexcept
{
    static auto *const qt = real<void(QMutex *)>("_ZN6QMutex4lockEv");
    qt(this);
    __tsan_acquire(this);
}

void QMutex::unlock() noexcept
{
    static auto *const qt = real<void(QMutex *)>("_ZN6QMutex6unlockEv");
    __tsan_release(this);
    qt(this);
}

void QSemaphore::acquire(int count)
{
    static auto *const qt = real<void(QSemaphore *, int)>("_ZN10QSemaphore7acquireEi");
    qt(this, count);
    __tsan_acquire(this);
}

bool QSemaphore::tryAcquire(int count, int timeout)
{
    static auto *const qt = real<bool(QSemaphore *, int, int)>("_ZN10QSemaphore10tryAcquireEii");
    const bool acquired = qt(this, count, timeout);
    if (acquired)
        __tsan_acquire(this);
    return acquired;
}

void QSemaphore::release(int count)
{
    static auto *const qt = real<void(QSemaphore *, int)>("_ZN10QSemaphore7releaseEi");
    __tsan_release(this);
    qt(this, count);
}

void QThread::start(Priority priority)
{
    static auto *const qt = real<void(QThread *, Priority)>("_ZN7QThread5startENS_8PriorityE");
    connect(
        this, &QThread::finished, this,
        [this] {
            __tsan_release(this);
            __tsan_release(&events);
        },
        Qt::DirectConnection);
    qt(this, priority);
}

bool QThread::wait(QDeadlineTimer deadline)
{
    static auto *const qt = real<bool(QThread *, QDeadlineTimer)>("_ZN7QThread4waitE14QDeadlineTimer");
    const bool ended = qt(this, deadline);
    if (ended)
        __tsan_acquire(this);
    return ended;
}

bool QThread::wait(unsigned long milliseconds)
{
    return wait(milliseconds == ULONG_MAX ? QDeadlineTimer(QDeadlineTimer::Forever)
                                          : QDeadlineTimer(static_cast<qint64>(milliseconds)));
}

bool QThread::isRunning() const
{
    static auto *const qt = real<bool(const QThread *)>("_ZNK7QThread9isRunningEv");
    const bool runs = qt(this);
    if (!runs)
        __tsan_acquire(const_cast<QThread *>(this));
    return runs;
}

void QMetaObject::activate(QObject *sender, const QMetaObject *meta, int signal, void **arguments)
{
    static auto *const qt = real<void(QObject *, const QMetaObject *, int, void **)>(
        "_ZN11QMetaObject8activateEP7QObjectPKS_iPPv");
    __tsan_release(&events);
    qt(sender, meta, signal, arguments);
}

bool QMetaObject::invokeMethodImpl(QObject *object, QtPrivate::QSlotObjectBase *slot, Qt::ConnectionType type,
                                   void *result)
{
    static auto *const qt = real<bool(QObject *, QtPrivate::QSlotObjectBase *, Qt::ConnectionType, void *)>(
        "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPv");
    __tsan_release(&events);
    return qt(object, slot, type, result);
}
