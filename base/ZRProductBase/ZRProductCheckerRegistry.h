#ifndef ZRPRODUCTCHECKERREGISTRY_H
#define ZRPRODUCTCHECKERREGISTRY_H

#include "ZRProductChecker.h"
#include "ZRSingleton.h"
#include "zrproductbase_export.h"

#include <QList>

/**
 * The product checkers of all loaded libraries. Reached as
 * ZRSingleton<ZRProductCheckerRegistry>::instance(); it does not own the checkers.
 */
class ZRPRODUCTBASE_EXPORT ZRProductCheckerRegistry
{
public:
    ZRProductCheckerRegistry();
    virtual ~ZRProductCheckerRegistry();

    /** Adds @p checker once; a second registration of the same object is ignored. */
    void registerChecker(ZRProductChecker *checker);
    QList<ZRProductChecker *> checkers() const;
    /** True when every registered checker whose type() is in @p mask accepts @p type (true when none is). */
    bool isValid(const ZRProductType &type, int mask) const;

private:
    mutable ZRReadWriteLock m_lock;
    QList<ZRProductChecker *> m_checkers;
};

extern template class ZRPRODUCTBASE_EXPORT ZRSingleton<ZRProductCheckerRegistry>;

#endif
