#ifndef ZRSURROUNDINGTYPE_H
#define ZRSURROUNDINGTYPE_H

#include "ZREnumWrapper.h"
#include "zrproductproperties_export.h"

/** Kinds of surrounding (printed frames and borders). Keys are written in upper case and read in any case; there is no
 * key for 0. */
enum ZRSurroundingTypeEnum : int
{
    ZRSurroundingTypeBook = 1,
    ZRSurroundingTypePhotoPaperBook = 64,
    ZRSurroundingTypeGift = 2,
    ZRSurroundingTypeBorder = 4,
    ZRSurroundingTypeCalendar = 8,
    ZRSurroundingTypeFrame = 16,
    ZRSurroundingTypeFrameCombined = 8192,
    ZRSurroundingTypeCollegeBlock = 32,
    ZRSurroundingTypeKids = 128,
    ZRSurroundingTypeNotebook = 256,
    ZRSurroundingTypeAdventCalendar = 512,
    ZRSurroundingTypeTiled = 1024,
    ZRSurroundingTypeVariantTemplate = 2048,
    ZRSurroundingTypeSlipcase = 4096,
    ZRSurroundingTypePosterWithCutout = 16384,
    ZRSurroundingTypeXmasPendant = 32768,
    ZRSurroundingTypeCalendarWithPerforation = 65536,
    ZRSurroundingTypeCalendarFineline = 131072,
    ZRSurroundingTypeNone = 0,
};

extern template class ZRPRODUCTPROPERTIES_EXPORT ZREnumWrapper<ZRSurroundingTypeEnum>;

/** ZRSurroundingType: a ZRSurroundingTypeEnum flag set; built from comma-separated keys, case and blanks ignored. */
class ZRPRODUCTPROPERTIES_EXPORT ZRSurroundingType : public ZREnumWrapper<ZRSurroundingTypeEnum>
{
public:
    ZRSurroundingType(ZRSurroundingTypeEnum value = ZRSurroundingTypeEnum(0));
    explicit ZRSurroundingType(const QString &keys);

protected:
    void fillTable(Table *table) const override;
};

#endif
