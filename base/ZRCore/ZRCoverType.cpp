#include "ZRCoverType.h"

template class ZREnumWrapper<ZRCoverTypeEnum>;

ZRCoverType::ZRCoverType(ZRCoverTypeEnum value)
    : ZREnumWrapper(value)
{ }

ZRCoverType::ZRCoverType(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRCoverType::fillTable(Table *table) const
{
    table->insert({
        { "hardcover", ZRCoverTypeHardcover },
        { "softcover", ZRCoverTypeSoftcover },
        { "layflat", ZRCoverTypeLayflat },
        { "spiral", ZRCoverTypeSpiral },
        { "folded", ZRCoverTypeFolded },
        { "single", ZRCoverTypeSingle },
        { "duplex", ZRCoverTypeDuplex },
        { "wrapped", ZRCoverTypeWrapped },
    });
}

bool ZRCoverType::isSimplex() const
{
    return intersects(ZRCoverTypeEnum(ZRCoverTypeSingle | ZRCoverTypeWrapped));
}
