#include "ZRPageNamingStyle.h"

#include "ZRXMLParser.h"

template class ZREnumWrapper<ZRPageNamingStyleEnum>;

ZRPageNamingStyle::ZRPageNamingStyle(ZRPageNamingStyleEnum value)
    : ZREnumWrapper(value)
{ }

ZRPageNamingStyle::ZRPageNamingStyle(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRPageNamingStyle::fillTable(Table *table) const
{
    table->setUnknownText(QStringLiteral("UNKOWN"));
    table->insert({
        { "none", ZRPageNamingNone },
        { "book", ZRPageNamingBook },
        { "calendar", ZRPageNamingCalendar },
        { "single_sided_card", ZRPageNamingSingleSidedCard },
        { "both_sided_card", ZRPageNamingBothSidedCard },
        { "memory", ZRPageNamingMemory },
        { "college_block", ZRPageNamingCollegeBlock },
        { "sticker", ZRPageNamingSticker },
        { "addressbook", ZRPageNamingAddressBook },
        { "premium-pillow", ZRPageNamingPremiumPillow },
        { "calendar_annual_duplex", ZRPageNamingCalendarAnnualDuplex },
        { "playing_cards", ZRPageNamingPlayingCards },
        { "quartet_cards", ZRPageNamingQuartetCards },
        { "sheepshead_cards", ZRPageNamingSheepsheadCards },
        { "numbered_cards", ZRPageNamingNumberedCards },
        { "agenda", ZRPageNamingAgenda },
        { "postcard", ZRPageNamingPostcard },
        { "art_print", ZRPageNamingArtPrint },
        { "adventcalendar", ZRPageNamingAdventCalendar },
        { "deluxeadventcalendar", ZRPageNamingDeluxeAdventCalendar },
        { "mini_print", ZRPageNamingMiniPrint },
        { "picture_box", ZRPageNamingPictureBox },
        { "magnet", ZRPageNamingMagnet },
        { "adventcalendar_door_backprint", ZRPageNamingAdventCalendarDoorBackprint },
        { "kids_book", ZRPageNamingKidsBook },
        { "card_with_inserted_card", ZRPageNamingCardWithInsertedCard },
        { "laying_game", ZRPageNamingLayingGame },
        { "poster_with_cutout", ZRPageNamingPosterWithCutout },
        { "adv41", ZRPageNamingAdv41 },
        { "slipcase", ZRPageNamingSlipcase },
    });
}

QString ZRPageNamingStyle::defaultAttributeName()
{
    return QStringLiteral("pagenaming");
}

ZRPageNamingStyle ZRPageNamingStyle::fromXml(const QDomElement &element)
{
    return ZRPageNamingStyle(ZRPageNamingStyleEnum(ZRXMLParser::intAttribute(element, defaultAttributeName(), 0)));
}

void ZRPageNamingStyle::toXml(QDomElement &element) const
{
    element.setAttribute(defaultAttributeName(), QString::number(signedValue()));
}
