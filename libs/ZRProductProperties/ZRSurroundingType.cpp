#include "ZRSurroundingType.h"

template class ZREnumWrapper<ZRSurroundingTypeEnum>;

ZRSurroundingType::ZRSurroundingType(ZRSurroundingTypeEnum value)
    : ZREnumWrapper(value)
{ }

ZRSurroundingType::ZRSurroundingType(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRSurroundingType::fillTable(Table *table) const
{
    table->insert({
        { "BOOK", ZRSurroundingTypeBook },
        { "PHOTOPAPERBOOK", ZRSurroundingTypePhotoPaperBook },
        { "GIFT", ZRSurroundingTypeGift },
        { "BORDER", ZRSurroundingTypeBorder },
        { "CALENDAR", ZRSurroundingTypeCalendar },
        { "FRAME", ZRSurroundingTypeFrame },
        { "FRAME_COMBINED", ZRSurroundingTypeFrameCombined },
        { "COLLEGEBLOCK", ZRSurroundingTypeCollegeBlock },
        { "KIDS", ZRSurroundingTypeKids },
        { "NOTEBOOK", ZRSurroundingTypeNotebook },
        { "ADVENTCALENDAR", ZRSurroundingTypeAdventCalendar },
        { "TILED", ZRSurroundingTypeTiled },
        { "VARIANT_TEMPLATE", ZRSurroundingTypeVariantTemplate },
        { "SLIPCASE", ZRSurroundingTypeSlipcase },
        { "POSTER_WITH_CUTOUT", ZRSurroundingTypePosterWithCutout },
        { "XMAS_PENDANT", ZRSurroundingTypeXmasPendant },
        { "CALENDAR_WITH_PERFORATION", ZRSurroundingTypeCalendarWithPerforation },
        { "CALENDAR_FINELINE", ZRSurroundingTypeCalendarFineline },
    });
}
