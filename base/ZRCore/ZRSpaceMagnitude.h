#ifndef ZRSPACEMAGNITUDE_H
#define ZRSPACEMAGNITUDE_H

#include "ZREnumWrapper.h"
#include "zrcore_export.h"

/** Size class of an article. Keys: "xs" 2, "s" 4, "m_square" 8, "m_landscape" 16, "m" 32, "l_square" 64, "l" 128,
 * "xl_square" 256, "xxl" 512. */
enum ZRSpaceMagnitudeEnum : int
{
    ZRSpaceMagnitudeXS = 2,
    ZRSpaceMagnitudeS = 4,
    ZRSpaceMagnitudeMSquare = 8,
    ZRSpaceMagnitudeMLandscape = 16,
    ZRSpaceMagnitudeM = 32,
    ZRSpaceMagnitudeLSquare = 64,
    ZRSpaceMagnitudeL = 128,
    ZRSpaceMagnitudeXLSquare = 256,
    ZRSpaceMagnitudeXXL = 512,
};

extern template class ZRCORE_EXPORT ZREnumWrapper<ZRSpaceMagnitudeEnum>;

/** ZRSpaceMagnitude: a ZRSpaceMagnitudeEnum flag set; built from comma-separated keys, case and blanks ignored. */
class ZRCORE_EXPORT ZRSpaceMagnitude : public ZREnumWrapper<ZRSpaceMagnitudeEnum>
{
public:
    ZRSpaceMagnitude(ZRSpaceMagnitudeEnum value = ZRSpaceMagnitudeEnum(0));
    explicit ZRSpaceMagnitude(const QString &keys);

protected:
    void fillTable(Table *table) const override;
};

#endif
