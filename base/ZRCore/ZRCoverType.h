#ifndef ZRCOVERTYPE_H
#define ZRCOVERTYPE_H

#include "ZREnumWrapper.h"
#include "zrcore_export.h"

/** Cover (binding) type of a product. Keys: "hardcover" 1, "softcover" 2, "layflat" 4, "spiral" 8, "folded" 16,
 * "single" 32 (one sheet printed on one side), "duplex" 64, "wrapped" 128 (one print wrapped round an object). */
enum ZRCoverTypeEnum : int
{
    ZRCoverTypeHardcover = 1,
    ZRCoverTypeSoftcover = 2,
    ZRCoverTypeLayflat = 4,
    ZRCoverTypeSpiral = 8,
    ZRCoverTypeFolded = 16,
    ZRCoverTypeSingle = 32,
    ZRCoverTypeDuplex = 64,
    ZRCoverTypeWrapped = 128,
};

extern template class ZRCORE_EXPORT ZREnumWrapper<ZRCoverTypeEnum>;

/** ZRCoverType: a ZRCoverTypeEnum flag set; built from comma-separated keys, case and blanks ignored. */
class ZRCORE_EXPORT ZRCoverType : public ZREnumWrapper<ZRCoverTypeEnum>
{
public:
    ZRCoverType(ZRCoverTypeEnum value = ZRCoverTypeEnum(0));
    explicit ZRCoverType(const QString &keys);
    /** True for products printed on one side only ("single" and "wrapped"). */
    bool isSimplex() const;

protected:
    void fillTable(Table *table) const override;
};

#endif
