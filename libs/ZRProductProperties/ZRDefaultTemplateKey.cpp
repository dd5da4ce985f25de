#include "ZRDefaultTemplateKey.h"

#include <QHashFunctions>

ZRDefaultTemplateKey::ZRDefaultTemplateKey()
    : ZRDefaultTemplateKey(ZRPageContext(), ZRDefaultTemplateLayout)
{ }

ZRDefaultTemplateKey::ZRDefaultTemplateKey(
    const ZRPageContext &pageContext, ZRDefaultTemplateType defaultTemplateType, int pageNumber, int scenePageCount)
    : m_pageType(pageContext.pageType().value())
    , m_alignment(pageContext.alignment().value())
    , m_pageNumber(pageNumber)
    , m_scenePageCount(scenePageCount)
    , m_defaultTemplateType(quint8(defaultTemplateType))
{ }

ZRDefaultTemplateKey::ZRDefaultTemplateKey(const ZRDefaultTemplateKey &other) = default;
ZRDefaultTemplateKey::~ZRDefaultTemplateKey() = default;
ZRDefaultTemplateKey &ZRDefaultTemplateKey::operator=(const ZRDefaultTemplateKey &other) = default;

bool ZRDefaultTemplateKey::operator==(const ZRDefaultTemplateKey &other) const
{
    // Keys that share a hash differ mostly in page number or scene page count, which are not hashed:
    // those are compared first.
    return m_pageNumber == other.m_pageNumber && m_scenePageCount == other.m_scenePageCount
        && m_defaultTemplateType == other.m_defaultTemplateType && m_pageType == other.m_pageType
        && m_alignment == other.m_alignment;
}

size_t qHash(const ZRDefaultTemplateKey &key, size_t seed) noexcept
{
    const size_t alignment = static_cast<uint>(key.m_alignment);
    const size_t pageType = static_cast<uint>(key.m_pageType);
    return qHash(int(key.defaultTemplateType()), 0) ^ (alignment << 3) ^ (pageType << 6) ^ seed;
}
