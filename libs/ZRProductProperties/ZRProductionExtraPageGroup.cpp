#include "ZRProductionExtraPageGroup.h"

#include "ZRPageListDecoder.h"

ZRProductionExtraPageGroup::ZRProductionExtraPageGroup() = default;

ZRProductionExtraPageGroup::ZRProductionExtraPageGroup(const QDomElement &element)
    : m_targetPages(decodeIntList(element.firstChildElement(QStringLiteral("target_pages"))))
    , m_content(element.firstChildElement(QStringLiteral("pdf")))
{ }

ZRProductionExtraPageGroup::~ZRProductionExtraPageGroup() = default;

QList<int> ZRProductionExtraPageGroup::decodeIntList(const QDomElement &element) const
{
    return ZRPageListDecoder::decode(element.text(), ZRPageListDecoder::LenientRanges);
}

bool ZRProductionExtraPageGroup::operator==(const ZRProductionExtraPageGroup &other) const
{
    return m_targetPages == other.m_targetPages && m_content == other.m_content;
}

bool ZRProductionExtraPageGroup::operator!=(const ZRProductionExtraPageGroup &other) const
{
    return !(*this == other);
}
