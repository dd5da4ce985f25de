#include "ZRPageAlignment.h"

template class ZREnumWrapper<ZRPageAlignmentEnum>;

ZRPageAlignment::ZRPageAlignment(ZRPageAlignmentEnum value)
    : ZREnumWrapper(value)
{ }

ZRPageAlignment::ZRPageAlignment(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRPageAlignment::fillTable(Table *table) const
{
    table->insert({
        { "left", ZRPageAlignmentLeft },
        { "right", ZRPageAlignmentRight },
        { "center", ZRPageAlignmentCenter },
        { "top", ZRPageAlignmentTop },
        { "bottom", ZRPageAlignmentBottom },
        { "middle", ZRPageAlignmentMiddle },
        { "all", ZRPageAlignmentAll },
    });
}
