#include "ZRDateRangeConstraint.h"

#include "ZRXMLParser.h"
#include "ZRXMLVocabulary.h"

namespace {
const ZRXMLVocabulary vocabulary(QStringLiteral("dateRangeConstraint"),
    { QStringLiteral("isEnforced"), QStringLiteral("minimumFromCurrentYear"),
        QStringLiteral("maximumFromCurrentYear") },
    {});
}

ZRDateRangeConstraint::ZRDateRangeConstraint() = default;

ZRDateRangeConstraint::ZRDateRangeConstraint(const QDomElement &element)
    : m_isEnforced(ZRXMLParser::boolAttribute(element, QStringLiteral("isEnforced"), false))
    , m_minimumFromCurrentYear(ZRXMLParser::intAttribute(element, QStringLiteral("minimumFromCurrentYear"), 0))
    , m_maximumFromCurrentYear(ZRXMLParser::intAttribute(element, QStringLiteral("maximumFromCurrentYear"), 0))
{
    vocabulary.check(element);
}

ZRDateRangeConstraint::~ZRDateRangeConstraint() = default;

ZRDateRange ZRDateRangeConstraint::allowedDateRange() const
{
    const int year = QDate::currentDate().year();
    // The upper bound is the first day of the last allowed year, not its last day.
    return ZRDateRange(QDate(year + m_minimumFromCurrentYear, 1, 1), QDate(year + m_maximumFromCurrentYear, 1, 1));
}

QDate ZRDateRangeConstraint::maximumAllowedDate(const QDate &date) const
{
    return m_isEnforced ? allowedDateRange().to() : date;
}

QDate ZRDateRangeConstraint::minimumAllowedDateSince(const QDate &date) const
{
    return m_isEnforced ? allowedDateRange().from() : date;
}

bool ZRDateRangeConstraint::operator==(const ZRDateRangeConstraint &other) const
{
    return m_isEnforced == other.m_isEnforced && m_minimumFromCurrentYear == other.m_minimumFromCurrentYear
        && m_maximumFromCurrentYear == other.m_maximumFromCurrentYear;
}

bool ZRDateRangeConstraint::operator!=(const ZRDateRangeConstraint &other) const
{
    return !(*this == other);
}
