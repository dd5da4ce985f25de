#ifndef ZRARTICLECLASS_H
#define ZRARTICLECLASS_H

#include "ZREnumWrapper.h"
#include "zrcore_export.h"

/** Article class of a product, a 64-bit flag set. Keys: "unknown" 0, "photobook" 0x1, "calendar" 0x2, "notebook" 0x4,
 * "card" 0x8, "adventcalendar" 0x10, "mug" 0x20, "puzzle" 0x40, "photoprint" 0x80, "gift" 0x100, "walldecor" bit 44
 * (the one class that needs no cover type). */
enum ZRArticleClassEnum : quint64
{
    ZRArticleClassUnknown = 0,
    ZRArticleClassPhotoBook = 0x1,
    ZRArticleClassCalendar = 0x2,
    ZRArticleClassNotebook = 0x4,
    ZRArticleClassCard = 0x8,
    ZRArticleClassAdventCalendar = 0x10,
    ZRArticleClassMug = 0x20,
    ZRArticleClassPuzzle = 0x40,
    ZRArticleClassPhotoPrint = 0x80,
    ZRArticleClassGift = 0x100,
    ZRArticleClassWallDecor = 0x100000000000,
};

extern template class ZRCORE_EXPORT ZREnumWrapper<ZRArticleClassEnum>;

/** ZRArticleClass: a ZRArticleClassEnum flag set; built from comma-separated keys, case and blanks ignored. */
class ZRCORE_EXPORT ZRArticleClass : public ZREnumWrapper<ZRArticleClassEnum>
{
public:
    ZRArticleClass(ZRArticleClassEnum value = ZRArticleClassEnum(0));
    explicit ZRArticleClass(const QString &keys);

protected:
    void fillTable(Table *table) const override;
};

#endif
