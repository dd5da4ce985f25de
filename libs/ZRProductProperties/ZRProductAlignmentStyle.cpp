#include "ZRProductAlignmentStyle.h"

template class ZREnumWrapper<ZRProductAlignmentStyleEnum>;

ZRProductAlignmentStyle::ZRProductAlignmentStyle(ZRProductAlignmentStyleEnum value)
    : ZREnumWrapper(value)
{ }

ZRProductAlignmentStyle::ZRProductAlignmentStyle(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRProductAlignmentStyle::fillTable(Table *table) const
{
    table->insert({
        { "normal", ZRProductAlignmentNormal },
        { "card", ZRProductAlignmentCard },
        { "vario_card", ZRProductAlignmentVarioCard },
        { "collegeblock", ZRProductAlignmentCollegeBlock },
        { "foto_advent_calendar", ZRProductAlignmentFotoAdventCalendar },
    });
}

bool ZRProductAlignmentStyle::hasOnlySinglePages() const
{
    return m_value == ZRProductAlignmentCard || m_value == ZRProductAlignmentCollegeBlock
        || m_value == ZRProductAlignmentFotoAdventCalendar;
}

void ZRProductAlignmentStyle::expandToKeyword(const QString &keyword)
{
    expandTo(decoded(keyword));
}
