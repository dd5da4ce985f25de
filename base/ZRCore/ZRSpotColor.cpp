#include "ZRSpotColor.h"

template class ZREnumWrapper<ZRSpotColorEnum>;

ZRSpotColor::ZRSpotColor(ZRSpotColorEnum value)
    : ZREnumWrapper(value)
{ }

ZRSpotColor::ZRSpotColor(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRSpotColor::fillTable(Table *table) const
{
    table->insert({
        { "none", ZRSpotColorNone },
        { "emboss", ZRSpotColorEmboss },
        { "gold", ZRSpotColorGold },
        { "silver", ZRSpotColorSilver },
        { "rosegold", ZRSpotColorRoseGold },
        { "silverink", ZRSpotColorSilverInk },
    });
}
