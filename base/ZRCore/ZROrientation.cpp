#include "ZROrientation.h"

template class ZREnumWrapper<ZROrientationEnum>;

ZROrientation::ZROrientation(ZROrientationEnum value)
    : ZREnumWrapper(value)
{ }

ZROrientation::ZROrientation(const QString &keys)
{
    m_value = decoded(keys);
}

void ZROrientation::fillTable(Table *table) const
{
    table->insert({
        { "portrait", ZROrientationPortrait },
        { "landscape", ZROrientationLandscape },
        { "quadratic", ZROrientationQuadratic },
    });
}

ZROrientation ZROrientation::fromSize(const QSize &size)
{
    if (size.width() == size.height())
        return ZROrientation(ZROrientationQuadratic);
    return ZROrientation(size.width() > size.height() ? ZROrientationLandscape : ZROrientationPortrait);
}
