#include "ZRUserPageTiltConfig.h"

#include "ZRPageListDecoder.h"
#include "ZRXMLDiagnostics.h"
#include "ZRXMLParser.h"
#include "ZRXMLVocabulary.h"

namespace {
const ZRXMLVocabulary vocabulary(
    QStringLiteral("pageTilt"), { QStringLiteral("disabled"), QStringLiteral("pages") }, {});
}

ZRUserPageTiltConfig::ZRUserPageTiltConfig() = default;

ZRUserPageTiltConfig::ZRUserPageTiltConfig(const QDomElement &element)
    : m_disabled(ZRXMLParser::boolAttribute(element, QStringLiteral("disabled"), false))
    , m_pages(decodeIntList(ZRXMLParser::attribute(element, QStringLiteral("pages"), QString(), true),
          ZRXMLDiagnostics::isActive() ? element.attributes().namedItem(QStringLiteral("pages")) : QDomNode()))
{
    vocabulary.check(element);
}

ZRUserPageTiltConfig::~ZRUserPageTiltConfig() = default;

QList<int> ZRUserPageTiltConfig::decodeIntList(const QString &text, const QDomNode &node)
{
    return ZRPageListDecoder::decode(text, ZRPageListDecoder::NoRanges, node);
}

bool ZRUserPageTiltConfig::isPageRotationDisabled(int page) const
{
    if (!m_disabled)
        return false;
    return m_pages.isEmpty() || m_pages.contains(page);
}

bool ZRUserPageTiltConfig::operator==(const ZRUserPageTiltConfig &other) const
{
    return m_disabled == other.m_disabled && m_pages == other.m_pages;
}

bool ZRUserPageTiltConfig::operator!=(const ZRUserPageTiltConfig &other) const
{
    return !(*this == other);
}
