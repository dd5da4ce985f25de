#ifndef ZRDISTANCEUNIT_H
#define ZRDISTANCEUNIT_H

#include "ZREnumWrapper.h"
#include "zrcore_export.h"

/** Unit of a length. Keys: "tenth_mm" 1 (tenths of a millimetre, the unit of description files), "mm" 2, "inch" 4, "cm"
 * 8, "pt" 16. */
enum ZRDistanceUnitEnum : int
{
    ZRDistanceUnitTenthMM = 1,
    ZRDistanceUnitMM = 2,
    ZRDistanceUnitInch = 4,
    ZRDistanceUnitCM = 8,
    ZRDistanceUnitPoint = 16,
};

extern template class ZRCORE_EXPORT ZREnumWrapper<ZRDistanceUnitEnum>;

/** ZRDistanceUnit: a ZRDistanceUnitEnum flag set; built from comma-separated keys, case and blanks ignored. */
class ZRCORE_EXPORT ZRDistanceUnit : public ZREnumWrapper<ZRDistanceUnitEnum>
{
public:
    ZRDistanceUnit(ZRDistanceUnitEnum value = ZRDistanceUnitEnum(0));
    explicit ZRDistanceUnit(const QString &keys);
    /** The unit's display name, translated in the context "ZRDistanceUnit"; empty for 0 and combinations. */
    QString humanReadableName() const;

protected:
    void fillTable(Table *table) const override;
};

#endif
