#ifndef ZRLOCKS_H
#define ZRLOCKS_H

#include <QMutex>
#include <QMutexLocker>
#include <QReadWriteLock>
#include <QThread>

#include <atomic>

// ThreadSanitizer only understands locks whose code it instrumented, and the system's Qt is built
// without it: it then misses the ordering that QReadWriteLock gives (and reports races that are none)
// and cannot see lock-order inversions across our locks. The wrappers below tell it about every
// acquisition and release. Without ThreadSanitizer the annotations compile to nothing.
#if defined(__SANITIZE_THREAD__)
#define ZR_TSAN_ANNOTATIONS 1
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define ZR_TSAN_ANNOTATIONS 1
#endif
#endif

#ifdef ZR_TSAN_ANNOTATIONS
#include <sanitizer/tsan_interface.h>
#endif

/** Lock annotations for ThreadSanitizer; empty functions in other builds. */
namespace ZRTsan {
#ifdef ZR_TSAN_ANNOTATIONS
constexpr unsigned reentrant = __tsan_mutex_write_reentrant | __tsan_mutex_read_reentrant;
constexpr unsigned readLock = __tsan_mutex_read_lock;
constexpr unsigned tryLock = __tsan_mutex_try_lock;
constexpr unsigned tryLockFailed = __tsan_mutex_try_lock_failed;
inline void create(void *lock, unsigned flags)
{
    __tsan_mutex_create(lock, flags);
}
inline void destroy(void *lock)
{
    __tsan_mutex_destroy(lock, 0);
}
inline void preLock(void *lock, unsigned flags)
{
    __tsan_mutex_pre_lock(lock, flags);
}
inline void postLock(void *lock, unsigned flags)
{
    __tsan_mutex_post_lock(lock, flags, 0);
}
inline void preUnlock(void *lock, unsigned flags)
{
    __tsan_mutex_pre_unlock(lock, flags);
}
inline void postUnlock(void *lock, unsigned flags)
{
    __tsan_mutex_post_unlock(lock, flags);
}
#else
constexpr unsigned reentrant = 0;
constexpr unsigned readLock = 0;
constexpr unsigned tryLock = 0;
constexpr unsigned tryLockFailed = 0;
inline void create(void *, unsigned) { }
inline void destroy(void *) { }
inline void preLock(void *, unsigned) { }
inline void postLock(void *, unsigned) { }
inline void preUnlock(void *, unsigned) { }
inline void postUnlock(void *, unsigned) { }
#endif
} // namespace ZRTsan

/**
 * A QMutex that ThreadSanitizer sees. Use it like QMutex, with ZRMutexLocker for scopes.
 */
class ZRMutex
{
public:
    ZRMutex() { ZRTsan::create(this, 0); }
    ~ZRMutex() { ZRTsan::destroy(this); }
    ZRMutex(const ZRMutex &) = delete;
    ZRMutex &operator=(const ZRMutex &) = delete;

    void lock()
    {
        ZRTsan::preLock(this, 0);
        m_mutex.lock();
        ZRTsan::postLock(this, 0);
    }
    bool tryLock()
    {
        ZRTsan::preLock(this, ZRTsan::tryLock);
        const bool locked = m_mutex.tryLock();
        ZRTsan::postLock(this, locked ? ZRTsan::tryLock : ZRTsan::tryLock | ZRTsan::tryLockFailed);
        return locked;
    }
    void unlock()
    {
        ZRTsan::preUnlock(this, 0);
        m_mutex.unlock();
        ZRTsan::postUnlock(this, 0);
    }

private:
    QMutex m_mutex;
};

using ZRMutexLocker = QMutexLocker<ZRMutex>;

/**
 * A QReadWriteLock that ThreadSanitizer sees. Use it like QReadWriteLock, with ZRReadLocker and
 * ZRWriteLocker for scopes. As with QReadWriteLock, a thread that holds the write lock must not ask
 * for the read lock, even in recursive mode.
 */
class ZRReadWriteLock
{
public:
    explicit ZRReadWriteLock(QReadWriteLock::RecursionMode mode = QReadWriteLock::NonRecursive)
        : m_lock(mode)
    {
        ZRTsan::create(this, mode == QReadWriteLock::Recursive ? ZRTsan::reentrant : 0);
    }
    ~ZRReadWriteLock() { ZRTsan::destroy(this); }
    ZRReadWriteLock(const ZRReadWriteLock &) = delete;
    ZRReadWriteLock &operator=(const ZRReadWriteLock &) = delete;

    void lockForRead()
    {
        ZRTsan::preLock(this, ZRTsan::readLock);
        m_lock.lockForRead();
        ZRTsan::postLock(this, ZRTsan::readLock);
    }
    void lockForWrite()
    {
        ZRTsan::preLock(this, 0);
        m_lock.lockForWrite();
        ZRTsan::postLock(this, 0);
        // Only the writing thread changes these while it holds the lock.
        m_writer.store(QThread::currentThreadId(), std::memory_order_relaxed);
        ++m_writeDepth;
    }
    /** Releases the write lock when the calling thread holds it, else one read lock. */
    void unlock()
    {
        unsigned flags = ZRTsan::readLock;
        if (m_writer.load(std::memory_order_relaxed) == QThread::currentThreadId()) {
            flags = 0;
            if (--m_writeDepth == 0)
                m_writer.store(nullptr, std::memory_order_relaxed);
        }
        ZRTsan::preUnlock(this, flags);
        m_lock.unlock();
        ZRTsan::postUnlock(this, flags);
    }

private:
    QReadWriteLock m_lock;
    std::atomic<Qt::HANDLE> m_writer { nullptr };
    int m_writeDepth = 0;
};

/** Holds a ZRReadWriteLock for reading for the lifetime of the locker (see QReadLocker). */
class ZRReadLocker
{
public:
    explicit ZRReadLocker(ZRReadWriteLock *lock)
        : m_lock(lock)
    {
        m_lock->lockForRead();
    }
    ~ZRReadLocker() { m_lock->unlock(); }
    ZRReadLocker(const ZRReadLocker &) = delete;
    ZRReadLocker &operator=(const ZRReadLocker &) = delete;

private:
    ZRReadWriteLock *m_lock;
};

/** Holds a ZRReadWriteLock for writing for the lifetime of the locker (see QWriteLocker). */
class ZRWriteLocker
{
public:
    explicit ZRWriteLocker(ZRReadWriteLock *lock)
        : m_lock(lock)
    {
        m_lock->lockForWrite();
    }
    ~ZRWriteLocker() { m_lock->unlock(); }
    ZRWriteLocker(const ZRWriteLocker &) = delete;
    ZRWriteLocker &operator=(const ZRWriteLocker &) = delete;

private:
    ZRReadWriteLock *m_lock;
};

#endif
