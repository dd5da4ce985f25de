#include "ZRDateRange.h"

ZRDateRange::ZRDateRange(const QDate &from, const QDate &to)
    : m_from(from)
    , m_to(to)
{ }

ZRDateRange::~ZRDateRange() = default;
