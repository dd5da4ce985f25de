#include "ZRDefaultTemplateKey.h"

#include <QHashFunctions>

ZRDefaultTemplateKey::ZRDefaultTemplateKey() = default;

ZRDefaultTemplateKey::ZRDefaultTemplateKey(
    const ZRPageContext &pageContext, ZRDefaultTemplateType defaultTemplateType, int pageNumber, int scenePageCount)
    : m_pageContext(pageContext)
    , m_defaultTemplateType(defaultTemplateType)
    , m_pageNumber(pageNumber)
    , m_scenePageCount(scenePageCount)
{ }

ZRDefaultTemplateKey::ZRDefaultTemplateKey(const ZRDefaultTemplateKey &other) = default;
ZRDefaultTemplateKey::~ZRDefaultTemplateKey() = default;
ZRDefaultTemplateKey &ZRDefaultTemplateKey::operator=(const ZRDefaultTemplateKey &other) = default;

bool ZRDefaultTemplateKey::operator==(const ZRDefaultTemplateKey &other) const
{
    // Keys that share a hash differ mostly in page number or scene page count, which are not hashed:
    // those are compared first.
    return m_pageNumber == other.m_pageNumber && m_scenePageCount == other.m_scenePageCount
        && m_defaultTemplateType == other.m_defaultTemplateType && m_pageContext == other.m_pageContext;
}

size_t qHash(const ZRDefaultTemplateKey &key, size_t seed) noexcept
{
    const size_t alignment = static_cast<uint>(key.pageAlignment().value());
    const size_t pageType = static_cast<uint>(key.pageType().value());
    return qHash(int(key.defaultTemplateType()), 0) ^ (alignment << 3) ^ (pageType << 6) ^ seed;
}
