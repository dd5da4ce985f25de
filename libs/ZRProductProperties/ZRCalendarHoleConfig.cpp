#include "ZRCalendarHoleConfig.h"

#include "ZRXMLParser.h"
#include "ZRXMLVocabulary.h"

namespace {
const ZRXMLVocabulary vocabulary(
    QStringLiteral("hole"), { QStringLiteral("diameter"), QStringLiteral("distanceY") }, {});
}

ZRCalendarHoleConfig::ZRCalendarHoleConfig() = default;

ZRCalendarHoleConfig::ZRCalendarHoleConfig(const QDomElement &element)
    : m_diameter(ZRXMLParser::intAttribute(element, QStringLiteral("diameter"), 0))
    , m_distanceY(ZRXMLParser::intAttribute(element, QStringLiteral("distanceY"), 0))
{
    vocabulary.check(element);
}

ZRCalendarHoleConfig::~ZRCalendarHoleConfig() = default;

bool ZRCalendarHoleConfig::hasHole() const
{
    return m_diameter != 0 && m_distanceY != 0;
}

bool ZRCalendarHoleConfig::operator==(const ZRCalendarHoleConfig &other) const
{
    return m_diameter == other.m_diameter && m_distanceY == other.m_distanceY;
}

bool ZRCalendarHoleConfig::operator!=(const ZRCalendarHoleConfig &other) const
{
    return !(*this == other);
}

bool ZRCalendarHoleConfig::operator<(const ZRCalendarHoleConfig &other) const
{
    // Either field being smaller is enough; surroundings have always been sorted this way.
    return m_diameter < other.m_diameter || m_distanceY < other.m_distanceY;
}
