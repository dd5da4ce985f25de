#include "ZRProductionExtraPageGroupList.h"

#include "ZRPageListDecoder.h"
#include "ZRXMLVocabulary.h"

namespace {
const ZRXMLVocabulary vocabulary(QStringLiteral("extra_production_pages"), {}, { QStringLiteral("item") });
}

ZRProductionExtraPageGroupList::ZRProductionExtraPageGroupList() = default;

ZRProductionExtraPageGroupList::ZRProductionExtraPageGroupList(const QDomElement &element)
{
    vocabulary.check(element);
    qint64 pages = 0;
    for (QDomElement item = element.firstChildElement(QStringLiteral("item")); !item.isNull();
         item = item.nextSiblingElement(QStringLiteral("item"))) {
        m_groups.append(ZRProductionExtraPageGroup(item));
        pages += m_groups.constLast().targetPages().size();
        if (!ZRPageListDecoder::isWithinLimit(pages, element)) {
            m_groups.clear();
            return;
        }
    }
}

ZRProductionExtraPageGroupList::~ZRProductionExtraPageGroupList() = default;

int ZRProductionExtraPageGroupList::totalPages() const
{
    int total = 0;
    for (const ZRProductionExtraPageGroup &group : m_groups)
        total += group.targetPages().size();
    return total;
}

bool ZRProductionExtraPageGroupList::operator==(const ZRProductionExtraPageGroupList &other) const
{
    return m_groups == other.m_groups;
}

bool ZRProductionExtraPageGroupList::operator!=(const ZRProductionExtraPageGroupList &other) const
{
    return !(*this == other);
}
