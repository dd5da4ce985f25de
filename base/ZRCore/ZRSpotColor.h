#ifndef ZRSPOTCOLOR_H
#define ZRSPOTCOLOR_H

#include "ZREnumWrapper.h"
#include "zrcore_export.h"

/** Finishing spot colour. Keys: "none" 0, "emboss" 1 (emboss varnish), "gold" 2, "silver" 4, "rosegold" 8,
 * "silverink" 16. */
enum ZRSpotColorEnum : int
{
    ZRSpotColorNone = 0,
    ZRSpotColorEmboss = 1,
    ZRSpotColorGold = 2,
    ZRSpotColorSilver = 4,
    ZRSpotColorRoseGold = 8,
    ZRSpotColorSilverInk = 16,
};

extern template class ZRCORE_EXPORT ZREnumWrapper<ZRSpotColorEnum>;

/** ZRSpotColor: a ZRSpotColorEnum flag set; built from comma-separated keys, case and blanks ignored. */
class ZRCORE_EXPORT ZRSpotColor : public ZREnumWrapper<ZRSpotColorEnum>
{
public:
    ZRSpotColor(ZRSpotColorEnum value = ZRSpotColorEnum(0));
    explicit ZRSpotColor(const QString &keys);

protected:
    void fillTable(Table *table) const override;
};

#endif
