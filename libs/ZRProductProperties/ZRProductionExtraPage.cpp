#include "ZRProductionExtraPage.h"

#include "ZRXMLParser.h"

ZRProductionExtraPage::ZRProductionExtraPage() = default;

ZRProductionExtraPage::ZRProductionExtraPage(const QDomElement &element)
    : m_filename(ZRXMLParser::attribute(element, QStringLiteral("filename"), QString(), true))
    , m_templateType(ZRXMLParser::attribute(element, QStringLiteral("type"), QString(), true))
    , m_targetLayer(ZRXMLParser::intAttribute(element, QStringLiteral("layer"), 0))
{ }

ZRProductionExtraPage::~ZRProductionExtraPage() = default;

bool ZRProductionExtraPage::operator==(const ZRProductionExtraPage &other) const
{
    return m_filename == other.m_filename && m_templateType == other.m_templateType
        && m_targetLayer == other.m_targetLayer;
}

bool ZRProductionExtraPage::operator!=(const ZRProductionExtraPage &other) const
{
    return !(*this == other);
}
