#include "ZRImageFXs.h"

template class ZREnumWrapper<ZRImageFXsEnum>;

ZRImageFXs::ZRImageFXs(ZRImageFXsEnum value)
    : ZREnumWrapper(value)
{ }

ZRImageFXs::ZRImageFXs(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRImageFXs::fillTable(Table *table) const
{
    table->insert({
        { "grayscale", ZRImageFXsGrayscale },
        { "gray", ZRImageFXsGrayscale },
        { "none", ZRImageFXsNone },
        { "none", ZRImageFXsNone },
        { "PRESERVE_ALPHA_CHANNEL", ZRImageFXsPreserveAlphaChannel },
    });
}
