#ifndef ZRIMAGEFXS_H
#define ZRIMAGEFXS_H

#include "ZREnumWrapper.h"
#include "zrproductproperties_export.h"

/** Image effects of an element. Keys: "grayscale" 1 (synonym "gray"), "none" 0, "PRESERVE_ALPHA_CHANNEL" 4. */
enum ZRImageFXsEnum : int
{
    ZRImageFXsGrayscale = 1,
    ZRImageFXsNone = 0,
    ZRImageFXsPreserveAlphaChannel = 4,
};

extern template class ZRPRODUCTPROPERTIES_EXPORT ZREnumWrapper<ZRImageFXsEnum>;

/** ZRImageFXs: a ZRImageFXsEnum flag set; built from comma-separated keys, case and blanks ignored. */
class ZRPRODUCTPROPERTIES_EXPORT ZRImageFXs : public ZREnumWrapper<ZRImageFXsEnum>
{
public:
    ZRImageFXs(ZRImageFXsEnum value = ZRImageFXsEnum(0));
    explicit ZRImageFXs(const QString &keys);
    /** True when the grayscale flag is set, alone or with others. */
    bool isGray() const { return intersects(ZRImageFXsGrayscale); }

protected:
    void fillTable(Table *table) const override;
};

#endif
