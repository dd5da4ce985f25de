#ifndef ZRPRODUCTALIGNMENTSTYLE_H
#define ZRPRODUCTALIGNMENTSTYLE_H

#include "ZREnumWrapper.h"
#include "zrproductproperties_export.h"

/** How the pages of a product are laid out. Keys: "normal" 0, "card" 1, "vario_card" 2, "collegeblock" 4,
 * "foto_advent_calendar" 8. */
enum ZRProductAlignmentStyleEnum : int
{
    ZRProductAlignmentNormal = 0,
    ZRProductAlignmentCard = 1,
    ZRProductAlignmentVarioCard = 2,
    ZRProductAlignmentCollegeBlock = 4,
    ZRProductAlignmentFotoAdventCalendar = 8,
};

extern template class ZRPRODUCTPROPERTIES_EXPORT ZREnumWrapper<ZRProductAlignmentStyleEnum>;

/** ZRProductAlignmentStyle: a ZRProductAlignmentStyleEnum flag set; built from comma-separated keys, case and blanks
 * ignored. */
class ZRPRODUCTPROPERTIES_EXPORT ZRProductAlignmentStyle : public ZREnumWrapper<ZRProductAlignmentStyleEnum>
{
public:
    ZRProductAlignmentStyle(ZRProductAlignmentStyleEnum value = ZRProductAlignmentStyleEnum(0));
    explicit ZRProductAlignmentStyle(const QString &keys);
    /** True exactly for "card", "collegeblock" and "foto_advent_calendar" alone; false for combinations. */
    bool hasOnlySinglePages() const;
    /** Decodes @p keyword and widens this value by it through expandTo(E). */
    void expandToKeyword(const QString &keyword);

protected:
    void fillTable(Table *table) const override;
};

#endif
