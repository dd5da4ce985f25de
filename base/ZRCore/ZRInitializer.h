#ifndef ZRINITIALIZER_H
#define ZRINITIALIZER_H

#include "ZRInitializerAbstract.h"
#include "ZRSingleton.h"
#include "zrcore_export.h"

#include <QList>
#include <QMutex>

/**
 * The start-up hooks of all loaded libraries, in the order they registered. Reached as
 * ZRSingleton<ZRInitializer>::instance(); libraries register from their static initialisers.
 */
class ZRCORE_EXPORT ZRInitializer
{
public:
    ZRInitializer();
    virtual ~ZRInitializer();

    /** Adds @p initializer once; a second registration of the same object is ignored. */
    void registerInitializer(ZRInitializerAbstract *initializer);
    QList<ZRInitializerAbstract *> initializers() const;
    /** Runs setup of every registered initializer, in registration order. */
    void setupAll(ZRInitializerOption option);
    /** Runs teardown of every registered initializer, in reverse registration order. */
    void teardownAll();

private:
    mutable QMutex m_mutex;
    QList<ZRInitializerAbstract *> m_initializers;
};

extern template class ZRCORE_EXPORT ZRSingleton<ZRInitializer>;

#endif
