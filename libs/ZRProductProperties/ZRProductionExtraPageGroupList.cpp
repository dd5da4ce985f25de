#include "ZRProductionExtraPageGroupList.h"

ZRProductionExtraPageGroupList::ZRProductionExtraPageGroupList() = default;

ZRProductionExtraPageGroupList::ZRProductionExtraPageGroupList(const QDomElement &element)
{
    for (QDomElement item = element.firstChildElement(QStringLiteral("item")); !item.isNull();
         item = item.nextSiblingElement(QStringLiteral("item")))
        m_groups.append(ZRProductionExtraPageGroup(item));
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
