#ifndef ZRPAPERTYPE_H
#define ZRPAPERTYPE_H

#include "ZREnumWrapper.h"
#include "zrcore_export.h"

/** Paper of the pages. Keys: "photo_matt" 1, "photo_glossy" 2, "digital_matt" 4, "digital_glossy" 8, "recycled" 16,
 * "premium_matt" 64, "premium_glossy" 128. */
enum ZRPaperTypeEnum : int
{
    ZRPaperTypePhotoMatt = 1,
    ZRPaperTypePhotoGlossy = 2,
    ZRPaperTypeDigitalMatt = 4,
    ZRPaperTypeDigitalGlossy = 8,
    ZRPaperTypeRecycled = 16,
    ZRPaperTypePremiumMatt = 64,
    ZRPaperTypePremiumGlossy = 128,
};

extern template class ZRCORE_EXPORT ZREnumWrapper<ZRPaperTypeEnum>;

/** ZRPaperType: a ZRPaperTypeEnum flag set; built from comma-separated keys, case and blanks ignored. */
class ZRCORE_EXPORT ZRPaperType : public ZREnumWrapper<ZRPaperTypeEnum>
{
public:
    ZRPaperType(ZRPaperTypeEnum value = ZRPaperTypeEnum(0));
    explicit ZRPaperType(const QString &keys);
    /** The display name, translated in the context "ZRPaperType"; empty for 0 and combinations. */
    QString humanReadableName() const;

protected:
    void fillTable(Table *table) const override;
};

#endif
