#include "ZRProductionExtraPageGroup.h"

#include "ZRPageListDecoder.h"
#include "ZRXMLVocabulary.h"

namespace {
const ZRXMLVocabulary vocabulary(QStringLiteral("item"), {}, { QStringLiteral("target_pages"), QStringLiteral("pdf") });
const ZRXMLVocabulary targetPagesVocabulary(QStringLiteral("target_pages"), {}, {});
} // namespace

ZRProductionExtraPageGroup::ZRProductionExtraPageGroup() = default;

ZRProductionExtraPageGroup::ZRProductionExtraPageGroup(const QDomElement &element)
    : m_targetPages(decodeIntList(element.firstChildElement(QStringLiteral("target_pages"))))
    , m_content(element.firstChildElement(QStringLiteral("pdf")))
{
    vocabulary.check(element);
}

ZRProductionExtraPageGroup::~ZRProductionExtraPageGroup() = default;

QList<int> ZRProductionExtraPageGroup::decodeIntList(const QDomElement &element) const
{
    targetPagesVocabulary.check(element);
    return ZRPageListDecoder::decode(element.text(), ZRPageListDecoder::LenientRanges, element);
}

bool ZRProductionExtraPageGroup::operator==(const ZRProductionExtraPageGroup &other) const
{
    return m_targetPages == other.m_targetPages && m_content == other.m_content;
}

bool ZRProductionExtraPageGroup::operator!=(const ZRProductionExtraPageGroup &other) const
{
    return !(*this == other);
}
