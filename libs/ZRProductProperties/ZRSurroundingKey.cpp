#include "ZRSurroundingKey.h"

#include <QDebug>

ZRSurroundingKey::ZRSurroundingKey() = default;

ZRSurroundingKey::ZRSurroundingKey(const ZRPageContext &pageContext, int pageIndex, const ZRArticleVariants &variant)
    : m_pageContext(pageContext)
    , m_pageIndex(pageIndex)
    , m_variant(variant)
{ }

ZRSurroundingKey::ZRSurroundingKey(const ZRSurroundingKey &other) = default;
ZRSurroundingKey::~ZRSurroundingKey() = default;
ZRSurroundingKey &ZRSurroundingKey::operator=(const ZRSurroundingKey &other) = default;

bool ZRSurroundingKey::isOkayFor(const ZRSurroundingKey &other) const
{
    // A surrounding bound to a page number belongs to that page even where the context differs.
    if (!m_pageContext.matchesWith(other.m_pageContext))
        return m_pageIndex == other.m_pageIndex;
    if (m_pageIndex != -1)
        return m_pageIndex == other.m_pageIndex;
    return m_variant == other.m_variant || other.m_pageIndex == -1;
}

bool ZRSurroundingKey::operator==(const ZRSurroundingKey &other) const
{
    return m_pageIndex == other.m_pageIndex && m_pageContext == other.m_pageContext && m_variant == other.m_variant;
}

QDebug operator<<(QDebug debug, const ZRSurroundingKey &key)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZRSurroundingKey(" << key.pageContext() << ", page " << key.pageIndex() << ", variant "
                    << key.variant().toString() << ')';
    return debug;
}
