#ifndef ZRPAGETYPE_H
#define ZRPAGETYPE_H

#include "ZREnumWrapper.h"
#include "zrcore_export.h"

/**
 * Kinds of page, as flags. Compound page types are unions of flags (a panorama content page is
 * "panorama,content"); page lists, which separate their entries by commas, name a compound type by its
 * own key ("panorama_page"). Keys, as read from and written to product descriptions (a value is written
 * flag by flag, so compound keys are only read):
 *
 * | Key                        | Value    | Meaning |
 * |----------------------------|----------|---------|
 * | "spine"                    | 0x1      | the spine of a bound cover |
 * | "photo"                    | 0x2      | flag: a page that carries the photo of a sheet ("photo,content" = 10) |
 * | "grid"                     | 0x4      | flag: a page that carries the calendar grid ("grid,content" = 12) |
 * | "content"                  | 0x8      | an inner content page |
 * | "title"                    | 0x10     | the title page |
 * | "cover_front"              | 0x20     | the front cover |
 * | "cover_back"               | 0x40     | the back cover; it takes the place of one content page |
 * | "cover_flap"               | 0x80     | a cover flap |
 * | "cover_inside_front"       | 0x100    | the inside of the front cover |
 * | "cover_inside_back"        | 0x200    | the inside of the back cover |
 * | "door"                     | 0x400    | flag: an advent calendar door ("door,content" = 0x408) |
 * | "content_pages"            | 0x800    | placeholder: one content page per content page of the product |
 * | "calendar_sheets_grid_first" | 0x1000 | placeholder: grid and photo pages alternating, grid first |
 * | "calendar_sheets_double"   | 0x2000   | placeholder: photo, photo, grid, grid, ... |
 * | "calendar_sheets"          | 0x4000   | placeholder: photo and grid pages alternating, photo first |
 * | "advent_doors"             | 0x8000   | placeholder: one content page and 24 door pages |
 * | "wrap_back"                | 0x10000  | back part of a one-piece cover |
 * | "wrap_spine"               | 0x20000  | spine part of a one-piece cover |
 * | "wrap_flap"                | 0x40000  | flap part of a one-piece cover |
 * | "wrap_front"               | 0x80000  | front part of a one-piece cover |
 * | "wrap_cover"               | 0x100000 | placeholder: a one-piece cover (front, spine, flap, back) |
 * | "panorama"                 | 0x200000 | flag: a page spread over two ("panorama,content" = 0x200008) |
 * | "single_start"             | 0x400000 | flag: a first page that stands alone ("single_start,content" = 0x400008) |
 * | "photo_page"               | 10       | "photo,content" as one key, for page lists |
 * | "grid_page"                | 12       | "grid,content" as one key |
 * | "door_page"                | 0x408    | "door,content" as one key |
 * | "panorama_page"            | 0x200008 | "panorama,content" as one key |
 * | "single_start_page"        | 0x400008 | "single_start,content" as one key |
 * | "inside_covers"            | 0x300    | both insides of the cover |
 * | "covers"                   | 0xF03E1  | every cover page type |
 * | "all"                      | 0xF03F9  | every page type that a page can really have |
 */
enum ZRPageTypeEnum : int
{
    ZRPageTypeNone = 0,
    ZRPageTypeSpine = 0x1,
    ZRPageTypePhoto = 0x2,
    ZRPageTypeGrid = 0x4,
    ZRPageTypeContent = 0x8,
    ZRPageTypeTitle = 0x10,
    ZRPageTypeCoverFront = 0x20,
    ZRPageTypeCoverBack = 0x40,
    ZRPageTypeCoverFlap = 0x80,
    ZRPageTypeCoverInsideFront = 0x100,
    ZRPageTypeCoverInsideBack = 0x200,
    ZRPageTypeDoor = 0x400,
    ZRPageTypeContentPages = 0x800,
    ZRPageTypeCalendarSheetsGridFirst = 0x1000,
    ZRPageTypeCalendarSheetsDouble = 0x2000,
    ZRPageTypeCalendarSheets = 0x4000,
    ZRPageTypeAdventDoors = 0x8000,
    ZRPageTypeWrapBack = 0x10000,
    ZRPageTypeWrapSpine = 0x20000,
    ZRPageTypeWrapFlap = 0x40000,
    ZRPageTypeWrapFront = 0x80000,
    ZRPageTypeWrapCover = 0x100000,
    ZRPageTypePanorama = 0x200000,
    ZRPageTypeSingleStart = 0x400000,

    ZRPageTypePhotoPage = ZRPageTypePhoto | ZRPageTypeContent, // 10
    ZRPageTypeGridPage = ZRPageTypeGrid | ZRPageTypeContent, // 12
    ZRPageTypeDoorPage = ZRPageTypeDoor | ZRPageTypeContent, // 0x408
    ZRPageTypePanoramaPage = ZRPageTypePanorama | ZRPageTypeContent, // 0x200008
    ZRPageTypeSingleStartPage = ZRPageTypeSingleStart | ZRPageTypeContent, // 0x400008
    ZRPageTypeInsideCovers = ZRPageTypeCoverInsideFront | ZRPageTypeCoverInsideBack, // 0x300
    ZRPageTypeCovers = 0xF03E1,
    ZRPageTypeAll = 0xF03F9,
};

extern template class ZRCORE_EXPORT ZREnumWrapper<ZRPageTypeEnum>;

/** A page type flag set; built from comma-separated keys, case and blanks ignored. */
class ZRCORE_EXPORT ZRPageType : public ZREnumWrapper<ZRPageTypeEnum>
{
public:
    ZRPageType(ZRPageTypeEnum value = ZRPageTypeNone);
    explicit ZRPageType(const QString &keys);

protected:
    void fillTable(Table *table) const override;
};

#endif
