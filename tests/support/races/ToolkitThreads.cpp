// The toolkit of the system is compiled without the thread sanitizer, which so does not see what
// its mutexes, semaphores, pools, threads and events put in order, and would take each for a race.
// What the programs call of them is caught here on its way there, and told to the sanitizer.
//
// Events have one place for all of them: what is emitted or posted anywhere comes before all that
// is delivered after it. A race between two threads that do nothing else than exchange events may
// stay unseen.
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QMutex>
#include <QRunnable>
#include <QSemaphore>
#include <QThread>
#include <QThreadPool>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

#include <functional>
#include <utility>

namespace {

template <typename Function>
Function* toolkits(const char* symbol)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, symbol));
}

char events;

bool isDelivered(void** /*call*/)
{
    __tsan_acquire(&events);
    return false;
}

const bool isRegistered = QInternal::registerCallback(QInternal::EventNotifyCallback, isDelivered);

/// Carries out another one that a pool has been given.
class Ordered : public QRunnable
{
public:
    Ordered(QRunnable* work, QThreadPool* pool)
        : m_work(work)
        , m_pool(pool)
    {
        __tsan_release(this);
    }

    ~Ordered() override
    {
        if (m_work->autoDelete()) {
            delete m_work;
        }
        __tsan_release(m_pool);
    }

    void run() override
    {
        __tsan_acquire(this);
        m_work->run();
        __tsan_release(m_pool);
    }

private:
    QRunnable* m_work;
    QThreadPool* m_pool;
};

} // namespace

void QMutex::lock() noexcept
{
    static const auto real = toolkits<void(QMutex*)>("_ZN6QMutex4lockEv");
    real(this);
    __tsan_acquire(this);
}

bool QMutex::tryLock(int timeout) noexcept
{
    static const auto real = toolkits<bool(QMutex*, int)>("_ZN6QMutex7tryLockEi");
    const bool isLocked = real(this, timeout);
    if (isLocked) {
        __tsan_acquire(this);
    }
    return isLocked;
}

void QMutex::unlock() noexcept
{
    static const auto real = toolkits<void(QMutex*)>("_ZN6QMutex6unlockEv");
    __tsan_release(this);
    real(this);
}

void QSemaphore::acquire(int n)
{
    static const auto real = toolkits<void(QSemaphore*, int)>("_ZN10QSemaphore7acquireEi");
    real(this, n);
    __tsan_acquire(this);
}

bool QSemaphore::tryAcquire(int n)
{
    static const auto real = toolkits<bool(QSemaphore*, int)>("_ZN10QSemaphore10tryAcquireEi");
    const bool isAcquired = real(this, n);
    if (isAcquired) {
        __tsan_acquire(this);
    }
    return isAcquired;
}

bool QSemaphore::tryAcquire(int n, int timeout)
{
    static const auto real =
        toolkits<bool(QSemaphore*, int, int)>("_ZN10QSemaphore10tryAcquireEii");
    const bool isAcquired = real(this, n, timeout);
    if (isAcquired) {
        __tsan_acquire(this);
    }
    return isAcquired;
}

void QSemaphore::release(int n)
{
    static const auto real = toolkits<void(QSemaphore*, int)>("_ZN10QSemaphore7releaseEi");
    __tsan_release(this);
    real(this, n);
}

void QThreadPool::start(QRunnable* runnable, int priority)
{
    static const auto real =
        toolkits<void(QThreadPool*, QRunnable*, int)>("_ZN11QThreadPool5startEP9QRunnablei");
    real(this, new Ordered(runnable, this), priority);
}

bool QThreadPool::waitForDone(int msecs)
{
    static const auto real = toolkits<bool(QThreadPool*, int)>("_ZN11QThreadPool11waitForDoneEi");
    const bool isDone = real(this, msecs);
    if (isDone) {
        __tsan_acquire(this);
    }
    return isDone;
}

void QThread::start(Priority priority)
{
    static const auto real = toolkits<void(QThread*, Priority)>("_ZN7QThread5startENS_8PriorityE");
    connect(
        this, &QThread::finished, this,
        [this] {
            __tsan_release(this);
            __tsan_release(&events);
        },
        Qt::DirectConnection);
    __tsan_release(&events);
    real(this, priority);
}

bool QThread::wait(QDeadlineTimer deadline)
{
    static const auto real =
        toolkits<bool(QThread*, QDeadlineTimer)>("_ZN7QThread4waitE14QDeadlineTimer");
    const bool isOver = real(this, deadline);
    if (isOver) {
        __tsan_acquire(this);
    }
    return isOver;
}

bool QThread::wait(unsigned long time)
{
    return wait(QDeadlineTimer(static_cast<qint64>(time)));
}

void QObject::moveToThread(QThread* thread)
{
    static const auto real =
        toolkits<void(QObject*, QThread*)>("_ZN7QObject12moveToThreadEP7QThread");
    __tsan_release(&events);
    real(this, thread);
}

void QObject::deleteLater()
{
    static const auto real = toolkits<void(QObject*)>("_ZN7QObject11deleteLaterEv");
    __tsan_release(&events);
    real(this);
}

void QCoreApplication::postEvent(QObject* receiver, QEvent* event, int priority)
{
    static const auto real = toolkits<void(QObject*, QEvent*, int)>(
        "_ZN16QCoreApplication9postEventEP7QObjectP6QEventi");
    __tsan_release(&events);
    real(receiver, event, priority);
}

void QMetaObject::activate(QObject* sender, const QMetaObject* declaring, int signal, void** values)
{
    static const auto real = toolkits<void(QObject*, const QMetaObject*, int, void**)>(
        "_ZN11QMetaObject8activateEP7QObjectPKS_iPPv");
    __tsan_release(&events);
    real(sender, declaring, signal, values);
}

bool QMetaObject::invokeMethodImpl(QObject* object, QtPrivate::QSlotObjectBase* slot,
                                   Qt::ConnectionType type, void* result)
{
    static const auto real =
        toolkits<bool(QObject*, QtPrivate::QSlotObjectBase*, Qt::ConnectionType, void*)>(
            "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt"
            "14ConnectionTypeEPv");
    __tsan_release(&events);
    return real(object, slot, type, result);
}
