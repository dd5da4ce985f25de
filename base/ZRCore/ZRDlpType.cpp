#include "ZRDlpType.h"

template class ZREnumWrapper<ZRDlpTypeEnum>;

ZRDlpType::ZRDlpType(ZRDlpTypeEnum value)
    : ZREnumWrapper(value)
{ }

ZRDlpType::ZRDlpType(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRDlpType::fillTable(Table *table) const
{
    table->insert({
        { "background", ZRDlpTypeBackground },
        { "style", ZRDlpTypeStyle },
        { "design", ZRDlpTypeDesign },
        { "clipart", ZRDlpTypeClipart },
        { "mask", ZRDlpTypeMask },
        { "layout", ZRDlpTypeLayout },
        { "storybook", ZRDlpTypeStorybook },
        { "colorpalette", ZRDlpTypeColorPalette },
        { "texture", ZRDlpTypeTexture },
    });
}
