#include "ZRDistance.h"

ZRDistance::ZRDistance(double value, const ZRDistanceUnit &unit)
    : m_value(value)
    , m_unit(unit)
{ }

ZRDistance::~ZRDistance() = default;
