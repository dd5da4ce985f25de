#ifndef ZRDLPTYPE_H
#define ZRDLPTYPE_H

#include "ZREnumWrapper.h"
#include "zrcore_export.h"

/** Type of a download package. Keys: "background" 1, "style" 2, "design" 4, "clipart" 8, "mask" 16, "layout" 32,
 * "storybook" 64, "colorpalette" 1024, "texture" 2048. */
enum ZRDlpTypeEnum : int
{
    ZRDlpTypeBackground = 1,
    ZRDlpTypeStyle = 2,
    ZRDlpTypeDesign = 4,
    ZRDlpTypeClipart = 8,
    ZRDlpTypeMask = 16,
    ZRDlpTypeLayout = 32,
    ZRDlpTypeStorybook = 64,
    ZRDlpTypeColorPalette = 1024,
    ZRDlpTypeTexture = 2048,
};

extern template class ZRCORE_EXPORT ZREnumWrapper<ZRDlpTypeEnum>;

/** ZRDlpType: a ZRDlpTypeEnum flag set; built from comma-separated keys, case and blanks ignored. */
class ZRCORE_EXPORT ZRDlpType : public ZREnumWrapper<ZRDlpTypeEnum>
{
public:
    ZRDlpType(ZRDlpTypeEnum value = ZRDlpTypeEnum(0));
    explicit ZRDlpType(const QString &keys);

protected:
    void fillTable(Table *table) const override;
};

#endif
