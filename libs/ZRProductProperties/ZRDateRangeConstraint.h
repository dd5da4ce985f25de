#ifndef ZRDATERANGECONSTRAINT_H
#define ZRDATERANGECONSTRAINT_H

#include "ZRDateRange.h"
#include "zrproductproperties_export.h"

#include <QDate>
#include <QDomElement>

/**
 * Which years a calendar may start in, counted in years from the current year.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRDateRangeConstraint
{
public:
    /** Not enforced; minimum and maximum both the current year. */
    ZRDateRangeConstraint();
    /**
     * Reads the attributes "isEnforced" (default false), "minimumFromCurrentYear" and
     * "maximumFromCurrentYear" (default 0) of a "dateRangeConstraint" element. A null element gives
     * the defaults.
     */
    explicit ZRDateRangeConstraint(const QDomElement &element);
    virtual ~ZRDateRangeConstraint();

    /** Whether the range is enforced at all. */
    bool enforce() const { return m_isEnforced; }
    int minimumFromCurrentYear() const { return m_minimumFromCurrentYear; }
    int maximumFromCurrentYear() const { return m_maximumFromCurrentYear; }

    /**
     * From 1 January of the first allowed year to 1 January of the last allowed year, both counted
     * from today's year.
     */
    ZRDateRange allowedDateRange() const;
    /** @p date when not enforced, otherwise the upper bound of allowedDateRange(). */
    QDate maximumAllowedDate(const QDate &date) const;
    /** @p date when not enforced, otherwise the lower bound of allowedDateRange(). */
    QDate minimumAllowedDateSince(const QDate &date) const;

    bool operator==(const ZRDateRangeConstraint &other) const;
    bool operator!=(const ZRDateRangeConstraint &other) const;

private:
    bool m_isEnforced = false;
    int m_minimumFromCurrentYear = 0;
    int m_maximumFromCurrentYear = 0;
};

#endif
