#include "ZRProductionExtraPage.h"

#include "ZRXMLParser.h"
#include "ZRXMLVocabulary.h"

namespace {
const ZRXMLVocabulary vocabulary(
    QStringLiteral("pdf"), { QStringLiteral("filename"), QStringLiteral("type"), QStringLiteral("layer") }, {});
}

ZRProductionExtraPage::ZRProductionExtraPage() = default;

ZRProductionExtraPage::ZRProductionExtraPage(const QDomElement &element)
    : m_filename(ZRXMLParser::attribute(element, QStringLiteral("filename"), QString(), true))
    , m_templateType(ZRXMLParser::attribute(element, QStringLiteral("type"), QString(), true))
    , m_targetLayer(ZRXMLParser::intAttribute(element, QStringLiteral("layer"), 0))
{
    vocabulary.check(element);
}

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
