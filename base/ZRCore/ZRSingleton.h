#ifndef ZRSINGLETON_H
#define ZRSINGLETON_H

#include "ZRLocks.h"

/**
 * The lazily created, process-wide instance of @p T, made with T's default constructor on the first
 * call of instance() from any thread and never destroyed.
 *
 * instance() keeps its lock and pointer in function-local statics, so each T needs one home: T's
 * header declares `extern template class EXPORT ZRSingleton<T>;` and T's source file instantiates
 * it; otherwise every shared library that calls instance() would make its own T.
 *
 * The lock is checked for reading first, so that once T exists callers only share the read lock; the
 * check is repeated under the write lock so that exactly one T is made.
 */
template<typename T>
class ZRSingleton
{
public:
    static T *instance();
    /** Hook for classes that need work after construction; does nothing by default. */
    virtual void setupInstance() { }

protected:
    ZRSingleton() = default;
    virtual ~ZRSingleton() = default;
};

template<typename T>
T *ZRSingleton<T>::instance()
{
    static ZRReadWriteLock lock;
    static T *myInstance = nullptr;

    {
        ZRReadLocker locker(&lock);
        if (myInstance)
            return myInstance;
    }
    ZRWriteLocker locker(&lock);
    if (!myInstance)
        myInstance = new T();
    return myInstance;
}

#endif
