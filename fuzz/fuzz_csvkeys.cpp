// Comma-separated key lists of the enumerated attributes. The first byte picks the key table, the rest
// is the attribute text.

#include "FuzzSupport.h"

#include "ZRArticleClass.h"
#include "ZRCoverType.h"
#include "ZRDistanceUnit.h"
#include "ZRDlpType.h"
#include "ZRFotoBookShape.h"
#include "ZRFotoPaperType.h"
#include "ZRImageFXs.h"
#include "ZRJigType.h"
#include "ZROrientation.h"
#include "ZRPageAlignment.h"
#include "ZRPageBinding.h"
#include "ZRPageNamingStyle.h"
#include "ZRPageType.h"
#include "ZRPaperType.h"
#include "ZRProductAlignmentStyle.h"
#include "ZRSpaceMagnitude.h"
#include "ZRSpotColor.h"
#include "ZRSurroundingType.h"
#include "ZRXMLRewriterStrategy.h"

namespace {
/**
 * Decodes @p text with the table of @p W and encodes the result again. A value made only of keyed flags
 * survives the round trip: every key written out decodes to the flag it was written for.
 */
template<typename W> void roundTrip(const QString &text)
{
    const W probe;
    const auto *table = probe.enumToStringTable();
    const auto value = table->decodeCSV(text);
    FuzzSupport::check(W(text).value() == value, "the text constructor decodes like the table");

    const QString encoded = table->encodeCSV(value);
    const QStringList keys = table->encodeAsList(value);
    const auto bits = table->splitToBits(value);
    table->keyOf(value);
    table->containsKey(text);
    FuzzSupport::check(keys.size() == bits.size(), "one key per flag");

    using Signed = typename W::Signed;
    if (static_cast<Signed>(value) < 1)
        return;
    for (const auto bit : bits) {
        if (!table->valueToString().contains(bit))
            return;
    }
    FuzzSupport::check(table->decodeCSV(encoded) == value, "keyed flags survive encoding and decoding");
}

using RoundTrip = void (*)(const QString &);
constexpr RoundTrip tables[] = {
    roundTrip<ZRPageType>,
    roundTrip<ZRPageAlignment>,
    roundTrip<ZRPageBinding>,
    roundTrip<ZRArticleClass>,
    roundTrip<ZRCoverType>,
    roundTrip<ZRSpotColor>,
    roundTrip<ZRDistanceUnit>,
    roundTrip<ZRPaperType>,
    roundTrip<ZRFotoPaperType>,
    roundTrip<ZRSpaceMagnitude>,
    roundTrip<ZROrientation>,
    roundTrip<ZRDlpType>,
    roundTrip<ZRJigType>,
    roundTrip<ZRImageFXs>,
    roundTrip<ZRSurroundingType>,
    roundTrip<ZRPageNamingStyle>,
    roundTrip<ZRXMLRewriterStrategy>,
    roundTrip<ZRFotoBookShape>,
    roundTrip<ZRProductAlignmentStyle>,
};
} // namespace

void fuzzSetUp() { }

void fuzzOneInput(const uint8_t *data, size_t size)
{
    FuzzSupport::Reader input(data, size);
    const RoundTrip roundTrip = tables[input.byte() % std::size(tables)];
    roundTrip(input.rest());
}
