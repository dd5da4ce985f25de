#include "ZRSpaceMagnitude.h"

template class ZREnumWrapper<ZRSpaceMagnitudeEnum>;

ZRSpaceMagnitude::ZRSpaceMagnitude(ZRSpaceMagnitudeEnum value)
    : ZREnumWrapper(value)
{ }

ZRSpaceMagnitude::ZRSpaceMagnitude(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRSpaceMagnitude::fillTable(Table *table) const
{
    table->insert({
        { "xs", ZRSpaceMagnitudeXS },
        { "s", ZRSpaceMagnitudeS },
        { "m_square", ZRSpaceMagnitudeMSquare },
        { "m_landscape", ZRSpaceMagnitudeMLandscape },
        { "m", ZRSpaceMagnitudeM },
        { "l_square", ZRSpaceMagnitudeLSquare },
        { "l", ZRSpaceMagnitudeL },
        { "xl_square", ZRSpaceMagnitudeXLSquare },
        { "xxl", ZRSpaceMagnitudeXXL },
    });
}
