#ifndef ZRSURROUNDINGDESCRIPTIONLIST_H
#define ZRSURROUNDINGDESCRIPTIONLIST_H

#include "ZRSurroundingDescription.h"
#include "zrproductproperties_export.h"

#include <QList>

class QDomElement;
class ZRProductType;
class ZRSurroundingKey;

/** The surroundings of a product, in document order. */
class ZRPRODUCTPROPERTIES_EXPORT ZRSurroundingDescriptionList : public QList<ZRSurroundingDescription>
{
public:
    ZRSurroundingDescriptionList();
    /** Every "surrounding" child of every "surroundings" child of @p element, in document order. */
    ZRSurroundingDescriptionList(const ZRProductType &productType, const QDomElement &element);

    /**
     * The first description that suits @p key. When none does and the key names a valid variant,
     * the first one that suits the same page without a variant. An invalid description when nothing fits.
     */
    ZRSurroundingDescription findDescription(const ZRSurroundingKey &key) const;
    bool hasSurroundingWithBindingShade() const;

private:
    const ZRSurroundingDescription *firstSuitable(const ZRSurroundingKey &key) const;
};

#endif
