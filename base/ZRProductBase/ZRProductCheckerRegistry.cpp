#include "ZRProductCheckerRegistry.h"

template class ZRSingleton<ZRProductCheckerRegistry>;

ZRProductCheckerRegistry::ZRProductCheckerRegistry() = default;

ZRProductCheckerRegistry::~ZRProductCheckerRegistry() = default;

void ZRProductCheckerRegistry::registerChecker(ZRProductChecker *checker)
{
    ZRWriteLocker locker(&m_lock);
    if (checker && !m_checkers.contains(checker))
        m_checkers.append(checker);
}

QList<ZRProductChecker *> ZRProductCheckerRegistry::checkers() const
{
    ZRReadLocker locker(&m_lock);
    return m_checkers;
}

bool ZRProductCheckerRegistry::isValid(const ZRProductType &type, int mask) const
{
    ZRReadLocker locker(&m_lock);
    for (const ZRProductChecker *checker : m_checkers) {
        if ((checker->type() & mask) && !checker->isValid(type))
            return false;
    }
    return true;
}
