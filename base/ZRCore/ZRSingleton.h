#ifndef ZRSINGLETON_H
#define ZRSINGLETON_H

#include "ZRReadWriteLock.h"

#include <atomic>

/**
 * The lazily created, process-wide instance of @p T, made with T's default constructor on the first
 * call of instance() from any thread and never destroyed.
 *
 * instance() keeps its lock and pointer in function-local statics, so each T needs one home: T's
 * header declares `extern template class EXPORT ZRSingleton<T>;` and T's source file instantiates
 * it; otherwise every shared library that calls instance() would make its own T.
 *
 * The lock is checked for reading first, so that once T exists callers only share the read lock; the
 * check is repeated under the write lock so that exactly one T is made. Once T exists, instance()
 * returns it after one atomic load, without taking the lock.
 */
template<typename T> class ZRSingleton
{
public:
    static T *instance();
    /** Hook for classes that need work after construction; does nothing by default. */
    virtual void setupInstance() { }

protected:
    ZRSingleton() = default;
    virtual ~ZRSingleton() = default;
};

template<typename T> T *ZRSingleton<T>::instance()
{
    static ZRReadWriteLock lock;
    static std::atomic<T *> myInstance { nullptr };

    // The instance never changes once it is made, and it is published with a release store: a
    // caller whose acquire load sees it also sees everything its constructor wrote, and needs no lock.
    if (T *existing = myInstance.load(std::memory_order_acquire))
        return existing;
    {
        ZRReadLocker locker(&lock);
        if (T *existing = myInstance.load(std::memory_order_acquire))
            return existing;
    }
    ZRWriteLocker locker(&lock);
    if (!myInstance.load(std::memory_order_acquire))
        myInstance.store(new T(), std::memory_order_release);
    return myInstance.load(std::memory_order_acquire);
}

#endif
