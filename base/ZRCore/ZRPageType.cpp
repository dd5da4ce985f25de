#include "ZRPageType.h"

template class ZREnumWrapper<ZRPageTypeEnum>;

ZRPageType::ZRPageType(ZRPageTypeEnum value)
    : ZREnumWrapper(value)
{ }

ZRPageType::ZRPageType(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRPageType::fillTable(Table *table) const
{
    table->insert({
        { "spine", ZRPageTypeSpine },
        { "photo", ZRPageTypePhoto },
        { "grid", ZRPageTypeGrid },
        { "content", ZRPageTypeContent },
        { "title", ZRPageTypeTitle },
        { "cover_front", ZRPageTypeCoverFront },
        { "cover_back", ZRPageTypeCoverBack },
        { "cover_flap", ZRPageTypeCoverFlap },
        { "cover_inside_front", ZRPageTypeCoverInsideFront },
        { "cover_inside_back", ZRPageTypeCoverInsideBack },
        { "door", ZRPageTypeDoor },
        { "content_pages", ZRPageTypeContentPages },
        { "calendar_sheets_grid_first", ZRPageTypeCalendarSheetsGridFirst },
        { "calendar_sheets_double", ZRPageTypeCalendarSheetsDouble },
        { "calendar_sheets", ZRPageTypeCalendarSheets },
        { "advent_doors", ZRPageTypeAdventDoors },
        { "wrap_back", ZRPageTypeWrapBack },
        { "wrap_spine", ZRPageTypeWrapSpine },
        { "wrap_flap", ZRPageTypeWrapFlap },
        { "wrap_front", ZRPageTypeWrapFront },
        { "wrap_cover", ZRPageTypeWrapCover },
        { "panorama", ZRPageTypePanorama },
        { "single_start", ZRPageTypeSingleStart },
        { "photo_page", ZRPageTypePhotoPage },
        { "grid_page", ZRPageTypeGridPage },
        { "door_page", ZRPageTypeDoorPage },
        { "panorama_page", ZRPageTypePanoramaPage },
        { "single_start_page", ZRPageTypeSingleStartPage },
        { "inside_covers", ZRPageTypeInsideCovers },
        { "covers", ZRPageTypeCovers },
        { "all", ZRPageTypeAll },
    });
}
