#include "ZRXMLRewriterStrategy.h"

template class ZREnumWrapper<ZRXMLRewriterStrategyEnum>;

ZRXMLRewriterStrategy::ZRXMLRewriterStrategy(ZRXMLRewriterStrategyEnum value)
    : ZREnumWrapper(value)
{ }

ZRXMLRewriterStrategy::ZRXMLRewriterStrategy(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRXMLRewriterStrategy::fillTable(Table *table) const
{
    table->insert({
        { "RewriteOneToTwoSides", ZRXMLRewriterOneToTwoSides },
        { "RewriteOneToTwoPages", ZRXMLRewriterOneToTwoPages },
        { "RewriteEasyToVario", ZRXMLRewriterEasyToVario },
        { "RewriteSplitInTwoProjects", ZRXMLRewriterSplitInTwoProjects },
        { "RewriteOneSidedEasyToTwoSidedVario", ZRXMLRewriterOneSidedEasyToTwoSidedVario },
        { "RewriteOneSidedVario10ToTwoSidedVario5", ZRXMLRewriterOneSidedVario10ToTwoSidedVario5 },
    });
}
