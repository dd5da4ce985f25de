#ifndef ZRPAGELISTDECODER_H
#define ZRPAGELISTDECODER_H

#include "zrxml_export.h"

#include <QDomNode>
#include <QList>
#include <QString>
#include <QStringView>

#include <optional>

/** An inclusive run of page numbers; empty when first is greater than last. */
struct ZRPageRange
{
    qint64 first = 0;
    qint64 last = -1;

    qint64 size() const { return last < first ? 0 : last - first + 1; }
};

/**
 * Decodes the page numbers, page ranges and integer lists of product descriptions. Every list is held
 * to ZRXMLLimits::maxListPages pages: a list that would expand to more is refused as a whole, with the
 * warning "Page list too long in the product description.", so that a range such as "0-2147483647"
 * costs nothing.
 */
class ZRXML_EXPORT ZRPageListDecoder
{
public:
    /** How a part of a comma-separated list that holds a '-' is read. */
    enum RangeRule
    {
        /** No ranges: a part is one decimal integer, and a part that is not one ("x", "3-5") is dropped. */
        NoRanges,
        /**
         * A part with a '-' is the range between its first and its last '-'-separated piece, in
         * ascending order ("7-5" gives 5, 6, 7); a piece that is not a number counts as 0, so "-3"
         * gives 0 to 3. A part without '-' that is not a number is dropped.
         */
        LenientRanges
    };

    /**
     * The pages of a comma-separated list in @p text (white space simplified, empty parts dropped), in
     * the order of the text, duplicates kept. An empty list when the list is over the limit. @p node,
     * the attribute or element the text is from, is where a diagnostics collector is told of dropped
     * parts, range ends that are not numbers and a list over the limit.
     */
    static QList<int> decode(const QString &text, RangeRule rule, const QDomNode &node = QDomNode());

    /**
     * One page ("3") or one inclusive range of the first two '-'-separated pieces ("3-5"), each a
     * decimal integer. No value when a number does not read, so "x" and "-3" give none; "5-3" gives
     * an empty range.
     */
    static std::optional<ZRPageRange> decodeRange(QStringView text);

    /**
     * True when a list of @p pages pages is within ZRXMLLimits::maxListPages; otherwise false, with
     * the warning "Page list too long in the product description.", which is also reported to a
     * diagnostics collector on @p node, where the list is from.
     */
    static bool isWithinLimit(qint64 pages, const QDomNode &node = QDomNode());
};

#endif
