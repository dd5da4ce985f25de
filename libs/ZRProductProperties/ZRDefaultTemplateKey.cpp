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
    return m_defaultTemplateType == other.m_defaultTemplateType && m_pageContext == other.m_pageContext
        && m_pageNumber == other.m_pageNumber && m_scenePageCount == other.m_scenePageCount;
}

size_t qHash(const ZRDefaultTemplateKey &key, size_t seed) noexcept
{
    const size_t alignment = static_cast<uint>(key.pageAlignment().value());
    const size_t pageType = static_cast<uint>(key.pageType().value());
    return qHash(int(key.defaultTemplateType()), 0) ^ (alignment << 3) ^ (pageType << 6) ^ seed;
}
