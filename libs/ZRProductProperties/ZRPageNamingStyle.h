#ifndef ZRPAGENAMINGSTYLE_H
#define ZRPAGENAMINGSTYLE_H

#include "ZREnumWrapper.h"
#include "zrproductproperties_export.h"

#include <QDomElement>

/** How the editor names the pages of a product. "none" is a flag of its own (bit 21), not 0; "slipcase" is bit 31, so
 * encodeCSV() of any value holding it gives "UNKOWN". Values without a key encode as "UNKOWN". */
enum ZRPageNamingStyleEnum : quint32
{
    ZRPageNamingNone = 0x200000,
    ZRPageNamingBook = 1,
    ZRPageNamingCalendar = 2,
    ZRPageNamingSingleSidedCard = 4,
    ZRPageNamingBothSidedCard = 8,
    ZRPageNamingMemory = 16,
    ZRPageNamingCollegeBlock = 32,
    ZRPageNamingSticker = 256,
    ZRPageNamingAddressBook = 512,
    ZRPageNamingPremiumPillow = 64,
    ZRPageNamingCalendarAnnualDuplex = 1024,
    ZRPageNamingPlayingCards = 2048,
    ZRPageNamingQuartetCards = 8192,
    ZRPageNamingSheepsheadCards = 65536,
    ZRPageNamingNumberedCards = 16384,
    ZRPageNamingAgenda = 32768,
    ZRPageNamingPostcard = 131072,
    ZRPageNamingArtPrint = 262144,
    ZRPageNamingAdventCalendar = 524288,
    ZRPageNamingDeluxeAdventCalendar = 4194304,
    ZRPageNamingMiniPrint = 1048576,
    ZRPageNamingPictureBox = 8388608,
    ZRPageNamingMagnet = 16777216,
    ZRPageNamingAdventCalendarDoorBackprint = 33554432,
    ZRPageNamingKidsBook = 67108864,
    ZRPageNamingCardWithInsertedCard = 134217728,
    ZRPageNamingLayingGame = 268435456,
    ZRPageNamingPosterWithCutout = 536870912,
    ZRPageNamingAdv41 = 1073741824,
    ZRPageNamingSlipcase = 0x80000000u,
    ZRPageNamingUnknown = 0,
};

extern template class ZRPRODUCTPROPERTIES_EXPORT ZREnumWrapper<ZRPageNamingStyleEnum>;

/** ZRPageNamingStyle: a ZRPageNamingStyleEnum flag set; built from comma-separated keys, case and blanks ignored. */
class ZRPRODUCTPROPERTIES_EXPORT ZRPageNamingStyle : public ZREnumWrapper<ZRPageNamingStyleEnum>
{
public:
    ZRPageNamingStyle(ZRPageNamingStyleEnum value = ZRPageNamingStyleEnum(0));
    explicit ZRPageNamingStyle(const QString &keys);
    /** The attribute that holds the style as a number: "pagenaming". */
    static QString defaultAttributeName();
    /** The style whose value is the integer attribute "pagenaming" of @p element (0 when missing). */
    static ZRPageNamingStyle fromXml(const QDomElement &element);
    /** Writes the value as the integer attribute "pagenaming" (bit 31 as a negative number). */
    void toXml(QDomElement &element) const;

protected:
    void fillTable(Table *table) const override;
};

#endif
