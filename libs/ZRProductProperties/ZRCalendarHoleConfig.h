#ifndef ZRCALENDARHOLECONFIG_H
#define ZRCALENDARHOLECONFIG_H

#include "zrproductproperties_export.h"

#include <QDomElement>

/**
 * The punched holes of a calendar page: their diameter and their vertical distance.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRCalendarHoleConfig
{
public:
    /** No holes: diameter and distance 0. */
    ZRCalendarHoleConfig();
    /**
     * Reads the integer attributes "diameter" and "distanceY" of a "hole" element; a missing or
     * malformed one, or a null element, gives 0.
     */
    explicit ZRCalendarHoleConfig(const QDomElement &element);
    virtual ~ZRCalendarHoleConfig();

    int diameter() const { return m_diameter; }
    int distanceY() const { return m_distanceY; }
    /** True when both the diameter and the distance are non-zero. */
    bool hasHole() const;

    bool operator==(const ZRCalendarHoleConfig &other) const;
    bool operator!=(const ZRCalendarHoleConfig &other) const;
    /**
     * Less when the diameter is smaller, or else when the distance is smaller. This is not a
     * lexicographic order: (5, 1) < (3, 2) and (3, 2) < (5, 1) both hold.
     */
    bool operator<(const ZRCalendarHoleConfig &other) const;

private:
    int m_diameter = 0;
    int m_distanceY = 0;
};

#endif
