#ifndef ZRREADWRITELOCK_H
#define ZRREADWRITELOCK_H

#include <QReadWriteLock>
#include <QThread>

#include <atomic>

// ThreadSanitizer only understands locks whose code it instrumented. QMutex annotates itself in its
// inline code, but QReadWriteLock is compiled into the system's Qt, which is built without the
// sanitizer: it then misses the ordering that the lock gives (and reports races that are none) and
// lock-order inversions between it and a QMutex. ZRReadWriteLock tells it about every acquisition and
// release. Without ThreadSanitizer the annotations compile to nothing.
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
inline void create(void *, unsigned) { }
inline void destroy(void *) { }
inline void preLock(void *, unsigned) { }
inline void postLock(void *, unsigned) { }
inline void preUnlock(void *, unsigned) { }
inline void postUnlock(void *, unsigned) { }
#endif
} // namespace ZRTsan

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
