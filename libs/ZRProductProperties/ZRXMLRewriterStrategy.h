#ifndef ZRXMLREWRITERSTRATEGY_H
#define ZRXMLREWRITERSTRATEGY_H

#include "ZREnumWrapper.h"
#include "zrproductproperties_export.h"

/** How an old project file is rewritten for a product. Two keys name combined values:
 * "RewriteOneSidedEasyToTwoSidedVario" (5) and "RewriteOneSidedVario10ToTwoSidedVario5" (9); any other text decodes to
 * 0 (no rewriting). */
enum ZRXMLRewriterStrategyEnum : int
{
    ZRXMLRewriterOneToTwoSides = 1,
    ZRXMLRewriterOneToTwoPages = 2,
    ZRXMLRewriterEasyToVario = 4,
    ZRXMLRewriterSplitInTwoProjects = 8,
    ZRXMLRewriterOneSidedEasyToTwoSidedVario = ZRXMLRewriterOneToTwoSides | ZRXMLRewriterEasyToVario,
    ZRXMLRewriterOneSidedVario10ToTwoSidedVario5 = ZRXMLRewriterOneToTwoSides | ZRXMLRewriterSplitInTwoProjects,
    ZRXMLRewriterNone = 0,
};

extern template class ZRPRODUCTPROPERTIES_EXPORT ZREnumWrapper<ZRXMLRewriterStrategyEnum>;

/** ZRXMLRewriterStrategy: a ZRXMLRewriterStrategyEnum flag set; built from comma-separated keys, case and blanks
 * ignored. */
class ZRPRODUCTPROPERTIES_EXPORT ZRXMLRewriterStrategy : public ZREnumWrapper<ZRXMLRewriterStrategyEnum>
{
public:
    ZRXMLRewriterStrategy(ZRXMLRewriterStrategyEnum value = ZRXMLRewriterStrategyEnum(0));
    explicit ZRXMLRewriterStrategy(const QString &keys);

protected:
    void fillTable(Table *table) const override;
};

#endif
