#ifndef ZRDISTANCE_H
#define ZRDISTANCE_H

#include "ZRDistanceUnit.h"
#include "zrcore_export.h"

/** A length with its unit. */
class ZRCORE_EXPORT ZRDistance
{
public:
    ZRDistance() = default;
    ZRDistance(double value, const ZRDistanceUnit &unit);
    virtual ~ZRDistance();
    ZRDistance(const ZRDistance &) = default;
    ZRDistance &operator=(const ZRDistance &) = default;

    double value() const { return m_value; }
    ZRDistanceUnit unit() const { return m_unit; }
    bool operator==(const ZRDistance &other) const { return m_value == other.m_value && m_unit == other.m_unit; }
    bool operator!=(const ZRDistance &other) const { return !(*this == other); }

private:
    double m_value = 0.0;
    ZRDistanceUnit m_unit;
};

#endif
