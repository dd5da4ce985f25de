#ifndef ZRFOTOPAPERTYPE_H
#define ZRFOTOPAPERTYPE_H

#include "ZREnumWrapper.h"
#include "zrcore_export.h"

/** Surface of photo paper. Keys: "matt" 1, "glossy" 2, "silk" 4, "pearl" 8, "fineart" 16. */
enum ZRFotoPaperTypeEnum : int
{
    ZRFotoPaperTypeMatt = 1,
    ZRFotoPaperTypeGlossy = 2,
    ZRFotoPaperTypeSilk = 4,
    ZRFotoPaperTypePearl = 8,
    ZRFotoPaperTypeFineArt = 16,
};

extern template class ZRCORE_EXPORT ZREnumWrapper<ZRFotoPaperTypeEnum>;

/** ZRFotoPaperType: a ZRFotoPaperTypeEnum flag set; built from comma-separated keys, case and blanks ignored. */
class ZRCORE_EXPORT ZRFotoPaperType : public ZREnumWrapper<ZRFotoPaperTypeEnum>
{
public:
    ZRFotoPaperType(ZRFotoPaperTypeEnum value = ZRFotoPaperTypeEnum(0));
    explicit ZRFotoPaperType(const QString &keys);
    /** The display name, translated in the context "ZRFotoPaperType"; empty for 0 and combinations. */
    QString humanReadableName() const;

protected:
    void fillTable(Table *table) const override;
};

#endif
